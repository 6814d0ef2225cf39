#include "zeb_x_ib_aux.h"

// A NaN is the only value that differs from itself.
bool x02eazn(double x) { return x != x; }
