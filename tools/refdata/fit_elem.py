#!/usr/bin/python3
"""Derives the stored series of the elementary group of chapter s: tan, arcsin
and arccos, tanh, sinh, artanh, arsinh, and the cosine and sine integrals; and
the reduction table of the extended logarithm of artanh, arsinh and arcosh.

Run with /usr/bin/python3 (needs mpmath). Each series stands in a body source
between the marker lines

    // <fit_elem:NAME>
    ...
    // </fit_elem:NAME>

and this script writes the text between them, with its provenance comment.

    fit_elem.py              print every table
    fit_elem.py NAME ...     print the tables named
    fit_elem.py --write      replace the tables in the sources in place

Method. Each series is a weighted minimax polynomial (Remez exchange on a
Chebyshev grid of a few hundred points, 40 significant digits). The leading
coefficients are rounded to double one at a time, the others refitted around
each rounded value, so that their rounding is absorbed. The odd functions
(tan, arcsin, tanh, sinh, artanh, arsinh) are x + x^3/K + x^5 S(x^2) with
K = 3, 6, -3 or -6, the bodies carrying 1/K exactly, in double-double (tan,
arcsin) or as its rounding plus the exact remainder; only S is stored. The
cosine and sine integrals on [1, 16] are
cut into pieces in the variable t = x - c, with c a double (so t is exact);
a piece that holds a zero of Ci has c at the zero rounded to double, and is
fitted as Ci(x)/(x - x0) times (x - x0), which makes the result accurate
relative to itself near the zero. Their first four coefficients are stored
as pairs hi + lo for the compensated evaluation of the bodies. The maximum error
quoted with each table is measured afresh on 4000 points with the
coefficients rounded as stored, in exact arithmetic: it is the error of the
approximation only, not of its evaluation in floating point.
"""

import sys
import textwrap

import mpmath as mp

mp.mp.dps = 40

ROOT = __file__.rsplit("/tools/", 1)[0]
SCRIPT = "tools/refdata/fit_elem.py"


# ---------------------------------------------------------------------------
# Remez exchange for polynomials


def _grid(a, b, n):
    a, b = mp.mpf(a), mp.mpf(b)
    mid, half = (a + b) / 2, (b - a) / 2
    pts = [mid - half * mp.cos(mp.pi * (k + mp.mpf(1) / 2) / n) for k in range(n)]
    return [a] + pts + [b]


def _peval(c, t):
    """Value of sum c[k] t^k (c ascending)."""
    s = mp.mpf(0)
    for ck in reversed(c):
        s = s * t + ck
    return s


def _extrema(err):
    """Index of the largest |err| in each run of one sign."""
    out = []
    i = 0
    while i < len(err):
        pos = err[i] >= 0
        best = j = i
        while j < len(err) and (err[j] >= 0) == pos:
            if abs(err[j]) > abs(err[best]):
                best = j
            j += 1
        out.append(best)
        i = j
    return out


def remez(f, a, b, n, w, fixed=None, ngrid=600, iters=25):
    """Coefficients (ascending) of the polynomial of degree n in t that
    minimises max |w(t, f(t)) (f(t) - p(t))| on [a, b]. `fixed` maps the
    indices of coefficients held at given values to those values."""
    fixed = dict(fixed or {})
    grid = _grid(a, b, ngrid)
    fg = [f(t) for t in grid]
    wg = [w(t, ft) for t, ft in zip(grid, fg)]
    free = [k for k in range(n + 1) if k not in fixed]
    size = len(free) + 1
    ref = [int(round(k * (len(grid) - 1) / (size - 1))) for k in range(size)]
    coef = None
    for _ in range(iters):
        A = mp.matrix(size, size)
        rhs = mp.matrix(size, 1)
        for i, gi in enumerate(ref):
            t = grid[gi]
            for j, k in enumerate(free):
                A[i, j] = t ** k
            A[i, size - 1] = (-1) ** i / wg[gi]
            rhs[i] = fg[gi] - sum(v * t ** k for k, v in fixed.items())
        sol = mp.lu_solve(A, rhs)
        coef = [fixed[k] if k in fixed else None for k in range(n + 1)]
        for j, k in enumerate(free):
            coef[k] = sol[j]
        level = abs(sol[size - 1])
        err = [(ft - _peval(coef, t)) * wt for t, ft, wt in zip(grid, fg, wg)]
        ext = _extrema(err)
        while len(ext) > size:
            if abs(err[ext[0]]) < abs(err[ext[-1]]):
                ext.pop(0)
            else:
                ext.pop()
        if len(ext) < size:
            break
        ref = ext
        if max(abs(e) for e in err) <= level * (1 + mp.mpf(10) ** -3):
            break
    return coef


def remez_rounded(f, a, b, n, w, fixed=None, nround=3, ngrid=600):
    """remez, then the leading coefficients rounded to double one at a time
    from the constant term, the others refitted around each rounded value,
    so that the rounding of the terms that matter most is absorbed; the
    rest rounded as they stand."""
    fixed = dict(fixed or {})
    coef = remez(f, a, b, n, w, fixed, ngrid)
    for k in range(min(nround, n)):
        if k not in fixed:
            fixed[k] = rounded(coef[k])
            coef = remez(f, a, b, n, w, fixed, ngrid)
    return [rounded(c) for c in coef]


def measure(f, a, b, coef, w, npts=4000):
    """Max weighted error of the coefficients as stored (`coef` holds the
    stored values exactly)."""
    a, b = mp.mpf(a), mp.mpf(b)
    worst = mp.mpf(0)
    for k in range(npts + 1):
        t = a + (b - a) * k / npts
        ft = f(t)
        worst = max(worst, abs((ft - _peval(coef, t)) * w(t, ft)))
    return worst


def rounded(c):
    return mp.mpf(float(c))


def hilo(c):
    hi = float(c)
    return hi, float(c - mp.mpf(hi))


def fmt(v):
    return repr(float(v))


# ---------------------------------------------------------------------------
# Tables of the form f(x) = x + c1 x^3 + x^5 S(x^2)


def emit_desc(name, comment, coef):
    """A table from the highest power down, plain doubles."""
    lines = ["// " + s for s in textwrap.wrap(comment, 76)]
    lines.append(f"constexpr double {name}[{len(coef)}] = {{")
    for c in reversed(coef):
        lines.append(f"    {fmt(c)},")
    lines.append("};")
    return "\n".join(lines)


def odd_tail_table(name, what, F, c1, c1_text, umax, n, umax_text):
    """S(u) with F(x) = x + c1 x^3 + x^5 S(x^2): the bodies form x + c1 x^3
    in double-double, so only S is stored; weighted by the error it causes in
    F relative to F."""
    def S(u):
        if u == 0:
            return _taylor5(F)
        s = mp.sqrt(u)
        with mp.workdps(80):
            return ((F(s) - s) / (u * s) - c1) / u

    def w(u, su):
        if u == 0:
            return mp.mpf(10) ** -8
        s = mp.sqrt(u)
        return max(u * u, mp.mpf(10) ** -8) * s / abs(F(s))

    coef = remez_rounded(S, 0, umax, n, w)
    err = measure(S, 0, umax, coef, w)
    comment = (f"{what}: S(u) with {what.split('(')[0]}(x) = x + {c1_text} x^3 + "
               f"x^5 S(x^2), u = x^2, minimax polynomial of degree {n} in u on "
               f"[0, {umax_text}] for the error relative to the function; fitted "
               f"by {SCRIPT}, max relative error of the function "
               f"{mp.nstr(err, 2)} with the coefficients rounded to double. From "
               f"the highest power.")
    return emit_desc(name, comment, coef)


def _taylor5(F):
    """The x^5 Taylor coefficient of F."""
    return mp.taylor(F, 0, 5)[5]


# ---------------------------------------------------------------------------
# Cosine and sine integrals


def cin(x):
    """Cin(x) = gamma + ln x - Ci(x), the entire part of Ci."""
    if x == 0:
        return mp.mpf(0)
    with mp.workdps(80):
        return mp.euler + mp.log(x) - mp.ci(x)


def ci_zeros():
    out = []
    with mp.workdps(60):
        for g in ("0.6165", "3.3842", "6.4270", "9.5256", "12.6435", "15.7703"):
            out.append(+mp.findroot(mp.ci, mp.mpf(g)))
    return out


def ci_pieces():
    """The cut of [1, 16]: pieces around the zeros of Ci reach 1.0 on each
    side of the zero; pieces around the extrema (k + 1/2) pi fill the gaps.
    The first stretch [1, x1 - 1] is two plain pieces."""
    z = [float(v) for v in ci_zeros()]
    pieces = [(1.0, 1.7, None, 1.35), (1.7, z[1] - 1.0, None, 2.04)]
    for k in range(1, 6):
        lo = pieces[-1][1]
        hi = min(z[k] + 1.0, 16.0)
        pieces.append((lo, hi, k, z[k]))
        if hi < 16.0:
            pieces.append((hi, z[k + 1] - 1.0, None, float((k + mp.mpf(1) / 2) * mp.pi)))
    return pieces


def piece_fit(F, a, b, c, zero, n):
    """Polynomial in t = x - c for F on [a, b], relative error. With `zero`
    (a zero of F in the piece, to full precision) the fit is of
    F(x)/(x - zero), multiplied back by (t - (zero - c))."""
    c = mp.mpf(c)
    ta, tb = mp.mpf(a) - c, mp.mpf(b) - c
    if zero is None:
        def f(t):
            return F(c + t)
        coef = remez(f, ta, tb, n, lambda t, ft: 1 / abs(ft), ngrid=500)
        whole = f
    else:
        def f(t):
            x = c + t
            with mp.workdps(80):
                if abs(x - zero) < mp.mpf(10) ** -30:
                    return mp.diff(F, zero)
                return F(x) / (x - zero)
        q = remez(f, ta, tb, n, lambda t, ft: 1 / abs(ft), ngrid=500)
        d = zero - c
        coef = [-d * q[0]] + [q[k - 1] - d * (q[k] if k < len(q) else 0)
                              for k in range(1, len(q) + 1)]

        def whole(t):
            return F(c + t)
    # As stored: hi + lo for the first four, doubles for the rest.
    stored = [mp.mpf(hilo(v)[0]) + mp.mpf(hilo(v)[1]) for v in coef[:4]] + \
             [rounded(v) for v in coef[4:]]

    return stored, measure(whole, ta, tb, stored, lambda t, ft: 1 / abs(ft), npts=2000)


def emit_piece(name, comment, c, coef):
    """{c, p0 hi, p0 lo, ..., p3 hi, p3 lo, p4 ... pn}: t = x - c."""
    lines = ["// " + s for s in textwrap.wrap(comment, 76)]
    lines.append(f"constexpr double {name}[{len(coef) + 5}] = {{")
    lines.append(f"    {fmt(c)},  // c")
    for k in (0, 1, 2, 3):
        hi = float(coef[k])
        lo = float(coef[k] - mp.mpf(hi))
        lines.append(f"    {fmt(hi)}, {fmt(lo)},  // p{k}")
    for k in range(4, len(coef)):
        lines.append(f"    {fmt(coef[k])},")
    lines.append("};")
    return "\n".join(lines)


def emit_dispatch(fname, prefix, cuts, what):
    """The choice of piece by a balanced tree of comparisons with the cut
    points: piece i serves cuts[i-1] <= x < cuts[i]."""
    def tree(lo, hi, indent):
        if lo == hi:
            return [f"{indent}return zeb::series::piece(x, {prefix}{lo});"]
        mid = (lo + hi + 1) // 2
        return ([f"{indent}if (x < {cuts[mid - 1]!r}) {{"] + tree(lo, mid - 1, indent + "  ") +
                [f"{indent}}}"] + tree(mid, hi, indent))
    lines = [f"// {what}: the piece that holds x."]
    lines.append(f"inline double {fname}(double x) {{")
    lines += tree(0, len(cuts), "  ")
    lines.append("}")
    return "\n".join(lines)


CI_DEGREES = [19, 16, 20, 13, 15, 13, 14, 13, 14, 13, 12]


def ci_piece_tables():
    zs = ci_zeros()
    out = []
    for i, ((a, b, zk, c), n) in enumerate(zip(ci_pieces(), CI_DEGREES)):
        zero = zs[zk] if zk is not None else None
        coef, err = piece_fit(mp.ci, a, b, c, zero, n)
        where = (f"centred at the zero {mp.nstr(zero, 17)} of Ci, fitted as "
                 f"Ci(x)/(x - x0) times (x - x0)" if zero is not None else
                 "fitted directly")
        comment = (f"Ci(x) on [{a:.17g}, {b:.17g}]: minimax polynomial of "
                   f"degree {n} in t = x - c, {where}; fitted by {SCRIPT}, max "
                   f"error relative to Ci {mp.nstr(err, 2)} with the "
                   f"coefficients as stored. Ascending powers from p0.")
        out.append(emit_piece(f"kCi{i}", comment, c, coef))
    cuts = [b for (a, b, zk, c) in ci_pieces()][:-1]
    out.append(emit_dispatch("ci_piece", "kCi", cuts, "Ci(x) for 1 <= x <= 16"))
    return "\n\n".join(out)


SI_PIECES = [(2.0, 5.0, 3.5), (5.0, 8.0, 6.5), (8.0, 11.0, 9.5), (11.0, 14.0, 12.5),
             (14.0, 16.0, 15.0)]
SI_DEGREES = [16, 16, 16, 16, 14]


def si_piece_tables():
    out = []
    for i, ((a, b, c), n) in enumerate(zip(SI_PIECES, SI_DEGREES)):
        coef, err = piece_fit(mp.si, a, b, c, None, n)
        comment = (f"Si(x) on [{a:g}, {b:g}]: minimax polynomial of degree {n} "
                   f"in t = x - {c:g}; fitted by {SCRIPT}, max relative error "
                   f"{mp.nstr(err, 2)} with the coefficients as stored. Ascending "
                   f"powers from p0.")
        out.append(emit_piece(f"kSi{i}", comment, c, coef))
    cuts = [b for (a, b, c) in SI_PIECES][:-1]
    out.append(emit_dispatch("si_piece", "kSi", cuts, "Si(x) for 2 <= x <= 16"))
    return "\n\n".join(out)


def cin_small():
    """S(u) = (u/4 - Cin(x)) / u^2 on [0, 1], u = x^2: Ci(x) = gamma + ln x -
    u/4 + u^2 S(u). S is summed from its power series, free of the
    cancellation of its definition."""
    def S(u):
        return mp.nsum(lambda k: (-1) ** k * u ** k /
                       ((2 * k + 4) * mp.factorial(2 * k + 4)), [0, mp.inf])
    w = lambda u, su: max(u * u, mp.mpf(10) ** -8)
    n = 7
    coef = remez_rounded(S, 0, 1, n, w)
    err = measure(S, 0, 1, coef, w)
    comment = (f"S(u) = (u/4 - Cin(x)) / u^2 = sum_k (-1)^k u^k / ((2k+4) "
               f"(2k+4)!), u = x^2, Cin(x) = gamma + ln x - Ci(x): minimax "
               f"polynomial of degree {n} in u on [0, 1] for the absolute error "
               f"of u^2 S; fitted by {SCRIPT}, max absolute error of u^2 S "
               f"{mp.nstr(err, 2)} with the coefficients rounded to double. From "
               f"the highest power.")
    return emit_desc("kCinS", comment, coef)


def cin_zero():
    """Q(u) = (Cin(x) - Cin(x0)) / (u - u0), u = x^2, x0 the first zero of Ci,
    on [0.45^2, 0.85^2]; Q summed from the power series of Cin, where
    (u^k - u0^k)/(u - u0) has no cancellation."""
    x0 = ci_zeros()[0]
    u0 = x0 * x0

    def Q(u):
        with mp.workdps(60):
            tot = mp.mpf(0)
            for k in range(1, 40):
                dd = sum(u ** j * u0 ** (k - 1 - j) for j in range(k))
                tot += (-1) ** (k + 1) * dd / (2 * k * mp.factorial(2 * k))
            return tot
    w = lambda u, q: 1 / abs(q)
    a, b = mp.mpf("0.45") ** 2, mp.mpf("0.85") ** 2
    n = 8
    coef = remez_rounded(Q, a, b, n, w)
    err = measure(Q, a, b, coef, w, npts=1000)
    comment = (f"Q(u) = (Cin(x) - Cin(x0)) / (u - u0), u = x^2, x0 = "
               f"{mp.nstr(x0, 20)} the first zero of Ci, Cin(x) = gamma + ln x - "
               f"Ci(x): minimax polynomial of degree {n} in u on [0.45^2, 0.85^2] "
               f"for the relative error; fitted by {SCRIPT}, max relative error "
               f"{mp.nstr(err, 2)} with the coefficients rounded to double. From "
               f"the highest power.")
    return emit_desc("kCinQ", comment, coef)


def si_small():
    """P(u) = Si(x)/x, u = x^2 on [0, 4]; P(0) = 1 held; stored without the
    constant term: Si(x) = x + x u P1(u)."""
    def P(u):
        if u == 0:
            return mp.mpf(1)
        x = mp.sqrt(u)
        return mp.si(x) / x
    w = lambda u, pu: 1 / abs(pu)
    n = 15
    coef = remez_rounded(P, 0, 4, n, w, {0: mp.mpf(1)})
    err = measure(P, 0, 4, coef, w)
    comment = (f"Si(x)/x = 1 + u P1(u), u = x^2: minimax polynomial of degree {n} "
               f"in u on [0, 4] for the relative error, constant term held at 1; "
               f"fitted by {SCRIPT}, max relative error {mp.nstr(err, 2)} with "
               f"the coefficients rounded to double. The table is P1, from the "
               f"highest power.")
    return emit_desc("kSiP1", comment, coef[1:])


def aux_fg(which):
    """F(x) = x f(x), G(x) = x^2 g(x), the auxiliary functions of the
    asymptotic forms: Ci = F sin x / x - G cos x / x^2,
    Si = pi/2 - F cos x / x - G sin x / x^2; in y = (16/x)^2 on [0, 1]."""
    def FG(y):
        if y == 0:
            return mp.mpf(1)
        x = 16 / mp.sqrt(y)
        with mp.workdps(80):
            ci = mp.ci(x)
            si = mp.si(x) - mp.pi / 2
            s, c = mp.sin(x), mp.cos(x)
            if which == "F":
                return x * (ci * s - si * c)
            return x * x * (-ci * c - si * s)
    w = lambda y, v: 1 / abs(v)
    n = 15 if which == "F" else 16
    coef = remez_rounded(FG, 0, 1, n, w, {0: mp.mpf(1)})
    err = measure(FG, 0, 1, coef, w, npts=2000)
    name = "kAuxF1" if which == "F" else "kAuxG1"
    what = ("F(x) = x f(x)" if which == "F" else "G(x) = x^2 g(x)")
    comment = (f"{what} = 1 + y {which}1(y), f and g the auxiliary functions of the "
               f"sine and cosine integrals: minimax polynomial of degree {n} in "
               f"y = (16/x)^2 on [0, 1] (x >= 16) for the relative error, "
               f"constant term held at 1; fitted by {SCRIPT}, max relative error "
               f"{mp.nstr(err, 2)} with the coefficients rounded to double. The "
               f"table is {which}1, from the highest power.")
    return emit_desc(name, comment, coef[1:])


# ---------------------------------------------------------------------------
# Reduction table of the extended logarithm of the inverse hyperbolic functions


LNRED_BITS = 7
LN2_HI_BITS = 24  # kLn2Hi of zeb_s_extlog.h, the last row: ln 2 to a multiple of 2^-24
LNRED_HI_BITS = 39  # the hi parts of the other rows: multiples of 2^-39


def ln_reduction():
    """For m in [1, 2), the bin i = round((m - 1) 128), 0 <= i <= 128, holds m
    within 1/256 of 1 + i/128. Its row is c_i, the inverse of 1 + i/128
    rounded to a multiple of 2^-11 (c_0 = 1, c_128 = 1/2), so that m c_i, 53
    bits times at most 11, is exact in the x87 format and r = m c_i - 1 stays
    within about 2^-8; and -ln c_i as a pair hi + lo with hi a multiple of
    2^-39, so that e ln2_hi + hi is exact in double for a 24-bit ln2_hi and
    |e| < 2^14, the whole exponent range of the x87 format. The last row is ln 2 split as the kernel's own ln2_hi + ln2_lo,
    so that hi just below a power of two 2^(e+1) gives e ln 2 + ln 2 with both
    parts cancelling exactly at e = -1."""
    n = 1 << LNRED_BITS
    rows = []
    worst = mp.mpf(0)
    err = mp.mpf(0)
    for i in range(n + 1):
        c = mp.mpf(int(mp.nint(2048 / (1 + mp.mpf(i) / n)))) / 2048
        lo_m = max(1 + (mp.mpf(i) - mp.mpf(1) / 2) / n, mp.mpf(1))
        hi_m = min(1 + (mp.mpf(i) + mp.mpf(1) / 2) / n, mp.mpf(2))
        worst = max(worst, abs(lo_m * c - 1), abs(hi_m * c - 1))
        with mp.workdps(60):
            t = -mp.log(c)
            q = 2 ** (LN2_HI_BITS if i == n else LNRED_HI_BITS)
            hi = mp.nint(t * q) / q
            lo = float(t - hi)
            err = max(err, abs(t - hi - mp.mpf(lo)))
        rows.append((float(c), float(hi), lo))
    assert rows[0] == (1.0, 0.0, 0.0) and rows[n][0] == 0.5
    text = (f"The reduction of ln m, m in [1, 2), by the bin i = round((m - 1) "
            f"{n}), 0 <= i <= {n}: {{c_i, hi, lo}} with c_i = 1/(1 + i/{n}) "
            f"rounded to a multiple of 2^-11 (c_0 = 1, c_{n} = 1/2) and hi + lo = "
            f"-ln c_i, hi the multiple of 2^-{LNRED_HI_BITS} nearest to it (of 2^-{LN2_HI_BITS}, "
            f"kLn2Hi, in the last row) and lo rounded to double, to "
            f"2^{int(mp.floor(mp.log(err, 2)))} (mpmath, 60 digits); generated by {SCRIPT}. |m c_i - 1| <= {mp.nstr(worst, 3)}.")
    lines = ["// " + s for s in textwrap.wrap(text, 76)]
    lines.append(f"inline constexpr double kLnRed[{n + 1}][3] = {{")
    for c, hi, lo in rows:
        lines.append(f"    {{{c!r}, {hi!r}, {lo!r}}},")
    lines.append("};")
    return "\n".join(lines)


# ---------------------------------------------------------------------------

TABLES = {
    # name: (source file, generator)
    "tan": ("base/source/s/s07aafn.cpp",
            lambda: odd_tail_table("kTanS", "tan(x)", mp.tan, mp.mpf(1) / 3, "1/3",
                                   mp.mpf("0.7875") ** 2, 13, "0.7875^2")),
    "asin": ("base/source/s/s09aazn.cpp",
             lambda: odd_tail_table("kAsinS", "asin(x)", mp.asin, mp.mpf(1) / 6, "1/6",
                                    mp.mpf("0.25"), 12, "0.25")),
    "tanh": ("base/source/s/s10aafn.cpp",
             lambda: odd_tail_table("kTanhS", "tanh(x)", mp.tanh, -mp.mpf(1) / 3, "(-1/3)",
                                    mp.mpf(1), 14, "1")),
    "sinh": ("base/source/s/s10abfn.cpp",
             lambda: odd_tail_table("kSinhS", "sinh(x)", mp.sinh, mp.mpf(1) / 6, "1/6",
                                    mp.mpf(1), 6, "1")),
    "atanh": ("base/source/s/s11aazn.cpp",
              lambda: odd_tail_table("kAtanhS", "atanh(x)", mp.atanh, mp.mpf(1) / 3, "1/3",
                                     mp.mpf("0.5"), 19, "0.5")),
    "asinh": ("base/source/s/s11abfn.cpp",
              lambda: odd_tail_table("kAsinhS", "asinh(x)", mp.asinh, -mp.mpf(1) / 6, "(-1/6)",
                                     mp.mpf(1), 19, "1")),
    "lnred": ("flimp/include/zeb_s_extlog.h", ln_reduction),
    "cin": ("base/source/s/s13acfn.cpp", cin_small),
    "cinq": ("base/source/s/s13acfn.cpp", cin_zero),
    "ci": ("base/source/s/s13acfn.cpp", ci_piece_tables),
    "si0": ("base/source/s/s13adfn.cpp", si_small),
    "si": ("base/source/s/s13adfn.cpp", si_piece_tables),
    "auxf": ("base/source/s/s13aczn.cpp", lambda: aux_fg("F")),
    "auxg": ("base/source/s/s13aczn.cpp", lambda: aux_fg("G")),
}


def write(name, text):
    path = f"{ROOT}/{TABLES[name][0]}"
    with open(path, encoding="utf-8") as f:
        src = f.read()
    begin = f"// <fit_elem:{name}>\n"
    end = f"// </fit_elem:{name}>"
    i = src.find(begin)
    j = src.find(end)
    if i < 0 or j < i:
        raise SystemExit(f"{path}: no markers for table {name}")
    src = src[:i + len(begin)] + text + "\n" + src[j:]
    with open(path, "w", encoding="utf-8") as f:
        f.write(src)


def main(argv):
    do_write = "--write" in argv
    names = [a for a in argv if not a.startswith("--")] or list(TABLES)
    for name in names:
        if name not in TABLES:
            raise SystemExit(f"unknown table {name}; known: {' '.join(TABLES)}")
        text = TABLES[name][1]()
        if do_write:
            write(name, text)
            print(f"wrote {name} into {TABLES[name][0]}", file=sys.stderr)
        else:
            print(f"// ===== {name} ({TABLES[name][0]})")
            print(text)
            print()


if __name__ == "__main__":
    main(sys.argv[1:])
