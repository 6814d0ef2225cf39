#!/usr/bin/python3
"""Coefficient tables of the scaled log gamma function (s14ahfn, s14ahzn).

  D(x) = ln gamma(x) - (x - 1/2) ln x + x - (1/2) ln(2 pi)

Prints, as C++ initialisers:
  * the Stirling coefficients B_2k / (2k (2k-1)), k = 1..11, of
    D(x) ~ sum_k B_2k / (2k (2k-1) x^(2k-1)), used for x >= 10, with the
    largest relative truncation error there;
  * the Taylor coefficients of D(1+t) and D(2+t), 67 of each, for the loops
    near 1 and 2, the first two of each also as double-double (hi, lo), with
    the truncation error of 67 terms at |t| = 1/2.

Run: /usr/bin/python3 tools/refdata/fit_s14ah.py
"""
from mpmath import mp, mpf, bernoulli, loggamma, log, pi, taylor

mp.dps = 60


def D(x):
    return loggamma(x) - (x - mpf(1) / 2) * log(x) + x - log(2 * pi) / 2


def hexf(v):
    return float(v).hex()


def dd(v):
    hi = float(v)
    lo = float(v - mpf(hi))
    return hi, lo


def stirling(nterms=11, xmin=10):
    c = [bernoulli(2 * k) / (2 * k * (2 * k - 1)) for k in range(1, nterms + 1)]
    # Truncation: the first omitted term relative to D(x), largest at xmin.
    k = nterms + 1
    x = mpf(xmin)
    err = abs(bernoulli(2 * k) / (2 * k * (2 * k - 1)) / x ** (2 * k - 1)) / D(x)
    return c, err


def main():
    c, err = stirling()
    print(f"// Stirling coefficients B_2k/(2k(2k-1)), k = 1..{len(c)}; exact rationals")
    print(f"// rounded to double. Relative truncation error for x >= 10: {float(err):.2e}.")
    print("static constexpr double kStirling[] = {")
    for v in c:
        print(f"    {float(v)!r},")
    print("};")
    for a in (1, 2):
        t = taylor(D, a, 67)
        err = abs(t[67]) * mpf(2) ** -67 / D(mpf(a) + mpf(1) / 2)
        print()
        print(f"// Taylor coefficients of D({a}+t), t^0..t^66, by mpmath at 60 digits")
        print("// (tools/refdata/fit_s14ah.py). Truncation")
        print(f"// after 67 terms at |t| = 1/2: relative error {float(err):.2e}.")
        h0, l0 = dd(t[0])
        h1, l1 = dd(t[1])
        print(f"static constexpr double kTaylor{a}Head[4] = {{{h0!r}, {l0!r},")
        print(f"                                          {h1!r}, {l1!r}}};")
        print(f"static constexpr double kTaylor{a}[67] = {{")
        for k in range(67):
            print(f"    {float(t[k])!r},")
        print("};")


if __name__ == "__main__":
    main()
