#include "zeb_x_ib.h"

// The minimum exponent of the model.
int x02bkfn() { return -1021; }
