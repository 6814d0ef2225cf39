#include "zeb_x_ib.h"

// The largest argument for which sin and cos keep their accuracy.
double x02ahfn() { return 1.42724769270596e+45; }
