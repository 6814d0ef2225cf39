#include <cmath>
#include <cstring>

#include "zeb_x_ib.h"
#include "zeb_x_ib_aux.h"

namespace {

int decimal_digits(long long v) {
  int n = 1;
  if (v < 0) v = -v;
  while (v >= 10) {
    v /= 10;
    ++n;
  }
  return n;
}

}  // namespace

// FORM "*": every significant digit of a real. The digit count is the
// mantissa's digits in the base times log10 of the base, rounded up (16 for
// binary64); the field adds the digits of the model's exponent limits (4 for
// -1021 and 1024) and three places for sign, point and exponent letter, so
// that a blank always separates neighbouring columns. Width and digits are
// written by "(I3)" into the template "1P,E   .   ".
int x04cbvn(char* form) {
  const double lb = std::log10(static_cast<double>(x02bhfn()));
  const int digits = static_cast<int>(std::ceil(x02bjfn() * lb));
  const long long emin = x02bkfn();
  const long long emax = x02blfn();
  const int edigits = decimal_digits(emax > -emin ? emax : -emin);
  const int w = digits + edigits + 3;
  static constexpr char templ[] = "1P,E   .   ";
  const int n = static_cast<int>(sizeof(templ) - 1);
  std::memcpy(form, templ, n);
  zeb::write_lines("(I3)", {w}, form + 4, 3, 1);
  zeb::write_lines("(I3)", {digits - 1}, form + 8, 3, 1);
  return n;
}
