#include "zeb_x_ib_aux.h"

void x04aayn() {
  for (int unit = 6; unit <= 20; ++unit) {
    if (zeb_unit_isopen(unit) != 0) x04aazn(unit);
  }
}
