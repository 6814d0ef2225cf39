"""Polynomial fitting and code emission shared by the fit_s15aff.py,
fit_s15agf.py, fit_s20acf.py and fit_s15ddf.py scripts (/usr/bin/python3,
needs mpmath).

A piece is a function g on an interval [a, b] of its reduced variable v. It is
interpolated at the Chebyshev points of [a, b] at 60 digits, and the
interpolant is rewritten as an ordinary polynomial in t = v - c, where c is
the piece's centre of expansion (the middle of the interval for a shifted
piece, 0 for a series in v itself). The degree is the least that brings the
relative error of the interpolant below 2^-58. The constant term
is kept as a pair hi + lo of doubles and added last, so that the result is
rounded essentially once; the other coefficients are rounded to double. The
error quoted with each table is measured afresh, on 2000 points, with the
coefficients exactly as stored.

Tables are written into the body sources between the lines
    // BEGIN GENERATED <tag> ... // END GENERATED <tag>
by `--write`; without it the scripts print the text.
"""

import re
import sys

import mpmath as mp

mp.mp.dps = 60
TOL = mp.mpf(2) ** -58  # relative error target of a fit, well below rounding


def cheb_nodes(a, b, n):
    a, b = mp.mpf(a), mp.mpf(b)
    return [(a + b) / 2 + (b - a) / 2 * mp.cos(mp.pi * (k + mp.mpf(1) / 2) / (n + 1))
            for k in range(n + 1)]


def interpolate(g, a, b, n, c):
    """Coefficients, ascending, of the degree-n interpolant of g at the
    Chebyshev points of [a, b], as a polynomial in t = v - c."""
    a, b, c = mp.mpf(a), mp.mpf(b), mp.mpf(c)
    mid, half = (a + b) / 2, (b - a) / 2
    nodes = cheb_nodes(a, b, n)
    # Solve in the well-scaled variable s = (v - mid) / half ...
    V = mp.matrix([[((v - mid) / half) ** j for j in range(n + 1)] for v in nodes])
    y = mp.matrix([g(v) for v in nodes])
    cs = mp.lu_solve(V, y)
    cs = [cs[j] for j in range(n + 1)]
    # ... then substitute s = (t + c - mid) / half = alpha t + beta.
    alpha, beta = 1 / half, (c - mid) / half
    out = [mp.mpf(0)] * (n + 1)
    power = [mp.mpf(1)]  # coefficients of (alpha t + beta)^j in t
    for j in range(n + 1):
        for k, pk in enumerate(power):
            out[k] += cs[j] * pk
        nxt = [mp.mpf(0)] * (len(power) + 1)
        for k, pk in enumerate(power):
            nxt[k] += pk * beta
            nxt[k + 1] += pk * alpha
        power = nxt
    return out


def stored(coeffs, pair=True):
    """The coefficients as the body holds them: c0 as hi + lo (or as one
    double if not `pair`), the rest as doubles. Returns (list of exact values,
    hi, lo, doubles)."""
    hi = float(coeffs[0])
    lo = float(coeffs[0] - mp.mpf(hi)) if pair else 0.0
    rest = [float(x) for x in coeffs[1:]]
    exact = [mp.mpf(hi) + mp.mpf(lo)] + [mp.mpf(x) for x in rest]
    return exact, hi, lo, rest


def max_rel_error(g, a, b, c, exact, npts=2000, weight=None):
    """Max of |g - p| / |g| (or * weight(v, g)) on a uniform grid of [a, b]."""
    a, b, c = mp.mpf(a), mp.mpf(b), mp.mpf(c)
    rev = exact[::-1]
    emax = mp.mpf(0)
    for k in range(npts + 1):
        v = a + (b - a) * k / npts
        gv = g(v)
        e = abs(gv - mp.polyval(rev, v - c))
        e = e * weight(v, gv) if weight else e / abs(gv)
        emax = max(emax, e)
    return emax


def fit(g, a, b, c=None, tol=TOL, nmin=3, nmax=40, weight=None, pair=True):
    """Least degree fit of g on [a, b] in t = v - c (c defaults to the
    middle). Returns a dict with the stored coefficients and the error."""
    if c is None:
        c = (mp.mpf(a) + mp.mpf(b)) / 2
    for n in range(nmin, nmax + 1):
        cs = interpolate(g, a, b, n, c)
        # The degree is chosen by the error of the interpolant itself (a quick
        # look on a coarse grid first); the error quoted is that of the
        # coefficients as stored, which adds their rounding.
        if max_rel_error(g, a, b, c, cs, npts=97, weight=weight) > tol:
            continue
        if max_rel_error(g, a, b, c, cs, weight=weight) > tol * 2:
            continue
        exact, hi, lo, rest = stored(cs, pair)
        err = max_rel_error(g, a, b, c, exact, weight=weight)
        return {"n": n, "a": mp.mpf(a), "b": mp.mpf(b), "c": mp.mpf(c),
                "hi": hi, "lo": lo, "rest": rest, "err": err}
    raise RuntimeError(f"no fit of degree <= {nmax} on [{a}, {b}]")


def horner(t, piece, const=True, indent="  ", var="p", tail=False):
    """C++ statements evaluating the piece in straight-line Horner form, one
    coefficient a line, ending in a return. With `const` the constant pair is
    added last: hi + (lo + t*p); otherwise (a fit made without the pair) the
    plain form c0 + t*p. With `tail` only lo + t*p is returned, for a caller
    that adds hi itself."""
    cs = piece["rest"] if const else [piece["hi"]] + piece["rest"]
    out = [f"{indent}double {var} = {cs[-1]!r};"]
    for co in reversed(cs[:-1]):
        out.append(f"{indent}{var} = {co!r} + {t} * {var};")
    if tail:
        out.append(f"{indent}return {piece['lo']!r} + {t} * {var};")
    elif const:
        out.append(f"{indent}return {piece['hi']!r} + ({piece['lo']!r} + {t} * {var});")
    else:
        out.append(f"{indent}return {var};")
    return "\n".join(out)


def provenance(what, piece, var, script, weight_text="relative"):
    return (f"// {what}: degree {piece['n']} in {var} on "
            f"[{mp.nstr(piece['a'], 10)}, {mp.nstr(piece['b'], 10)}], "
            f"Chebyshev interpolation at 60 digits ({script}); max {weight_text} "
            f"error as stored {mp.nstr(piece['err'], 2)}.")


def wrap_comment(text, width=79):
    """Wraps a '// ...' comment line."""
    words = text[3:].split()
    lines, cur = [], "//"
    for w in words:
        if len(cur) + 1 + len(w) > width:
            lines.append(cur)
            cur = "//"
        cur += " " + w
    lines.append(cur)
    return "\n".join(lines)


def replace_block(path, tag, text):
    """Replaces the lines between // BEGIN GENERATED <tag> and
    // END GENERATED <tag> in `path` by `text`."""
    with open(path, encoding="utf-8") as f:
        src = f.read()
    pat = re.compile(r"(// BEGIN GENERATED " + re.escape(tag) + r"[^\n]*\n)(.*?)[ \t\n]*(// END GENERATED "
                     + re.escape(tag) + r")", re.S)
    if not pat.search(src):
        raise SystemExit(f"{path}: no block {tag}")
    src = pat.sub(lambda m: m.group(1) + text.rstrip("\n") + "\n" + m.group(3), src, count=1)
    with open(path, "w", encoding="utf-8") as f:
        f.write(src)


def output(blocks, path=None):
    """blocks: list of (tag, text), or of (path, tag, text) when the tables go
    to several sources. With --write replace them in their sources, otherwise
    print them."""
    blocks = [b if len(b) == 3 else (path,) + tuple(b) for b in blocks]
    if "--write" in sys.argv[1:]:
        for where, tag, text in blocks:
            replace_block(where, tag, text)
    else:
        for where, tag, text in blocks:
            print(f"// BEGIN GENERATED {tag}")
            print(text)
            print(f"// END GENERATED {tag}")


# ---------------------------------------------------------------------------
# Reference functions shared with gen_erf.py


def fresnel_fg(x):
    """The auxiliary functions f, g of the Fresnel integrals at x > 0:
    S = 1/2 - f cos(pi x^2/2) - g sin(pi x^2/2),
    C = 1/2 + f sin(pi x^2/2) - g cos(pi x^2/2)."""
    x = mp.mpf(x)
    if x >= 20:
        # f = 1/(pi x) sum (-1)^k (4k-1)!!/(pi x^2)^(2k),
        # g = 1/(pi^2 x^3) sum (-1)^k (4k+1)!!/(pi x^2)^(2k); at x >= 20 the
        # terms fall below 1e-80 long before they would grow again.
        w = 1 / (mp.pi * x * x) ** 2
        f = g = tf = tg = mp.mpf(1)
        k = 0
        while True:
            k += 1
            tf *= -(4 * k - 3) * (4 * k - 1) * w
            tg *= -(4 * k - 1) * (4 * k + 1) * w
            f += tf
            g += tg
            if abs(tf) + abs(tg) < mp.mpf(10) ** (-mp.mp.dps - 10):
                break
        return f / (mp.pi * x), g / (mp.pi ** 2 * x ** 3)
    with mp.workdps(mp.mp.dps + 40):
        s, c = mp.fresnels(x), mp.fresnelc(x)
        ph = mp.pi * x * x / 2
        half = mp.mpf(1) / 2
        f = (half - s) * mp.cos(ph) - (half - c) * mp.sin(ph)
        g = (half - c) * mp.cos(ph) + (half - s) * mp.sin(ph)
        return +f, +g
