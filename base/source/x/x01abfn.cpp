#include "zeb_x_ib.h"

// Euler's constant, correctly rounded.
double x01abfn() { return 0.5772156649015329; }
