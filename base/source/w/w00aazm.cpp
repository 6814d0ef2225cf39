#include "zeb_w_ib_aux.h"

// The single-precision twin of w00aazn.
float w00aazm(float a, float b) { return b >= 0.0f ? a : -a; }
