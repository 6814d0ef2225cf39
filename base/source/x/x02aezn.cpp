#include "zeb_x_ib_aux.h"

// The most negative argument of exp whose result is a normal number.
double x02aezn() { return -708.3964185322641; }
