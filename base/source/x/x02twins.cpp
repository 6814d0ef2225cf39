#include "zeb_x_ib.h"
#include "zeb_x_ib_aux.h"

// Single-precision twins: binary32 values of the same model constants.
float x02ajen() { return 0x1p-24f; }
float x02aken() { return 0x1p-126f; }
float x02alen() { return 0x1.fffffep+127f; }
// One step above the smallest normal number, as in double precision.
float x02amen() { return 0x1.000002p-126f; }
float x02anen() { return x02amen(); }
int x02bjen() { return 24; }
int x02bken() { return -125; }
int x02blen() { return 128; }
