#include "zeb_x_ib_aux.h"

// A NaN is the only value that differs from itself.
bool x02eayn(float x) { return x != x; }
