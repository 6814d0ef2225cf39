#!/usr/bin/python3
"""Derives the coefficient tables of the first special-function bodies.

Run with /usr/bin/python3 (needs mpmath). Every table of
base/source/s/{s14aafn,s14abfn,s15adzn,s15adyn,s13aafn,s13aazn,s01bafn,s01bazn}.cpp
and base/source/s/s15aezn.h is printed by this script as the C++ text that
stands in the source, with its provenance line, except the rational of erfc's
last range (kErfcL_P, kErfcL_Q) and the tables of its split exponential, which
tools/refdata/gen_s15adz.py derives. Usage:

    fit_s_first.py [TABLE ...]      (default: all tables)

Method: weighted minimax (Remez exchange) at 50 digits. A rational p/q of
degree (n, m) is normalised to q(0) = 1; the linearised reference system is
iterated for the E*q term, and the reference moves to the extrema of the error
on a Chebyshev grid. A coefficient is stored as a pair hi + lo of doubles
where a body sums it by compensated Horner (the pair is what it sees), as that
pair rounded to the 64-bit significand of the x87 extended format where a body
sums in long double, and as one double where the series carries a small part
of the value; the maximum error quoted is measured afresh on 20000 points, and
on points crowding the ends, with the coefficients as the body sees them.

The exponential polynomial (table "exp") serves s15adyn.
"""

import sys
import textwrap

import mpmath as mp

mp.mp.dps = 50


def _alternants(err):
    """Indices of the largest |err| in each run of equal sign."""
    out = []
    i, n = 0, len(err)
    while i < n:
        pos = err[i] >= 0
        best = j = i
        while j < n and (err[j] >= 0) == pos:
            if abs(err[j]) > abs(err[best]):
                best = j
            j += 1
        out.append(best)
        i = j
    return out


def remez(f, a, b, n, m, w=None, npts=2000, iters=40):
    """Minimax p/q (degrees n, m; q(0) = 1) for f on [a, b] with the error
    (f - p/q) * w(x, f(x)); w defaults to 1/|f|. Returns ascending p, q."""
    a, b = mp.mpf(a), mp.mpf(b)
    if w is None:
        w = lambda x, fx: 1 / abs(fx)
    N = n + m + 2
    grid = [a] + [(a + b) / 2 - (b - a) / 2 * mp.cos(mp.pi * (k + mp.mpf(1) / 2) / npts)
                  for k in range(npts)] + [b]
    fg = [f(x) for x in grid]
    wg = [w(x, fx) for x, fx in zip(grid, fg)]
    idx = [int(round(k * (len(grid) - 1) / (N - 1))) for k in range(N)]
    p = q = None
    for _ in range(iters):
        ref = [grid[i] for i in idx]
        fr = [fg[i] for i in idx]
        wr = [wg[i] for i in idx]
        qv = [mp.mpf(1)] * N
        E = mp.mpf(0)
        for _inner in range(40):
            A = mp.matrix(N, N)
            rhs = mp.matrix(N, 1)
            for i, x in enumerate(ref):
                for j in range(n + 1):
                    A[i, j] = x ** j
                for k in range(1, m + 1):
                    A[i, n + k] = -fr[i] * x ** k
                A[i, N - 1] = -(-1) ** i * qv[i] / wr[i]
                rhs[i] = fr[i]
            sol = mp.lu_solve(A, rhs)
            p = [sol[j] for j in range(n + 1)]
            q = [mp.mpf(1)] + [sol[n + k] for k in range(1, m + 1)]
            Enew = sol[N - 1]
            qv = [mp.polyval(q[::-1], x) for x in ref]
            done = abs(Enew - E) <= abs(Enew) * mp.mpf(10) ** -15
            E = Enew
            if m == 0 or done:
                break
        err = [(fx - mp.polyval(p[::-1], x) / mp.polyval(q[::-1], x)) * wx
               for x, fx, wx in zip(grid, fg, wg)]
        idx = _alternants(err)
        while len(idx) > N:
            if abs(err[idx[0]]) < abs(err[idx[-1]]):
                idx.pop(0)
            else:
                idx.pop()
        if len(idx) < N:
            raise RuntimeError("too few alternations")
        emax = max(abs(e) for e in err)
        if emax - abs(E) <= mp.mpf(10) ** -4 * emax:
            break
    return p, q


def split(c):
    hi = float(c)
    return hi, float(c - mp.mpf(hi))


def stored(c, pairs=True):
    """The coefficient as the body sees it: the pair hi + lo (pairs True), hi
    alone (False), or hi + lo rounded to the 64-bit significand of the x87
    extended format ("ext")."""
    hi, lo = split(c)
    v = mp.mpf(hi) + (mp.mpf(lo) if pairs else 0)
    if pairs == "ext":
        with mp.workprec(64):
            v = +v
    return v


def measure(f, a, b, p, q, w=None, npts=20000, pairs=True):
    """Max weighted error of the stored rational, and min of q on [a, b]."""
    a, b = mp.mpf(a), mp.mpf(b)
    if w is None:
        w = lambda x, fx: 1 / abs(fx)
    ps = [stored(c, pairs) for c in p][::-1]
    qs = [stored(c, pairs) for c in q][::-1]
    emax, qmin = mp.mpf(0), None
    # A uniform grid, and points crowding both ends.
    xs = [a + (b - a) * k / npts for k in range(npts + 1)]
    xs += [e + s * (b - a) * mp.mpf(10) ** -k for k in range(2, 40)
           for e, s in ((a, 1), (b, -1))]
    for x in xs:
        fx = f(x)
        qx = mp.polyval(qs, x)
        qmin = qx if qmin is None else min(qmin, qx)
        emax = max(emax, abs((fx - mp.polyval(ps, x) / qx) * w(x, fx)))
    return emax, qmin


def emit(name, what, coeffs, order, pairs=True):
    """C++ text of one table; `order` 'desc' lists from the highest power."""
    cs = coeffs[::-1] if order == "desc" else coeffs
    lines = ["// " + ln for ln in textwrap.wrap(what, 76)]
    if pairs:
        lines.append(f"constexpr double {name}[{len(cs)}][2] = {{")
        for c in cs:
            hi, lo = split(c)
            lines.append(f"    {{{hi!r}, {lo!r}}},")
    else:
        lines.append(f"constexpr double {name}[{len(cs)}] = {{")
        for c in cs:
            lines.append(f"    {float(c)!r},")
    lines.append("};")
    return "\n".join(lines)


def table(name, f, a, b, n, m, var, desc, order="desc", w=None, wdesc="relative",
          npts=2000, pairs=True):
    p, q = remez(f, a, b, n, m, w=w, npts=npts)
    emax, qmin = measure(f, a, b, p, q, w=w, pairs=pairs)
    if qmin <= 0:
        raise RuntimeError(f"{name}: denominator not positive on the interval")
    if m:
        # No pole on or next to the interval, and no pole paired with a zero
        # (a Froissart doublet, which serves the grid and fails between its
        # points). Poles along a branch cut beyond an end are expected.
        a_, b_ = mp.mpf(a), mp.mpf(b)
        zeros = mp.polyroots(p[::-1], maxsteps=400, extraprec=400)
        for r in mp.polyroots(q[::-1], maxsteps=400, extraprec=400):
            near = mp.mpc(min(max(mp.re(r), a_), b_), 0)
            if abs(r - near) < (b_ - a_) / 1000 or (
                    abs(r - near) < (b_ - a_) / 20 and
                    any(abs(r - z) < (b_ - a_) * mp.mpf(10) ** -8 for z in zeros)):
                raise RuntimeError(f"{name}: pole {r} near the interval or a zero")
    kind = f"polynomial of degree {n}" if m == 0 else f"rational of degree {n}/{m}"
    prov = (f"{desc}: minimax {kind} in {var} on [{mp.nstr(mp.mpf(a), 8)}, "
            f"{mp.nstr(mp.mpf(b), 8)}], fitted by tools/refdata/fit_s_first.py; "
            f"max {wdesc} error {mp.nstr(emax, 2)}"
            + {True: " with the coefficients as stored",
               False: " with the coefficients rounded to double",
               "ext": " with the pairs as stored rounded to the x87 extended"
                      " format"}[pairs]
            + (". Coefficients from the constant term in u, which is the Horner "
               "order in 1/u" if order == "asc" else
               ". Coefficients from the highest power"))
    out = [emit(name if m == 0 else name + "_P", prov + ("." if m == 0 else ". Numerator:"),
                p, order, pairs)]
    if m:
        out.append(emit(name + "_Q", "Denominator:", q, order, pairs))
    return "\n".join(out)


# ---------------------------------------------------------------------------
# The functions fitted. All are evaluated with extra working precision where
# the definition cancels.

EULER = mp.euler
SQRTPI = mp.sqrt(mp.pi)


def y0():
    with mp.workdps(140):
        return mp.findroot(mp.ei, mp.mpf("0.3725074107813666"))


def f_gamma(t):
    return mp.gamma(1 + (t + 1) / 2)


def f_lg1(z):
    if z == 0:
        return -EULER
    with mp.workdps(130):
        return mp.loggamma(1 + z) / z


def f_lg2(z):
    if z == 0:
        return 1 - EULER
    with mp.workdps(130):
        return mp.loggamma(2 + z) / z


def f_lg4(z):
    if z == 0:
        return mp.digamma(4)
    with mp.workdps(130):
        return (mp.loggamma(4 + z) - mp.log(6)) / z


def f_erf(v):
    # S(v) of erf(x) = (2/sqrt(pi)) (x - x^3/3 + x^5 S(x^2)), v = x^2; the
    # cancellation of 1 - v/3 against the series wants v^2 more digits.
    if v == 0:
        return mp.mpf(1) / 10
    with mp.workdps(130):
        x = mp.sqrt(v)
        return (mp.erf(x) * mp.sqrt(mp.pi) / (2 * x) - 1 + v / 3) / v ** 2


def w_erf(v, s):
    # Error of erf relative to itself: v^2 dS / (1 - v/3 + v^2 S).
    return max(v, mp.mpf(10) ** -8) ** 2 / (1 - v / 3 + v * v * s)


def f_erfcm(a):
    with mp.workdps(80):
        return mp.exp(a * a) * mp.erfc(a)


def f_log1p(w):
    if w == 0:
        return mp.mpf(2) / 3
    with mp.workdps(120):
        s = mp.sqrt(w)
        return (2 * mp.atanh(s) - 2 * s) / s ** 3


def w_log1p(w, t):
    # Error of ln(1+f) = 2s + s^3 T relative to itself: w dT / (2 + w T).
    return max(w, mp.mpf(10) ** -8) / (2 + w * t)


def f_exp(r):
    if r == 0:
        return mp.mpf(1) / 6
    with mp.workdps(120):
        return (mp.exp(r) - 1 - r - r * r / 2) / r ** 3


def w_exp(r, p):
    # Error of exp(r) = 1 + r + r^2/2 + r^3 P relative to itself.
    return max(abs(r) ** 3, mp.mpf(10) ** -12) / mp.exp(r)


def f_e1a(x):
    if x == 0:
        return -EULER
    return mp.e1(x) + mp.log(x)


def w_e1a(x, fx):
    if x == 0:
        return mp.mpf(1) / 50
    return 1 / min(mp.e1(x), 50)


def f_e1b(t):
    return mp.e1((t + 3) / 2)


def f_e1c(t):
    return mp.e1(t + 3)


def f_e1d(u):
    if u == 0:
        return mp.mpf(1)
    x = 1 / u
    with mp.workdps(80):
        return x * mp.exp(x) * mp.e1(x)


def f_eia(y):
    with mp.workdps(140):
        r = y0()
        if y == 0:
            return -(EULER + mp.log(r)) / r
        return (mp.ei(y) - mp.log(y / r)) / (y - r)


def f_eif(u):
    if u == 0:
        return mp.mpf(1)
    y = 1 / u
    with mp.workdps(80):
        return y * mp.exp(-y) * mp.ei(y)


def run(name):
    one = mp.mpf(1)
    if name == "gamma":
        return table("kGammaT", f_gamma, -1, 1, 24, 0, "t = 2G-1",
                     "Gamma(1+G), G = (t+1)/2", pairs="ext")
    if name == "lgamma":
        return "\n\n".join([
            table("kLgamR1", f_lg1, mp.mpf("-0.3203125"), 0.5, 7, 7, "z",
                  "ln Gamma(1+z) / z", pairs="ext"),
            table("kLgamR2", f_lg2, -0.5, 2, 8, 8, "w", "ln Gamma(2+w) / w",
                  pairs="ext"),
            table("kLgamR4", f_lg4, 0, 8, 8, 8, "z", "(ln Gamma(4+z) - ln 6) / z",
                  pairs="ext"),
        ])
    if name == "erf":
        return table("kErfS", f_erf, 0, mp.mpf("0.46875") ** 2, 3, 3, "v = x^2",
                     "S(v) of erf(x) = (2/sqrt(pi)) (x - x^3/3 + x^5 S(x^2))",
                     w=w_erf, wdesc="erf-relative", pairs=False)
    if name == "erfc":
        # The last range's rational is gen_s15adz.py's.
        return table("kErfcM", f_erfcm, mp.mpf("0.46875"), 4, 8, 8, "A",
                     "exp(A^2) erfc(A)", pairs="ext")
    if name == "log1p":
        c = 3 - 2 * mp.sqrt(2)
        return table("kLog1pT", f_log1p, 0, (c * mp.mpf("1.0001")) ** 2, 7, 0,
                     "w = s^2", "T(w) = (2 atanh(s) - 2s) / s^3", w=w_log1p,
                     wdesc="ln(1+f)-relative", pairs=False)
    if name == "ln":
        c = 3 - 2 * mp.sqrt(2)
        return table("kLnT", f_log1p, 0, (c * mp.mpf("1.0001")) ** 2, 8, 0,
                     "w = s^2", "T(w) = (2 atanh(s) - 2s) / s^3", w=w_log1p,
                     wdesc="ln(1+f)-relative", pairs="ext")
    if name == "exp":
        return table("kExpP", f_exp, mp.mpf("-0.35"), mp.mpf("0.35"), 9, 0, "r",
                     "P(r) = (exp(r) - 1 - r - r^2/2) / r^3", w=w_exp,
                     wdesc="exp-relative", pairs=False)
    if name == "e1":
        return "\n\n".join([
            table("kE1A", f_e1a, 0, 1, 13, 0, "x", "E1(x) + ln x", w=w_e1a,
                  wdesc="E1-relative", pairs="ext"),
            table("kE1B", f_e1b, -1, 1, 24, 0, "t = 2x-3", "E1(x)", pairs="ext"),
            table("kE1C", f_e1c, -1, 1, 25, 0, "t = x-3", "E1(x)", pairs="ext"),
            table("kE1D", f_e1d, 0, one / 4, 9, 9, "u = 1/x",
                  "x exp(x) E1(x)", order="asc", pairs="ext"),
        ])
    if name == "ei":
        return "\n\n".join([
            table("kEiA", lambda s: f_eia(3 * (s + 2) / 2), -2, 2, 9, 9,
                  "s = 2y/3 - 2", "R(y) = (Ei(y) - ln(y/y0)) / (y - y0)",
                  pairs="ext"),
            table("kEiB", f_eif, one / 12, one / 6, 9, 9, "u = 1/y",
                  "y exp(-y) Ei(y)", order="asc", pairs="ext"),
            table("kEiC", f_eif, one / 24, one / 12, 9, 9, "u = 1/y",
                  "y exp(-y) Ei(y)", order="asc", pairs="ext"),
            table("kEiD", f_eif, 1 / mp.mpf("708.4"), one / 24, 10, 10, "u = 1/y",
                  "y exp(-y) Ei(y)", order="asc"),
        ])
    raise SystemExit(f"unknown table {name}")


ALL = ["gamma", "lgamma", "erf", "erfc", "exp", "log1p", "ln", "e1", "ei"]

if __name__ == "__main__":
    for nm in sys.argv[1:] or ALL:
        print(f"// ===== {nm}")
        print(run(nm))
        print()
