#include "zeb_x_ib.h"

// The complex safe range: the same as the real one.
double x02anfn() { return x02amfn(); }
