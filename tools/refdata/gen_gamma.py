#!/usr/bin/python3
"""Reference tables of the gamma group: tests/data/<routine>.csv.

  s14acf   psi(x) - ln x                     x | ref, cond | range
  s14adf   (-1)^(n+1) psi^(n)(x) / n!        x, n | ref, cond | range
  s14aef   psi^(k)(x), real x                x, k | ref, cond | range
  s14aff   psi^(k)(z), complex z             re, im, k | re, im, cond | range
  s14agf   ln gamma(z), principal branch     re, im | re, im, cond | range
  s14ahf   ln gamma(x) - (x-1/2) ln x + x - ln(2 pi)/2    x | ref, cond | range
  s14baf   P(a,x), Q(a,x)                    a, x | P, Q, cond P, cond Q | range
  s14cbzn  ln B(a,b)                         a, b | ref, cond | range
  s14cczn  I_x(a,b), 1 - I_x(a,b)            a, b, x, y | I, J, cond I, cond J | range

Inputs are exact doubles written as C99 hexadecimal floats (integers too);
references are decimal strings of 30 significant digits computed by mpmath
with at least 40 digits (more where the arguments are large); cond is the
condition number |x f'(x)/f(x)| (for several arguments the sum over them),
which the accuracy test divides the error in ulps by where the function is
ill-conditioned. Points: a seeded random sample over each function's domain
(uniform and log-uniform ranges), every cut point of the algorithms from
both sides (nextafter), the edges of the failure ranges, and poles and zeros
approached closely.

The reference values use mpmath's own functions (digamma, polygamma,
loggamma, gammainc, hyp2f1) except where they are slow or lose digits:
there the standard identities are evaluated in mpmath at raised precision
(the reflection formulas for negative arguments, the asymptotic series of
psi for |x| > 1e10 (complex: 1e5), of ln gamma for complex |z| > 1e10 and of
its correction for real x > 1e3). The incomplete beta function is summed
from its hypergeometric series of positive terms on the side of the mean
where x lies, the other tail being 1 less it (betainc's own series cancels
for large b).

Run: /usr/bin/python3 tools/refdata/gen_gamma.py   (about three minutes)
"""
import math
import os
import random
import sys

import mpmath
from mpmath import mp, mpf, mpc

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..")
OUT = os.path.join(ROOT, "tests", "data")
DPS = 40


def hexf(v):
    return float(v).hex()


def dec(v):
    return mp.nstr(v, 30) if v != 0 else "0.0"


def nextup(x):
    return math.nextafter(x, math.inf)


def nextdown(x):
    return math.nextafter(x, -math.inf)


def around(points):
    out = []
    for p in points:
        out += [nextdown(p), p, nextup(p)]
    return out


def header(f, name, cols, pts):
    f.write(f"# {name}: reference values by mpmath {mpmath.__version__}, "
            f"{DPS} digits or more (tools/refdata/gen_gamma.py)\n")
    f.write(f"# columns: {cols}\n")
    f.write(f"# points: {pts}\n")


# ---------------------------------------------------------------------------
# The polygamma family

# Derivatives of cot: P_0 = c, P_(k+1) = -(1+c^2) P_k'(c), coefficients
# from the constant up.
COT = [[0, 1]]
for _ in range(9):
    p = COT[-1]
    d = [i * p[i] for i in range(1, len(p))]
    q = [0] * (len(d) + 2)
    for i, v in enumerate(d):
        q[i] -= v
        q[i + 2] -= v
    COT.append(q)


def prec_for(x):
    ax = abs(x)
    return DPS + (int(mpmath.log10(ax)) if ax > 1 else 0)


def polygamma(k, x):
    """psi^(k)(x) for real or complex x, by reflection left of 1/2."""
    with mp.workdps(prec_for(x) + 10):
        re = x.real if isinstance(x, mpc) else x
        if isinstance(x, mpc) and abs(x) > 1e5 and re > 0:
            return asym_polygamma(k, x)
        if not isinstance(x, mpc) and x > 1e10:
            return asym_polygamma(k, x)
        if re < 0:
            c = mpmath.cot(mp.pi * x)
            pk = sum(co * c**i for i, co in enumerate(COT[k]))
            return (-1) ** k * polygamma(k, 1 - x) - mp.pi ** (k + 1) * pk
        return mpmath.polygamma(k, x)


def asym_polygamma(k, x):
    """The asymptotic series of psi^(k), for |x| > 1e5 in the right half."""
    if k == 0:
        return mpmath.log(x) - 1 / (2 * x) - sum(
            mpmath.bernoulli(2 * j) / (2 * j * x ** (2 * j)) for j in range(1, 8))
    s = mpmath.factorial(k - 1) / x**k + mpmath.factorial(k) / (2 * x ** (k + 1))
    s += sum(mpmath.bernoulli(2 * j) * mpmath.factorial(2 * j + k - 1)
             / (mpmath.factorial(2 * j) * x ** (2 * j + k)) for j in range(1, 8))
    return (-1) ** (k + 1) * s


def psi_minus_log(x):
    """psi(x) - ln x, and its derivative psi'(x) - 1/x."""
    X = mpf(x)
    if X > 1e10:
        f = -(1 / (2 * X) + sum(mpmath.bernoulli(2 * j) / (2 * j * X ** (2 * j))
                                for j in range(1, 6)))
        d = 1 / (2 * X**2) + sum(mpmath.bernoulli(2 * j) / X ** (2 * j + 1)
                                 for j in range(1, 6))
        return f, d
    with mp.workdps(DPS + 10):
        return mpmath.digamma(X) - mpmath.log(X), mpmath.polygamma(1, X) - 1 / X


def gen_s14acf(rng):
    pts = [rng.uniform(0, 25) for _ in range(900)]
    pts += [10 ** rng.uniform(-307, 0) for _ in range(500)]
    pts += [10 ** rng.uniform(1, 307) for _ in range(500)]
    pts += [rng.uniform(1, 2) for _ in range(200)]
    cuts = around([18.06, 1.0, 2.0, 0.5, 2.0**-1023, 2.0**1020, 1e-300, 1e300])
    pts += cuts
    rows = []
    for x in pts:
        if not (5.6e-309 < x < 2.2e307):
            continue
        f, d = psi_minus_log(x)
        label = ("cut" if x in cuts else
                 "tiny" if x < 1e-3 else "small" if x < 18.06 else
                 "asymptotic" if x < 1e10 else "large")
        rows.append(f"{hexf(x)},{dec(f)},{dec(abs(mpf(x) * d / f))},{label}")
    return rows, "x | psi(x) - ln x, cond | range", \
        "900 uniform on (0,25), 500 log-uniform each on (1e-307,1) and (10,1e307), " \
        "200 on (1,2), nextafter around 18.06 (the switch), 0.5, 1, 2 and the " \
        "overflow and underflow edges"


def scaled_psi(n, x):
    """(-1)^(n+1) psi^(n)(x)/n!, -psi(x) for n = 0, and its condition."""
    X = mpf(x)
    v = polygamma(n, X)
    d = polygamma(n + 1, X)
    s = (-1) ** (n + 1) * v / mpmath.factorial(n)
    return s, abs(X * d / v)


def gen_s14adf(rng):
    rows = []
    orders = [0, 1, 2, 3, 5, 10, 20, 50, 100, 300]
    for _ in range(1500):
        n = rng.choice(orders)
        r = rng.random()
        x = (rng.uniform(0, 30) if r < 0.5 else 10 ** rng.uniform(-3, 3) if r < 0.8
             else rng.uniform(0.5 * n, 0.5 * n + 40))
        if x <= 0:
            continue
        s, c = scaled_psi(n, x)
        if not (1e-300 < abs(s) < 1e300):
            continue
        rows.append(f"{hexf(x)},{hexf(n)},{dec(s)},{dec(c)},order {n}")
    for n in orders:
        for x in around([18.06 + 0.5 * n]):
            s, c = scaled_psi(n, x)
            if 1e-300 < abs(s) < 1e300:
                rows.append(f"{hexf(x)},{hexf(n)},{dec(s)},{dec(c)},cut")
    return rows, "x, n | (-1)^(n+1) psi^(n)(x)/n! (order 0: -psi(x)), cond | range", \
        "1500 random orders 0..300 at x uniform on (0,30), log-uniform on (1e-3,1e3) " \
        "and on (n/2, n/2+40); nextafter around the switch 18.06 + n/2 of each order"


def gen_s14aef(rng):
    rows = []
    for _ in range(2400):
        k = rng.randint(0, 6)
        r = rng.random()
        if r < 0.3:
            x = rng.uniform(0, 25)
        elif r < 0.45:
            x = 10 ** rng.uniform(-40, 0)
        elif r < 0.55:
            x = 10 ** rng.uniform(1, 100)
        elif r < 0.8:
            x = rng.uniform(-10, 0)
        elif r < 0.9:
            x = -(10 ** rng.uniform(0, 14)) + rng.uniform(-0.5, 0.5)
        else:
            n = rng.randint(0, 8)
            x = -n + rng.choice([-1, 1]) * 10 ** rng.uniform(-12, -1)
        X = mpf(x)
        if X <= 0 and X == mpmath.nint(X):
            continue
        v = polygamma(k, X)
        if not (1e-300 < abs(v) < 1e300):
            continue
        c = abs(X * polygamma(k + 1, X) / v)
        label = ("positive" if x > 0 else "negative well-conditioned" if c < 4
                 else "negative ill-conditioned")
        rows.append(f"{hexf(x)},{hexf(k)},{dec(v)},{dec(c)},{label}")
    for k in range(7):
        for x in around([0.5, 18.06 + 0.5 * k, 1.0]) + [-0.5, -1.5, -2.5]:
            X = mpf(x)
            v = polygamma(k, X)
            c = abs(X * polygamma(k + 1, X) / v)
            rows.append(f"{hexf(x)},{hexf(k)},{dec(v)},{dec(c)},cut")
    return rows, "x, k | psi^(k)(x), cond | range", \
        "2400 random k = 0..6 at x uniform on (0,25) and (-10,0), log-uniform on " \
        "(1e-40,1) and (10,1e100), near -(1..1e14) and within 1e-12..0.1 of the " \
        "poles 0..-8; nextafter around 1/2, 1 and the switch 18.06 + k/2, and the " \
        "half-integers -1/2, -3/2, -5/2"


def complex_point(rng, big=30):
    r = rng.random()
    if r < 0.35:
        return rng.uniform(-10, 10), rng.uniform(-10, 10)
    if r < 0.5:
        return rng.uniform(-3, 3), rng.choice([0.0, rng.uniform(-0.1, 0.1)])
    if r < 0.65:
        return (rng.choice([-1, 1]) * 10 ** rng.uniform(-5, 8),
                rng.choice([-1, 1]) * 10 ** rng.uniform(-5, 3))
    if r < 0.75:
        return -(10 ** rng.uniform(0, 4)) + rng.uniform(-1, 1), rng.uniform(-1, 1)
    return 10 ** rng.uniform(-3, big), rng.choice([-1, 1]) * 10 ** rng.uniform(-3, big)


def gen_s14aff(rng):
    rows = []
    pts = [(complex_point(rng), rng.randint(0, 4)) for _ in range(1800)]
    pts += [((x, y), k) for k in range(5) for x in around([0.5]) for y in (0.0, 1.0, -3.0)]
    for (x, y), k in pts:
        if y == 0 and x <= 0 and x == int(x):
            continue
        z = mpc(x, y)
        v = polygamma(k, z)
        if abs(v) < 1e-300:
            continue
        c = abs(z * polygamma(k + 1, z) / v)
        label = "right" if x >= 0.5 else "left"
        rows.append(f"{hexf(x)},{hexf(y)},{hexf(k)},{dec(v.real)},{dec(v.imag)},{dec(c)},{label}")
    return rows, "re z, im z, k | re, im of psi^(k)(z), cond | range", \
        "1800 random k = 0..4 at z uniform in the square |re|,|im| < 10, near the " \
        "real axis on (-3,3), log-uniform in size to 1e8, near -(1..1e4), and " \
        "log-uniform to 1e30 in the right half; nextafter around re z = 1/2"


def gen_s14agf(rng):
    rows = []
    pts = [complex_point(rng, big=300) for _ in range(2000)]
    pts += [(x, y) for x in around([0.5, 1.0, 2.0, 10.0]) for y in (0.0, 1e-20, 2.0)]
    pts += [(x, 0.0) for x in (-0.5, -1.5, -2.5, -10.25, -1e6 - 0.5)]
    for x, y in pts:
        if y == 0 and x <= 0 and x == int(x):
            continue
        z = mpc(x, y)
        if abs(z) > 2.55e305:
            continue
        if x > 0 and abs(z) > 1e10:
            # Stirling's series: its next term is below 1e-50 of the value.
            v = (z - mpf(1) / 2) * mpmath.log(z) - z + mpmath.log(2 * mp.pi) / 2 + sum(
                mpmath.bernoulli(2 * k) / (2 * k * (2 * k - 1) * z ** (2 * k - 1))
                for k in range(1, 4))
            c = abs(z * asym_polygamma(0, z) / v)
        else:
            with mp.workdps(prec_for(z) + 10):
                v = mpmath.loggamma(z)
                if v == 0:
                    continue
                c = abs(z * polygamma(0, z) / v)
        label = "right" if x >= 0.5 else "left"
        rows.append(f"{hexf(x)},{hexf(y)},{dec(v.real)},{dec(v.imag)},{dec(c)},{label}")
    return rows, "re z, im z | re, im of ln gamma(z), cond | range", \
        "2000 random z uniform in the square |re|,|im| < 10, near the real axis " \
        "on (-3,3), log-uniform in size to 1e8 and (right half) to 1e300, near " \
        "-(1..1e4); nextafter around re z = 1/2, 1, 2, 10 on and off the axis; " \
        "the cut at -1/2, -3/2, -5/2, -10.25, -1e6-1/2"


def stirling_d(x):
    X = mpf(x)
    if X > 1000:
        return sum(mpmath.bernoulli(2 * k) / (2 * k * (2 * k - 1) * X ** (2 * k - 1))
                   for k in range(1, 14))
    with mp.workdps(DPS + 20):
        return mpmath.loggamma(X) - (X - mpf(1) / 2) * mpmath.log(X) + X - mpmath.log(2 * mp.pi) / 2


def gen_s14ahf(rng):
    pts = [rng.uniform(0, 15) for _ in range(1200)]
    pts += [10 ** rng.uniform(-300, 0) for _ in range(300)]
    pts += [10 ** rng.uniform(1, 307) for _ in range(400)]
    cuts = around([0.5, 1.5, 2.5, 10.0, 15.0])
    pts += cuts
    rows = []
    for x in pts:
        if x <= 0:
            continue
        d = stirling_d(x)
        with mp.workdps(DPS + 20):
            X = mpf(x)
            if X > 1000:
                dd = -sum(mpmath.bernoulli(2 * k) / (2 * k * X ** (2 * k)) for k in range(1, 14))
            else:
                dd = mpmath.digamma(X) - mpmath.log(X) + 1 / (2 * X)
        label = "cut" if x in cuts else ("s14ahzn" if x < 15 else "Stirling")
        rows.append(f"{hexf(x)},{dec(d)},{dec(abs(mpf(x) * dd / d))},{label}")
    return rows, "x | ln gamma(x) - (x-1/2) ln x + x - ln(2 pi)/2, cond | range", \
        "1200 uniform on (0,15), 300 log-uniform on (1e-300,1), 400 on (10,1e307); " \
        "nextafter around 0.5, 1.5, 2.5, 10 and 15"


def inc_gamma(a, x):
    A, X = mpf(a), mpf(x)
    p = mpmath.gammainc(A, 0, X, regularized=True)
    q = mpmath.gammainc(A, X, mp.inf, regularized=True)
    dx = mpmath.exp(-X + (A - 1) * mpmath.log(X) - mpmath.loggamma(A))
    if p > mpf(10) ** -300 and q > mpf(10) ** -300:
        h = mpf(10) ** -15
        da = (mpmath.gammainc(A * (1 + h), 0, X, regularized=True)
              - mpmath.gammainc(A * (1 - h), 0, X, regularized=True)) / (2 * h)
    else:
        da = mpf(0)
    num = abs(da) + abs(X * dx)
    return p, q, (num / p if p > 0 else mpf(0)), (num / q if q > 0 else mpf(0))


def gen_s14baf(rng):
    pts = []
    for _ in range(1300):
        r = rng.random()
        if r < 0.25:
            a, x = rng.uniform(0, 25), rng.uniform(0, 40)
        elif r < 0.45:
            a = 10 ** rng.uniform(1.3, 6)
            x = a * rng.uniform(0.5, 1.6)
        elif r < 0.6:
            a, x = 10 ** rng.uniform(-10, 1), 10 ** rng.uniform(-10, 1)
        elif r < 0.75:
            a, x = rng.uniform(0, 2), rng.uniform(0, 2)
        else:
            a, x = 10 ** rng.uniform(-3, 6), 10 ** rng.uniform(-3, 6.5)
        pts.append((a, x))
    cuts = []
    for a in around([20.0]):
        cuts += [(a, 14.0), (a, 20.0), (a, 28.0)]
    for a in (25.0, 100.0, 1e4):
        cuts += [(a, x) for x in around([0.7 * a, 1.4 * a])]
    cuts += [(a, 1.0) for a in around([0.5, 1.0, 1.25])]
    cuts += [(1.0, x) for x in around([1.5, 0.25])]
    cuts += [(a, 1.7) for a in around([1.95])]
    pts += cuts
    rows = []
    for a, x in pts:
        if a <= 0 or x <= 0:
            continue
        try:
            p, q, cp, cq = inc_gamma(a, x)
        except mpmath.libmp.NoConvergence:
            continue
        label = ("cut" if (a, x) in cuts else
                 "Temme" if a >= 20 and 0.7 * a <= x <= 1.4 * a else
                 "series" if a > (x + 0.25 if x >= 0.25 else -math.log(2) / math.log(x)) else
                 "fraction" if x > 1.5 else "Taylor")
        rows.append(f"{hexf(a)},{hexf(x)},{dec(p)},{dec(q)},{dec(cp)},{dec(cq)},{label}")
    return rows, "a, x | P(a,x), Q(a,x), cond P, cond Q | range", \
        "1300 random: (a,x) uniform on (0,25)x(0,40) and (0,2)x(0,2), a log-uniform " \
        "on (20,1e6) with x/a on (0.5,1.6), both log-uniform on (1e-10,10) and on " \
        "(1e-3,1e6); nextafter around a = 20, x = 0.7a and 1.4a, a = 1/2 and 1, " \
        "x = 1.5 and 1/4, a = x + 1/4"


def ln_beta(a, b):
    A, B = mpf(a), mpf(b)
    with mp.workdps(DPS + int(max(0, mpmath.log10(A + B))) + 10):
        lb = mpmath.loggamma(A) + mpmath.loggamma(B) - mpmath.loggamma(A + B)
        if lb == 0:
            return lb, mpf(0)
        psab = mpmath.digamma(A + B)
        c = (abs(A * (mpmath.digamma(A) - psab)) + abs(B * (mpmath.digamma(B) - psab))) / abs(lb)
    return lb, c


def gen_s14cbzn(rng):
    pts = [(10 ** rng.uniform(-8, 8), 10 ** rng.uniform(-8, 8)) for _ in range(900)]
    pts += [(rng.uniform(0, 20), rng.uniform(0, 20)) for _ in range(400)]
    pts += [(10 ** rng.uniform(200, 300), 10 ** rng.uniform(-3, 3)) for _ in range(50)]
    cuts = [(a, 2.5) for a in around([15.0, 2.0**900])] + [(1.0, 1.0), (2.0, 1.0), (0.5, 0.5)]
    pts += cuts
    rows = []
    for a, b in pts:
        lb, c = ln_beta(a, b)
        if lb == 0:
            continue
        label = "cut" if (a, b) in cuts else "all"
        rows.append(f"{hexf(a)},{hexf(b)},{dec(lb)},{dec(c)},{label}")
    return rows, "a, b | ln B(a,b), cond | range", \
        "900 log-uniform on (1e-8,1e8)^2, 400 uniform on (0,20)^2, 50 with a in " \
        "(1e200,1e300); nextafter around 15 and 2^900; B(1,1), B(2,1), B(1/2,1/2)"


def beta_tail(a, b, x, y):
    """I_x(a,b) for x <= a/(a+b) from the series of positive terms
    I_x(a,b) = x^a y^b / (a B(a,b)) 2F1(a+b, 1; a+1; x), whose term ratio
    (a+b+n) x / (a+1+n) stays below max(a/(a+1), x): nothing cancels."""
    lb = mpmath.loggamma(a) + mpmath.loggamma(b) - mpmath.loggamma(a + b)
    f = mpmath.exp(a * mpmath.log(x) + b * mpmath.log(y) - lb) / a
    return f * mpmath.hyp2f1(a + b, 1, a + 1, x, maxterms=10**7)


def beta_pair(a, b, x, y):
    """I_x(a,b) and 1 - I_x(a,b): the tail on the side of x away from the
    mean a/(a+b) by the series, the other as 1 less it."""
    if x * (a + b) <= a:
        i = beta_tail(a, b, x, y)
        return i, 1 - i
    j = beta_tail(b, a, y, x)
    return 1 - j, j


def inc_beta(a, b, x, y):
    A, B, X, Y = mpf(a), mpf(b), mpf(x), mpf(y)
    with mp.workdps(DPS + 20):
        i, j = beta_pair(A, B, X, Y)
    # The condition number: |a dI/da| + |b dI/db| + |x dI/dx|, the first two
    # by central differences at a step of 1e-12 relative (error about 1e-24).
    lb = mpmath.loggamma(A) + mpmath.loggamma(B) - mpmath.loggamma(A + B)
    dx = mpmath.exp(A * mpmath.log(X) + B * mpmath.log(Y) - lb) / (X * Y)
    h = mpf(10) ** -12
    with mp.workdps(DPS + 20):
        da = (beta_pair(A * (1 + h), B, X, Y)[0] - beta_pair(A * (1 - h), B, X, Y)[0]) / (2 * h)
        db = (beta_pair(A, B * (1 + h), X, Y)[0] - beta_pair(A, B * (1 - h), X, Y)[0]) / (2 * h)
    num = abs(da) + abs(db) + abs(X * dx)
    return i, j, (num / i if i > 0 else mpf(0)), (num / j if j > 0 else mpf(0))


def exact_pair(x):
    """x and y = 1 - x, both exact: x is moved to 1 - fl(1 - x) below 1/2."""
    y = 1.0 - x
    if x < 0.5:
        x = 1.0 - y
    return x, y


def gen_s14cczn(rng):
    pts = []
    for _ in range(900):
        r = rng.random()
        if r < 0.3:
            a, b, x = 10 ** rng.uniform(-3, 3), 10 ** rng.uniform(-3, 3), rng.random()
        elif r < 0.5:
            a, b = 10 ** rng.uniform(0, 5), 10 ** rng.uniform(0, 5)
            m = a / (a + b)
            s = (a * b / ((a + b) ** 2 * (a + b + 1))) ** 0.5
            x = min(max(m + s * rng.uniform(-4, 4), 1e-15), 1 - 1e-15)
        elif r < 0.65:
            a, b, x = 10 ** rng.uniform(-8, 0), 10 ** rng.uniform(-8, 4), rng.random()
        elif r < 0.8:
            a, b = 10 ** rng.uniform(-2, 2), 10 ** rng.uniform(2, 6)
            x = (a / b) * 10 ** rng.uniform(-2, 1.5)
        else:
            a, b = rng.uniform(0.1, 10), rng.uniform(0.1, 10)
            x = rng.choice([rng.random(), 1 - 10 ** rng.uniform(-12, -1), 10 ** rng.uniform(-12, -1)])
        if not 0 < x < 1:
            continue
        pts.append((a, b) + exact_pair(x))
    cuts = [(100.0, b) + exact_pair(0.99) for b in around([5.0])] + \
           [(a, 5.0) + exact_pair(0.97) for a in around([100.0])] + \
           [(1000.0, b) + exact_pair(0.97) for b in around([30.0])] + \
           [(200.0, 2.5) + exact_pair(x) for x in around([math.exp(-1)])] + \
           [(2.5, 200.0) + exact_pair(1.0 - x) for x in around([math.exp(-1)])] + \
           [(3.0, 4.0) + exact_pair(x) for x in around([0.5])] + \
           [(2.0, 3.0) + exact_pair(x) for x in around([3.0 / 7.0])]
    pts += cuts
    rows = []
    for a, b, x, y in pts:
        if x <= 0 or y <= 0:
            continue
        try:
            i, j, ci, cj = inc_beta(a, b, x, y)
        except mpmath.libmp.NoConvergence:
            continue
        big, small = max(a, b), min(a, b)
        near1 = x if a >= b else y
        label = ("cut" if (a, b, x, y) in cuts else
                 "gamma expansion" if big >= 100 and small <= min(big / 20, 30)
                 and near1 >= math.exp(-1) else "series or fraction")
        rows.append(f"{hexf(a)},{hexf(b)},{hexf(x)},{hexf(y)},{dec(i)},{dec(j)},"
                    f"{dec(ci)},{dec(cj)},{label}")
    return rows, "a, b, x, y = 1 - x | I_x(a,b), 1 - I_x(a,b), cond I, cond 1-I | range", \
        "900 random: a, b log-uniform on (1e-3,1e3) with x uniform, on (1,1e5) with " \
        "x within four standard deviations of the mean, a on (1e-8,1) and b on " \
        "(1e-8,1e4), a on (1e-2,1e2) and b on (1e2,1e6) with x near a/b, a, b on " \
        "(0.1,10) with x near 0 and 1; nextafter around the switch of the gamma " \
        "expansion (a = 100, b = a/20, b = 30, x = 1/e), of the side of the fraction " \
        "(x = (a+1)/(a+b+2)) and x = 1/2; x + y = 1 exactly"


GENERATORS = {
    "s14acf": gen_s14acf, "s14adf": gen_s14adf, "s14aef": gen_s14aef,
    "s14aff": gen_s14aff, "s14agf": gen_s14agf, "s14ahf": gen_s14ahf,
    "s14baf": gen_s14baf, "s14cbzn": gen_s14cbzn, "s14cczn": gen_s14cczn,
}


def main():
    mp.dps = DPS
    names = sys.argv[1:] or list(GENERATORS)
    for i, name in enumerate(names):
        rng = random.Random(20241 + 17 * list(GENERATORS).index(name))
        rows, cols, pts = GENERATORS[name](rng)
        with open(os.path.join(OUT, name + ".csv"), "w") as f:
            header(f, name, cols, pts)
            f.write("\n".join(rows) + "\n")
        print(f"{name}: {len(rows)} points", flush=True)


if __name__ == "__main__":
    main()
