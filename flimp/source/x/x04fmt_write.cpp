// Formatted output: the fields of the data edit descriptors and the record
// machinery of an internal write.
//
// Positioning follows the runtime's own bookkeeping, which shows when T, TL,
// TR and X follow one another without data between them: a move is held as
// an offset from the end of the last transfer (`skips_`) together with the
// count of blanks owed at the next transfer (`pending_`). T measures its
// target from the end of the last transfer plus that count; TL goes back at
// most as far as the last transfer's end lies from the record's start. The
// blanks owed are laid down just before the next field.
#include <cmath>
#include <cstring>
#include <string>

#include "x04fmt_internal.h"

namespace zeb::fmt::detail {

namespace {

constexpr std::int64_t kMaxRecordLength = 1 << 22;  // write_records
constexpr std::size_t kMaxRecords = 1 << 20;

struct Modes {
  int scale = 0;      // kP
  bool plus = false;  // SP
};

void stars(std::string& out, int w) { out.append(w > 0 ? w : 1, '*'); }

// Right-justifies `body` in a field of width w (w == 0: as it is).
void put(std::string& out, int w, std::string_view body) {
  if (w > 0 && static_cast<int>(body.size()) < w)
    out.append(w - body.size(), ' ');
  out.append(body);
}

int ndigits(int v) {
  int n = 1;
  while (v >= 10) {
    v /= 10;
    ++n;
  }
  return n;
}

std::string_view sign_of(bool neg, const Modes& m) {
  return neg ? "-" : (m.plus ? "+" : "");
}

// Infinity and NaN, spelled as the runtime spells them for the width.
void nonfinite(std::string& out, double x, int w, const Modes& m) {
  if (std::isnan(x)) {
    if (w > 0 && w < 3)
      stars(out, w);
    else
      put(out, w, "NaN");
    return;
  }
  bool neg = std::signbit(x);
  if (w == 0) {
    out.append(sign_of(neg, m));
    out.append("Inf");
    return;
  }
  if (neg) {
    if (w < 4)
      stars(out, w);
    else
      put(out, w, w >= 9 ? "-Infinity" : "-Inf");
    return;
  }
  if (w < 3) {
    stars(out, w);
  } else if (m.plus && w >= 4) {
    put(out, w, w >= 9 ? "+Infinity" : "+Inf");
  } else {
    put(out, w, w >= 8 ? "Infinity" : "Inf");
  }
}

// The zero-width forms keep the optional zero before the point only while
// the whole field stays within this many characters.
constexpr std::size_t kZeroWidthKeep = 25;

// Places sign and digits of a fixed or exponent form in width w. `body`
// starts with "0." when that zero is optional: it goes when the field is
// one character too narrow, and in the zero-width forms when the field
// would pass kZeroWidthKeep characters (always for F0.d).
void fit(std::string& out, int w, std::string_view sign, std::string_view body,
         bool optional_zero, bool always_drop = false) {
  std::size_t len = sign.size() + body.size();
  if (w == 0) {
    bool drop = optional_zero && (always_drop || len > kZeroWidthKeep);
    out.append(sign);
    out.append(drop ? body.substr(1) : body);
    return;
  }
  if (len <= static_cast<std::size_t>(w)) {
    out.append(w - len, ' ');
    out.append(sign);
    out.append(body);
  } else if (optional_zero && len - 1 == static_cast<std::size_t>(w)) {
    out.append(sign);
    out.append(body.substr(1));
  } else {
    stars(out, w);
  }
}

// Fixed form of |x| * 10**shift with d decimals; the result of F, and of G
// when G chooses the fixed form (shift 0).
void fixed_body(double x, int shift, int d, std::string& body, bool& opt0) {
  std::string ip, fp;
  round_fixed(x, shift, d, ip, fp);
  opt0 = ip.empty() && d > 0;
  body = ip.empty() ? std::string("0") : ip;
  body.push_back('.');
  body += fp;
}

void field_F(std::string& out, double x, int w, int d, const Modes& m) {
  std::string body;
  bool opt0;
  fixed_body(x, m.scale, d, body, opt0);
  fit(out, w, sign_of(std::signbit(x), m), body, opt0, true);
}

// Appends the exponent part for exponent ex; false when it cannot be shown
// in the digits available. Without Ee the exponent takes two digits after
// the letter, or three in place of the letter.
bool exponent_part(std::string& s, int ex, int e, char letter, bool zero_width) {
  int ae = ex < 0 ? -ex : ex;
  char sg = ex < 0 ? '-' : '+';
  int nd;
  if (zero_width) {
    // The minimal forms leave out an exponent of zero altogether.
    if (ex == 0) return true;
    nd = ndigits(ae);
    if (e > 0) {
      if (nd > e) return false;
      nd = e;
    }
    s.push_back(letter);
  } else if (e > 0) {
    nd = e;
    if (ndigits(ae) > e) return false;
    s.push_back(letter);
  } else if (e == 0) {
    nd = ndigits(ae);
    s.push_back(letter);
  } else if (ae <= 99) {
    nd = 2;
    s.push_back(letter);
  } else if (ae <= 999) {
    nd = 3;
  } else {
    return false;
  }
  s.push_back(sg);
  std::string digs = std::to_string(ae);
  if (static_cast<int>(digs.size()) < nd) s.append(nd - digs.size(), '0');
  s += digs;
  return true;
}

// The exponent forms' common end: `mant` holds the digits and point, with
// the optional zero when `opt0`. An exponent too wide for its field fills
// the field with asterisks; a zero-width field then gets one fewer than the
// sign and digits would take, less the optional zero past kZeroWidthKeep.
void finish_exp(std::string& out, double x, int w, int e, int ex, char letter,
                std::string& mant, bool opt0, const Modes& m) {
  std::string_view sign = sign_of(std::signbit(x), m);
  std::size_t len = sign.size() + mant.size();
  if (!exponent_part(mant, ex, e, letter, w == 0)) {
    if (w == 0) {
      std::size_t n = len - 1;
      if (opt0 && n > kZeroWidthKeep) --n;
      stars(out, static_cast<int>(n));
    } else {
      stars(out, w);
    }
    return;
  }
  fit(out, w, sign, mant, opt0);
}

// Ew.dEe and Dw.d with scale factor k. False: k is out of range for d.
bool field_E(std::string& out, double x, int w, int d, int e, char letter,
             const Modes& m) {
  int k = m.scale;
  if (!(-d < k && k < d + 2)) return false;
  int nsig = k > 0 ? d + 1 : d + k;
  std::string dg;
  int ex = 0;
  if (x == 0) {
    dg.assign(nsig, '0');
  } else {
    Decimal r = round_significant(x, nsig);
    dg = std::move(r.digits);
    ex = r.exp - k;
  }
  std::string mant;
  if (k <= 0) {
    mant = "0.";
    mant.append(-k, '0');
    mant += dg;
  } else {
    mant = dg.substr(0, k);
    mant.push_back('.');
    mant += dg.substr(k);
  }
  finish_exp(out, x, w, e, ex, letter, mant, k <= 0, m);
  return true;
}

void field_ES(std::string& out, double x, int w, int d, int e,
              const Modes& m) {
  std::string dg;
  int ex = 0;
  if (x == 0) {
    dg.assign(d + 1, '0');
  } else {
    Decimal r = round_significant(x, d + 1);
    dg = std::move(r.digits);
    ex = r.exp - 1;
  }
  std::string mant = dg.substr(0, 1);
  mant.push_back('.');
  mant += dg.substr(1);
  finish_exp(out, x, w, e, ex, 'E', mant, false, m);
}

// ENw.dEe: one to three digits before the point and an exponent that is a
// multiple of three. When rounding carries into a new leading digit the
// digits are 100... and only the split of the exponent moves.
void field_EN(std::string& out, double x, int w, int d, int e,
              const Modes& m) {
  std::string dg;
  int ex = 0;
  int before = 1;
  auto split = [&](int t) {
    int r = ((t % 3) + 3) % 3;
    before = r + 1;
    ex = t - r;
  };
  if (x == 0) {
    dg.assign(d + 1, '0');
  } else {
    split(exact_exponent(x) - 1);
    Decimal r = round_significant(x, before + d);
    split(r.exp - 1);
    dg = std::move(r.digits);
    dg.resize(before + d, '0');
  }
  std::string mant = dg.substr(0, before);
  mant.push_back('.');
  mant += dg.substr(before, d);
  finish_exp(out, x, w, e, ex, 'E', mant, false, m);
}

// Gw.dEe on a real. False: the exponent form it needs has k out of range.
bool field_G(std::string& out, double x, int w, int d, int e, const Modes& m) {
  bool zero_width = w == 0;
  // G0 shows the precision of a double: 17 digits, one fewer after the
  // point in an exponent form with a positive scale factor.
  int de = d;
  if (zero_width && d <= 0) {
    d = 17;
    de = m.scale > 0 ? 16 : 17;
  }
  int n = zero_width ? 0 : (e > 0 ? e + 2 : 4);
  if (d == 0) return field_E(out, x, w, d, e, 'E', m);
  int decimals;
  if (x == 0) {
    decimals = d - 1;
  } else {
    // The fixed form with c digits before the point serves magnitudes up to
    // 10**c * (1 - 0.5 * 10**-d). The runtime evaluates these bounds in
    // double precision, so a value within an ulp of one falls on the side
    // the rounded bound puts it, and the digits are then rounded for the
    // form chosen.
    double ax = std::fabs(x);
    double f = 1.0 - 0.5 * pow10(-d);
    if (ax < f * 0.1) return field_E(out, x, w, de, e, 'E', m);
    int ex = exact_exponent(x);
    int c = ex > 1 ? ex - 1 : 0;
    int last = ex + 1 < d ? ex + 1 : d;
    while (c <= last && !(ax < f * pow10(c))) ++c;
    if (c > last) return field_E(out, x, w, de, e, 'E', m);
    decimals = d - c;
  }
  std::string body;
  bool opt0;
  fixed_body(x, 0, decimals, body, opt0);
  std::string_view sign = sign_of(std::signbit(x), m);
  if (zero_width) {
    fit(out, 0, sign, body, opt0);
    return true;
  }
  int fw = w - n;
  std::size_t len = sign.size() + body.size();
  if (fw <= 0 || len > static_cast<std::size_t>(fw) + (opt0 ? 1 : 0)) {
    stars(out, w);
    return true;
  }
  fit(out, fw, sign, body, opt0);
  out.append(n, ' ');
  return true;
}

void field_I(std::string& out, std::int64_t v, int w, int m,
             const Modes& md) {
  bool neg = v < 0;
  std::uint64_t mag = neg ? 0 - static_cast<std::uint64_t>(v)
                          : static_cast<std::uint64_t>(v);
  std::string digs;
  std::string_view sign = sign_of(neg, md);
  if (m == 0 && v == 0) {
    sign = "";
  } else {
    digs = std::to_string(mag);
    if (m > 0 && static_cast<int>(digs.size()) < m)
      digs.insert(0, m - digs.size(), '0');
  }
  std::size_t len = sign.size() + digs.size();
  if (w > 0 && len > static_cast<std::size_t>(w)) {
    stars(out, w);
    return;
  }
  if (w > 0) out.append(w - len, ' ');
  out.append(sign);
  out.append(digs);
}

void field_L(std::string& out, bool v, int w) {
  if (w > 1) out.append(w - 1, ' ');
  out.push_back(v ? 'T' : 'F');
}

void field_A(std::string& out, std::string_view s, int w) {
  if (w < 0) {
    out.append(s);
  } else if (static_cast<std::size_t>(w) > s.size()) {
    out.append(w - s.size(), ' ');
    out.append(s);
  } else {
    out.append(s.substr(0, w));
  }
}

bool is_realop(Op op) {
  return op == Op::F || op == Op::E || op == Op::EN || op == Op::ES ||
         op == Op::D || op == Op::G;
}

// One item under one data descriptor.
Status field(std::string& out, const Tok& t, const Item& it, const Modes& m) {
  using K = Item::Kind;
  Op op = t.op;
  if (op == Op::G && it.kind != K::Real) {
    // G edits integers like I, logicals like L and text like A.
    if (it.kind == K::Int) {
      field_I(out, it.i, t.w, -1, m);
    } else if (it.kind == K::Logical) {
      field_L(out, it.l, t.w == 0 ? 1 : t.w);
    } else {
      field_A(out, it.s, t.w == 0 ? -1 : t.w);
    }
    return Ok;
  }
  switch (op) {
    case Op::I:
      if (it.kind != K::Int) return ItemMismatch;
      field_I(out, it.i, t.w, t.d, m);
      return Ok;
    case Op::L:
      if (it.kind != K::Logical) return ItemMismatch;
      field_L(out, it.l, t.w <= 0 ? 1 : t.w);
      return Ok;
    case Op::A:
      if (it.kind != K::Text) return ItemMismatch;
      field_A(out, it.s, t.w);
      return Ok;
    default:
      break;
  }
  if (!is_realop(op) || it.kind != K::Real) return ItemMismatch;
  double x = it.r;
  Tok t0;
  if (t.w == 0 && t.d == 0 && op != Op::F && op != Op::G) {
    // E0.0, ES0.0 and the like show the full precision of a double.
    t0 = t;
    t0.d = 17;
    return field(out, t0, it, m);
  }
  if (!std::isfinite(x)) {
    nonfinite(out, x, t.w, m);
    return Ok;
  }
  switch (op) {
    case Op::F:
      field_F(out, x, t.w, t.d, m);
      return Ok;
    case Op::E:
      return field_E(out, x, t.w, t.d, t.e, 'E', m) ? Ok : BadFormat;
    case Op::D:
      return field_E(out, x, t.w, t.d, -1, 'D', m) ? Ok : BadFormat;
    case Op::ES:
      field_ES(out, x, t.w, t.d, t.e, m);
      return Ok;
    case Op::EN:
      field_EN(out, x, t.w, t.d, t.e, m);
      return Ok;
    default:
      return field_G(out, x, t.w, t.d, t.e, m) ? Ok : BadFormat;
  }
}

// Where finished records go.
class Sink {
 public:
  virtual ~Sink() = default;
  // Longest record allowed.
  virtual std::int64_t limit() const = 0;
  // Stores a finished record.
  virtual void store(const std::string& rec) = 0;
  // Whether another record may follow the ones stored.
  virtual bool room() const = 0;
  int count = 0;  // records stored
};

class FixedSink final : public Sink {
 public:
  FixedSink(char* buf, int reclen, int nrec)
      : buf_(buf), reclen_(reclen), nrec_(nrec) {}
  std::int64_t limit() const override { return reclen_; }
  void store(const std::string& rec) override {
    char* dst = buf_ + static_cast<std::size_t>(count) * reclen_;
    std::size_t n = rec.size() < static_cast<std::size_t>(reclen_)
                        ? rec.size()
                        : static_cast<std::size_t>(reclen_);
    std::memcpy(dst, rec.data(), n);
    std::memset(dst + n, ' ', reclen_ - n);
    ++count;
  }
  bool room() const override { return count < nrec_; }

 private:
  char* buf_;
  int reclen_;
  int nrec_;
};

class VectorSink final : public Sink {
 public:
  explicit VectorSink(std::vector<std::string>& v) : v_(v) {}
  std::int64_t limit() const override { return kMaxRecordLength; }
  void store(const std::string& rec) override {
    v_.push_back(rec);
    ++count;
  }
  bool room() const override { return v_.size() < kMaxRecords; }

 private:
  std::vector<std::string>& v_;
};

class Writer {
 public:
  Writer(const Program& p, ItemSource& src, Sink& sink)
      : prog_(p), cur_(p), src_(src), sink_(sink) {}

  Status run() {
    if (!sink_.room()) return TooManyRecords;
    Status st = body();
    if (beyond_) {
      // The record begun last does not exist; that is an error only now.
      return st == Ok ? TooManyRecords : st;
    }
    // The record in hand is stored whether or not the write failed, so a
    // failed write still shows how far it got.
    sink_.store(line_);
    return st;
  }

 private:
  const Program& prog_;
  Cursor cur_;
  ItemSource& src_;
  Sink& sink_;
  Modes modes_;
  bool have_held_ = false;
  bool exhausted_ = false;
  Passes passes_{false};
  bool beyond_ = false;     // the current record lies past the last one
  Item held_;
  std::string line_;     // the record so far: exactly `maxpos_` characters
  std::string field_;    // scratch for one field
  std::int64_t pos_ = 0;      // end of the last transfer
  std::int64_t skips_ = 0;    // pending move from pos_
  std::int64_t pending_ = 0;  // blanks owed past maxpos_ at the next transfer
  std::int64_t maxpos_ = 0;   // length of the record so far
  std::int64_t back_ = 0;     // TL moves since the last transfer

  // Whether an item remains, fetching it ahead, with `need` the need of the
  // data descriptor that will take it.
  bool more_items(Need need) {
    if (have_held_) return true;
    if (exhausted_) return false;
    if (src_.next(need, held_)) {
      have_held_ = true;
      return true;
    }
    exhausted_ = true;
    return false;
  }

  Status emit(std::string_view text) {
    if (beyond_) return TooManyRecords;
    std::int64_t p = pos_ + skips_;
    // A run of tabs can take the position left of the record's start: that
    // stops at the start before any transfer, and is otherwise reported as
    // an end-of-file condition, as the runtime does.
    if (p < 0) {
      if (pos_ != 0) return TooManyRecords;
      p = 0;
    }
    std::int64_t len = static_cast<std::int64_t>(text.size());
    if (p + len > sink_.limit()) return RecordOverflow;
    if (p > maxpos_) line_.append(p - maxpos_, ' ');
    if (p + len > static_cast<std::int64_t>(line_.size()))
      line_.resize(p + len, ' ');
    // Moving right, the runtime lays the blanks it owes just before the
    // field, over whatever an earlier transfer left there, unless TL had
    // gone back past the record's end as seen from the last transfer.
    if (skips_ > 0 && pending_ > 0 && pos_ + back_ <= maxpos_) {
      std::int64_t n = pending_ < skips_ ? pending_ : skips_;
      std::memset(&line_[p - n], ' ', n);
    }
    if (len > 0) std::memcpy(&line_[p], text.data(), text.size());
    pos_ = p + len;
    skips_ = 0;
    pending_ = 0;
    back_ = 0;
    if (pos_ > maxpos_) maxpos_ = pos_;
    return Ok;
  }

  // Ends the record in hand. Moving past the last record is an error only
  // once something is written there or the statement ends, as with the
  // runtime: a format error met first is the one reported.
  Status new_record() {
    if (beyond_) return TooManyRecords;
    sink_.store(line_);
    line_.clear();
    pos_ = skips_ = pending_ = maxpos_ = back_ = 0;
    if (!sink_.room()) beyond_ = true;
    return Ok;
  }

  void move(const Tok& t) {
    std::int64_t n = t.n;
    switch (t.op) {
      case Op::X:
      case Op::TR:
        skips_ += n;
        pending_ = pos_ + skips_ - maxpos_;
        break;
      case Op::TL: {
        // TL goes back at most to the end of the last transfer; before any
        // transfer, at most to the start of the record.
        std::int64_t room = pos_ > 0 ? pos_ : (skips_ > 0 ? skips_ : 0);
        std::int64_t d = -(n < room ? n : room);
        back_ -= d;
        skips_ += d;
        std::int64_t pnew = pos_ + pending_ + d - maxpos_;
        pending_ = pnew > 0 ? pnew : 0;
        break;
      }
      default: {  // T
        std::int64_t from = pos_ + pending_;
        std::int64_t d = (n - 1) - from;
        if (d < 0 && -d > pos_) d = -pos_;
        skips_ += d;
        std::int64_t pnew = from + d - maxpos_;
        pending_ = pnew > 0 ? pnew : 0;
      }
    }
  }

  Status body() {
    for (;;) {
      const Tok* t = cur_.step();
      if (t == nullptr) {
        if (cur_.runaway()) return BadFormat;
        // At the end of the format the next item would go to the first
        // data descriptor after the reversion point.
        Need need = Need::Real;
        for (std::size_t k = prog_.revert; k < prog_.toks.size(); ++k) {
          if (is_data(prog_.toks[k].op)) {
            need = need_of(prog_.toks[k].op);
            break;
          }
        }
        if (!more_items(need)) return Ok;
        switch (passes_.at_end(prog_.has_colon)) {
          case AtEnd::Restart:
            cur_.restart();
            continue;
          case AtEnd::Again:
            cur_.revert();
            continue;
          case AtEnd::Fail:
            return BadFormat;
          case AtEnd::Revert:
            break;
        }
        if (Status st = new_record(); st != Ok) return st;
        cur_.revert();
        continue;
      }
      Status st = Ok;
      switch (t->op) {
        case Op::Colon: {
          Need need = Need::Real;
          cur_.peek_need(need);
          if (!more_items(need)) return Ok;
          break;
        }
        case Op::Slash:
          st = new_record();
          break;
        case Op::Lit:
          st = emit(std::string_view(prog_.text).substr(t->lit, t->litlen));
          break;
        case Op::X:
        case Op::T:
        case Op::TL:
        case Op::TR:
          move(*t);
          break;
        case Op::P:
          modes_.scale = t->n;
          break;
        case Op::SP:
          modes_.plus = true;
          break;
        case Op::SS:
        case Op::S:
          modes_.plus = false;
          break;
        case Op::BN:
        case Op::BZ:
        case Op::Dollar:
          break;
        default: {  // data
          if (!more_items(need_of(t->op))) return Ok;
          have_held_ = false;
          passes_.took_item();
          cur_.reset_idle();
          field_.clear();
          st = field(field_, *t, held_, modes_);
          if (st == Ok) st = emit(field_);
        }
      }
      if (st != Ok) return st;
    }
  }
};

}  // namespace

}  // namespace zeb::fmt::detail

namespace zeb::fmt {

Status write_internal(std::string_view format, ItemSource& items, char* buf,
                      int reclen, int nrec, int* nused) {
  if (nused) *nused = 0;
  detail::Program prog;
  if (detail::compile(format, prog) != Ok) return BadFormat;
  if (buf == nullptr || reclen < 0) nrec = 0;
  detail::FixedSink sink(buf, reclen, nrec);
  detail::Writer w(prog, items, sink);
  Status st = w.run();
  if (nused) *nused = sink.count;
  return st;
}

Status write_records(std::string_view format, ItemSource& items,
                     std::vector<std::string>& records) {
  detail::Program prog;
  if (detail::compile(format, prog) != Ok) return BadFormat;
  detail::VectorSink sink(records);
  detail::Writer w(prog, items, sink);
  return w.run();
}

}  // namespace zeb::fmt
