#include <cmath>
#include <cstring>
#include <string>

#include "zeb_x_ib.h"
#include "zeb_x_ib_aux.h"

// The matrix printers' one layout engine. A line is built in a buffer of
// blanks and handed whole to the line writer; every number and label in it
// is written by the format engine.
//
// Layout of a line of the matrix, from the left: the indent; the row label
// field (a blank, the label, a blank: the row number right-justified in the
// digits of the row count, or the caller's label left-justified in the
// length of the longest), or a single blank when rows are not labelled; then
// one slot per column of the strip. A column heading line has the same
// prefix in blanks and each heading right-justified in its slot.

namespace {

using zeb::fmt::Item;

constexpr int kMaxWidth = 132;     // widest line that NCOLS may ask for
constexpr int kDefaultWidth = 80;  // NCOLS outside 1..kMaxWidth

std::string_view trim(std::string_view s) {
  const auto b = s.find_first_not_of(' ');
  if (b == std::string_view::npos) return {};
  return s.substr(b, s.find_last_not_of(' ') - b + 1);
}

std::string_view rtrim(std::string_view s) {
  const auto e = s.find_last_not_of(' ');
  return e == std::string_view::npos ? std::string_view{} : s.substr(0, e + 1);
}

// Element k (from 1) of a character array, without surrounding blanks.
std::string_view label(zeb::fcharray a, int k) {
  if (a.p == nullptr || a.n <= 0) return {};
  return trim(std::string_view(a.p + static_cast<long long>(k - 1) * a.n,
                               static_cast<std::size_t>(a.n)));
}

int ndigits(long long v) {
  int n = 1;
  while (v >= 10) {
    v /= 10;
    ++n;
  }
  return n;
}

int longest(zeb::fcharray a, int count) {
  int w = 0;
  for (int k = 1; k <= count; ++k) {
    const int n = static_cast<int>(label(a, k).size());
    if (n > w) w = n;
  }
  return w;
}

// A format such as "(999I12)" or "(1X,I3)": text, a number, text.
std::string format_with(std::string_view head, long long n,
                        std::string_view tail) {
  char buf[20];
  zeb::write_lines("(I0)", {n}, buf, 20, 1);
  std::string f(head);
  f.append(rtrim(std::string_view(buf, 20)));
  f.append(tail);
  return f;
}

// The column headings of a strip as items of the format engine.
class Headings final : public zeb::fmt::ItemSource {
 public:
  Headings(int j0, int j1, char kind, zeb::fcharray clabs)
      : j_(j0), j1_(j1), kind_(kind), clabs_(clabs) {}
  bool next(zeb::fmt::Need, Item& out) override {
    if (j_ > j1_) return false;
    out = kind_ == 'I' ? Item(j_) : Item(label(clabs_, j_));
    ++j_;
    return true;
  }

 private:
  int j_;
  int j1_;
  char kind_;
  zeb::fcharray clabs_;
};

// Writes one value by the wrapped format into `w` characters at `dst`; a
// value that the field cannot hold is shown as asterisks.
void put_value(const std::string& wrapped, const Item& v, char* dst, int w) {
  zeb::fmt::ListSource src(&v, 1);
  if (zeb::fmt::write_internal(wrapped, src, dst, w, 1) != zeb::fmt::Ok)
    std::memset(dst, '*', static_cast<std::size_t>(w));
}

// What every line of one print shares.
struct Layout {
  const x04_matrix* a = nullptr;
  std::string wrapped;  // "(999(:," + FORM + "))"
  int cw = 0;           // width of one value
  int ew = 0;           // width of one column slot
  char usefrm = 'A';    // complex entries: 'A', 'B' or 'D'
  bool matlab = false;
  int nout = 0;
  x04_writer writer = nullptr;
  decltype(&x04bafnh) thunk = nullptr;
};

void emit(const Layout& L, const char* line, int n) {
  L.thunk(L.writer, L.nout,
          std::string_view(line, static_cast<std::size_t>(n)));
}

// Fills the slot of one entry at `dst`. `part` selects, for complex entries
// shown one part above the other, the real (0) or imaginary (1) part.
void put_entry(const Layout& L, const x04_entry& e, int part, char* dst) {
  const char t = L.a->type;
  if (t == 'I') {
    if (L.matlab) {
      put_value(L.wrapped, Item(e.iv), dst + 1, L.cw);
    } else {
      put_value(L.wrapped, Item(e.iv), dst, L.cw);
    }
    return;
  }
  if (t == 'R') {
    put_value(L.wrapped, Item(e.re), dst + (L.matlab ? 1 : 0), L.cw);
    return;
  }
  if (L.matlab) {
    // "re + imi" or "re - imi", right-justified: the sign is taken out of
    // the imaginary part and set apart by blanks, so that MATLAB reads the
    // pair as one element.
    char re[kMaxWidth + 1];
    char im[kMaxWidth + 1];
    put_value(L.wrapped, Item(e.re), re, L.cw);
    put_value(L.wrapped, Item(std::fabs(e.im)), im, L.cw);
    const std::string_view r =
        trim(std::string_view(re, static_cast<std::size_t>(L.cw)));
    const std::string_view m =
        trim(std::string_view(im, static_cast<std::size_t>(L.cw)));
    char* p = dst + L.ew - static_cast<int>(r.size() + m.size() + 4);
    std::memcpy(p, r.data(), r.size());
    p += r.size();
    std::memcpy(p, std::signbit(e.im) ? " - " : " + ", 3);
    std::memcpy(p + 3, m.data(), m.size());
    p[3 + m.size()] = 'i';
    return;
  }
  switch (L.usefrm) {
    case 'B': {
      // "(re,im)" from the two fields without their blanks, right-justified.
      char re[kMaxWidth + 1];
      char im[kMaxWidth + 1];
      put_value(L.wrapped, Item(e.re), re, L.cw);
      put_value(L.wrapped, Item(e.im), im, L.cw);
      const std::string_view r =
          trim(std::string_view(re, static_cast<std::size_t>(L.cw)));
      const std::string_view m =
          trim(std::string_view(im, static_cast<std::size_t>(L.cw)));
      const int len = static_cast<int>(r.size() + m.size()) + 3;
      char* p = dst + (L.ew - len);
      *p++ = '(';
      std::memcpy(p, r.data(), r.size());
      p += r.size();
      *p++ = ',';
      std::memcpy(p, m.data(), m.size());
      p += m.size();
      *p = ')';
      return;
    }
    case 'D':
      // Two blanks apart from the previous pair, then the two fields.
      put_value(L.wrapped, Item(e.re), dst + 2, L.cw);
      put_value(L.wrapped, Item(e.im), dst + 2 + L.cw, L.cw);
      return;
    default:
      put_value(L.wrapped, Item(part == 0 ? e.re : e.im), dst, L.cw);
      return;
  }
}

void print_matlab(const Layout& L, int rows, int ind, int per,
                  std::string_view title) {
  const std::string_view name = trim(title);
  std::string head(static_cast<std::size_t>(ind), ' ');
  if (name.empty()) {
    head.append("[");
  } else {
    head.append(name);
    head.append(" = [ ");
  }
  emit(L, head.data(), static_cast<int>(head.size()));
  char line[kMaxWidth + 1];
  for (int i = 1; i <= rows; ++i) {
    std::memset(line, ' ', sizeof line);
    int count = 0;
    for (int j = 1; j <= L.a->n; ++j) {
      if (count == per) {
        // The row goes on: MATLAB's continuation mark ends the line.
        std::memcpy(line + ind + count * L.ew, " ...", 4);
        emit(L, line, ind + count * L.ew + 4);
        std::memset(line, ' ', sizeof line);
        count = 0;
      }
      x04_entry e = x04cbwn(*L.a, i, j);
      if (e.state == 0 || e.state == 2) e = x04_entry{};  // shown as zero
      put_entry(L, e, 0, line + ind + count * L.ew);
      ++count;
    }
    emit(L, line, ind + count * L.ew);
  }
  std::memset(line, ' ', static_cast<std::size_t>(ind));
  std::memcpy(line + ind, "];", 2);
  emit(L, line, ind + 2);
}

}  // namespace

int x04cbzn(const x04_matrix& a, std::string_view form, char usefrm,
            std::string_view title, char labrow, zeb::fcharray rlabs,
            char labcol, zeb::fcharray clabs, int ncols, int indent, int nout,
            x04_writer writer, decltype(&x04bafnh) thunk, char* errbuf) {
  const int width = (ncols >= 1 && ncols <= kMaxWidth) ? ncols : kDefaultWidth;
  const int ind = (indent >= 0 && indent < width) ? indent : 0;
  const int rows = a.store == 'P' ? a.n : a.m;
  const bool integer = a.type == 'I';

  // FORM: "MATLAB" and the format after it, blank for the automatic choice,
  // "*" for every significant digit, or the caller's edit descriptors.
  std::string_view f = trim(form);
  bool matlab = false;
  if (f.size() >= 6) {
    char head[6];
    for (int k = 0; k < 6; ++k) head[k] = x04_upper1(f.substr(k, 1));
    if (std::string_view(head, 6) == "MATLAB") {
      matlab = true;
      f = trim(f.substr(6));
      labrow = 'N';
      labcol = 'N';
    }
  }
  int lf = 0;
  if (labrow == 'I') {
    lf = ndigits(rows > 1 ? rows : 1) + 2;
  } else if (labrow == 'C') {
    lf = longest(rlabs, rows) + 2;
  }
  char fbuf[16];
  if (f.empty() || (f == "*" && integer)) {
    // Integer columns are made wide enough for their headings too.
    int minw = 0;
    if (integer && labcol == 'I') minw = ndigits(a.n > 1 ? a.n : 1);
    if (integer && labcol == 'C') minw = longest(clabs, a.n);
    f = std::string_view(fbuf,
                         static_cast<std::size_t>(x04cbyn(a, minw, fbuf)));
  } else if (f == "*") {
    f = std::string_view(fbuf, static_cast<std::size_t>(x04cbvn(fbuf)));
  }
  const int cw = x04cbxn(f, integer);
  if (cw == 0) {
    char text[16];
    zeb::p01abvn(text, 16, trim(form));
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,A16)",
                       {4, 99991, 1, std::string_view(text, 16)});
    return 4;
  }

  // Slot of one column, and how many columns a line holds.
  long long ew = cw;
  if (matlab) {
    ew = a.type == 'Z' ? 2LL * cw + 5 : cw + 1LL;
  } else if (a.type == 'Z' && usefrm == 'B') {
    ew = 2LL * cw + 3;
  } else if (a.type == 'Z' && usefrm == 'D') {
    ew = 2LL * cw + 2;
  }
  const long long room = matlab
                             ? width - ind - 4LL
                             : width - ind - (labrow == 'N' ? 1LL : 4LL) - lf;
  const long long per = room > 0 ? room / ew : 0;
  if (per < 1) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),2(1X,I20))",
                       {5, 99993, 2, ncols, indent});
    return 5;
  }

  Layout L;
  L.a = &a;
  L.wrapped = "(999(:,";
  L.cw = cw;
  L.ew = static_cast<int>(ew);
  L.usefrm = usefrm;
  L.matlab = matlab;
  L.nout = nout;
  L.writer = writer;
  L.thunk = thunk;
  L.wrapped.append(f);
  L.wrapped.append("))");

  if (matlab) {
    print_matlab(L, rows, ind, static_cast<int>(per), title);
    return 0;
  }

  // The title, cut into lines of the width less the indent.
  const std::string_view t = rtrim(title);
  char line[kMaxWidth + 1];
  const std::size_t chunk = static_cast<std::size_t>(width - ind);
  for (std::size_t pos = 0; pos < t.size(); pos += chunk) {
    const std::string_view part = t.substr(pos, chunk);
    std::memset(line, ' ', static_cast<std::size_t>(ind));
    std::memcpy(line + ind, part.data(), part.size());
    emit(L, line, ind + static_cast<int>(part.size()));
  }
  if (rows < 1 || a.n < 1) return 0;

  const int base = ind + (labrow == 'N' ? 1 : lf);
  const std::string rowfmt =
      labrow == 'I' ? format_with("(1X,I", lf - 2, ")") : "(1X,A)";
  const std::string headfmt =
      format_with(labcol == 'I' ? "(999I" : "(999A", L.ew, ")");
  for (int j0 = 1; j0 <= a.n; j0 += static_cast<int>(per)) {
    const int j1 = static_cast<int>(j0 + per - 1 < a.n ? j0 + per - 1 : a.n);
    const int len = base + (j1 - j0 + 1) * L.ew;
    if (labcol != 'N') {
      std::memset(line, ' ', sizeof line);
      Headings h(j0, j1, labcol, clabs);
      zeb::fmt::write_internal(headfmt, h, line + base, len - base, 1);
      emit(L, line, len);
    }
    for (int i = 1; i <= rows; ++i) {
      // Every row has its line, with or without entries in this strip; the
      // line of imaginary parts only where there are entries.
      bool any = false;
      for (int j = j0; j <= j1 && !any; ++j) any = x04cbwn(a, i, j).state != 0;
      const int parts = (a.type == 'Z' && usefrm == 'A' && any) ? 2 : 1;
      for (int part = 0; part < parts; ++part) {
        std::memset(line, ' ', sizeof line);
        if (part == 0 && labrow == 'I') {
          zeb::write_lines(rowfmt, {i}, line + ind, lf, 1);
        } else if (part == 0 && labrow == 'C') {
          zeb::write_lines(rowfmt, {label(rlabs, i)}, line + ind, lf, 1);
        }
        for (int j = j0; j <= j1; ++j) {
          const x04_entry e = x04cbwn(a, i, j);
          if (e.state == 1 || e.state == 3)
            put_entry(L, e, part, line + base + (j - j0) * L.ew);
        }
        emit(L, line, len);
      }
    }
  }
  return 0;
}
