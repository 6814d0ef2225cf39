#include "zeb_w_ib_aux.h"

// The address text of a logical value.
void w04fezn(const int& /*value*/, char* text, int len) { w04fayn(text, len); }
