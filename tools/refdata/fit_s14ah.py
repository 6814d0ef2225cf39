#!/usr/bin/python3
"""Coefficient tables of the scaled log gamma function (s14ahzn, s14ahyn).

  D(x) = ln gamma(x) - (x - 1/2) ln x + x - (1/2) ln(2 pi)

Prints, as C++ initialisers:
  * the Taylor coefficients of D(1+t) and D(2+t), t^0..t^66, each as a pair
    hi + lo of doubles (joined into one extended constant by the code), with
    the truncation error of 67 terms at |t| = 1/2;
  * the Stirling coefficients B_2k / (2k (2k-1)), k = 3..12, of
    D(x) ~ sum_k B_2k / (2k (2k-1) x^(2k-1)), rounded to double, with the
    relative truncation error at x = 10 and x = 15;
  * for 5/2 <= x < 15, in 21 pieces [2^e (1 + m/8), 2^e (1 + (m+1)/8)),
    the polynomial of degree 11 in t = x - mid of
      F(x) = x D(x) - 1/12 + 1/(360 x^2),
    a Chebyshev fit (mpmath chebyfit) on the piece, its coefficients rounded
    to double; the error printed is the largest |dF| / (x D(x)) on 201
    points a piece, the relative error it gives D = (1/12 - 1/(360 x^2) + F)/x.

Run: /usr/bin/python3 tools/refdata/fit_s14ah.py
"""
from mpmath import mp, mpf, bernoulli, loggamma, log, pi, taylor, chebyfit

mp.dps = 50


def D(x):
    return loggamma(x) - (x - mpf(1) / 2) * log(x) + x - log(2 * pi) / 2


def F(x):
    return x * D(x) - mpf(1) / 12 + 1 / (360 * x * x)


def pair(v):
    hi = float(v)
    lo = float(v - mpf(hi))
    return hi, lo


def taylor_tables():
    for a in (1, 2):
        t = taylor(D, a, 67)
        err = abs(t[67]) * mpf(2) ** -67 / min(D(mpf(a) - mpf(1) / 2), D(mpf(a) + mpf(1) / 2))
        print(f"// Taylor coefficients of D({a}+t), t^0..t^66, as hi + lo, by mpmath at 50")
        print("// digits (tools/refdata/fit_s14ah.py). Truncation after 67 terms at")
        print(f"// |t| = 1/2: relative error {float(err):.2e}.")
        print(f"constexpr double kTaylor{a}Pairs[67][2] = {{")
        for k in range(67):
            h, l = pair(t[k])
            print(f"    {{{h!r}, {l!r}}},")
        print("};")
        print()


def stirling():
    c = {k: bernoulli(2 * k) / (2 * k * (2 * k - 1)) for k in range(1, 14)}
    print("// Stirling coefficients B_2k/(2k(2k-1)), k = 12 down to 3: exact rationals")
    print("// rounded to double (tools/refdata/fit_s14ah.py). Relative truncation error")
    for x in (10, 15):
        err = abs(c[13]) / mpf(x) ** 25 / D(mpf(x))
        print(f"// after k = 12 at x = {x}: {float(err):.2e}.")
    print("constexpr double kStirling[10] = {")
    for k in range(12, 2, -1):
        print(f"    {float(c[k])!r},")
    print("};")
    print()


def pieces():
    out = []
    for e in (1, 2, 3):
        for m in range(8):
            a = (1 + m / 8) * 2 ** e
            b = (1 + (m + 1) / 8) * 2 ** e
            if b <= 2.5 or a >= 15:
                continue
            out.append((a, b))
    return out


def mid_table(n=12):
    rows = []
    worst = mpf(0)
    for a, b in pieces():
        lo, hi = max(a, 2.5), min(b, 15.0)
        mid = (a + b) / 2
        c = chebyfit(lambda t: F(mid + t), [lo - mid, hi - mid], n)
        cd = [float(v) for v in c]
        for j in range(201):
            x = mpf(lo) + (mpf(hi) - lo) * j / 200
            p = mpf(0)
            for v in cd:
                p = p * (x - mid) + v
            worst = max(worst, abs(p - F(x)) / (x * D(x)))
        rows.append((a, b, mid, cd))
    print("// F(x) = x D(x) - 1/12 + 1/(360 x^2) on 21 pieces of [5/2, 15): mid, then")
    print(f"// the {n} coefficients of the degree-{n - 1} polynomial in t = x - mid from")
    print("// the highest power; Chebyshev fits by mpmath, rounded to double")
    print("// (tools/refdata/fit_s14ah.py). Largest error relative to D: "
          f"{float(worst):.2e}.")
    print(f"constexpr double kMid[21][{n + 1}] = {{")
    for a, b, mid, cd in rows:
        print(f"    // [{a}, {b})")
        print(f"    {{{mid!r}, " + ", ".join(repr(v) for v in cd) + "},")
    print("};")


def main():
    taylor_tables()
    stirling()
    mid_table()


if __name__ == "__main__":
    main()
