// Decimal conversions for the format engine.
//
// Output rounds the exact binary value of a double to the digits a field
// shows, ties to even, which is what the Fortran runtime does through the C
// library. std::to_chars gives correctly rounded digits at any precision
// without regard to the locale. A first conversion to 41 significant digits
// settles almost every case; when the digits dropped by the field's rounding
// read exactly 5000..., that conversion may itself have rounded, so the exact
// expansion (767 digits always suffice for a double) decides.
#include <charconv>
#include <cmath>
#include <cstring>
#include <string>
#include <system_error>

#include "x04fmt_internal.h"

namespace zeb::fmt::detail {

namespace {

constexpr int kFastPrecision = 40;   // digits after the first in the fast path
constexpr int kExactPrecision = 766; // makes every double's expansion exact

// Digits and exponent (0.ddd form) of |x| printed with `prec` digits after
// the first significant one.
Decimal scientific(double ax, int prec) {
  char buf[kExactPrecision + 32];
  auto res = std::to_chars(buf, buf + sizeof buf, ax,
                           std::chars_format::scientific, prec);
  Decimal out;
  const char* p = buf;
  const char* end = res.ptr;
  out.digits.reserve(prec + 1);
  out.digits.push_back(*p++);
  if (p < end && *p == '.') ++p;
  while (p < end && *p != 'e') out.digits.push_back(*p++);
  int e = 0;
  if (p < end) {
    ++p;
    bool neg = *p == '-';
    ++p;
    while (p < end) e = e * 10 + (*p++ - '0');
    if (neg) e = -e;
  }
  out.exp = e + 1;
  return out;
}

bool all_zero(const std::string& s, std::size_t from) {
  for (std::size_t i = from; i < s.size(); ++i)
    if (s[i] != '0') return false;
  return true;
}

// Adds one unit in the last place of `digits`; on a carry out of the first
// digit the string becomes 100... of the same length and `exp` grows by one.
void increment(std::string& digits, int& exp) {
  for (std::size_t i = digits.size(); i-- > 0;) {
    if (digits[i] != '9') {
      ++digits[i];
      return;
    }
    digits[i] = '0';
  }
  if (!digits.empty()) digits[0] = '1';
  ++exp;
}

// Rounds `src` to `nsig` digits, ties to even. The caller makes sure that
// src is exact wherever the dropped tail reads 5000..., so that the tie is
// true.
Decimal round_digits(const Decimal& src, int nsig) {
  Decimal out;
  out.exp = src.exp;
  out.digits = src.digits.substr(0, nsig);
  if (static_cast<int>(out.digits.size()) < nsig)
    out.digits.append(nsig - out.digits.size(), '0');
  if (static_cast<std::size_t>(nsig) >= src.digits.size()) return out;
  char first = src.digits[nsig];
  bool up;
  if (first != '5') {
    up = first > '5';
  } else if (!all_zero(src.digits, nsig + 1)) {
    up = true;
  } else {
    int last = nsig > 0 ? src.digits[nsig - 1] - '0' : 0;
    up = (last & 1) != 0;
  }
  if (up) increment(out.digits, out.exp);
  return out;
}

}  // namespace

Decimal round_significant(double x, int nsig) {
  double ax = std::fabs(x);
  if (nsig <= kFastPrecision - 2) {
    Decimal fast = scientific(ax, kFastPrecision);
    // A dropped tail of exactly 5000... may hide a value on either side.
    bool doubtful =
        fast.digits[nsig] == '5' && all_zero(fast.digits, nsig + 1);
    if (!doubtful) return round_digits(fast, nsig);
  }
  return round_digits(scientific(ax, kExactPrecision), nsig);
}

int exact_exponent(double x) {
  double ax = std::fabs(x);
  Decimal fast = scientific(ax, kFastPrecision);
  // Only a value just below a power of ten can print as 1000... with an
  // exponent one too large.
  if (fast.digits[0] != '1' || !all_zero(fast.digits, 1)) return fast.exp;
  return scientific(ax, kExactPrecision).exp;
}

void round_fixed(double x, int shift, int ndec, std::string& int_part,
                 std::string& frac_part) {
  int_part.clear();
  frac_part.assign(ndec, '0');
  if (x == 0) return;
  int e = exact_exponent(x) + shift;  // |x| * 10**shift = 0.ddd * 10**e
  long q = static_cast<long>(e) + ndec;  // significant digits kept
  if (q < 0) return;
  if (q == 0) {
    // Every digit lies below the last place: round up past one half.
    Decimal fast = scientific(std::fabs(x), kFastPrecision);
    bool up = fast.digits[0] > '5' ||
              (fast.digits[0] == '5' && !all_zero(fast.digits, 1));
    if (fast.digits[0] == '5' && all_zero(fast.digits, 1)) {
      Decimal exact = scientific(std::fabs(x), kExactPrecision);
      up = !all_zero(exact.digits, 1);
    }
    if (up) {
      if (ndec > 0)
        frac_part[ndec - 1] = '1';
      else
        int_part.assign(1, '1');
    }
    return;
  }
  Decimal r = round_significant(x, static_cast<int>(q));
  int ex = r.exp + shift;  // a carry may have raised the exponent
  // Value = 0.digits * 10**ex; digits carries q (or q+1 after a carry
  // counted through ex) significant places.
  const std::string& dg = r.digits;
  auto digit_at = [&](long i) -> char {  // i-th digit of 0.digits
    return (i >= 0 && i < static_cast<long>(dg.size())) ? dg[i] : '0';
  };
  if (ex > 0) {
    int_part.reserve(ex);
    for (long i = 0; i < ex; ++i) int_part.push_back(digit_at(i));
  }
  for (long j = 0; j < ndec; ++j) frac_part[j] = digit_at(ex + j);
}

double pow10(int n) {
  static constexpr double exact[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,
                                     1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                     1e12, 1e13, 1e14, 1e15, 1e16, 1e17,
                                     1e18, 1e19, 1e20, 1e21, 1e22};
  if (n >= 0 && n <= 22) return exact[n];
  if (n > 400) return HUGE_VAL;
  if (n < -400) return 0.0;
  return decimal_to_double("1", n, false);
}

double decimal_to_double(std::string_view digits, long exp10, bool negative) {
  std::size_t first = 0;
  while (first < digits.size() && digits[first] == '0') ++first;
  digits = digits.substr(first);
  if (digits.empty()) return negative ? -0.0 : 0.0;
  // Far beyond the range of doubles either way: settle without parsing.
  long mag = static_cast<long>(digits.size()) + exp10;
  if (mag > 400) return negative ? -HUGE_VAL : HUGE_VAL;
  if (mag < -400) return negative ? -0.0 : 0.0;
  std::string s(digits);
  s.push_back('e');
  s += std::to_string(exp10);
  double v = 0;
  auto res = std::from_chars(s.data(), s.data() + s.size(), v);
  if (res.ec == std::errc::result_out_of_range) {
    // from_chars leaves the value alone on range errors; the runtime gives
    // an infinity on overflow and zero on underflow.
    v = mag > 0 ? HUGE_VAL : 0.0;
  }
  return negative ? -v : v;
}

}  // namespace zeb::fmt::detail
