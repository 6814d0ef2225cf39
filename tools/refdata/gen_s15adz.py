#!/usr/bin/python3
"""The tables of the erfc kernel (base/source/s/s15adzn.cpp) that replace a
computed exponential: run with /usr/bin/python3 (needs mpmath).

exp(-A^2) is split as exp(-Y^2) exp(-D), Y = k/16 = trunc(16 A)/16 and
D = (A - Y)(A + Y) in [0, 3.33) for A < 26.6. The kernel takes
    kExpY2[k] = exp(-k^2/256),   k = 0 .. 425 (16 A < 425.6),
    kExpD[j]  = exp(-j/64),      j = 0 .. 213 (64 D < 212.8, rounded),
and exp(-r), r = D - j/64, |r| <= 1/128 (+ the rounding of D in double), from
    exp(-r) = 1 - r + r^2 G(r),
G a minimax polynomial fitted here (Remez exchange of fit_s_first.py) with the
error weighted to that of exp(-r) itself.

It also fits the rational R of the last range, A > 4, of degree 6/6 in
u = 1/A^2 with its coefficients as pairs of doubles rounded to the extended
format (fit_s_first.py's function and weight, block "tail rational"): with
plain double coefficients the rounding alone left 1e-18 of erfc, relative.

The table entries are exp() at 40 digits rounded once to the 64-bit
significand of the x87 extended format and written as exact hexadecimal long
double literals, so that the compiler reads them without a further rounding:
each is within 2^-65 of the exponential, relative.

    gen_s15adz.py            print the C++ text
    gen_s15adz.py --write    replace the GENERATED blocks of s15adzn.cpp
"""

import os
import re
import sys

import mpmath as mp

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import fit_s_first  # noqa: E402
from fit_s_first import remez  # noqa: E402

mp.mp.dps = 40

NY = 426          # k = trunc(16 A) for A < 26.6
ND = 214          # j = round(64 D) for D < 3.325
RMAX = mp.mpf(1) / 128 + mp.mpf(2) ** -40  # |r|, with slack for D rounded in double
DEG_G = 4

SRC = os.path.join(os.path.dirname(os.path.abspath(__file__)),
                   "..", "..", "base", "source", "s", "s15adzn.cpp")


def ld_hex(v):
    """v rounded to a 64-bit significand, as an exact hexadecimal literal."""
    v = mp.mpf(v)
    if v == 0:
        return "0.0L"
    with mp.workprec(64):
        r = +v
    m, e = mp.frexp(r)               # r = m 2^e, 0.5 <= m < 1
    mant = int(mp.ldexp(m, 64))      # 64-bit integer significand
    return f"0x{mant:016x}p{int(e) - 64}L"


def wrap(text, width=79):
    """A '// ...' comment wrapped to the width."""
    lines, cur = [], "//"
    for w in text[3:].split():
        if len(cur) + 1 + len(w) > width:
            lines.append(cur)
            cur = "//"
        cur += " " + w
    lines.append(cur)
    return lines


def table_text(name, vals, what):
    lines = wrap(f"// {what}")
    lines.append(f"constexpr long double {name}[{len(vals)}] = {{")
    row = []
    for v in vals:
        row.append(ld_hex(v) + ",")
        if len(row) == 3:
            lines.append("    " + " ".join(row))
            row = []
    if row:
        lines.append("    " + " ".join(row))
    lines.append("};")
    return "\n".join(lines)


def f_g(r):
    # G(r) = (exp(-r) - 1 + r) / r^2.
    if r == 0:
        return mp.mpf(1) / 2
    with mp.workdps(100):
        return (mp.exp(-r) - 1 + r) / r ** 2


def w_g(r, g):
    # Error of exp(-r) = 1 - r + r^2 G relative to itself.
    return max(r * r, mp.mpf(10) ** -30) / mp.exp(-r)


def fit_g():
    p, _ = remez(f_g, -RMAX, RMAX, DEG_G, 0, w=w_g, npts=400)
    cs = [float(c) for c in p]
    # The error as the kernel sees it: coefficients rounded to double.
    emax = mp.mpf(0)
    n = 4000
    for i in range(n + 1):
        r = -RMAX + 2 * RMAX * i / n
        g = mp.polyval([mp.mpf(c) for c in cs[::-1]], r)
        with mp.workdps(60):
            e = abs((1 - r + r * r * g) / mp.exp(-r) - 1)
        emax = max(emax, e)
    return cs, emax


def main():
    ey = [mp.exp(-mp.mpf(k) ** 2 / 256) for k in range(NY)]
    ed = [mp.exp(-mp.mpf(j) / 64) for j in range(ND)]
    cs, emax = fit_g()
    out = []
    out.append(table_text(
        "kExpY2", ey,
        f"exp(-k^2/256), k = 0 .. {NY - 1}: mpmath at 40 digits rounded to the 64-bit "
        "significand, within 2^-65 relative (tools/refdata/gen_s15adz.py)."))
    out.append(table_text(
        "kExpD", ed,
        f"exp(-j/64), j = 0 .. {ND - 1}: mpmath at 40 digits rounded to the 64-bit "
        "significand, within 2^-65 relative (tools/refdata/gen_s15adz.py)."))
    body = [f"// G(r) of exp(-r) = 1 - r + r^2 G(r): minimax polynomial of degree {DEG_G} in r "
            f"on [-{mp.nstr(RMAX, 8)}, {mp.nstr(RMAX, 8)}], Remez exchange in "
            "tools/refdata/gen_s15adz.py; max exp-relative error "
            f"{mp.nstr(emax, 2)} with the coefficients rounded to double. "
            "Coefficients from the highest power."]
    lines = wrap(body[0])
    lines.append(f"constexpr double kExpG[{len(cs)}] = {{")
    for c in cs[::-1]:
        lines.append(f"    {c!r},")
    lines.append("};")
    out.append("\n".join(lines))
    text = "\n\n".join(out)
    tail = fit_s_first.table(
        "kErfcL", fit_s_first.f_erfcl, 0, mp.mpf(1) / 16, 6, 6, "u = 1/A^2",
        "R(u) = (1/sqrt(pi) - A exp(A^2) erfc(A)) / u", w=fit_s_first.w_erfcl,
        wdesc="erfc-relative", pairs="ext")
    tail = tail.replace("fitted by tools/refdata/fit_s_first.py; max",
                        "fitted by tools/refdata/gen_s15adz.py\n// (Remez exchange of fit_s_first.py); max", 1)
    blocks = [("exp tables", text), ("tail rational", tail)]
    if "--write" in sys.argv[1:]:
        with open(SRC, encoding="utf-8") as f:
            src = f.read()
        for tag, body in blocks:
            pat = re.compile(r"(// BEGIN GENERATED " + tag + r"\n)(.*?)(// END GENERATED " + tag + ")", re.S)
            if not pat.search(src):
                raise SystemExit(f"s15adzn.cpp: no GENERATED block {tag}")
            src = pat.sub(lambda m: m.group(1) + body + "\n" + m.group(3), src, count=1)
        with open(SRC, "w", encoding="utf-8") as f:
            f.write(src)
    else:
        for tag, body in blocks:
            print(f"// BEGIN GENERATED {tag}\n{body}\n// END GENERATED {tag}")


if __name__ == "__main__":
    main()
