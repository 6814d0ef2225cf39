#!/usr/bin/python3
"""Derives the constant table of the Faddeeva function body,
base/source/s/s15ddfn.cpp: the weights exp(-n^2/4), n = 0..15, of the series of
Zaghloul and Ali, from mpmath at 60 digits, each rounded to the nearest double.

    fit_s15ddf.py            print the table
    fit_s15ddf.py --write    replace it in the body source
"""

import os
import sys

import mpmath as mp

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import erffit  # noqa: E402

BODY = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..",
                    "base", "source", "s", "s15ddfn.cpp")


def main():
    mp.mp.dps = 60
    vals = [mp.exp(-mp.mpf(n) ** 2 / 4) for n in range(16)]
    err = max(abs(mp.mpf(float(v)) - v) / v for v in vals)
    lines = [erffit.wrap_comment(
        "// exp(-n^2/4) for n = 0..15, from mpmath at 60 digits "
        f"(tools/refdata/fit_s15ddf.py); max relative rounding error {mp.nstr(err, 2)}."),
        "constexpr double kGauss[16] = {"]
    lines += [f"    {float(v)!r}," for v in vals]
    lines.append("};")
    erffit.output([("s15ddf-gauss", "\n".join(lines))], BODY)


if __name__ == "__main__":
    main()
