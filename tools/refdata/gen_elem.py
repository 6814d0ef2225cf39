#!/usr/bin/python3
"""Reference tables of the elementary group of chapter s, for the accuracy
tests: tan, arcsin, arccos, tanh, sinh, cosh, artanh, arsinh, arcosh, the
cosine and sine integrals, and the complex exponential.

Run with /usr/bin/python3 (needs mpmath). Writes tests/data/<routine>.csv:

    gen_elem.py [ROUTINE ...]      (default: all of them)

A real function's line is  x,f(x),cond,range : x a C99 hexadecimal float
(exact), f(x) a decimal string of 30 significant digits, cond the condition
number abs(x f'(x) / f(x)) to 6 digits (the tests divide the error in ulps by
max(1, cond) where a range is ill-conditioned), and the range a label of the
part of the domain (never starting like a number, never holding a comma).
s01eaf's line is  re,im,Re exp(z),Im exp(z),range.

Each value is computed with mpmath at 50 significant digits and again at 80,
with the working precision raised by the decimal exponent of the argument
(for the argument reduction of the periodic functions); the two must agree to
1e-35 relative or the script stops. Points are drawn with a fixed seed, so the
tables are reproducible: uniform and log-uniform samples of every range, every
cut point of the routines with its two neighbouring doubles, the zeros and
poles, the failure edges from the inside, and the hard cases of the argument
reduction of tan (the doubles nearest to multiples of pi/2).
"""

import math
import os
import random
import sys

import mpmath as mp

SEED = 20240607
HERE = os.path.dirname(os.path.abspath(__file__))
DATA = os.path.normpath(os.path.join(HERE, "..", "..", "tests", "data"))
MAXD = sys.float_info.max


def up(x, k=1):
    for _ in range(k):
        x = math.nextafter(x, math.inf)
    return x


def down(x, k=1):
    for _ in range(k):
        x = math.nextafter(x, -math.inf)
    return x


def around(x, k=1):
    """x and its k neighbours on each side."""
    return [down(x, i) for i in range(k, 0, -1)] + [x] + [up(x, i) for i in range(1, k + 1)]


def uniform(rng, a, b, n):
    return [rng.uniform(a, b) for _ in range(n)]


def loguniform(rng, a, b, n):
    la, lb = math.log(a), math.log(b)
    return [math.exp(rng.uniform(la, lb)) for _ in range(n)]


def nearest_double(v):
    """The double nearest to the mpf v."""
    return float(v)


# ---------------------------------------------------------------------------
# Evaluation at two precisions


def checked(fn, x, what, mag=None):
    """fn(mpf x) at 50 and at 80 digits, plus the decimal exponent of `mag`
    (x by default); returns the 80-digit value."""
    m = x if mag is None else mag
    extra = max(0, int(abs(math.log10(abs(m))))) if m != 0 and math.isfinite(m) else 0
    vals = []
    for dps in (50, 80):
        with mp.workdps(dps + extra):
            vals.append(fn(mp.mpf(x)))
    a, b = vals
    if isinstance(a, mp.mpc):
        parts = [(a.real, b.real), (a.imag, b.imag)]
        scale = abs(b)
    else:
        parts = [(a, b)]
        scale = None
    for pa, pb in parts:
        ref = scale if scale is not None else abs(pb)
        if pb != 0 and abs(pa - pb) > mp.mpf(10) ** -35 * ref:
            raise SystemExit(f"{what}: precision check failed at x = {x!r}")
    return b


def dec(v, digits=30):
    if v == 0:
        return "0.0"
    return mp.nstr(v, digits, min_fixed=1, max_fixed=0, strip_zeros=False)


# ---------------------------------------------------------------------------
# The functions: value and derivative, as mpmath sees them


def ci_zero(k):
    guesses = ["0.6165", "3.3842", "6.4270", "9.5256", "12.6435", "15.7703"]
    with mp.workdps(60):
        return mp.findroot(mp.ci, mp.mpf(guesses[k]))


FUNCS = {
    "s07aaf": ("tan x", mp.tan, lambda x: 1 + mp.tan(x) ** 2),
    "s09aaf": ("arcsin x", mp.asin, lambda x: 1 / mp.sqrt(1 - x * x)),
    "s09abf": ("arccos x", mp.acos, lambda x: -1 / mp.sqrt(1 - x * x)),
    "s10aaf": ("tanh x", mp.tanh, lambda x: 1 - mp.tanh(x) ** 2),
    "s10abf": ("sinh x", mp.sinh, mp.cosh),
    "s10acf": ("cosh x", mp.cosh, mp.sinh),
    "s11aaf": ("artanh x", mp.atanh, lambda x: 1 / (1 - x * x)),
    "s11abf": ("arsinh x", mp.asinh, lambda x: 1 / mp.sqrt(1 + x * x)),
    "s11acf": ("arcosh x", mp.acosh, lambda x: 1 / mp.sqrt(x * x - 1)),
    "s13acf": ("cosine integral Ci(x)", mp.ci, lambda x: mp.cos(x) / x),
    "s13adf": ("sine integral Si(x)", mp.si, lambda x: mp.sin(x) / x if x else 1),
}


def cond(name, x, fx):
    """abs(x f'(x) / f(x)), 1 where f or x is 0."""
    if x == 0 or fx == 0:
        return mp.mpf(1)
    with mp.workdps(40 + max(0, int(abs(math.log10(abs(x)))))):
        try:
            d = FUNCS[name][2](mp.mpf(x))
        except ZeroDivisionError:
            return mp.inf  # an infinite slope, at an end of the domain
        return abs(mp.mpf(x) * d / fx)


# ---------------------------------------------------------------------------
# Point sets: lists of (x, range)


def sym(xs):
    """The values and their negatives."""
    return xs + [-x for x in xs if x != 0]


def pts_tan(rng):
    P = []
    P += [(x, "|x|<=pi/4") for x in uniform(rng, -0.786, 0.786, 500)]
    P += [(x, "|x|<=pi/4") for x in loguniform(rng, 1e-300, 0.78, 200)]
    P += [(x, "|x| pi/4 to 100") for x in sym(uniform(rng, 0.786, 100.0, 400))]
    P += [(x, "|x| 100 to 1e13") for x in sym(loguniform(rng, 100.0, 1e13, 300))]
    # The doubles nearest to multiples of pi/2 and their neighbours: zeros
    # (even multiples) and poles (odd multiples) of tan.
    ks = list(range(1, 40)) + [int(v) for v in loguniform(rng, 40, 6.3e12, 120)]
    with mp.workdps(60):
        for k in ks:
            v = nearest_double(k * mp.pi / 2)
            if abs(v) > 1e13:
                continue
            label = "near zeros k pi" if k % 2 == 0 else "near poles (k+1/2) pi"
            for y in around(v, 2):
                P += [(y, label), (-y, label)]
        # The cut points of the reduction, odd multiples of pi/4.
        for k in list(range(1, 30, 2)) + [2 * int(v) + 1 for v in loguniform(rng, 20, 1e12, 40)]:
            v = nearest_double(k * mp.pi / 4)
            if abs(v) <= 1e13:
                P += [(y, "|x| pi/4 to 100" if abs(y) <= 100 else "|x| 100 to 1e13")
                      for y in around(v, 1)]
    P += [(y, "|x| 100 to 1e13") for y in [1e13, down(1e13), -1e13, -down(1e13)]]
    P += [(0.0, "|x|<=pi/4")]
    return P


def pts_asin(rng, name):
    P = []
    P += [(x, "|x|<=1/2") for x in uniform(rng, -0.5, 0.5, 600)]
    P += [(x, "|x|<=1/2") for x in sym(loguniform(rng, 1e-300, 0.5, 200))]
    P += [(x, "|x| above 1/2") for x in sym(uniform(rng, 0.5, 1.0, 400))]
    near1 = [1.0 - 2.0 ** -k for k in range(2, 54)] + [1.0 - v for v in loguniform(rng, 1e-16, 0.5, 100)]
    P += [(x, "|x| above 1/2") for x in sym(near1)]
    P += [(x, "|x| above 1/2") for x in sym([1.0, down(1.0), down(1.0, 2)])]
    P += [(x, "|x|<=1/2" if abs(x) <= 0.5 else "|x| above 1/2") for x in sym(around(0.5, 2))]
    P += [(0.0, "|x|<=1/2")]
    return P


def pts_tanh(rng):
    P = []
    P += [(x, "|x|<=1") for x in uniform(rng, -1.0, 1.0, 500)]
    P += [(x, "|x|<=1") for x in sym(loguniform(rng, 1e-300, 1.0, 200))]
    P += [(x, "|x| 1 to 18.715") for x in sym(uniform(rng, 1.0, 18.715, 400))]
    P += [(x, "|x|>=18.715") for x in sym(loguniform(rng, 18.715, 1e300, 50))]
    for c in (1.0, 18.715):
        for y in around(c, 2):
            lab = "|x|<=1" if y <= 1 else ("|x| 1 to 18.715" if y < 18.715 else "|x|>=18.715")
            P += [(y, lab), (-y, lab)]
    P += [(0.0, "|x|<=1"), (MAXD, "|x|>=18.715")]
    return P


def pts_sinhcosh(rng):
    P = []
    P += [(x, "|x|<=1") for x in uniform(rng, -1.0, 1.0, 500)]
    P += [(x, "|x|<=1") for x in sym(loguniform(rng, 1e-300, 1.0, 200))]
    P += [(x, "|x| 1 to 708") for x in sym(uniform(rng, 1.0, 30.0, 300))]
    P += [(x, "|x| 1 to 708") for x in sym(uniform(rng, 30.0, 708.0, 200))]
    for y in around(1.0, 2):
        P += [(y, "|x|<=1" if y <= 1 else "|x| 1 to 708")] * 1
        P += [(-y, "|x|<=1" if y <= 1 else "|x| 1 to 708")]
    P += [(y, "|x| 1 to 708") for y in sym([708.0, down(708.0), down(708.0, 2)])]
    P += [(0.0, "|x|<=1")]
    return P


def pts_atanh(rng):
    P = []
    r = math.sqrt(0.5)
    P += [(x, "x^2<=1/2") for x in uniform(rng, -r, r, 500)]
    P += [(x, "x^2<=1/2") for x in sym(loguniform(rng, 1e-300, r, 200))]
    P += [(x, "x^2>1/2") for x in sym(uniform(rng, r, 1.0, 300))]
    near1 = [1.0 - 2.0 ** -k for k in range(2, 54)] + [1.0 - v for v in loguniform(rng, 1e-16, 0.29, 100)]
    P += [(x, "x^2>1/2") for x in sym(near1)]
    for y in around(r, 3):
        lab = "x^2<=1/2" if y * y <= 0.5 else "x^2>1/2"
        P += [(y, lab), (-y, lab)]
    P += [(0.0, "x^2<=1/2")]
    return P


def pts_asinh(rng):
    P = []
    P += [(x, "|x|<=1") for x in uniform(rng, -1.0, 1.0, 500)]
    P += [(x, "|x|<=1") for x in sym(loguniform(rng, 1e-300, 1.0, 200))]
    P += [(x, "|x| 1 to 1e9") for x in sym(uniform(rng, 1.0, 10.0, 200))]
    P += [(x, "|x| 1 to 1e9") for x in sym(loguniform(rng, 10.0, 1e9, 200))]
    P += [(x, "|x|>1e9") for x in sym(loguniform(rng, 1e9, 1e308, 150))]
    for c, lo_lab, hi_lab in ((1.0, "|x|<=1", "|x| 1 to 1e9"), (1e9, "|x| 1 to 1e9", "|x|>1e9")):
        for y in around(c, 2):
            lab = lo_lab if y <= c else hi_lab
            P += [(y, lab), (-y, lab)]
    P += [(0.0, "|x|<=1"), (MAXD, "|x|>1e9"), (-MAXD, "|x|>1e9")]
    return P


def pts_acosh(rng):
    P = []
    P += [(1.0 + 2.0 ** -k, "x 1 to 2") for k in range(1, 53)]
    P += [(x, "x 1 to 2") for x in uniform(rng, 1.0, 2.0, 400)]
    P += [(1.0 + v, "x 1 to 2") for v in loguniform(rng, 2.3e-16, 1.0, 200)]
    P += [(x, "x 2 to 1e9") for x in uniform(rng, 2.0, 20.0, 200)]
    P += [(x, "x 2 to 1e9") for x in loguniform(rng, 20.0, 1e9, 300)]
    P += [(x, "x>1e9") for x in loguniform(rng, 1e9, 1e308, 150)]
    P += [(y, "x 1 to 2") for y in [1.0, up(1.0), up(1.0, 2), up(1.0, 3)]]
    P += [(y, "x 2 to 1e9" if y <= 1e9 else "x>1e9") for y in around(1e9, 2)]
    P += [(MAXD, "x>1e9")]
    return P


def pts_ci(rng):
    P = []
    P += [(x, "x below 1") for x in loguniform(rng, 1e-300, 1.0, 300)]
    P += [(x, "x below 1") for x in uniform(rng, 0.0, 1.0, 300) if x > 0]
    P += [(x, "x 1 to 16") for x in uniform(rng, 1.0, 16.0, 1200)]
    P += [(x, "x 16 to 1e16") for x in uniform(rng, 16.0, 100.0, 300)]
    P += [(x, "x 16 to 1e16") for x in loguniform(rng, 100.0, 1e16, 300)]
    # The zeros of Ci, their neighbours and points close by.
    for k in range(6):
        z = nearest_double(ci_zero(k))
        lab = "near zeros"
        P += [(y, lab) for y in around(z, 3)]
        P += [(z + d, lab) for d in uniform(rng, -1e-3, 1e-3, 20)]
    # Cut points of the bodies: 1, 16, 1e16 and the ends of the pieces.
    cuts = [1.0, 1.7, 16.0]
    for k in range(1, 6):
        z = float(ci_zero(k))
        cuts += [z - 1.0, z + 1.0]
    for c in cuts:
        for y in around(c, 2):
            if y < 1:
                lab = "x below 1"
            elif y <= 16:
                lab = "x 1 to 16"
            else:
                lab = "x 16 to 1e16"
            P.append((y, lab))
    P += [(y, "x 16 to 1e16") for y in [1e16, down(1e16), down(1e16, 2)]]
    return P


def pts_si(rng):
    P = []
    P += [(x, "|x|<=2") for x in uniform(rng, -2.0, 2.0, 500)]
    P += [(x, "|x|<=2") for x in sym(loguniform(rng, 1e-300, 2.0, 200))]
    P += [(x, "|x| 2 to 16") for x in sym(uniform(rng, 2.0, 16.0, 600))]
    P += [(x, "|x| 16 to 1e17") for x in sym(uniform(rng, 16.0, 100.0, 150))]
    P += [(x, "|x| 16 to 1e17") for x in sym(loguniform(rng, 100.0, 1e17, 150))]
    P += [(x, "|x|>1e17") for x in sym(loguniform(rng, 1e17, 1e300, 20))]
    for c in (2.0, 5.0, 8.0, 11.0, 14.0, 16.0, 1e17):
        for y in around(c, 2):
            if y <= 2:
                lab = "|x|<=2"
            elif y <= 16:
                lab = "|x| 2 to 16"
            elif y <= 1e17:
                lab = "|x| 16 to 1e17"
            else:
                lab = "|x|>1e17"
            P += [(y, lab), (-y, lab)]
    P += [(0.0, "|x|<=2")]
    return P


def pts_cexp(rng):
    """(re, im, range) for exp(z)."""
    P = []
    lim_half = math.sqrt(2.0 ** 53)
    for _ in range(700):
        P.append((rng.uniform(-40, 40), rng.uniform(-10, 10), "|z| moderate"))
    for _ in range(500):
        x = rng.uniform(-745, 708)
        y = math.copysign(math.exp(rng.uniform(math.log(1e-300), math.log(lim_half))), rng.uniform(-1, 1))
        P.append((x, y, "wide"))
    with mp.workdps(40):
        for k in list(range(1, 30)) + [int(v) for v in loguniform(rng, 30, 6e7, 60)]:
            y = nearest_double(k * mp.pi / 2)
            if abs(y) < lim_half:
                for v in around(y, 1):
                    P.append((rng.uniform(-20, 20), v, "near zeros of cos and sin"))
    # Past ln(1/x02amf) = 708.396: parts that stay finite need e^x in halves.
    for _ in range(200):
        x = rng.uniform(708.4, 709.7)
        y = rng.uniform(-1.5, 1.5)
        lnbig = math.log(1.0 / sys.float_info.min)
        if x + math.log(abs(math.cos(y))) <= lnbig and x + math.log(abs(math.sin(y)) or 1e-300) <= lnbig:
            P.append((x, y, "large real part"))
    for y in (0.0, -0.0, 1e-300):
        for x in (-745.0, -1.0, 0.0, 1.0, 700.0, 708.0):
            P.append((x, y, "real axis"))
    for v in around(lim_half, 1):
        if v <= lim_half:
            P.append((0.5, v, "wide"))
    return P


POINTS = {
    "s07aaf": pts_tan,
    "s09aaf": lambda rng: pts_asin(rng, "s09aaf"),
    "s09abf": lambda rng: pts_asin(rng, "s09abf"),
    "s10aaf": pts_tanh,
    "s10abf": pts_sinhcosh,
    "s10acf": pts_sinhcosh,
    "s11aaf": pts_atanh,
    "s11abf": pts_asinh,
    "s11acf": pts_acosh,
    "s13acf": pts_ci,
    "s13adf": pts_si,
}


def header(name, what, n, extra):
    return [f"# {name}: {what}",
            f"# Generated by tools/refdata/gen_elem.py with mpmath {mp.__version__}: each "
            f"value at 50 and at 80 digits (plus the decimal exponent of the argument), "
            f"agreeing to 1e-35.",
            f"# {n} points, seed {SEED}: uniform and log-uniform samples of every range, "
            f"the cut points with their neighbouring doubles, {extra}."]


def gen_real(name):
    rng = random.Random(f"{SEED}-{name}")
    what, fn, _ = FUNCS[name]
    pts = {}
    for x, lab in POINTS[name](rng):
        x = float(x)
        if x not in pts:
            pts[x] = lab
    rows = []
    for x in sorted(pts):
        fx = checked(fn, x, name)
        rows.append(f"{x.hex()},{dec(fx)},{mp.nstr(cond(name, x, fx), 6)},{pts[x]}")
    extras = {
        "s07aaf": "the doubles nearest to multiples of pi/2 (zeros and poles) and to odd multiples of pi/4, and the limit 1e13",
        "s13acf": "the zeros of Ci and points within 1e-3 of them, the ends of the polynomial pieces",
        "s13adf": "the ends of the polynomial pieces",
    }
    lines = header(name, what, len(rows), extras.get(name, "the failure edges from inside"))
    lines.append("# x,reference,cond = abs(x f'(x)/f(x)),range")
    return lines + rows


def gen_cexp():
    rng = random.Random(f"{SEED}-s01eaf")
    seen = set()
    rows = []
    for x, y, lab in pts_cexp(rng):
        key = (float(x), float(y))
        if key in seen:
            continue
        seen.add(key)
        v = checked(lambda _: mp.exp(mp.mpc(key[0], key[1])), 0.0, "s01eaf",
                    mag=max(abs(key[1]), 1.0))
        rows.append(f"{key[0].hex()},{key[1].hex()},{dec(v.real)},{dec(v.imag)},{lab}")
    lines = header("s01eaf", "exp(z), z = re + i im", len(rows),
                   "the doubles nearest to multiples of pi/2 as imaginary parts, real parts past "
                   "ln(1/x02amf) where the parts stay finite, the half-precision limit from inside")
    lines.append("# re,im,Re exp(z),Im exp(z),range")
    return lines + rows


def main(argv):
    names = argv or (list(FUNCS) + ["s01eaf"])
    os.makedirs(DATA, exist_ok=True)
    for name in names:
        lines = gen_cexp() if name == "s01eaf" else gen_real(name)
        with open(os.path.join(DATA, name + ".csv"), "w", encoding="ascii") as f:
            f.write("\n".join(lines) + "\n")
        print(f"{name}: {len(lines)} lines", file=sys.stderr)


if __name__ == "__main__":
    main(sys.argv[1:])
