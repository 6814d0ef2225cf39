#!/usr/bin/env python3
"""Constants of s14ccvn and the references of tests/unit/test_beta_fast.cpp.

Prints the coefficients C_k = B_2k / (2k (2k-1)) of Stirling's series for
ln gamma (exact rationals from the Bernoulli numbers), then, at 50 digits,
ln(gamma(a+b) / (gamma(1+a) gamma(b))) and I_x(a, b), 1 - I_x(a, b) at the
test points (every input a double, taken exactly).
Run with /usr/bin/python3 (mpmath).
"""
from math import gcd

import mpmath as m

m.mp.dps = 50

print("C_k = B_2k / (2k (2k-1)):")
for k in range(1, 10):
    c = m.bernfrac(2 * k)
    num, den = c[0], c[1] * 2 * k * (2 * k - 1)
    g = gcd(num, den)
    print("  k=%d: %d/%d" % (k, num // g, den // g))

print("log gamma ratio:")
for a, b in [(2.556e-08, 0.236), (0.002273, 0.01042), (0.003432, 7.468), (0.5, 3.0),
             (0.3, 50.0), (1e-05, 100000.0), (1.0, 12.5), (1e-12, 11.99)]:
    A, B = m.mpf(a), m.mpf(b)
    r = m.loggamma(A + B) - m.loggamma(1 + A) - m.loggamma(B)
    print("    {%r, %r, %sL}," % (a, b, m.nstr(r, 25)))

print("incomplete beta:")
for a, b, x in [(1e-8, 0.3, 0.01), (2e-5, 3.0, 0.05), (0.003, 7.5, 0.03), (0.05, 0.5, 0.2),
                (1e-3, 90.0, 0.01), (0.2, 0.01, 0.3), (1e-10, 99.0, 0.005), (0.9, 1e-3, 0.3),
                (0.01, 0.99, 0.4), (0.5, 1.5, 0.1)]:
    A, B, X = m.mpf(a), m.mpf(b), m.mpf(x)
    i = m.betainc(A, B, 0, X, regularized=True)
    j = m.betainc(A, B, X, 1, regularized=True)
    print("    {%r, %r, %r, %sL, %sL}," % (a, b, x, m.nstr(i, 25), m.nstr(j, 25)))
