#include "zeb_x_ib.h"

namespace {
// The advisory message unit: where solvers write their monitoring output.
int advisory_unit = 6;
}  // namespace

void x04abfn(int iflag, int& nadv) {
  if (iflag == 0) {
    nadv = advisory_unit;
  } else if (iflag == 1) {
    advisory_unit = nadv;
  }
}
