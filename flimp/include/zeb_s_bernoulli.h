// b_j = B_2j/(2j)!, j = 1..22, the Bernoulli numbers of the expansions of
// psi, of ln gamma and of ln(sinh(t)/t) in chapter s: exact rationals, each
// rounded once to double (printed by tools/refdata/fit_s14ac.py).
#pragma once

namespace zeb::s {

inline constexpr double kBern[] = {
    0.08333333333333333,
    -0.001388888888888889,
    3.306878306878307e-05,
    -8.267195767195768e-07,
    2.08767569878681e-08,
    -5.284190138687493e-10,
    1.3382536530684679e-11,
    -3.3896802963225827e-13,
    8.586062056277845e-15,
    -2.174868698558062e-16,
    5.5090028283602295e-18,
    -1.3954464685812522e-19,
    3.534707039629467e-21,
    -8.953517427037546e-23,
    2.267952452337683e-24,
    -5.744790668872202e-26,
    1.455172475614865e-27,
    -3.6859949406653103e-29,
    9.336734257095045e-31,
    -2.36502241570063e-32,
    5.990671762482134e-34,
    -1.5174548844682903e-35,
};
inline constexpr int kNBern = sizeof(kBern) / sizeof(kBern[0]);

}  // namespace zeb::s
