#!/usr/bin/env python3
"""Routine generator.

Reads the declarations flimp/wrappers/<letter>/<routine>.toml and writes, into
an output directory of the build:

  src/<letter>/<routine>.cpp   the public wrapper, the trace layer and the
                               callback thunks of the routine
  include/zeb_<letter>_ib.h    C++ prototypes of bodies and trace layers
  include/zeb.h                the C header of the public routines
  fortran/zeb_library.f90      module zeb_library: interface blocks
  zeb.map                      linker version script: only public names
  docs/routines.md             the routine index
  outputs.txt                  (with --list) the files that would be written

Plain Python 3.11 standard library. The declaration format is described in
docs/adding-a-routine.md.
"""

import argparse
import os
import re
import sys
import tomllib

TYPES = {
    # name: (C++ scalar, C header scalar, Fortran type)
    "integer": ("int", "int", "integer"),
    "real": ("double", "double", "real(kind=wp)"),
    "complex": ("std::complex<double>", "zeb_dcomplex", "complex(kind=wp)"),
    "logical": ("int", "int", "logical"),
    "single": ("float", "float", "real(kind=sp)"),
    "character": (None, "char", "character(len=*)"),
    "routine": (None, None, None),
}
INTENTS = ("in", "out", "inout")
FRAMES = ("ifail", "pure", "none")
TRACES = ("log", "plain", "none")
ROUTINE_KEYS = {"name", "summary", "result", "result_len", "frame", "trace", "sorder",
                "arg", "fail", "callback", "body"}
ARG_KEYS = {"name", "type", "intent", "rank", "dims", "dimstat", "len",
            "interface", "summary", "from"}
# Arguments that the wrapper supplies itself, not the caller: the statement
# that fills the local of that name.
FROM = {"advisory_unit": "x04abft(0, {name});", "error_unit": "x04aaft(0, {name});"}
FAIL_KEYS = {"code", "number", "message"}


class DeclError(Exception):
    pass


# ---------------------------------------------------------------------------
# Declarations


class Arg:
    def __init__(self, d, where):
        unknown = set(d) - ARG_KEYS
        if unknown:
            raise DeclError(f"{where}: unknown keys {sorted(unknown)}")
        self.name = d["name"].upper()
        self.type = d["type"]
        if self.type not in TYPES:
            raise DeclError(f"{where}: argument {self.name}: type {self.type!r}")
        self.intent = d.get("intent", "in")
        if self.intent not in INTENTS:
            raise DeclError(f"{where}: argument {self.name}: intent {self.intent!r}")
        self.rank = int(d.get("rank", 0))
        self.dims = [str(x) for x in d.get("dims", [])]
        if self.rank and len(self.dims) != self.rank:
            raise DeclError(f"{where}: argument {self.name}: rank {self.rank} "
                            f"needs {self.rank} dims")
        self.dimstat = [int(x) for x in d.get("dimstat", [0] * self.rank)]
        if len(self.dimstat) != self.rank:
            raise DeclError(f"{where}: argument {self.name}: dimstat length")
        self.len = str(d.get("len", "*"))
        self.source = d.get("from")
        if self.source is not None and (self.source not in FROM or self.type != "integer"
                                        or self.rank):
            raise DeclError(f"{where}: argument {self.name}: from {self.source!r}")
        self.interface = None
        if self.type == "routine":
            itf = d.get("interface")
            if itf is None:
                raise DeclError(f"{where}: callback {self.name} needs an interface")
            self.interface = Interface(itf, f"{where}: callback {self.name}")

    @property
    def cname(self):
        return self.name.lower()

    @property
    def writes(self):
        return self.intent in ("out", "inout")


class Interface:
    """The public interface of a callback: its arguments and result."""

    def __init__(self, d, where):
        self.result = d.get("result")
        if self.result is not None and self.result not in TYPES:
            raise DeclError(f"{where}: result {self.result!r}")
        self.args = [Arg(a, where) for a in d.get("arg", [])]


class Fail:
    def __init__(self, d, where):
        unknown = set(d) - FAIL_KEYS
        if unknown:
            raise DeclError(f"{where}: unknown keys {sorted(unknown)}")
        self.code = int(d["code"])
        self.number = int(d["number"])
        self.message = d["message"]
        try:
            self.items, self.lines = format_shape(self.message)
        except ValueError as e:
            raise DeclError(f"{where}: message ({self.code},{self.number}): {e}")


class Routine:
    def __init__(self, d, path):
        where = path
        unknown = set(d) - ROUTINE_KEYS
        if unknown:
            raise DeclError(f"{where}: unknown keys {sorted(unknown)}")
        self.name = d["name"].lower()
        stem = os.path.splitext(os.path.basename(path))[0]
        if stem != self.name:
            raise DeclError(f"{where}: file name and routine name {self.name} differ")
        self.letter = self.name[0]
        self.summary = d.get("summary", "")
        self.result = d.get("result")
        if self.result is not None and self.result not in TYPES:
            raise DeclError(f"{where}: result {self.result!r}")
        # A character function: the caller passes the result's address and
        # length ahead of the arguments; the body fills a zeb::fchar.
        self.result_len = None
        if self.result == "character":
            self.result_len = int(d["result_len"])
            self.result = None
        self.frame = d.get("frame", "ifail")
        if self.frame not in FRAMES:
            raise DeclError(f"{where}: frame {self.frame!r}")
        self.trace = d.get("trace", "log")
        if self.trace not in TRACES:
            raise DeclError(f"{where}: trace {self.trace!r}")
        self.sorder = bool(d.get("sorder", False))
        self.args = [Arg(a, where) for a in d.get("arg", [])]
        names = [a.name for a in self.args]
        if len(set(names)) != len(names):
            raise DeclError(f"{where}: repeated argument name")
        self.fails = [Fail(f, where) for f in d.get("fail", [])]
        if self.frame != "ifail" and self.fails:
            raise DeclError(f"{where}: a routine without ERRBUF has no failure table")
        pairs = [(f.code, f.number) for f in self.fails]
        if len(set(pairs)) != len(pairs):
            raise DeclError(f"{where}: repeated pair of code and message number")
        self.body = d.get("body", self.name + "n")
        self.path = path

    @property
    def upper(self):
        return self.name.upper()

    @property
    def tname(self):
        return self.name + "t" if self.trace != "none" else self.body

    @property
    def maxitems(self):
        return max([f.items for f in self.fails], default=0)

    @property
    def maxlines(self):
        return max([f.lines for f in self.fails], default=1)


def format_shape(fmt):
    """Counts the data edit descriptors a message format consumes and the
    records it writes. Repeat counts multiply; reversion is not used by
    messages."""
    s = fmt.strip()
    if not (s.startswith("(") and s.endswith(")")):
        raise ValueError("format must be parenthesised")
    pos = 0

    def group(i):
        items = 0
        lines = 0
        while i < len(s):
            c = s[i]
            if c in "'\"":
                j = i + 1
                while True:
                    j = s.index(c, j)
                    if j + 1 < len(s) and s[j + 1] == c:
                        j += 2
                        continue
                    break
                i = j + 1
                continue
            if c in " ,:":
                i += 1
                continue
            if c == "/":
                lines += 1
                i += 1
                continue
            if c == ")":
                return items, lines, i + 1
            m = re.compile(r"(\d*)").match(s, i)
            rep = int(m.group(1)) if m.group(1) else 1
            i = m.end()
            while i < len(s) and s[i] == " ":
                i += 1
            if s[i] == "(":
                gi, gl, i = group(i + 1)
                items += rep * gi
                lines += rep * gl
                continue
            m = re.compile(r"([A-Za-z]+)([\d. ]*)").match(s, i)
            if not m:
                raise ValueError(f"cannot read descriptor at {s[i:i+8]!r}")
            d = m.group(1).upper()
            i = m.end()
            if d in ("P", "X", "BN", "BZ", "S", "SP", "SS", "T", "TL", "TR"):
                continue
            if d[0] == "P" and len(d) > 1:  # 1PE13.4 written without a comma
                d = d[1:]
            if d in ("I", "E", "F", "D", "G", "A", "L", "ES", "EN"):
                items += rep
                continue
            if d.startswith("E") and d[1:].isdigit():
                items += rep
                continue
            raise ValueError(f"unknown descriptor {d!r}")
        raise ValueError("unbalanced parentheses")

    items, slashes, end = group(1)
    if s[end:].strip():
        raise ValueError("text after the closing parenthesis")
    return items, slashes + 1


def load(root):
    routines = []
    wdir = os.path.join(root, "flimp", "wrappers")
    for letter in sorted(os.listdir(wdir)):
        ldir = os.path.join(wdir, letter)
        if not os.path.isdir(ldir):
            continue
        for fn in sorted(os.listdir(ldir)):
            if not fn.endswith(".toml"):
                continue
            path = os.path.join(ldir, fn)
            with open(path, "rb") as f:
                try:
                    d = tomllib.load(f)
                except tomllib.TOMLDecodeError as e:
                    raise DeclError(f"{path}: {e}")
            r = Routine(d, os.path.relpath(path, root))
            if r.letter != letter:
                raise DeclError(f"{path}: routine {r.name} filed under {letter}/")
            routines.append(r)
    return routines


# ---------------------------------------------------------------------------
# C++ types of the three layers


def body_param(a, routine):
    """The C++ parameter of argument `a` in a body or trace layer."""
    n = a.cname
    if a.type == "routine":
        return f"{fn_type(routine, a)} {n}, {thunk_type(routine, a)} {n}_h"
    if a.type == "character":
        if a.rank == 0 and not a.writes:
            return f"std::string_view {n}"
        if a.rank == 0:
            return f"zeb::fchar {n}"
        return f"zeb::fcharray {n}" if not a.writes else f"zeb::fchar {n}"
    t = TYPES[a.type][0]
    if a.rank:
        return f"const {t}* {n}" if not a.writes else f"{t}* {n}"
    return t + (f"& {n}" if a.writes else f" {n}")


def body_params(r, with_sorder=False):
    ps = []
    if r.result_len:
        ps.append("zeb::fchar result")
    if with_sorder and r.sorder:
        ps.append("int sorder")
    ps += [body_param(a, r) for a in r.args]
    if r.frame == "ifail":
        ps += ["char* errbuf", "int& ifail"]
    return ", ".join(ps)


def result_cxx(t):
    return "void" if t is None else TYPES[t][0]


def fn_type(r, a):
    return f"{r.name}_{a.cname}_fn"


def thunk_type(r, a):
    return f"{r.name}_{a.cname}_th"


def cb_params(itf):
    """Parameters of a callback as the caller's routine receives them: all by
    reference, hidden lengths last."""
    ps = []
    for b in itf.args:
        t = cb_ctype(b)
        ps.append(f"{t} {b.cname}" if b.type == "character" else f"{t}* {b.cname}")
    ps += [f"int {b.cname}_len" for b in itf.args if b.type == "character"]
    return ps


def cb_ctype(b):
    if b.type == "character":
        return "char*" if b.writes else "const char*"
    if b.type == "routine":
        raise DeclError("a callback cannot take a callback")
    t = TYPES[b.type][0]
    return t if b.writes else f"const {t}"


def header_typedefs(r):
    out = []
    for a in r.args:
        if a.type != "routine":
            continue
        ps = cb_params(a.interface)
        res = result_cxx(a.interface.result)
        out.append(f"using {fn_type(r, a)} = {res} (*)({', '.join(ps)});")
        out.append(f"using {thunk_type(r, a)} = {res} (*)({', '.join([fn_type(r, a)] + ps)});")
    return out


# ---------------------------------------------------------------------------
# Wrapper (the Fortran-callable entry point)


def public_args(r):
    """The arguments a caller passes: all but those the wrapper supplies."""
    return [a for a in r.args if a.source is None]


def wrapper_params(r):
    ps = []
    if r.result_len:
        ps += ["char* result", "long result_len"]
    for a in public_args(r):
        n = a.cname
        if a.type == "routine":
            ps.append(f"{fn_type(r, a)} {n}")
        elif a.type == "character":
            ps.append(f"{'char' if a.writes else 'const char'}* {n}")
        else:
            t = TYPES[a.type][0]
            ps.append(f"{t}* {n}" if a.writes else f"const {t}* {n}")
    if r.frame in ("ifail", "pure"):
        ps.append("int* ifail")
    ps += [f"int {a.cname}_len" for a in r.args if a.type == "character"]
    return ps


def wrapper_call_args(r):
    out = []
    for a in r.args:
        n = a.cname
        if a.source is not None:
            out.append(n)
        elif a.type == "routine":
            out += [n, f"{r.name}_{n}h"]
        elif a.type == "character":
            ln = f"({n}_len > 0 ? {n}_len : 0)"
            if a.rank == 0 and not a.writes:
                out.append(f"std::string_view({n}, {ln})")
            elif a.rank == 0 or a.writes:
                out.append(f"zeb::fchar{{{n}, {ln}}}")
            else:
                out.append(f"zeb::fcharray{{{n}, {ln}}}")
        elif a.rank:
            out.append(n)
        else:
            out.append(f"*{n}")
    return out


def gen_thunks(r):
    out = []
    for a in r.args:
        if a.type != "routine":
            continue
        itf = a.interface
        ps = cb_params(itf)
        names = [p.split()[-1] for p in ps]
        res = result_cxx(itf.result)
        ret = "" if itf.result is None else "return "
        out.append(f"// Thunk: passes the body's call on to the caller's {a.name}.")
        out.append(f"static {res} {r.name}_{a.cname}h({', '.join([fn_type(r, a) + ' f'] + ps)}) {{")
        out.append(f"  {ret}f({', '.join(names)});")
        out.append("}")
        out.append("")
    return out


def cxx_string(s):
    return '"' + s.replace("\\", "\\\\").replace('"', '\\"') + '"'


def gen_source(r):
    L = []
    L.append(f"// Generated by tools/zebgen.py from {r.path}. Do not edit.")
    L.append(f"#include \"zeb_{r.letter}_ib.h\"")
    L.append("#include \"zeb_wrap.h\"")
    if r.trace == "log":
        L.append("#include \"zeb_y_ib_aux.h\"")
    if r.letter != "x" and any(a.source for a in r.args):
        L.append("#include \"zeb_x_ib.h\"")
    L.append("")
    L += gen_thunks(r)
    res = result_cxx(r.result)
    ret_kept = r.result is not None

    # Trace layer.
    if r.trace != "none":
        L.append(f"{res} {r.tname}({body_params(r, True)}) {{")
        if r.trace == "log":
            L += gen_trace_entry(r)
        call = f"{r.body}({', '.join(body_call_args(r))})"
        if ret_kept:
            L.append(f"  const {res} result = {call};")
        else:
            L.append(f"  {call};")
        if r.trace == "log":
            L += gen_trace_exit(r)
        if ret_kept:
            L.append("  return result;")
        L.append("}")
        L.append("")

    # Message table.
    if r.frame == "ifail" and r.fails:
        L.append(f"static const zeb::Message {r.name}_messages[] = {{")
        for f in r.fails:
            L.append(f"    {{{f.code}, {f.number}, {cxx_string(f.message)}}},")
        L.append("};")
        L.append("")

    # Wrapper.
    wres = res
    L.append(f"extern \"C\" ZEB_EXPORT {wres} {r.name}_({', '.join(wrapper_params(r)) or 'void'}) {{")
    for a in r.args:
        if a.source is not None:
            L.append(f"  int {a.cname} = 0;")
            L.append("  " + FROM[a.source].format(name=a.cname))
    targs = wrapper_call_args(r)
    if r.result_len:
        targs = ["zeb::fchar{result, static_cast<int>(result_len > 0 ? result_len : 0)}"] + targs
    if r.sorder:
        targs = ["1"] + targs
    if r.frame == "ifail":
        L.append("  char errbuf[zeb::errbuf_len];")
        L.append("  int code = 0;")
        targs += ["errbuf", "code"]
    call = f"{r.tname}({', '.join(targs)})"
    L.append(f"  {'const ' + res + ' result = ' if ret_kept else ''}{call};")
    name = cxx_string(r.upper)
    if r.frame == "ifail":
        if r.fails:
            tab = f"{r.name}_messages, {len(r.fails)}"
        else:
            tab = "nullptr, 0"
        L.append("  if (code == 0) {")
        L.append(f"    *ifail = p01abft(*ifail, 0, {name}, 0, zeb::no_lines);")
        L.append("  } else {")
        L.append(f"    char lines[{r.maxlines} * zeb::line_len];")
        L.append(f"    const int nrec = p01abmu(code, errbuf, {tab}, {r.maxitems}, lines, {r.maxlines});")
        L.append(f"    *ifail = p01abft(*ifail, code, {name}, nrec, zeb::fcharray{{lines, zeb::line_len}});")
        L.append("  }")
    elif r.frame == "pure":
        L.append(f"  *ifail = p01abft(*ifail, 0, {name}, 0, zeb::no_lines);")
    if ret_kept:
        L.append("  return result;")
    L.append("}")
    return "\n".join(L) + "\n"


# ---------------------------------------------------------------------------
# Trace logging


LOGGERS = {  # type: (scalar logger, array logger letter)
    "integer": ("y90adft", "d", "zn"),
    "logical": ("y90aeft", "e", "zn"),
    "real": ("y90agft", "g", "zn"),
    "single": ("y90afet", "f", "zm"),
    "complex": ("y90acft", "c", "zn"),
    "character": ("y90aaft", "a", "zn"),
}


def cxx_expr(expr, r):
    """An extent expression of the declaration as C++ over the trace
    layer's parameters."""
    names = {a.name: a.cname for a in r.args}

    def word(m):
        w = m.group(0)
        if w.upper() in names:
            return names[w.upper()]
        if w.lower() in ("max", "min"):
            return "y90_" + w.lower()
        raise DeclError(f"{r.path}: extent {expr!r} names {w!r}, not an argument")
    return re.sub(r"[A-Za-z_][A-Za-z0-9_]*", word, expr)


def log_arg(a, r):
    """The statement that logs argument `a`, or None for a callback."""
    if a.type == "routine":
        return None
    n = cxx_string(a.name)
    scalar, letter, suffix = LOGGERS[a.type]
    c = a.cname
    if a.rank == 0:
        if a.type == "character":
            v = c if not a.writes else f"std::string_view({c}.p, static_cast<std::size_t>({c}.n))"
            return f"y90aaft({n}, {v}, 0, 1);"
        return f"{scalar}({n}, {c}, 1);"
    fn = "y90" + "bcd"[a.rank - 1] + letter + suffix
    arr = c
    if a.type == "character" and a.writes:
        arr = f"zeb::fcharray{{{c}.p, {c}.n}}"
    ext = []
    for d in range(a.rank):
        ext += [f"ext_{c}_{d + 1}", str(a.dimstat[d])]
    return f"{fn}({n}, {arr}, {', '.join(ext)}, trace_mode);"


def gen_extents(r):
    out = []
    for a in r.args:
        if a.rank == 0 or a.type == "routine":
            continue
        for d, e in enumerate(a.dims):
            v = cxx_expr(e, r)
            v = f"y90_leading({v})" if d == 0 and a.rank > 1 else f"static_cast<int>({v})"
            out.append(f"ext_{a.cname}_{d + 1} = {v};")
    return out


def gen_trace_entry(r):
    tname = cxx_string(r.upper + "T")
    L = ["  int trace_mode;", "  y90gczn(0, trace_mode);"]
    exts = [f"ext_{a.cname}_{d + 1}" for a in r.args
            if a.rank and a.type != "routine" for d in range(a.rank)]
    if exts:
        L.append(f"  int {' = 0, '.join(exts)} = 0;")
    L.append("  if (trace_mode != 0) {")
    L += ["    " + x for x in gen_extents(r)]
    L.append(f"    y90gazn({tname}, 1);")
    if r.sorder:
        L.append('    y90adft("SORDER", sorder, 1);')
    for a in r.args:
        if a.intent in ("in", "inout"):
            st = log_arg(a, r)
            if st:
                L.append("    " + st)
    L += ["    y90gbzn();", '    y90ahft("");', "  }"]
    return L


def gen_trace_exit(r):
    tname = cxx_string(r.upper + "T")
    L = ["  if (trace_mode != 0) {", f"    y90gazn({tname}, 0);"]
    if r.sorder:
        L.append('    y90adft("SORDER", sorder, 1);')
    for a in r.args:
        st = log_arg(a, r)
        if st:
            L.append("    " + st)
    if r.frame == "ifail":
        L.append('    y90aaft("ERRBUF", std::string_view(errbuf, zeb::errbuf_len), 1, 1);')
        L.append('    y90adft("IFAIL", ifail, 1);')
    L += ["    y90gbzn();", '    y90ahft("");', "  }"]
    return L


def body_call_args(r):
    out = ["result"] if r.result_len else []
    for a in r.args:
        out.append(a.cname)
        if a.type == "routine":
            out.append(a.cname + "_h")
    if r.frame == "ifail":
        out += ["errbuf", "ifail"]
    return out


def gen_header(letter, routines):
    L = [f"// Generated by tools/zebgen.py: the bodies and trace layers of chapter "
         f"letter {letter}. Do not edit.", "#pragma once", ""]
    need_complex = any(a.type == "complex" or r.result == "complex"
                       or (a.interface and (a.interface.result == "complex" or
                           any(b.type == "complex" for b in a.interface.args)))
                       for r in routines for a in r.args) or \
        any(r.result == "complex" for r in routines)
    if need_complex:
        L.append("#include <complex>")
    L.append("#include <string_view>")
    L.append("")
    L.append("#include \"zeb_frame.h\"")
    L.append("")
    for r in routines:
        res = result_cxx(r.result)
        L.append(f"// {r.name}: {r.summary}")
        L += header_typedefs(r)
        L.append(f"{res} {r.body}({body_params(r)});")
        if r.trace != "none":
            L.append(f"{res} {r.tname}({body_params(r, True)});")
        L.append("")
    return "\n".join(L)


# ---------------------------------------------------------------------------
# The C header


def c_param(a, r):
    n = a.cname
    if a.type == "routine":
        itf = a.interface
        ps = []
        for b in itf.args:
            if b.type == "character":
                ps.append(f"{'char' if b.writes else 'const char'} *{b.cname}")
            else:
                t = TYPES[b.type][1]
                ps.append(f"{t} *{b.cname}" if b.writes else f"const {t} *{b.cname}")
        ps += [f"int {b.cname}_len" for b in itf.args if b.type == "character"]
        res = "void" if itf.result is None else TYPES[itf.result][1]
        return f"{res} (*{n})({', '.join(ps) or 'void'})"
    t = TYPES[a.type][1]
    return f"{t} *{n}" if a.writes else f"const {t} *{n}"


def gen_c_header(routines):
    L = ["/* zeb.h: the public routines of the ZEB numerical library, for C callers.",
         "   Every argument is passed by reference; each character argument has a",
         "   hidden length, passed by value after the last argument. Generated by",
         "   tools/zebgen.py; do not edit. */",
         "#ifndef ZEB_H",
         "#define ZEB_H",
         "",
         "typedef struct { double re, im; } zeb_dcomplex;",
         "",
         "#ifdef __cplusplus",
         'extern "C" {',
         "#endif",
         ""]
    for r in routines:
        ps = [c_param(a, r) for a in public_args(r)]
        if r.result_len:
            ps = ["char *result", "long result_len"] + ps
        if r.frame in ("ifail", "pure"):
            ps.append("int *ifail")
        ps += [f"int {a.cname}_len" for a in r.args if a.type == "character"]
        res = "void" if r.result is None else TYPES[r.result][1]
        L.append(f"/* {r.summary} */")
        L.append(f"{res} {r.name}_({', '.join(ps) or 'void'});")
    L += ["", "#ifdef __cplusplus", "}", "#endif", "", "#endif /* ZEB_H */", ""]
    return "\n".join(L)


# ---------------------------------------------------------------------------
# The Fortran module


def f_decl(a, indent):
    t = TYPES[a.type][2]
    if a.type == "character" and a.len != "*":
        t = f"character(len={a.len})"
    dims = ""
    if a.rank == 1:
        dims = "(*)"
    elif a.rank > 1:
        dims = "(" + ", ".join(a.dims[:-1] + ["*"]) + ")"
    return f"{indent}{t}, intent({a.intent}) :: {a.cname}{dims}"


def f_routine(name, result, args, has_ifail, indent, result_len=None):
    L = []
    if result_len:
        result = "character"
    argnames = [a.cname for a in args] + (["ifail"] if has_ifail else [])
    kind = "function" if result else "subroutine"
    L.append(f"{indent}{kind} {name}({', '.join(argnames)})")
    L.append(f"{indent}  import :: wp, sp")
    if result:
        t = TYPES[result][2] if not result_len else f"character(len={result_len})"
        L.append(f"{indent}  {t} :: {name}")
    # Scalars first, so that array bounds may name them.
    ordered = [a for a in args if a.rank == 0 and a.type != "routine"] + \
              [a for a in args if a.rank > 0] + [a for a in args if a.type == "routine"]
    for a in ordered:
        if a.type == "routine":
            L.append(f"{indent}  interface")
            L += f_routine(a.cname, a.interface.result, a.interface.args, False,
                           indent + "    ")
            L.append(f"{indent}  end interface")
        else:
            L.append(f_decl(a, indent + "  "))
    if has_ifail:
        L.append(f"{indent}  integer, intent(inout) :: ifail")
    L.append(f"{indent}end {kind} {name}")
    return L


def gen_fortran(routines):
    L = ["! Module zeb_library: interfaces of every public routine of ZEB.",
         "! Generated by tools/zebgen.py; do not edit.",
         "module zeb_library",
         "  use zeb_precisions, only: wp, sp",
         "  implicit none",
         "  interface"]
    for r in routines:
        L += f_routine(r.name, r.result, public_args(r), r.frame in ("ifail", "pure"), "    ",
                       r.result_len)
    L += ["  end interface", "end module zeb_library", ""]
    return "\n".join(L)


# ---------------------------------------------------------------------------


def outputs(routines):
    files = [os.path.join("src", r.letter, r.name + ".cpp") for r in routines]
    files += [os.path.join("include", f"zeb_{l}_ib.h") for l in letters(routines)]
    files += [os.path.join("include", "zeb.h"),
              os.path.join("fortran", "zeb_library.f90"),
              "zeb.map", os.path.join("docs", "routines.md")]
    return files


def letters(routines):
    return sorted({r.letter for r in routines})


def write_if_changed(path, text):
    os.makedirs(os.path.dirname(path) or ".", exist_ok=True)
    if os.path.exists(path):
        with open(path, encoding="utf-8") as f:
            if f.read() == text:
                return
    with open(path, "w", encoding="utf-8") as f:
        f.write(text)


def gen_docs(routines):
    L = ["# Routine index", "",
         "Generated from the declarations by tools/zebgen.py.", "",
         "| Routine | What it does | Failure codes |", "|---|---|---|"]
    for r in routines:
        codes = sorted({f.code for f in r.fails})
        L.append(f"| `{r.name}` | {r.summary} | {', '.join(map(str, codes)) or '-'} |")
    return "\n".join(L) + "\n"


def main():
    ap = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    ap.add_argument("--root", required=True, help="the source tree")
    ap.add_argument("--out", required=True, help="the output directory")
    ap.add_argument("--list", action="store_true",
                    help="only list the files that would be written")
    ns = ap.parse_args()
    try:
        routines = load(ns.root)
    except (DeclError, KeyError) as e:
        print(f"zebgen: {e}", file=sys.stderr)
        return 1
    if ns.list:
        print(";".join(os.path.join(ns.out, f) for f in outputs(routines)))
        return 0
    for r in routines:
        write_if_changed(os.path.join(ns.out, "src", r.letter, r.name + ".cpp"),
                         gen_source(r))
    for l in letters(routines):
        write_if_changed(os.path.join(ns.out, "include", f"zeb_{l}_ib.h"),
                         gen_header(l, [r for r in routines if r.letter == l]))
    write_if_changed(os.path.join(ns.out, "include", "zeb.h"), gen_c_header(routines))
    write_if_changed(os.path.join(ns.out, "fortran", "zeb_library.f90"), gen_fortran(routines))
    syms = "".join(f"    {r.name}_;\n" for r in routines)
    write_if_changed(os.path.join(ns.out, "zeb.map"),
                     "{\n  global:\n" + syms + "  local:\n    *;\n};\n")
    write_if_changed(os.path.join(ns.out, "docs", "routines.md"), gen_docs(routines))
    return 0


if __name__ == "__main__":
    sys.exit(main())
