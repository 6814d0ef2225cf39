#include "zeb_x_ib_helpers.h"

int x05aazn(std::string_view digits) {
  int v = 0;
  for (const char c : digits) {
    if (c == ' ') {
      v *= 10;
    } else if (c >= '0' && c <= '9') {
      v = 10 * v + (c - '0');
    } else {
      return 0;
    }
    // A field of a date text has at most four digits; a longer one cannot
    // be a date and must not overflow.
    if (v > 99999999) return 0;
  }
  return v;
}
