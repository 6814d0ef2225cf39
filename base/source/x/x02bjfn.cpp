#include "zeb_x_ib.h"

// Digits in the base.
int x02bjfn() { return 53; }
