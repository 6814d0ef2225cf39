#include "zeb_x_ib.h"

// Half the spacing of the reals at 1.0, so that 1.0 + x02ajf may round to 1.0.
double x02ajfn() { return 0x1p-53; }
