#include "zeb_x_ib.h"

// Pi, correctly rounded.
double x01aafn() { return 3.141592653589793; }
