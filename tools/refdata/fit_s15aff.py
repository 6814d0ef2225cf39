#!/usr/bin/python3
"""Derives the polynomials of Dawson's integral, base/source/s/s15affn.cpp.

    fit_s15aff.py            print the tables
    fit_s15aff.py --write    replace them in the body source

F(x) = exp(-x^2) int_0^x exp(t^2) dt = sqrt(pi)/2 exp(-x^2) erfi(x), from
mpmath at 60 digits. The pieces, for a = |x|:
  a < 0.5          F = x + x v Q(v), v = x^2; Q(v) = (F/x - 1)/v, fitted with
                   the error weighted as it enters F;
  0.5 <= a < 4     seven pieces of width 1/2, each a polynomial in a - centre;
  4 <= a           F = (1/2 + u R(u)) / a, u = 1/a^2, R(u) = (aF - 1/2)/u,
                   in two pieces u <= 1/64 and 1/64 < u <= 1/16, the error
                   weighted as it enters aF.
"""

import os
import sys

import mpmath as mp

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import erffit  # noqa: E402

SCRIPT = "tools/refdata/fit_s15aff.py"
BODY = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..",
                    "base", "source", "s", "s15affn.cpp")


def dawson(x):
    with mp.workdps(80):
        return mp.sqrt(mp.pi) / 2 * mp.exp(-x * x) * mp.erfi(x)


def q_small(v):
    if v == 0:
        return mp.mpf(-2) / 3
    x = mp.sqrt(v)
    return (dawson(x) / x - 1) / v


def w_small(v, q):
    # error of Q as it enters F/x = 1 + v Q
    return v / abs(1 + v * q)


def r_asym(u):
    if u == 0:
        return mp.mpf(1) / 4
    a = 1 / mp.sqrt(u)
    return (a * dawson(a) - mp.mpf(1) / 2) / u


def w_asym(u, r):
    return u / abs(mp.mpf(1) / 2 + u * r)


def main():
    blocks = []
    p = erffit.fit(q_small, 0, mp.mpf(1) / 4, c=0, weight=w_small, pair=False)
    blocks.append(("s15aff-small", "\n".join([
        erffit.wrap_comment(erffit.provenance(
            "Q(v) = (F(x)/x - 1)/v, v = x^2", p, "v", SCRIPT, "F-relative")),
        "inline double small_q(double v) {",
        erffit.horner('v', p, const=False),
        "}"])))

    lines = ["// F(a) on [k/2, (k+1)/2), k = 1..7, as polynomials in t = a - (2k+1)/4."]
    body = ["inline double middle(int k, double a) {", "  switch (k) {"]
    for k in range(1, 8):
        lo, hi = mp.mpf(k) / 2, mp.mpf(k + 1) / 2
        c = (lo + hi) / 2
        p = erffit.fit(dawson, lo, hi, c=c)
        lines.append(erffit.wrap_comment(erffit.provenance(
            f"k = {k}", p, f"t = a - {mp.nstr(c, 6)}", SCRIPT)))
        body.append(f"    case {k}: {{")
        body.append(f"      const double t = a - {float(c)!r};")
        body.append(erffit.horner('t', p, indent="      "))
        body.append("    }")
    body += ["    default:", "      return 0.0;", "  }", "}"]
    blocks.append(("s15aff-middle", "\n".join(lines + body)))

    out = []
    for name, lo, hi in (("asym_far", 0, mp.mpf(1) / 64),
                         ("asym_near", mp.mpf(1) / 64, mp.mpf(1) / 16)):
        c = lo if lo == 0 else (lo + hi) / 2
        p = erffit.fit(r_asym, lo, hi, c=c, weight=w_asym, pair=False)
        var = "u" if lo == 0 else f"t = u - {mp.nstr(c, 8)}"
        out.append(erffit.wrap_comment(erffit.provenance(
            f"R(u) = (aF(a) - 1/2)/u, u = 1/a^2", p, var, SCRIPT, "aF-relative")))
        out.append(f"inline double {name}(double u) {{")
        if lo == 0:
            out.append(erffit.horner('u', p, const=False))
        else:
            out.append(f"  const double t = u - {float(c)!r};")
            out.append(erffit.horner('t', p, const=False))
        out.append("}")
    blocks.append(("s15aff-asym", "\n".join(out)))
    erffit.output(blocks, BODY)


if __name__ == "__main__":
    main()
