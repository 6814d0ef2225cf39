#include "zeb_x_ib_aux.h"

// Writes one record of a direct-access file opened by x04acxn.
int x04acwn(int iounit, int rec, const void* data, int nbytes) {
  if (rec < 1 || nbytes < 0) return 2;
  return zeb_direct_write(iounit, rec, data, nbytes) == 0 ? 0 : 2;
}
