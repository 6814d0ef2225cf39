#!/usr/bin/python3
"""Reference tables of the erf group: tests/data/{s15aff,s15agf,s15ddf,s20acf,
s20adf,s22aaf}.csv, computed with mpmath (run with /usr/bin/python3).

    gen_erf.py [s15aff s15agf s20ac s22aa s15dd]    (default: all tables)

Inputs are doubles written as exact C99 hexadecimal floats; references are
decimal strings of 30 significant digits, computed at 60 digits or more (the
precision is raised where the definition cancels, and cross-checked at a
higher precision). The point sets are drawn from a fixed seed: every cut
point of the bodies from both sides (nextafter), the failure edges from the
valid side, and random points over each range of the body, labelled with that
range. Where a column holds a condition number it is |x f'(x) / f(x)| (for a
complex function, componentwise: (|x dRe/dx| + |y dRe/dy|) / |Re| and the same
for Im), which the accuracy tests use to judge places where the function is
ill conditioned.
"""

import math
import os
import random
import sys

import mpmath as mp

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import erffit  # noqa: E402

mp.mp.dps = 60
DATA = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "tests", "data")
DIG = 30


def hx(x):
    return float(x).hex()


def dec(v, digits=DIG):
    if v == 0:
        return "0.0"
    return mp.nstr(mp.mpf(v), digits, min_fixed=-5, max_fixed=5)


def up(x):
    return math.nextafter(x, math.inf)


def down(x):
    return math.nextafter(x, -math.inf)


def both(x):
    """x and its two neighbours."""
    return [down(x), x, up(x)]


def uniform(rng, a, b, n):
    return [rng.uniform(a, b) for _ in range(n)]


def loguniform(rng, a, b, n):
    la, lb = math.log(a), math.log(b)
    return [math.exp(rng.uniform(la, lb)) for _ in range(n)]


def write(name, header, rows):
    path = os.path.join(DATA, name + ".csv")
    with open(path, "w", encoding="utf-8") as f:
        f.write(f"# {name}: reference values from mpmath {mp.__version__}, "
                f"computed at 60 or more digits by tools/refdata/gen_erf.py\n")
        for h in header:
            f.write(f"# {h}\n")
        for r in rows:
            f.write(",".join(r) + "\n")
    print(f"{path}: {len(rows)} points", file=sys.stderr)


def checked(fn, x, digits=34):
    """fn(x) at the working precision and at 30 more digits; they must agree
    to `digits` significant digits."""
    a = fn(x)
    with mp.workdps(mp.mp.dps + 30):
        b = fn(x)
    if b != 0 and abs((a - b) / b) > mp.mpf(10) ** -digits:
        raise RuntimeError(f"reference unstable at {x!r}: {a} vs {b}")
    return b


# ---------------------------------------------------------------------------
# Dawson's integral


def dawson(x):
    x = mp.mpf(x)
    if abs(x) > 40:
        # The asymptotic series sum (2k-1)!!/(2x^2)^k / (2x): at |x| > 40 its
        # smallest term is below 1e-600.
        u = 1 / (2 * x * x)
        s, t, k = mp.mpf(1), mp.mpf(1), 0
        while True:
            k += 1
            t *= (2 * k - 1) * u
            s += t
            if abs(t) < mp.mpf(10) ** (-mp.mp.dps - 5):
                return s / (2 * x)
    with mp.workdps(mp.mp.dps + 20):
        return mp.sqrt(mp.pi) / 2 * mp.exp(-x * x) * mp.erfi(x)


def gen_s15aff():
    rng = random.Random(15061)
    pts = []  # (x, label)

    def add(xs, label, neg=True):
        for x in xs:
            pts.append((x, label))
            if neg:
                pts.append((-x, label))

    add([5e-324, 1e-310, 2.2250738585072014e-308] + loguniform(rng, 1e-300, 3.1e-9, 60)
        + [down(3.1e-9), 3.1e-9], "tiny")
    add([up(3.1e-9)] + loguniform(rng, 3.1e-9, 0.5, 150) + uniform(rng, 0.01, 0.5, 250)
        + [down(0.5)], "small")
    middle = [0.5, up(0.5)]
    for k in range(2, 8):
        middle += [down(k / 2), k / 2, up(k / 2)]
    add(middle + uniform(rng, 0.5, 4.0, 900) + [down(4.0)], "middle")
    add([4.0, up(4.0)] + both(8.0) + uniform(rng, 4.0, 8.0, 200)
        + loguniform(rng, 8.0, 3.2e8, 300) + [down(3.2e8)], "asymptotic")
    add([3.2e8, up(3.2e8)] + loguniform(rng, 3.2e8, 2.24e307, 100) + [down(2.24e307)],
        "reciprocal")
    add([2.24e307, up(2.24e307), 1e308, sys.float_info.max], "zero")
    rows = []
    for x, label in pts:
        rows.append([hx(x), dec(checked(dawson, x)), label])
    write("s15aff", [
        "Dawson's integral F(x) = exp(-x^2) int_0^x exp(t^2) dt, as sqrt(pi)/2 "
        "exp(-x^2) erfi(x) (asymptotic series beyond |x| = 40).",
        "Ranges of the body: tiny |x| <= 3.1e-9, small < 0.5, middle < 4, "
        "asymptotic < 3.2e8, reciprocal < 2.24e307, zero beyond (flushed).",
        "Columns: x, F(x), range. Seed 15061; both signs of every point."], rows)


# ---------------------------------------------------------------------------
# erfcx


def erfcx(x):
    x = mp.mpf(x)
    if x > 1e4:
        # 1/(sqrt(pi) x) sum (-1)^k (2k-1)!!/(2x^2)^k
        u = 1 / (2 * x * x)
        s, t, k = mp.mpf(1), mp.mpf(1), 0
        while True:
            k += 1
            t *= -(2 * k - 1) * u
            s += t
            if abs(t) < mp.mpf(10) ** (-mp.mp.dps - 5):
                return s / (mp.sqrt(mp.pi) * x)
    with mp.workdps(mp.mp.dps + 20):
        return mp.exp(x * x) * mp.erfc(x)


def gen_s15agf():
    rng = random.Random(15071)
    pts = []
    pts += [(x, "negative") for x in [up(-26.6)] + uniform(rng, -26.6, -4.0, 250)
            + both(-4.0)]
    pts += [(x, "moderate") for x in uniform(rng, -4.0, -0.46875, 300)
            + [down(-0.46875)]]
    pts += [(x, "small") for x in [-0.46875, up(-0.46875), -5e-324, 0.0, 5e-324]
            + uniform(rng, -0.46875, 0.46875, 400) + loguniform(rng, 1e-300, 0.46875, 60)
            + [-y for y in loguniform(rng, 1e-300, 0.46875, 60)] + [0.46875]]
    mid = [up(0.46875)]
    for c in (1.0, 1.5, 2.0, 3.0):
        mid += both(c)
    pts += [(x, "middle") for x in mid + uniform(rng, 0.46875, 4.0, 600) + [4.0]]
    pts += [(x, "asymptotic") for x in [up(4.0)] + uniform(rng, 4.0, 16.0, 200)
            + loguniform(rng, 16.0, 4.74e7, 300) + [down(4.74e7)]]
    pts += [(x, "warning") for x in [4.74e7, up(4.74e7)]
            + loguniform(rng, 4.74e7, 2.53e307, 100) + [down(2.53e307)]]
    rows = []
    for x, lab in pts:
        v = checked(erfcx, x)
        # x f'/f with f' = 2x f - 2/sqrt(pi)
        kappa = abs(x * (2 * x - 2 / (mp.sqrt(mp.pi) * v)))
        rows.append([hx(x), dec(v), dec(kappa, 6), lab])
    write("s15agf", [
        "erfcx(x) = exp(x^2) erfc(x) (asymptotic series beyond x = 1e4).",
        "Ranges: negative (-26.6, -4], moderate (-4, -0.46875), small "
        "[-0.46875, 0.46875], middle (0.46875, 4], asymptotic (4, 4.74e7), "
        "warning [4.74e7, 2.53e307) where the body returns its value with IFAIL = 3.",
        "Columns: x, erfcx(x), condition number |x f'/f|, range. Seed 15071."], rows)


# ---------------------------------------------------------------------------
# Fresnel integrals


def fresnel(x, which):
    """S(x) (which 's') or C(x) (which 'c') for x >= 0, and the derivative
    sin(pi x^2/2) or cos(pi x^2/2)."""
    x = mp.mpf(x)
    t = x * x / 2  # exact: 106 bits at 60 digits
    sn, cs = mp.sinpi(t), mp.cospi(t)
    if x >= 20:
        f, g = erffit.fresnel_fg(x)
        half = mp.mpf(1) / 2
        if which == "s":
            return half - f * cs - g * sn, sn
        return half + f * sn - g * cs, cs
    with mp.workdps(100):
        v = mp.fresnels(x) if which == "s" else mp.fresnelc(x)
    return +v, (sn if which == "s" else cs)


def gen_s20ac():
    rng = random.Random(20031)
    top = 4294967290.0
    pts = []
    pts += [(x, "zero") for x in [5e-324, 1e-310, 1e-200]
            + loguniform(rng, 1e-300, 3.49e-103, 20) + [down(3.49e-103)]]
    pts += [(x, "tiny") for x in [3.49e-103, up(3.49e-103)]
            + loguniform(rng, 3.49e-103, 0.00018, 80) + [down(0.00018)]]
    pts += [(x, "series") for x in [0.00018, up(0.00018)]
            + loguniform(rng, 0.00018, 1.0, 150) + uniform(rng, 0.0, 1.0, 300) + [1.0]]
    mid = [up(1.0)]
    for c in (1.5, 2.0, 2.5):
        mid += both(c)
    pts += [(x, "middle") for x in mid + uniform(rng, 1.0, 3.0, 600) + [3.0]]
    pts += [(x, "asymptotic") for x in [up(3.0)] + uniform(rng, 3.0, 20.0, 400)
            + loguniform(rng, 20.0, 260000.0, 300) + [down(260000.0)]]
    pts += [(x, "far") for x in [260000.0, up(260000.0)]
            + loguniform(rng, 260000.0, top, 150) + [down(top), top]]
    pts += [(x, "constant") for x in [up(top)] + loguniform(rng, top, 1e300, 40)
            + [sys.float_info.max]]
    for which, name in (("s", "s20acf"), ("c", "s20adf")):
        rows = []
        for x, lab in pts:
            if which == "c" and lab == "zero":
                lab = "tiny"
            for sx in (x, -x):
                v, d = fresnel(abs(sx), which)
                v = v if sx > 0 else -v
                kappa = abs(mp.mpf(sx) * d / v) if v != 0 else mp.mpf(0)
                rows.append([hx(sx), dec(v), dec(kappa), lab])
        fn = "S(x) = int_0^x sin(pi t^2/2) dt" if which == "s" else \
            "C(x) = int_0^x cos(pi t^2/2) dt"
        write(name, [
            f"Fresnel integral {fn}: mpmath fresnels/fresnelc at 100 digits below "
            "x = 20; beyond, 1/2 -+ f cospi/sinpi(x^2/2) ... with the asymptotic "
            "series of the auxiliary functions f, g and the phase reduced exactly.",
            "Ranges: zero |x| < 3.49e-103 (S only, flushed), tiny < 0.00018, series "
            "<= 1, middle <= 3, asymptotic < 260000, far <= 4294967290, constant "
            "beyond (the body returns 1/2).",
            "Columns: x, value, condition number |x f'(x)/f(x)|, range. Seed 20031; "
            "both signs of every point."], rows)


# ---------------------------------------------------------------------------
# Legendre functions


def legendre_set(mode, x, m, nl):
    """P_n^m(x) (MODE 1) or the orthonormal functions (MODE 2) for
    n = |m| .. |m|+nl, by the recurrence in degree in exact-enough arithmetic
    (60 digits), Ferrers' definition with the Condon-Shortley phase."""
    x = mp.mpf(x)
    mu = abs(m)
    nmax = mu + nl
    # P_n^mu for n = mu..nmax, then the factor for negative orders and the
    # normalisation.
    q = 1 - x * x
    vals = [(-1) ** mu * mp.fac2(2 * mu - 1) * (q ** (mp.mpf(mu) / 2) if q > 0 else
                                                  (mp.mpf(1) if mu == 0 else mp.mpf(0)))]
    if nl >= 1:
        vals.append((2 * mu + 1) * x * vals[0])
    for n in range(mu + 1, nmax):
        vals.append(((2 * n + 1) * x * vals[-1] - (n + mu) * vals[-2]) / (n - mu + 1))
    out = []
    for k, v in enumerate(vals):
        n = mu + k
        if m < 0:
            v = (-1) ** mu * mp.factorial(n - mu) / mp.factorial(n + mu) * v
        if mode == 2:
            v = mp.sqrt((2 * n + mp.mpf(1)) / 2 * mp.factorial(n - m) / mp.factorial(n + m)) * v
        out.append(v)
    return out


def gen_s22aa():
    rng = random.Random(22011)
    xs = [0.0, 1.0, -1.0, 0.5, -0.5, 1e-300, -1e-8, 0.999999, -0.9999999999,
          down(1.0), up(-1.0), 1 - 2.0 ** -30, 0.7071067811865476]
    xs += uniform(rng, -1.0, 1.0, 10)
    cases = []
    for x in xs:
        for m in (0, 1, -2, 5, -13, 27, -27):
            nl = 100 if m == 0 else 55 - abs(m)
            cases.append((x, m, nl))
    # Short requests too: NL = 0 and 1 take the starting values alone.
    for x in uniform(rng, -1.0, 1.0, 6):
        for m in (0, 4, -27):
            cases += [(x, m, 0), (x, m, 1)]
    h = mp.mpf(10) ** -25
    rows = []
    for mode in (1, 2):
        for x, m, nl in cases:
            v = legendre_set(mode, x, m, nl)
            if abs(x) < 1:
                vp, vm = legendre_set(mode, x + h, m, nl), legendre_set(mode, x - h, m, nl)
                d = [(a - b) / (2 * h) for a, b in zip(vp, vm)]
            else:
                vm = legendre_set(mode, x - mp.sign(x) * h, m, nl)
                d = [(a - b) / (mp.sign(x) * h) for a, b in zip(v, vm)]
            kap = [abs(mp.mpf(x) * dd / vv) if vv != 0 else mp.mpf(0) for dd, vv in zip(d, v)]
            rows.append([str(mode), hx(x), str(m), str(nl)] + [dec(t, 26) for t in v]
                        + [dec(t, 4) for t in kap] + [f"mode{mode}"])
    # A spot check of the recurrence against mpmath's own Ferrers function.
    for x, m, nl in cases[::23]:
        v = legendre_set(1, x, m, nl)
        n = abs(m) + nl
        ref = mp.legenp(n, m, mp.mpf(x), type=2)
        if abs(v[-1] - ref) > mp.mpf(10) ** -25 * abs(ref):
            raise RuntimeError(f"legendre check at {x}, {m}, {nl}: {v[-1]} vs {ref}")
    write("s22aaf", [
        "Legendre functions P(L) = P_n^m(x), n = |m|+L, L = 0..NL: Ferrers' "
        "definition with the Condon-Shortley phase (DLMF 14.6.1, 14.9.3), by the "
        "recurrence in degree at 60 digits, spot-checked against mpmath.legenp; MODE 2 "
        "times sqrt((2n+1)/2 (n-m)!/(n+m)!).",
        "Columns: MODE, X, M, NL, the NL+1 values, their NL+1 condition numbers "
        "|x P'(x)/P(x)| (central differences at 60 digits; one-sided at x = +-1), "
        "range. Seed 22011."], rows)


# ---------------------------------------------------------------------------
# The Faddeeva function


def faddeeva(x, y):
    z = mp.mpc(x, y)
    if y == 0:
        return mp.mpc(mp.exp(-mp.mpf(x) ** 2), 2 / mp.sqrt(mp.pi) * dawson(x))
    if x == 0 and y > 0:
        return mp.mpc(erfcx(y), 0)
    x2my2 = mp.mpf(x) ** 2 - mp.mpf(y) ** 2
    if y > 0 and abs(z) > 30 and (x2my2 > 3000 or y >= abs(x)):
        # (i/(sqrt(pi) z)) sum (2k-1)!!/(2z^2)^k, the expansion of erfc(-iz)
        # at infinity: for y >= |x| its remainder is below the first omitted
        # term; for x^2 - y^2 > 3000 the part it leaves out, of the size of
        # exp(y^2 - x^2), is below 1e-1300, far below the last digit of
        # either part. Summed until the terms fall below 1e-70.
        u = 1 / (2 * z * z)
        s, t, k = mp.mpc(1), mp.mpc(1), 0
        while abs(t) > mp.mpf(10) ** (-mp.mp.dps - 10):
            k += 1
            t *= (2 * k - 1) * u
            s += t
        return 1j / (mp.sqrt(mp.pi) * z) * s
    # erfc(-iz) grows like exp(x^2 - y^2) where exp(-z^2) is small: carry as
    # many more digits as that cancels.
    # A part much smaller than |w| (near an axis) needs the digits of the
    # ratio besides.
    extra = 30 + int(max(x2my2, 0) / 2.3)
    small = min(abs(x), abs(y))
    if small > 0:
        extra += int(-mp.log10(small / abs(z))) + 5
    with mp.workdps(mp.mp.dps + extra):
        return +(mp.exp(-z * z) * mp.erfc(-1j * z))


def faddeeva_checked(x, y):
    a = faddeeva(x, y)
    with mp.workdps(mp.mp.dps + 30):
        b = faddeeva(x, y)
    for u, v in ((a.real, b.real), (a.imag, b.imag)):
        if v != 0 and abs((u - v) / v) > mp.mpf(10) ** -34:
            raise RuntimeError(f"w unstable at {x!r}, {y!r}")
    return b


def gen_s15dd():
    rng = random.Random(15041)
    pts = []
    # Over the upper half-plane in polar form, |z| from 1e-8 to 1e12.
    for _ in range(700):
        r = math.exp(rng.uniform(math.log(1e-8), math.log(1e12)))
        t = rng.uniform(0.0, math.pi)
        pts.append((r * math.cos(t), r * math.sin(t)))
    # The working region of the series and the fraction more densely.
    for _ in range(600):
        pts.append((rng.uniform(-12.0, 12.0), rng.uniform(0.0, 12.0)))
    # Near the real axis: y from 1e-300 up, and on it.
    for _ in range(250):
        pts.append((rng.uniform(-30.0, 30.0), 10.0 ** rng.uniform(-300.0, -0.5)))
    for _ in range(60):
        pts.append((rng.uniform(-30.0, 30.0), 0.0))
    pts += [(x, 0.0) for x in (0.0, 1e-300, 1.0, 27.0, 27.3, 28.0, 1e10, 1e300)]
    # Near and on the imaginary axis.
    for _ in range(80):
        pts.append((10.0 ** rng.uniform(-300.0, -1.0), rng.uniform(0.0, 20.0)))
    pts += [(0.0, y) for y in (1e-300, 0.1, 1.0, 5.0, 30.0, 1e10, 1e300)]
    # The cut points of the body from both sides: |z| = 6 (y >= 1), x = 8
    # (y < 1), y = 1 and 4, x = 1 and 6.5 in the series, the lengths of the
    # fraction.
    for _ in range(3):
        for y in both(4.0):
            pts.append((rng.uniform(-6.0, 6.0), y))
        for x in both(8.0) + both(1.0) + both(6.5):
            pts.append((x, rng.uniform(0.0, 1.0)))
        for y in both(1.0):
            pts.append((rng.uniform(0.0, 12.0), y))
        for r in (6.0, 7.5, 10.0, 15.0, 30.0, 100.0, 1e4, 1e8):
            t = rng.uniform(0.1, math.pi / 2)
            for rr in both(r):
                pts.append((rr * math.cos(t), rr * math.sin(t)))
    # The lower half-plane, where the values stay finite: y^2 - x^2 < 690.
    for _ in range(500):
        x = rng.uniform(-25.0, 25.0)
        ymax = math.sqrt(690.0 + x * x)
        pts.append((x, -rng.uniform(0.0, min(ymax, 25.0))))
    for _ in range(60):
        pts.append((rng.uniform(-30.0, 30.0), -(10.0 ** rng.uniform(-300.0, -0.5))))
    rows = []
    sq = 2 / mp.sqrt(mp.pi)
    for x, y in pts:
        w = faddeeva_checked(x, y)
        z = mp.mpc(x, y)
        dw = -2 * z * w + 1j * sq
        kre = (abs(x * dw.real) + abs(y * dw.imag)) / abs(w.real) if w.real != 0 else mp.mpf(0)
        kim = (abs(x * dw.imag) + abs(y * dw.real)) / abs(w.imag) if w.imag != 0 else mp.mpf(0)
        if y < 0:
            lab = "lower"
        elif y == 0 or x == 0:
            lab = "axes"
        elif abs(z) >= 1e8:
            lab = "far"
        elif y >= 4 or (y >= 1 and abs(z) >= 6) or (y < 1 and abs(x) >= 8):
            lab = "fraction"
        else:
            lab = "series"
        rows.append([hx(x), hx(y), dec(w.real), dec(w.imag), dec(kre, 6), dec(kim, 6), lab])
    write("s15ddf", [
        "Faddeeva function w(z) = exp(-z^2) erfc(-iz), z = x + iy: on the axes "
        "exp(-x^2) + 2i/sqrt(pi) F(x) and erfcx(y) as for s15aff and s15agf; elsewhere mpmath at 90 "
        "digits and as many more as exp(x^2 - y^2) cancels, checked at 30 more; "
        "above the real axis for |z| > 30 and y >= |x| or x^2 - y^2 > 3000, the "
        "asymptotic series (i/(sqrt(pi) z)) sum (2k-1)!!/(2z^2)^k.",
        "Ranges as the body: series, fraction (the continued fraction), far "
        "(|z| >= 1e8), axes (x = 0 or y = 0), lower (y < 0, y^2 - x^2 < 690).",
        "Columns: x, y, Re w, Im w, condition numbers of Re w and Im w, "
        "(|x dRe/dx| + |y dRe/dy|)/|Re| and the same for Im, range. Seed 15041."], rows)


def main():
    gens = {"s15aff": gen_s15aff, "s15agf": gen_s15agf, "s20ac": gen_s20ac, "s22aa": gen_s22aa, "s15dd": gen_s15dd}
    for name in sys.argv[1:] or list(gens):
        gens[name]()


if __name__ == "__main__":
    main()
