#include "zeb_w_ib_aux.h"

// The address text of a single-precision real value.
void w04ffzm(const float& /*value*/, char* text, int len) { w04fayn(text, len); }
