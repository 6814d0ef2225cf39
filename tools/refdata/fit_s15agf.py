#!/usr/bin/python3
"""Derives the polynomials of erfcx(x) = exp(x^2) erfc(x),
base/source/s/s15agzn.cpp.

    fit_s15agf.py            print the tables
    fit_s15agf.py --write    replace them in the body source

erfcx from mpmath at 60 digits (with 20 more where exp(x^2) erfc(x) cancels).
The pieces:
  |x| <= 0.46875       one polynomial in x;
  0.46875 < x <= 4     five polynomials in x - centre, on (0.46875, 1], [1, 1.5],
                       [1.5, 2], [2, 3], [3, 4];
  4 < x                x erfcx(x) = 1/sqrt(pi) + u R(u), u = 1/x^2, with the
                       error weighted as it enters x erfcx(x).
Negative x below -0.46875 is reached by erfcx(x) = 2 exp(x^2) - erfcx(-x).
"""

import os
import sys

import mpmath as mp

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import erffit  # noqa: E402

SCRIPT = "tools/refdata/fit_s15agf.py"
BODY = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..",
                    "base", "source", "s", "s15agzn.cpp")
CUTS = [mp.mpf("0.46875"), mp.mpf(1), mp.mpf("1.5"), mp.mpf(2), mp.mpf(3), mp.mpf(4)]


def erfcx(x):
    with mp.workdps(80):
        return mp.exp(x * x) * mp.erfc(x)


def r_asym(u):
    if u == 0:
        return -1 / (2 * mp.sqrt(mp.pi))
    x = 1 / mp.sqrt(u)
    return (x * erfcx(x) - 1 / mp.sqrt(mp.pi)) / u


def w_asym(u, r):
    return u / abs(1 / mp.sqrt(mp.pi) + u * r)


def main():
    blocks = []
    p = erffit.fit(erfcx, -CUTS[0], CUTS[0], c=0)
    blocks.append(("s15agf-small", "\n".join([
        erffit.wrap_comment(erffit.provenance("erfcx(x)", p, "x", SCRIPT)),
        "inline double small(double x) {",
        erffit.horner("x", p),
        "}"])))

    lines = ["// erfcx(x) on the pieces of (0.46875, 4], as polynomials in t = x - centre."]
    body = ["inline double middle(int k, double x) {", "  switch (k) {"]
    for k in range(5):
        lo, hi = CUTS[k], CUTS[k + 1]
        c = (lo + hi) / 2
        p = erffit.fit(erfcx, lo, hi, c=c)
        lines.append(erffit.wrap_comment(erffit.provenance(
            f"k = {k}", p, f"t = x - {mp.nstr(c, 8)}", SCRIPT)))
        body.append(f"    case {k}: {{")
        body.append(f"      const double t = x - {float(c)!r};")
        body.append(erffit.horner("t", p, indent="      "))
        body.append("    }")
    body += ["    default:", "      return 0.0;", "  }", "}"]
    blocks.append(("s15agf-middle", "\n".join(lines + body)))

    p = erffit.fit(r_asym, 0, mp.mpf(1) / 16, c=0, weight=w_asym, pair=False)
    c0 = 1 / mp.sqrt(mp.pi)
    c0hi = float(c0)
    c0lo = float(c0 - mp.mpf(c0hi))
    blocks.append(("s15agf-asym", "\n".join([
        erffit.wrap_comment(erffit.provenance(
            "R(u) = (x erfcx(x) - 1/sqrt(pi))/u, u = 1/x^2", p, "u", SCRIPT,
            "x erfcx(x)-relative")),
        "// 1/sqrt(pi) as a pair of doubles, hi + lo.",
        f"constexpr double kRsqrtPiHi = {c0hi!r};",
        f"constexpr double kRsqrtPiLo = {c0lo!r};",
        "inline double asym_r(double u) {",
        erffit.horner("u", p, const=False),
        "}"])))
    erffit.output(blocks, BODY)


if __name__ == "__main__":
    main()
