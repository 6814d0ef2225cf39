#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <string>

#include "zeb_p_ib_aux.h"
#include "zeb_x_ib.h"

// The token is taken apart by hand (sign, mantissa, exponent with or without
// its letter, as the I, F, E and 1P,E descriptors print them: "1.234+100" has
// a bare sign) and put together again as a plain decimal text that the C
// library converts with correct rounding. A value beyond the largest real is
// an overflow (status -102, the largest real); a nonzero value that
// underflows to zero comes back as the safe-range constant, so that a tiny
// item prints as tiny, not as zero.
void p01abgu(std::string_view token, double& value, int& status) {
  static constexpr std::string_view numchars = "0123456789.eEdD+-";
  status = 0;
  value = 0.0;
  std::size_t i = 0;
  while (i < token.size() && token[i] == ' ') ++i;
  std::size_t end = i;
  while (end < token.size() && numchars.find(token[end]) != std::string_view::npos) ++end;
  std::string_view t = token.substr(i, end - i);

  bool negative = false;
  if (!t.empty() && t[0] == '-') {
    negative = true;
    t.remove_prefix(1);
  }
  // The mantissa ends at the first exponent letter or sign after its first
  // character.
  std::size_t m = 1;
  while (m < t.size() && std::string_view("eEdD+-").find(t[m]) == std::string_view::npos) ++m;
  if (m > t.size()) m = t.size();
  std::string mant(t.substr(0, m));
  std::string_view ex = t.substr(m);
  if (!ex.empty() && std::string_view("eEdD").find(ex[0]) != std::string_view::npos) {
    ex.remove_prefix(1);
  }
  bool nonzero = false;
  for (char c : mant) nonzero = nonzero || (c >= '1' && c <= '9');

  long exponent = 0;
  bool exp_negative = false;
  if (!ex.empty() && (ex[0] == '+' || ex[0] == '-')) {
    exp_negative = ex[0] == '-';
    ex.remove_prefix(1);
  }
  for (char c : ex) {
    if (c < '0' || c > '9') break;
    if (exponent < 100000) exponent = exponent * 10 + (c - '0');
  }
  if (exp_negative) exponent = -exponent;

  std::string text;
  for (char c : mant) {
    if ((c >= '0' && c <= '9') || c == '.') text += c;
  }
  if (text.empty() || text == ".") text = "0";
  text += 'e';
  text += std::to_string(exponent);
  errno = 0;
  double v = std::strtod(text.c_str(), nullptr);
  if (std::isinf(v) || v > x02alfn()) {
    status = -102;
    v = x02alfn();
  } else if (v == 0.0 && nonzero) {
    v = x02amfn();
  }
  value = negative ? -v : v;
}
