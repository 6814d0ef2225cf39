#include "zeb_x_ib.h"

// Decimal digits of precision.
int x02befn() { return 15; }
