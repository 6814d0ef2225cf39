#include "zeb_x_ib.h"

// The largest integer.
int x02bbfn() { return 2147483647; }
