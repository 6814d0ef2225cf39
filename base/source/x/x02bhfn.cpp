#include "zeb_x_ib.h"

// The base of the model.
int x02bhfn() { return 2; }
