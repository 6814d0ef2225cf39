#include "zeb_x_ib.h"

namespace {
// The error message unit: where failure messages and the call trace go.
int error_unit = 6;
}  // namespace

void x04aafn(int iflag, int& nerr) {
  if (iflag == 0) {
    nerr = error_unit;
  } else if (iflag == 1) {
    error_unit = nerr;
  }
}
