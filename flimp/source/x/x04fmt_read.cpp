// Formatted input from internal records.
//
// A single record is read as the runtime reads a scalar CHARACTER variable,
// whose trailing blanks it sets aside under BN: they bound how far TL looks
// back and where a real field ends (see read_real). Several records are
// read as an array, whole.
//
// A field is the characters of the record under the descriptor's width; a
// field that runs past the end of the record is what is there, as with the
// runtime's PAD='YES' on internal files. Blanks in numeric fields are
// ignored (BN, the default) or read as zeros (BZ). A real field without a
// point has its last d digits taken as the fraction, and a real field
// without an exponent is divided by 10**k under a scale factor kP.
#include <cmath>
#include <limits>
#include <string>

#include "x04fmt_internal.h"

namespace zeb::fmt::detail {

namespace {

bool is_digit(char c) { return c >= '0' && c <= '9'; }

char upper(char c) { return (c >= 'a' && c <= 'z') ? c - 'a' + 'A' : c; }

// Case-blind comparison of s with an upper-case keyword.
bool is_word(std::string_view s, std::string_view word) {
  if (s.size() != word.size()) return false;
  for (std::size_t i = 0; i < s.size(); ++i)
    if (upper(s[i]) != word[i]) return false;
  return true;
}

Status read_int(std::string_view f, bool bz, std::int64_t& v) {
  std::size_t i = 0;
  while (i < f.size() && f[i] == ' ') ++i;
  v = 0;
  if (i == f.size()) return Ok;
  bool neg = false;
  if (f[i] == '+' || f[i] == '-') {
    neg = f[i] == '-';
    ++i;
  }
  // Accumulate the magnitude as negative so that the most negative value
  // fits.
  std::int64_t acc = 0;
  bool any = false;
  constexpr std::int64_t lo = std::numeric_limits<std::int64_t>::min();
  for (; i < f.size(); ++i) {
    char c = f[i];
    if (c == ' ') {
      if (!bz) continue;
      c = '0';
    }
    if (!is_digit(c)) return ReadError;
    any = true;
    int dg = c - '0';
    if (acc < (lo + dg) / 10) return ReadError;
    acc = acc * 10 - dg;
  }
  if (!any) return ReadError;
  if (!neg) {
    if (acc == lo) return ReadError;
    acc = -acc;
  }
  v = acc;
  return Ok;
}

// `tail_blank`: a scalar record holds only blanks after the field. The
// runtime then reads the field without its trailing blanks under BN, which
// matters for an exponent sign followed by blanks alone: accepted as
// exponent zero when the record goes on, rejected when the blanks run to its
// end.
Status read_real(std::string_view f, int d, int scale, bool bz,
                 bool tail_blank, double& v) {
  if (tail_blank && !bz) {
    while (!f.empty() && f.back() == ' ') f.remove_suffix(1);
  }
  std::size_t i = 0, n = f.size();
  while (i < n && f[i] == ' ') ++i;
  v = 0.0;
  if (i == n) return Ok;
  bool neg = false;
  if (f[i] == '+' || f[i] == '-') {
    neg = f[i] == '-';
    ++i;
  }
  std::string_view rest = f.substr(i);
  {
    std::size_t j = 0;
    while (j < rest.size() && rest[j] == ' ') ++j;
    if (j == rest.size()) return Ok;  // a lone sign reads as zero
    rest.remove_prefix(j);
  }
  char lead = upper(rest[0]);
  if (lead == 'I' || lead == 'N') {
    // Infinity or NaN. Under BN the word ends at the first blank and the
    // rest of the field is ignored; under BZ the blanks belong to it.
    std::string_view word = rest;
    if (!bz) word = word.substr(0, word.find(' '));
    if (lead == 'I') {
      if (!is_word(word, "INF") && !is_word(word, "INFINITY")) return ReadError;
      v = neg ? -HUGE_VAL : HUGE_VAL;
      return Ok;
    }
    if (word.size() < 3 || upper(word[1]) != 'A' || upper(word[2]) != 'N')
      return ReadError;
    // NAN, or NAN( ... ) with anything after the closing parenthesis.
    if (word.size() > 3 &&
        (word[3] != '(' || word.find(')', 4) == std::string_view::npos))
      return ReadError;
    v = std::numeric_limits<double>::quiet_NaN();
    return Ok;
  }
  std::string digits;
  long frac = 0;        // digits after the point
  bool point = false;
  std::size_t k = i;
  for (; k < n; ++k) {
    char c = f[k];
    if (c == ' ') {
      if (!bz) continue;
      c = '0';
    }
    if (is_digit(c)) {
      digits.push_back(c);
      if (point) ++frac;
    } else if (c == '.') {
      if (point) return ReadError;
      point = true;
    } else {
      break;
    }
  }
  bool has_exp = false;
  long ex = 0;
  if (k < n) {
    char c = upper(f[k]);
    bool letter = c == 'E' || c == 'D' || c == 'Q';
    if (letter) {
      ++k;
      while (k < n && f[k] == ' ') ++k;  // blanks before the exponent's sign
    } else if (c != '+' && c != '-') {
      return ReadError;
    }
    bool eneg = false, sign = false;
    if (k < n && (f[k] == '+' || f[k] == '-')) {
      eneg = f[k] == '-';
      sign = true;
      ++k;
      if (k == n) return ReadError;  // nothing at all after the sign
    }
    bool any = false;
    for (; k < n; ++k) {
      char e = f[k];
      if (e == ' ') {
        if (!bz) continue;
        e = '0';
      }
      if (!is_digit(e)) return ReadError;
      any = true;
      if (ex < 100000000) ex = ex * 10 + (e - '0');
    }
    // A letter needs digits; a sign followed by blanks reads as zero.
    if (!any && !sign) return ReadError;
    has_exp = true;
    if (eneg) ex = -ex;
    // The runtime rejects an exponent beyond four digits once the implied
    // decimals are taken off.
    long adj = ex - (point ? 0 : d);
    if (adj > 9999 || adj < -9999) return ReadError;
  }
  long e10 = ex - (point ? frac : d);
  if (!has_exp) e10 -= scale;
  v = decimal_to_double(digits, e10, neg);
  return Ok;
}

Status read_logical(std::string_view f, bool& v) {
  std::size_t i = 0;
  while (i < f.size() && f[i] == ' ') ++i;
  if (i < f.size() && f[i] == '.') ++i;
  if (i >= f.size()) return ReadError;
  char c = upper(f[i]);
  if (c == 'T') {
    v = true;
  } else if (c == 'F') {
    v = false;
  } else {
    return ReadError;
  }
  return Ok;
}

class Reader {
 public:
  Reader(const Program& p, const char* buf, int reclen, int nrec,
         int maxitems, std::vector<Item>& out)
      : prog_(p), cur_(p), buf_(buf), reclen_(reclen), nrec_(nrec),
        maxitems_(maxitems), out_(out) {}

  Status run() {
    for (;;) {
      const Tok* t = cur_.step();
      if (t == nullptr) {
        if (cur_.runaway()) return BadFormat;
        if (count_ >= maxitems_) return Ok;
        AtEnd what = passes_.at_end(prog_.has_colon);
        if (what == AtEnd::Fail) return BadFormat;
        if (what == AtEnd::Restart) {
          cur_.restart();
          continue;
        }
        if (what == AtEnd::Revert) {
          if (Status st = next_record(); st != Ok) return st;
        }
        cur_.revert();
        continue;
      }
      switch (t->op) {
        case Op::Colon:
          if (count_ >= maxitems_) return Ok;
          break;
        case Op::Slash:
          if (Status st = next_record(); st != Ok) return st;
          break;
        case Op::Lit:
          return BadFormat;  // text to write has no place in a read
        case Op::X:
        case Op::TR:
          pos_ += t->n;
          break;
        case Op::TL: {
          // Under BN the runtime measures TL from no further than the end
          // of the record's text, its trailing blanks left out.
          std::int64_t base = bz_ ? reclen_ : text_end();
          if (pos_ < base) base = pos_;
          pos_ = base > t->n ? base - t->n : 0;
          break;
        }
        case Op::T:
          pos_ = t->n - 1;
          break;
        case Op::P:
          scale_ = t->n;
          break;
        case Op::BN:
          bz_ = false;
          break;
        case Op::BZ:
          bz_ = true;
          break;
        case Op::SP:
        case Op::SS:
        case Op::S:
        case Op::Dollar:
          break;
        default: {
          if (count_ >= maxitems_) return Ok;
          cur_.reset_idle();
          passes_.took_item();
          if (Status st = item(*t); st != Ok) return st;
          ++count_;
        }
      }
    }
  }

 private:
  const Program& prog_;
  Cursor cur_;
  const char* buf_;
  int reclen_;
  int nrec_;
  int maxitems_;
  std::vector<Item>& out_;
  int recno_ = 0;
  int count_ = 0;
  std::int64_t pos_ = 0;
  int scale_ = 0;
  bool bz_ = false;
  Passes passes_{true};

  Status next_record() {
    if (recno_ + 1 >= nrec_) return EndOfRecord;
    ++recno_;
    pos_ = 0;
    return Ok;
  }

  // The characters of the record under a field of width w at the position.
  std::string_view take(std::int64_t w) {
    const char* rec = buf_ + static_cast<std::size_t>(recno_) * reclen_;
    std::int64_t a = pos_ < reclen_ ? pos_ : reclen_;
    std::int64_t b = pos_ + w < reclen_ ? pos_ + w : reclen_;
    pos_ += w;
    return std::string_view(rec + a, static_cast<std::size_t>(b - a));
  }

  // End of the record's text: one past its last non-blank character. The
  // runtime trims a scalar internal file so (not an array of records, even
  // of one); a single record is taken as a scalar here.
  std::int64_t text_end() const {
    if (nrec_ != 1) return reclen_;
    const char* rec = buf_ + static_cast<std::size_t>(recno_) * reclen_;
    std::int64_t e = reclen_;
    while (e > 0 && rec[e - 1] == ' ') --e;
    return e;
  }

  // Whether a scalar record holds only blanks from the position on.
  bool rest_blank() const { return nrec_ == 1 && pos_ >= text_end(); }

  Status item(const Tok& t) {
    Item it;
    if (t.op == Op::A) {
      std::int64_t w = t.w;
      if (w < 0) w = pos_ < reclen_ ? reclen_ - pos_ : 0;
      it.kind = Item::Kind::Text;
      it.s = take(w);
      out_.push_back(it);
      return Ok;
    }
    if (t.op == Op::L) {
      std::string_view f = take(t.w <= 0 ? 1 : t.w);
      bool v = false;
      if (read_logical(f, v) != Ok) return ReadError;
      it.kind = Item::Kind::Logical;
      it.l = v;
      out_.push_back(it);
      return Ok;
    }
    // The zero-width output forms have no meaning on input.
    if (t.w <= 0) return BadFormat;
    std::string_view f = take(t.w);
    if (t.op == Op::I) {
      std::int64_t v = 0;
      if (read_int(f, bz_, v) != Ok) return ReadError;
      it.kind = Item::Kind::Int;
      it.i = v;
    } else {
      double v = 0;
      if (read_real(f, t.d, scale_, bz_, rest_blank(), v) != Ok)
        return ReadError;
      it.kind = Item::Kind::Real;
      it.r = v;
    }
    out_.push_back(it);
    return Ok;
  }
};

}  // namespace

}  // namespace zeb::fmt::detail

namespace zeb::fmt {

Status read_internal(std::string_view format, const char* buf, int reclen,
                     int nrec, int maxitems, std::vector<Item>& out) {
  out.clear();
  detail::Program prog;
  if (detail::compile(format, prog) != Ok) return BadFormat;
  if (buf == nullptr || reclen < 0) nrec = 0;
  if (nrec <= 0) return EndOfRecord;
  detail::Reader r(prog, buf, reclen, nrec, maxitems, out);
  return r.run();
}

}  // namespace zeb::fmt
