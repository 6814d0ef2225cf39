#include "zeb_x_ib.h"

// The largest finite number.
double x02alfn() { return 0x1.fffffffffffffp+1023; }
