#include "zeb_x_ib_aux.h"

void x04aazn(int nout) {
  if (nout >= 0) zeb_unit_flush(nout);
}
