#include "zeb_x_ib_aux.h"

// Kept out of line so that a loop calling it cannot be reassociated.
double x02zawn(double a, double b) { return a + b; }
