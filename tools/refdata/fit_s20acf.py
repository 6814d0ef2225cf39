#!/usr/bin/python3
"""Derives the polynomials of the Fresnel integrals S(x) and C(x),
base/source/s/s20acfn.cpp, s20adfn.cpp and s20aczn.cpp.

    fit_s20acf.py            print the tables
    fit_s20acf.py --write    replace them in the body sources

S(x) = int_0^x sin(pi t^2/2) dt and C(x) = int_0^x cos(pi t^2/2) dt from
mpmath (fresnels, fresnelc) at 100 digits. The pieces, for a = |x|:
  a <= 1         S = a^3 Ps(v), C = a + a v Qc(v), v = a^4;
  1 < a <= 3     four polynomials each of S and C in a - centre, on intervals
                 of 1/2;
  3 < a          the auxiliary functions f, g (erffit.fresnel_fg):
                 f = (1 + v Pf(v)) / (pi a), g = (1 + v Pg(v)) / (pi^2 a^3),
                 v = 1/a^4, with the errors weighted as they enter f and g.
"""

import os
import sys

import mpmath as mp

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import erffit  # noqa: E402

SCRIPT = "tools/refdata/fit_s20acf.py"
SRC = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..",
                   "base", "source", "s")


def fs(x):
    with mp.workdps(100):
        return mp.fresnels(x)


def fc(x):
    with mp.workdps(100):
        return mp.fresnelc(x)


def ps_small(v):
    if v == 0:
        return mp.pi / 6
    x = mp.root(v, 4)
    return fs(x) / x ** 3


def qc_small(v):
    if v == 0:
        return -mp.pi ** 2 / 40
    x = mp.root(v, 4)
    return (fc(x) / x - 1) / v


def w_qc(v, q):
    return v / abs(1 + v * q)


def pf_asym(v):
    if v == 0:
        return -3 / mp.pi ** 2
    x = 1 / mp.root(v, 4)
    f, _ = erffit.fresnel_fg(x)
    return (mp.pi * x * f - 1) / v


def pg_asym(v):
    if v == 0:
        return -15 / mp.pi ** 2
    x = 1 / mp.root(v, 4)
    _, g = erffit.fresnel_fg(x)
    return (mp.pi ** 2 * x ** 3 * g - 1) / v


def w_asym(v, p):
    return v / abs(1 + v * p)


def pieces(fn, name, what):
    lines = [f"// {what} on (1, 3] in four pieces of width 1/2, as polynomials in "
             "t = a - centre."]
    body = [f"inline double {name}(int k, double a) {{", "  switch (k) {"]
    for k in range(4):
        lo, hi = 1 + mp.mpf(k) / 2, 1 + mp.mpf(k + 1) / 2
        c = (lo + hi) / 2
        p = erffit.fit(fn, lo, hi, c=c)
        lines.append(erffit.wrap_comment(erffit.provenance(
            f"k = {k}", p, f"t = a - {mp.nstr(c, 6)}", SCRIPT)))
        body.append(f"    case {k}: {{")
        body.append(f"      const double t = a - {float(c)!r};")
        body.append(erffit.horner("t", p, indent="      "))
        body.append("    }")
    body += ["    default:", "      return 0.0;", "  }", "}"]
    return "\n".join(lines + body)


def main():
    mp.mp.dps = 60
    blocks = []
    p = erffit.fit(ps_small, 0, 1, c=0)
    blocks.append((os.path.join(SRC, "s20acfn.cpp"), "s20acf-small", "\n".join([
        erffit.wrap_comment(erffit.provenance("Ps(v) = S(a)/a^3, v = a^4", p, "v",
                                              SCRIPT)),
        "// The constant term's high part; small_tail(v) is Ps(v) less it.",
        f"constexpr double kSmallHi = {p['hi']!r};",
        "inline double small_tail(double v) {",
        erffit.horner("v", p, tail=True),
        "}"])))
    blocks.append((os.path.join(SRC, "s20acfn.cpp"), "s20acf-middle",
                   pieces(fs, "middle", "S(a)")))

    p = erffit.fit(qc_small, 0, 1, c=0, weight=w_qc, pair=False)
    blocks.append((os.path.join(SRC, "s20adfn.cpp"), "s20adf-small", "\n".join([
        erffit.wrap_comment(erffit.provenance("Qc(v) = (C(a)/a - 1)/v, v = a^4", p,
                                              "v", SCRIPT, "C-relative")),
        "inline double small_q(double v) {",
        erffit.horner("v", p, const=False),
        "}"])))
    blocks.append((os.path.join(SRC, "s20adfn.cpp"), "s20adf-middle",
                   pieces(fc, "middle", "C(a)")))

    out = []
    for name, fn, what in (("asym_f", pf_asym, "Pf(v) = (pi a f(a) - 1)/v"),
                           ("asym_g", pg_asym, "Pg(v) = (pi^2 a^3 g(a) - 1)/v")):
        p = erffit.fit(fn, 0, mp.mpf(1) / 81, c=0, weight=w_asym, pair=False)
        out.append(erffit.wrap_comment(erffit.provenance(
            what + ", v = 1/a^4", p, "v", SCRIPT,
            "f-relative" if name == "asym_f" else "g-relative")))
        out.append(f"inline double {name}(double v) {{")
        out.append(erffit.horner("v", p, const=False))
        out.append("}")
    blocks.append((os.path.join(SRC, "s20aczn.cpp"), "s20acz-asym", "\n".join(out)))
    erffit.output(blocks)


if __name__ == "__main__":
    main()
