#include "zeb_x_ib.h"

// The maximum exponent of the model.
int x02blfn() { return 1024; }
