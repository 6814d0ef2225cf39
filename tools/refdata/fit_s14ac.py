#!/usr/bin/python3
"""Coefficients of the asymptotic expansion of the polygamma kernel s14aczn.

For order k >= 1 the scaled derivative S_k(x) = (-1)^(k+1) psi^(k)(x) / k!
has the expansion

  S_k(x) ~ x^-k [ 1/k + 1/(2x) + sum_j b_j (k+1)(k+2)...(k+2j-1) x^-2j ],

and for k = 0, ln x - psi(x) ~ 1/(2x) + sum_j b_j (2j-1)! x^-2j, with
b_j = B_2j / (2j)!. Prints b_1..b_22 (exact rationals rounded to double, and
as pairs hi + lo for the kernel's series in extended precision) and checks
the switch point of the kernel: from x >= 18.06 + k/2 the expansion reaches
a relative truncation error below 2^-60 within the 22 terms, for every order
up to 4000 (and beyond, where the bound only widens). Also prints the eight
coefficients B_2j/(2j) of order 0 from 18.06 up, and the powers of pi of the
reflection of s14aefn.

Run: /usr/bin/python3 tools/refdata/fit_s14ac.py
"""
from mpmath import mp, mpf, bernoulli, factorial

mp.dps = 40
NTERMS = 22


def worst_truncation(k, x):
    """Smallest term reached within NTERMS, relative to the leading term."""
    x = mpf(x)
    lead = mpf(1) / k if k > 0 else 1 / (2 * x)
    f = mpf(k + 1) if k > 0 else mpf(1)
    best = None
    for j in range(1, NTERMS + 1):
        t = abs(bernoulli(2 * j) / factorial(2 * j) * f * x ** (-2 * j)) / lead
        best = t if best is None else min(best, t)
        f *= (k + 2 * j) * (k + 2 * j + 1)
    return best


def main():
    print(f"// b_j = B_2j/(2j)!, j = 1..{NTERMS}: exact rationals rounded to double")
    print("// (tools/refdata/fit_s14ac.py).")
    print("constexpr double kBern[] = {")
    for j in range(1, NTERMS + 1):
        print(f"    {float(bernoulli(2 * j) / factorial(2 * j))!r},")
    print("};")
    # The same as pairs hi + lo, for the series carried in the x87 extended
    # format (s14acyn.cpp, kBernPairs).
    print()
    print(f"// b_j = B_2j/(2j)!, j = 1..{NTERMS}, as hi + lo, each part the correctly rounded")
    print("// double (tools/refdata/fit_s14ac.py).")
    print("constexpr double kBernPairs[][2] = {")
    for j in range(1, NTERMS + 1):
        v = bernoulli(2 * j) / factorial(2 * j)
        hi = float(v)
        lo = float(v - mpf(hi))
        print(f"    {{{hi!r}, {lo!r}}},")
    print("};")
    # Order 0 on the recurrence's landing interval [18.06, 19.06): the
    # expansion of ln x - psi(x) in z = 1/x^2 with B_2j/(2j), j = 1..8.
    y = mpf("18.06")
    lead = 1 / (2 * y)
    err = abs(bernoulli(18) / 18 / y ** 18) / lead
    print()
    print("// B_2j/(2j), j = 1..8: exact rationals rounded to double")
    print("// (tools/refdata/fit_s14ac.py); the ninth term is below "
          f"{float(err):.1e} of ln x - psi(x) for x >= 18.06.")
    print("constexpr double kPsiAsym[] = {")
    for j in range(1, 9):
        print(f"    {float(bernoulli(2 * j) / (2 * j))!r},")
    print("};")
    # The reflection of s14aefn: pi^(K+1), K = 0..6, correctly rounded.
    print()
    print("// pi^(K+1), K = 0..6, as hi + lo, each part correctly rounded")
    print("// (tools/refdata/fit_s14ac.py).")
    print("constexpr double kPiPow[7][2] = {")
    for k in range(7):
        v = mp.pi ** (k + 1)
        hi = float(v)
        lo = float(v - mpf(hi))
        print(f"    {{{hi!r}, {lo!r}}},")
    print("};")
    worst = max(worst_truncation(k, mpf("18.06") + mpf(k) / 2)
                for k in list(range(0, 60)) + [100, 200, 500, 1000, 2000, 4000])
    print(f"// Largest relative truncation at x = 18.06 + k/2, k <= 4000: "
          f"{float(worst):.2e} (bound 2^-60 = {2.0**-60:.2e}).")
    assert worst < mpf(2) ** -60


if __name__ == "__main__":
    main()
