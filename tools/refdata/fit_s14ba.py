#!/usr/bin/python3
"""Coefficient tables of the incomplete gamma functions (s14bafn, s14bazn).

1. The Taylor polynomial of 1/gamma(1+b) for |b| <= 1/2:
     1/gamma(1+b) = 1 + c_2 b + b^2 (c_3 + c_4 b + ... + c_23 b^20),
   the 21 coefficients c_23 .. c_3 of the bracket from the highest power
   (the Taylor coefficients of 1/gamma(z) = sum_k c_k z^k, by mpmath at 50
   digits), each split into hi + lo doubles, with the truncation error on
   |b| <= 1/2.

2. Temme's uniform asymptotic expansion of Q(a, x) near the transition,
     Q(a, x) = (1/2) erfc(eta sqrt(a/2)) + R,
     R = exp(-a eta^2/2) / sqrt(2 pi a) sum_k C_k(eta) a^-k,
   lambda = x/a, eta^2/2 = lambda - 1 - ln(lambda), sign(eta) = sign(lambda-1),
     C_0 = 1/(lambda-1) - 1/eta,
     C_k = (1/eta) C'_(k-1)(eta) + (-1)^k g_k / (lambda-1),
   g_k the coefficients of gamma*(a) = gamma(a) / (sqrt(2 pi) a^(a-1/2) e^-a)
   = sum_k g_k a^-k. The C_k are worked out as Taylor series in eta in exact
   rational arithmetic (lambda(eta) by reversion of the series of
   lambda - 1 - ln(lambda)); their coefficients d_(k,n) are printed as
   doubles. The script checks the expansion against mpmath's gammainc on the
   band where s14bazn uses it (a >= 20, 0.7 <= lambda <= 1.4) and prints the
   largest relative error.

Run: /usr/bin/python3 tools/refdata/fit_s14ba.py
"""
from fractions import Fraction as F

from mpmath import mp, mpf, taylor, rgamma, gammainc, erfc, exp, sqrt, log, pi, bernoulli

mp.dps = 50

K = 15   # C_0 .. C_14
N = 25   # eta^0 .. eta^24 for each C_k
DEG = N + 2 * K + 4


def smul(a, b, deg):
    """Product of two power series (lists of Fractions, index = power)."""
    r = [F(0)] * (deg + 1)
    for i, ai in enumerate(a):
        if ai == 0 or i > deg:
            continue
        for j, bj in enumerate(b):
            if i + j > deg:
                break
            r[i + j] += ai * bj
    return r


def sinv(a, deg):
    """1/a for a power series with a[0] != 0."""
    r = [F(0)] * (deg + 1)
    r[0] = 1 / a[0]
    for n in range(1, deg + 1):
        s = F(0)
        for j in range(1, min(n, len(a) - 1) + 1):
            s += a[j] * r[n - j]
        r[n] = -s / a[0]
    return r


def mu_series(deg):
    """mu(eta) = lambda - 1 with mu - ln(1+mu) = eta^2/2, mu ~ eta."""
    mu = [F(0), F(1)] + [F(0)] * (deg - 1)
    for j in range(2, deg + 1):
        # F(mu) = sum_{m>=2} (-1)^m mu^m / m - eta^2/2, read at eta^(j+1)
        p = smul(mu, mu, j + 1)
        total = [F(0)] * (j + 2)
        m = 2
        while True:
            coef = F((-1) ** m, m)
            nz = False
            for i in range(j + 2):
                if p[i] != 0:
                    nz = True
                total[i] += coef * p[i]
            if not nz or m > j + 2:
                break
            p = smul(p, mu, j + 1)
            m += 1
        total[2] -= F(1, 2)
        mu[j] = -total[j + 1]
    return mu


def gstar_coeffs(k):
    """g_0..g_(k-1) of gamma*(a) = exp(sum_j B_2j/(2j(2j-1)) a^-(2j-1))."""
    bern = exact_bernoulli(2 * k)
    s = [F(0)] * k
    for j in range(1, k):
        if 2 * j - 1 < k:
            s[2 * j - 1] = bern[2 * j] / (2 * j * (2 * j - 1))
    # exp of the series
    e = [F(0)] * k
    e[0] = F(1)
    term = [F(1)] + [F(0)] * (k - 1)
    for n in range(1, k):
        term = smul(term, s, k - 1)
        term = [t / n for t in term]
        for i in range(k):
            e[i] += term[i]
    return e


def exact_bernoulli(n):
    """B_0..B_n as Fractions (B_1 = -1/2)."""
    a = [F(0)] * (n + 1)
    b = []
    for m in range(n + 1):
        a[m] = F(1, m + 1)
        for j in range(m, 0, -1):
            a[j - 1] = j * (a[j - 1] - a[j])
        b.append(a[0])
    b[1] = -b[1] if b[1] > 0 else b[1]
    return b


def temme_coefficients():
    mu = mu_series(DEG + 2)
    # 1/mu = (1/eta) * 1/(mu/eta): keep as (coefficients of eta^-1 ...)
    m = mu[1:]                      # mu/eta
    im = sinv(m, DEG)               # eta/mu
    # Laurent series as dict power -> Fraction
    inv_mu = {n - 1: im[n] for n in range(len(im))}
    c = dict(inv_mu)
    c[-1] = c.get(-1, 0) - 1        # C_0 = 1/mu - 1/eta
    g = gstar_coeffs(K + 1)
    cs = []
    for k in range(K):
        if k > 0:
            d = {}
            for p, v in c.items():
                if p != 0 and v != 0:
                    d[p - 2] = d.get(p - 2, 0) + p * v
            for p, v in inv_mu.items():
                d[p] = d.get(p, 0) + (-1) ** k * g[k] * v
            c = {p: v for p, v in d.items() if p >= -1}
        assert c.get(-1, 0) == 0 and all(p >= 0 for p, v in c.items() if v != 0), k
        cs.append([c.get(n, F(0)) for n in range(N)])
    return cs


def rgamma_taylor():
    t = taylor(rgamma, 0, 26)   # 1/gamma(z) = sum t[k] z^k; t[1] = 1
    # 1/gamma(1+a) = (1/a) (1/gamma(a)) = sum_k t[k+1] a^k
    c = [t[k] for k in range(26)]
    return c


def temme_q(a, x, cs):
    lam = x / a
    phi = lam - 1 - log(lam)
    eta = sqrt(2 * phi) * (1 if lam >= 1 else -1)
    s = 0
    for k, row in enumerate(cs):
        ck = sum(mpf(row[n].numerator) / row[n].denominator * eta**n for n in range(N))
        s += ck / a**k
    return erfc(eta * sqrt(a / 2)) / 2 + exp(-a * eta**2 / 2) / sqrt(2 * pi * a) * s


def main():
    c = rgamma_taylor()
    # Each coefficient as a pair hi + lo of doubles, so that the polynomial
    # can be summed in the x87 extended format with its 64 bits.
    def pair(v):
        hi = float(v)
        return hi, float(v - mpf(hi))
    # The polynomial serves b = a, a - 1 or a - 2 on [-1/2, 1/2] (1/gamma(1+a)
    # from 1/gamma(1+b) by the recurrence); the first term left out and the
    # next give the truncation error there.
    trunc = abs(c[24]) * mpf(0.5)**24 + abs(c[25]) * mpf(0.5)**25
    print("// 1/gamma(1+b) = 1 + c_2 b + b^2 (c_3 + c_4 b + ... + c_23 b^20): the")
    print("// Taylor coefficients c_23 .. c_3 from the highest power, each as")
    print("// hi + lo, by mpmath at 50 digits (tools/refdata/fit_s14ba.py).")
    print("// Truncation error on |b| <= 1/2: "
          f"{float(trunc):.1e}.")
    print("constexpr double kRgam[21][2] = {")
    for k in range(23, 2, -1):
        hi, lo = pair(c[k])
        print(f"    {{{hi!r}, {lo!r}}},")
    print("};")
    hi, lo = pair(c[2])
    print(f"constexpr double kEuler[2] = {{{hi!r}, {lo!r}}};  // c_2")

    cs = temme_coefficients()
    worst = mpf(0)
    for a in (mpf(20), mpf(20.5), mpf(35), mpf(100), mpf(1000), mpf(10)**5):
        for lam in (mpf("0.7"), mpf("0.8"), mpf("0.95"), mpf(1), mpf("1.05"),
                    mpf("1.2"), mpf("1.4")):
            x = a * lam
            ref = gammainc(a, x, mp.inf, regularized=True)
            got = temme_q(a, x, cs)
            small = min(ref, 1 - ref)
            err = abs(got - ref) / small
            worst = max(worst, err)
    print()
    print(f"// d_(k,n): C_k(eta) = sum_n d_(k,n) eta^n, k = 0..{K-1}, n = 0..{N-1};")
    print("// exact rationals rounded to double (tools/refdata/fit_s14ba.py).")
    print(f"// Largest relative error of the expansion against mpmath on a >= 20,")
    print(f"// 0.7 <= x/a <= 1.4, in the smaller of P and Q: {float(worst):.1e}.")
    print(f"constexpr double kTemme[{K}][{N}] = {{")
    for row in cs:
        vals = [float(v) for v in row]
        print("    {" + ", ".join(repr(v) for v in vals) + "},")
    print("};")


if __name__ == "__main__":
    main()
