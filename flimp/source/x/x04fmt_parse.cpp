// Compiling a format into tokens, and the cursor that walks
// the tokens with the repeat, group and reversion rules of formatted I/O.
//
// The grammar accepted is that of the gfortran runtime: blanks are ignored
// outside literals, case does not matter, commas between items may be left
// out, a trailing comma before ')' is accepted, text after the final ')' is
// ignored. A scale factor must be followed by a comma unless an F, E, EN, ES,
// D or G descriptor, a number or '/' comes next.
#include "x04fmt_internal.h"

namespace zeb::fmt::detail {

namespace {

class Parser {
 public:
  Parser(std::string_view s, Program& p) : s_(s), p_(p) {}

  bool run() {
    if (peek() != '(') return false;
    ++i_;
    if (!list(1)) return false;
    p_.revert = last_top_group_;
    for (std::size_t k = 0; k < p_.toks.size(); ++k) {
      if (p_.toks[k].op == Op::Colon) p_.has_colon = true;
      if (is_data(p_.toks[k].op) && static_cast<int>(k) >= p_.revert)
        p_.revert_has_data = true;
    }
    return true;
  }

 private:
  std::string_view s_;
  Program& p_;
  std::size_t i_ = 0;
  int last_top_group_ = 0;

  // Upper case by ASCII alone, whatever the locale.
  static char upper(char c) {
    return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
  }

  void skip() {
    while (i_ < s_.size() && (s_[i_] == ' ' || s_[i_] == '\t')) ++i_;
  }
  // Next significant character, upper-cased; '\0' at the end.
  char peek() {
    skip();
    if (i_ >= s_.size()) return '\0';
    return upper(s_[i_]);
  }
  // Significant character after the next one (for two-letter keywords).
  char peek2() {
    skip();
    std::size_t j = i_ + 1;
    while (j < s_.size() && (s_[j] == ' ' || s_[j] == '\t')) ++j;
    if (j >= s_.size()) return '\0';
    return upper(s_[j]);
  }
  static bool digit(char c) { return c >= '0' && c <= '9'; }

  // An unsigned number, blanks allowed between its digits. False when there
  // is no digit or it exceeds the bound.
  bool number(int& v) {
    if (!digit(peek())) return false;
    long long acc = 0;
    while (digit(peek())) {
      acc = acc * 10 + (s_[i_] - '0');
      if (acc > kMaxCount) return false;
      ++i_;
    }
    v = static_cast<int>(acc);
    return true;
  }

  Tok& emit(Op op) {
    p_.toks.push_back(Tok{});
    p_.toks.back().op = op;
    return p_.toks.back();
  }

  bool literal(char q) {
    ++i_;  // opening quote
    std::size_t start = p_.text.size();
    for (;;) {
      if (i_ >= s_.size()) return false;
      char c = s_[i_++];
      if (c == q) {
        if (i_ < s_.size() && s_[i_] == q) {
          p_.text.push_back(q);
          ++i_;
          continue;
        }
        break;
      }
      p_.text.push_back(c);
    }
    Tok& t = emit(Op::Lit);
    t.lit = static_cast<std::uint32_t>(start);
    t.litlen = static_cast<std::uint32_t>(p_.text.size() - start);
    return true;
  }

  bool hollerith(int n) {
    // The n characters after H are taken as they are, blanks included.
    if (s_.size() - i_ < static_cast<std::size_t>(n)) return false;
    std::size_t start = p_.text.size();
    p_.text.append(s_.substr(i_, n));
    i_ += n;
    Tok& t = emit(Op::Lit);
    t.lit = static_cast<std::uint32_t>(start);
    t.litlen = static_cast<std::uint32_t>(n);
    return true;
  }

  bool group(int rep, int depth) {
    if (depth >= kMaxDepth) return false;
    ++i_;  // '('
    int open = static_cast<int>(p_.toks.size());
    emit(Op::Open).rep = rep;
    if (depth == 1) last_top_group_ = open;
    if (!list(depth + 1)) return false;
    int close = static_cast<int>(p_.toks.size());
    emit(Op::Close).n = open;
    p_.toks[open].n = close;
    return true;
  }

  bool data(char letter, int rep) {
    Op op;
    ++i_;
    switch (letter) {
      case 'I': op = Op::I; break;
      case 'F': op = Op::F; break;
      case 'D': op = Op::D; break;
      case 'G': op = Op::G; break;
      case 'A': op = Op::A; break;
      case 'L': op = Op::L; break;
      default: {  // 'E'
        char c = peek();
        if (c == 'N') {
          op = Op::EN;
          ++i_;
        } else if (c == 'S') {
          op = Op::ES;
          ++i_;
        } else {
          op = Op::E;
        }
      }
    }
    Tok t;
    t.op = op;
    t.rep = rep;
    if (op == Op::A || op == Op::L) {
      if (digit(peek())) {
        if (!number(t.w)) return false;
        if (op == Op::A && t.w == 0) return false;
      }
      p_.toks.push_back(t);
      return true;
    }
    if (!number(t.w)) return false;
    if (op == Op::I) {
      if (peek() == '.') {
        ++i_;
        if (!number(t.d)) return false;
        if (t.w > 0 && t.d > t.w) return false;
      }
      p_.toks.push_back(t);
      return true;
    }
    if (peek() == '.') {
      ++i_;
      if (!number(t.d)) return false;
    } else if (t.w == 0 && op == Op::F) {
      t.d = 0;
    } else if (!(t.w == 0 && op == Op::G)) {
      return false;
    }
    if (op != Op::F && op != Op::D && t.d >= 0 && peek() == 'E' &&
        digit(peek2())) {
      ++i_;
      if (!number(t.e)) return false;
    }
    p_.toks.push_back(t);
    return true;
  }

  // After kP: a comma, ')', '/', a number or a real descriptor must follow.
  bool after_scale() {
    char c = peek();
    return c == ',' || c == ')' || c == '/' || digit(c) || c == '+' ||
           c == '-' || c == 'F' || c == 'E' || c == 'D' || c == 'G';
  }

  bool item(int depth) {
    char c = peek();
    if (digit(c) || c == '+' || c == '-') {
      bool sign = false, neg = false;
      if (c == '+' || c == '-') {
        sign = true;
        neg = c == '-';
        ++i_;
      }
      int n = 0;
      if (!number(n)) return false;
      char c2 = peek();
      if (c2 == 'P') {
        ++i_;
        emit(Op::P).n = neg ? -n : n;
        return after_scale();
      }
      if (sign || n == 0) return false;
      switch (c2) {
        case 'X':
          ++i_;
          emit(Op::X).n = n;
          return true;
        case 'H':
          ++i_;
          return hollerith(n);
        case '(':
          return group(n, depth);
        case '/':
          ++i_;
          emit(Op::Slash).rep = n;
          return true;
        case 'I': case 'F': case 'E': case 'D': case 'G': case 'A': case 'L':
          return data(c2, n);
        default:
          return false;
      }
    }
    switch (c) {
      case '*':
        ++i_;
        if (peek() != '(') return false;
        return group(kUnlimited, depth);
      case '(':
        return group(1, depth);
      case '\'':
      case '"':
        return literal(s_[i_]);
      case '/':
        ++i_;
        emit(Op::Slash);
        return true;
      case ':':
        ++i_;
        emit(Op::Colon);
        return true;
      case '$':
        ++i_;
        emit(Op::Dollar);
        return true;
      case 'X':
        ++i_;
        emit(Op::X).n = 1;
        return true;
      case 'T': {
        ++i_;
        Op op = Op::T;
        char c2 = peek();
        if (c2 == 'L' || c2 == 'R') {
          op = c2 == 'L' ? Op::TL : Op::TR;
          ++i_;
        }
        int n = 0;
        if (!number(n) || n == 0) return false;
        emit(op).n = n;
        return true;
      }
      case 'B': {
        ++i_;
        char c2 = peek();
        if (c2 != 'N' && c2 != 'Z') return false;
        ++i_;
        emit(c2 == 'N' ? Op::BN : Op::BZ);
        return true;
      }
      case 'S': {
        ++i_;
        char c2 = peek();
        if (c2 == 'P' || c2 == 'S') {
          ++i_;
          emit(c2 == 'P' ? Op::SP : Op::SS);
        } else {
          emit(Op::S);
        }
        return true;
      }
      case 'I': case 'F': case 'E': case 'D': case 'G': case 'A': case 'L':
        return data(c, 1);
      default:
        return false;
    }
  }

  // Items up to and including the ')' closing a list opened at `depth`.
  bool list(int depth) {
    bool have_item = false;  // an item since the last comma
    for (;;) {
      char c = peek();
      if (c == '\0') return false;
      if (c == ')') {
        ++i_;
        return true;
      }
      if (c == ',') {
        if (!have_item) return false;
        have_item = false;
        ++i_;
        continue;
      }
      if (!item(depth)) return false;
      have_item = true;
    }
  }
};

}  // namespace

Status compile(std::string_view format, Program& prog) {
  prog = Program{};
  Parser parser(format, prog);
  if (!parser.run()) return BadFormat;
  return Ok;
}

Need need_of(Op op) {
  switch (op) {
    case Op::I: return Need::Int;
    case Op::L: return Need::Logical;
    case Op::A: return Need::Text;
    default: return Need::Real;
  }
}

const Tok* Cursor::step() {
  const std::vector<Tok>& toks = p_->toks;
  for (;;) {
    if (++idle_ > kMaxIdleSteps) {
      runaway_ = true;
      return nullptr;
    }
    if (pc_ >= static_cast<int>(toks.size())) return nullptr;
    const Tok& t = toks[pc_];
    if (t.op == Op::Open) {
      stack_.push_back(Frame{pc_, t.rep});
      ++pc_;
      continue;
    }
    if (t.op == Op::Close) {
      Frame& f = stack_.back();
      if (f.left == kUnlimited || --f.left > 0) {
        pc_ = f.open + 1;
      } else {
        stack_.pop_back();
        ++pc_;
      }
      continue;
    }
    if (t.rep > 1 && ++rep_done_ < t.rep) return &t;
    rep_done_ = 0;
    ++pc_;
    return &t;
  }
}

void Cursor::revert() {
  pc_ = p_->revert;
  rep_done_ = 0;
  stack_.clear();
}

void Cursor::restart() {
  pc_ = 0;
  rep_done_ = 0;
  stack_.clear();
}

bool Cursor::peek_need(Need& need) const {
  Cursor c = *this;
  bool reverted = false;
  for (;;) {
    const Tok* t = c.step();
    if (t == nullptr) {
      if (c.runaway_ || reverted || !p_->revert_has_data) return false;
      reverted = true;
      c.revert();
      continue;
    }
    if (is_data(t->op)) {
      need = need_of(t->op);
      return true;
    }
  }
}

}  // namespace zeb::fmt::detail

namespace zeb::fmt {

bool valid_format(std::string_view format) {
  detail::Program prog;
  return detail::compile(format, prog) == Ok;
}

}  // namespace zeb::fmt
