#!/usr/bin/python3
"""Reference tables of the first special functions, for the accuracy tests.

Run with /usr/bin/python3 (needs mpmath). Writes tests/data/<routine>.csv for
s14aaf, s14abf, s15adf, s15aef, s15abf, s15acf, s13aaf and s01baf:

    gen_s_first.py [ROUTINE ...]      (default: all of them)

Each data line is  x,reference,range  with x a C99 hexadecimal float (exact),
the reference a decimal string of 28 significant digits and the range a label
of the part of the domain. Every value is computed with mpmath at 60 digits and
again at 90; where the two differ beyond 1e-30, relative, the precision is
raised until two successive values agree (near the zero of Ei and of
ln Gamma). Where the routine's definition fixes a value that is not the
function's (erfc of x >= 26.6 is 0, so are P and Q where their erfc argument
reaches 26.6, and E1 beyond 708.3), the reference is that value, in the range
"defined". The points are drawn with a fixed seed, so the tables are
reproducible.
"""

import math
import os
import random
import sys

import mpmath as mp

DPS = 60
SEED = 20261121
HERE = os.path.dirname(os.path.abspath(__file__))
DATA = os.path.normpath(os.path.join(HERE, "..", "..", "tests", "data"))

MAXD = sys.float_info.max
SQRT2 = 1.4142135623730951


# ---------------------------------------------------------------------------
# Point sets


def ulps(v, k):
    """v and its k neighbours on each side."""
    out = [v]
    up = dn = v
    for _ in range(k):
        up = math.nextafter(up, math.inf)
        dn = math.nextafter(dn, -math.inf)
        out += [up, dn]
    return out


def uniform(rng, lo, hi, n):
    return [rng.uniform(lo, hi) for _ in range(n)]


def loguniform(rng, lo, hi, n):
    a, b = math.log(lo), math.log(hi)
    return [math.exp(rng.uniform(a, b)) for _ in range(n)]


class Points:
    """Points with their range labels; the label is decided by a function of x
    unless given."""

    def __init__(self, label_of):
        self.label_of = label_of
        self.pts = {}

    def add(self, xs, label=None):
        for x in xs:
            x = float(x)
            if math.isfinite(x) and x not in self.pts:
                lab = label or self.label_of(x)
                if lab:
                    self.pts[x] = lab

    def items(self):
        return sorted(self.pts.items())


# ---------------------------------------------------------------------------
# References


def stable(f, x):
    """f(x) at DPS digits, confirmed at 30 more; precision raised until two
    successive values agree to 1e-30, relative."""
    dps = DPS
    with mp.workdps(dps):
        prev = f(mp.mpf(x))
    while True:
        dps += 30
        with mp.workdps(dps):
            cur = f(mp.mpf(x))
            if cur == prev or abs(cur - prev) <= abs(cur) * mp.mpf(10) ** -30:
                return cur
        if dps > 600:
            raise RuntimeError(f"no stable value at x = {x!r}")
        prev = cur


def fmt(v):
    if v == 0:
        return "0"
    with mp.workdps(40):
        return mp.nstr(v, 28, min_fixed=1, max_fixed=0)


# ---------------------------------------------------------------------------
# The routines


def gamma_points(rng):
    def label(x):
        ax = abs(x)
        if ax > 170 or ax < 2.23e-308 or (x < 0 and x == math.trunc(x)):
            return None
        if ax <= 1e-17:
            return "tiny"
        if x < 0:
            return "negative"
        if x < 1:
            return "below_1"
        if x < 10:
            return "below_10"
        return "above_10"

    p = Points(label)
    for s in (1, -1):
        p.add([s * v for v in loguniform(rng, 2.23e-308, 1e-17, 80)])
        p.add([s * v for v in loguniform(rng, 1e-17, 1, 300)])
        p.add([s * v for v in ulps(1e-17, 3) + ulps(2.23e-308, 2)])
    p.add(uniform(rng, 0, 170, 700))
    p.add(uniform(rng, -170, 0, 700))
    p.add(uniform(rng, 0, 2, 200))
    for k in range(1, 171):
        p.add(ulps(float(k), 1) + [k - 0.5, -k + 0.5])
        p.add(ulps(-float(k), 1)[1:])
    for k in rng.sample(range(1, 171), 40):
        p.add([-k + s * d for s in (1, -1) for d in (1e-13, 1e-7)])
    p.add(ulps(170.0, 3) + ulps(-170.0, 3) + ulps(0.25, 3) + ulps(-0.5, 3))
    # Just outside the poles and close to 0 from below, where 1 + x rounds.
    p.add([-v for v in loguniform(rng, 1e-17, 1.2e-16, 40)])
    return p, mp.gamma


def lgamma_points(rng):
    def label(x):
        if x <= 0 or x > 2.55e305:
            return None
        if x <= 2.0 ** -53:
            return "tiny"
        if x <= 1.5:
            return "below_1_5"
        if x <= 4:
            return "below_4"
        if x <= 12:
            return "below_12"
        return "stirling"

    p = Points(label)
    p.add(loguniform(rng, 5e-324, 2.0 ** -53, 150))
    p.add(loguniform(rng, 2.0 ** -53, 0.5, 300))
    p.add(uniform(rng, 0.5, 0.6796875, 150))
    p.add(uniform(rng, 0.6796875, 1.5, 300))
    p.add(uniform(rng, 1.5, 4, 300))
    p.add(uniform(rng, 4, 12, 300))
    p.add(uniform(rng, 12, 200, 250))
    p.add(loguniform(rng, 12, 2.55e305, 500))
    for c in (2.0 ** -53, 0.5, 0.6796875, 1.5, 4.0, 12.0, 2.24e76, 2.55e305):
        p.add(ulps(c, 3))
    for z in (1.0, 2.0):  # the zeros
        p.add(ulps(z, 20))
        p.add([z + s * d for s in (1, -1) for d in loguniform(rng, 1e-15, 1e-2, 30)])
    p.add([5e-324, 1e-310, 2.2250738585072014e-308])
    return p, mp.loggamma


def erfc_points(rng, which):
    def label(x):
        a = abs(x)
        if which == "erfc" and x >= 26.6:
            return "defined"
        if a <= 0.46875:
            return "small"
        if a <= 4:
            return "middle"
        return "tail"

    p = Points(label)
    p.add(uniform(rng, -0.46875, 0.46875, 300))
    for s in (1, -1):
        p.add([s * v for v in loguniform(rng, 5e-324, 0.46875, 200)])
        p.add([s * v for v in uniform(rng, 0.46875, 4, 300)])
    p.add(uniform(rng, 4, 26.6, 400))
    p.add(uniform(rng, 25, 26.6, 100))  # erfc subnormal from 26.55
    p.add(uniform(rng, -6.6, -4, 200))
    for c in (0.46875, 4.0, 6.5):
        p.add(ulps(c, 3) + ulps(-c, 3))
    p.add(ulps(26.6, 3))
    # Both sides of the steps Y = k/16 of the split exponential.
    p.add(sum((ulps(k / 16, 1) for k in rng.sample(range(8, 425), 60)), []))
    if which == "erfc":
        p.add([26.6, 27.0, 30.0, 1e10, MAXD, -6.5, -7.0, -1e300])
        return p, lambda x: mp.mpf(0) if x >= 26.6 else mp.erfc(x)
    p.add([6.5, 7.0, 30.0, 1e300, -1e300])
    return p, mp.erf


def normal_points(rng, which):
    # P(x) = erfc(-x/sqrt2)/2, Q(x) = erfc(x/sqrt2)/2; z is the argument of
    # erfc as the routine forms it (the quotient rounded like C's).
    sign = -1.0 if which == "P" else 1.0

    def zarg(x):
        return sign * (x / SQRT2)

    def label(x):
        z = zarg(x)
        if z >= 26.6:
            return "defined"
        if abs(z) <= 0.46875:
            return "small"
        if abs(z) <= 4:
            return "middle"
        return "tail"

    def f(x):
        if zarg(float(x)) >= 26.6:
            return mp.mpf(0)
        return mp.erfc(sign * x / mp.sqrt(2)) / 2

    p = Points(label)
    t = 37.62  # the far tail: erfc argument near 26.6
    p.add(uniform(rng, -0.7, 0.7, 300))
    for s in (1, -1):
        p.add([s * v for v in loguniform(rng, 5e-324, 0.7, 150)])
        p.add([s * v for v in uniform(rng, 0.66, 5.7, 300)])
        p.add([s * v for v in uniform(rng, 5.7, t, 350)])
    tail = -sign  # the side where the value decays
    p.add([tail * v for v in uniform(rng, 35, 37.7, 150)])
    for c in (0.46875, 4.0, 6.5, 26.6):
        cut = c * SQRT2
        p.add(ulps(cut, 3) + ulps(-cut, 3))
    p.add([tail * 40.0, tail * 1e300, -tail * 10.0, -tail * 1e300, tail * MAXD])
    return p, f


def e1_points(rng):
    def label(x):
        if x == 0 or x < -708.3:
            return None
        if x > 708.3:
            return "defined"
        if x < -24:
            return "neg_beyond_24"
        if x < -6:
            return "neg_6_to_24"
        if x < 0:
            return "neg_below_6"
        if x <= 1:
            return "pos_below_1"
        if x <= 4:
            return "pos_below_4"
        return "pos_above_4"

    def f(x):
        if x > 708.3:
            return mp.mpf(0)
        if x > 0:
            return mp.e1(x)
        return -mp.ei(-x)

    with mp.workdps(140):
        y0 = float(mp.findroot(mp.ei, mp.mpf("0.3725074107813666")))
    p = Points(label)
    p.add(uniform(rng, -708.3, -24, 200))
    p.add(uniform(rng, -24, -12, 200))
    p.add(uniform(rng, -12, -6, 200))
    p.add(uniform(rng, -6, 0, 400))
    p.add([-v for v in loguniform(rng, 5e-324, 1, 200)])
    p.add(loguniform(rng, 5e-324, 1, 250))
    p.add(uniform(rng, 0, 1, 200))
    p.add(uniform(rng, 1, 2, 200))
    p.add(uniform(rng, 2, 4, 200))
    p.add(uniform(rng, 4, 50, 200))
    p.add(uniform(rng, 50, 708.3, 200))
    p.add(uniform(rng, 700, 708.3, 100))  # subnormal values from 701.8
    # The zero of -Ei at -y0: its neighbours, and offsets up to 1e-3.
    p.add([-v for v in ulps(y0, 40)])
    p.add([-(y0 + s * d) for s in (1, -1) for d in loguniform(rng, 1e-16, 1e-3, 40)])
    for c in (1.0, 2.0, 4.0, 708.3, -6.0, -12.0, -24.0, -708.3,
              -0.5 * y0, -1.5 * y0):
        p.add(ulps(c, 3))
    p.add([709.0, 750.0, 1e300, MAXD])
    return p, f


def log1p_points(rng):
    lo_cut = 0.7071067811865476 - 1.0
    hi_cut = 1.4142135623730951 - 1.0

    def label(x):
        if x <= -1:
            return None
        if x < -0.29:
            return "near_minus_1"
        if abs(x) < 0.42:
            return "series"
        return "large"

    p = Points(label)
    p.add([-1 + v for v in loguniform(rng, 1.2e-16, 0.71, 300)])
    p.add(uniform(rng, lo_cut, hi_cut, 400))
    for s in (1, -1):
        p.add([s * v for v in loguniform(rng, 5e-324, 0.29, 250)])
    p.add(loguniform(rng, 0.4, MAXD, 400))
    p.add(uniform(rng, 0.4, 10, 200))
    p.add(ulps(lo_cut, 5) + ulps(hi_cut, 5) + ulps(-0.5, 3) + ulps(1.0, 3))
    p.add([MAXD, math.nextafter(-1.0, 0)])
    return p, mp.log1p


ROUTINES = {
    "s14aaf": ("Gamma(x)", gamma_points),
    "s14abf": ("ln Gamma(x)", lgamma_points),
    "s15adf": ("erfc(x)", lambda r: erfc_points(r, "erfc")),
    "s15aef": ("erf(x)", lambda r: erfc_points(r, "erf")),
    "s15abf": ("P(x) = erfc(-x/sqrt2)/2", lambda r: normal_points(r, "P")),
    "s15acf": ("Q(x) = erfc(x/sqrt2)/2", lambda r: normal_points(r, "Q")),
    "s13aaf": ("E1(x) for x > 0, -Ei(-x) for x < 0", e1_points),
    "s01baf": ("ln(1+x)", log1p_points),
}


def write(name):
    what, make = ROUTINES[name]
    rng = random.Random(f"{SEED}-{name}")
    pts, f = make(rng)
    rows = [(x, fmt(stable(f, x)), lab) for x, lab in pts.items()]
    path = os.path.join(DATA, name + ".csv")
    with open(path, "w") as out:
        out.write(f"# {name}: {what}\n")
        out.write(f"# Generated by tools/refdata/gen_s_first.py with mpmath "
                  f"{mp.__version__} at {DPS} digits, each value confirmed at "
                  f"{DPS + 30} (more where needed).\n")
        out.write(f"# {len(rows)} points, seed {SEED}: uniform and log-uniform "
                  f"samples of every range, the cut points and their neighbours, "
                  f"the zeros, poles and the edges of overflow and underflow.\n")
        out.write("# Range 'defined': the routine's fixed value stands as the "
                  "reference.\n")
        out.write("# x,reference,range\n")
        for x, v, lab in rows:
            out.write(f"{x.hex()},{v},{lab}\n")
    print(f"{path}: {len(rows)} points")


if __name__ == "__main__":
    for nm in sys.argv[1:] or list(ROUTINES):
        write(nm)
