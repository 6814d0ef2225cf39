#include "zeb_w_ib_aux.h"

// Written as a comparison, not copysign: b = -0.0 passes the test b >= 0 and
// keeps a, and a NaN b fails it and gives -a.
double w00aazn(double a, double b) { return b >= 0.0 ? a : -a; }
