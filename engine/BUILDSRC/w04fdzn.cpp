#include "zeb_w_ib_aux.h"

// The address text of a integer value.
void w04fdzn(const int& /*value*/, char* text, int len) { w04fayn(text, len); }
