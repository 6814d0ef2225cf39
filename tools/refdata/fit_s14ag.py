#!/usr/bin/env python3
"""Truncation error of the asymptotic series of the complex kernels s14afzn
(psi^(K), K = 0..6) and s14agzn (ln gamma) as the kernels take them.

The kernels shift z to w = z + n with |w| >= R (R = 8 + K/2 for psi^(K),
R = 8 for ln gamma) and sum the series to a number of terms read from a
table indexed by the quarter binade of 1/|w|^2 (its exponent and first two
fraction bits): the first count whose next term's bound, at the top of the
quarter binade, falls below 1e-21, rounded up to an even count. Their coefficients come at compile time from the table b_j =
B_2j/(2j)! of zeb_s_bernoulli.h. This script repeats that choice and
measures, against mpmath, the largest error of the truncated series on the
boundary |w| = R with Re w >= 1/2 and on the circles at the tops of the
next quarter binades: relative to psi^(K)(w), and absolute for ln gamma(w) (whose
results cancel to no less than about 0.1 away from its zeros).

Run: /usr/bin/python3 tools/refdata/fit_s14ag.py
"""
import mpmath as mp

mp.mp.dps = 50
TOL = mp.mpf("1e-21")
NB = 22  # terms in the table of b_j
B = [mp.bernoulli(2 * j) for j in range(1, NB + 1)]


def psi_coef(k):
    """c_j = b_j (K+1)(K+2)...(K+2j-1), j = 1..22."""
    return [B[j - 1] / mp.factorial(2 * j) * mp.rf(k + 1, 2 * j - 1) for j in range(1, NB + 1)]


def stirling_coef():
    """B_2k/(2k(2k-1)), k = 1..16."""
    return [B[k - 1] / (2 * k * (2 * k - 1)) for k in range(1, 17)]


def top(w):
    """The top of the quarter binade of a = 1/|w|^2."""
    a = 1 / abs(w) ** 2
    e = int(mp.floor(mp.log(a, 2)))
    f = a / mp.mpf(2) ** e  # in [1, 2)
    m = int(mp.floor((f - 1) * 4))
    return mp.mpf(2) ** e * (1 + mp.mpf(m + 1) / 4)


def count(c, w, first_power):
    """Terms for the quarter binade of 1/|w|^2."""
    a = top(w)
    nt = 1
    bound = a ** first_power
    while nt < len(c) and abs(c[nt]) * bound > TOL:
        bound *= a
        nt += 1
    return (nt + 1) & ~1


def circle(r):
    pts = []
    for i in range(13):
        w = r * mp.expj(mp.pi / 2 * i / 12)
        if w.real < 0.5:
            w = mp.mpc(0.5, mp.sqrt(r * r - 0.25))
        pts.append(w)
    return pts


def psi_error(k, w, c, nt):
    t = 1 / w**2
    ser = sum(c[j] * t ** (j + 1) for j in range(nt))
    if k == 0:
        s = mp.log(w) - 1 / (2 * w) - ser
    else:
        s = (-1) ** (k + 1) * mp.factorial(k) * w ** (-k) * (mp.mpf(1) / k + 1 / (2 * w) + ser)
    ref = mp.psi(k, w)
    return abs(s - ref) / abs(ref)


def lngamma_error(w, c, nt):
    d = sum(c[j] / w ** (2 * j + 1) for j in range(nt))
    s = (w - mp.mpf(1) / 2) * mp.log(w) - w + mp.log(2 * mp.pi) / 2 + d
    return abs(s - mp.loggamma(w))


def radii(r):
    # the boundary, then the tops of the quarter binades above it
    out = [mp.mpf(r)]
    w = mp.mpf(r)
    for _ in range(4):
        w = 1 / mp.sqrt(top(w)) * (1 + mp.mpf(10) ** -12)
        out.append(w)
    return out


def main():
    for k in range(7):
        c = psi_coef(k)
        worst = 0
        most = 0
        for r in radii(8 + mp.mpf(k) / 2):
            for w in circle(r):
                nt = count(c, w, 2)
                most = max(most, nt)
                worst = max(worst, psi_error(k, w, c, nt))
        print("psi^(%d): |w| >= %s, at most %d terms, relative error %s"
              % (k, mp.nstr(8 + mp.mpf(k) / 2, 3), most, mp.nstr(worst, 3)))
    c = stirling_coef()
    worst = 0
    most = 0
    for r in radii(8):
        for w in circle(r):
            nt = count(c, w, mp.mpf(3) / 2)
            most = max(most, nt)
            worst = max(worst, lngamma_error(w, c, nt))
    print("ln gamma: |w| >= 8, at most %d terms, absolute error %s" % (most, mp.nstr(worst, 3)))


if __name__ == "__main__":
    main()
