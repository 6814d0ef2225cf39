#include "zeb_x_ib.h"

// The safe range: one step above the smallest normal number, so that its reciprocal is finite with a margin.
double x02amfn() { return 0x1.0000000000001p-1022; }
