#include "zeb_x_ib.h"

// The smallest positive normal number.
double x02akfn() { return 0x1p-1022; }
