#include "zeb_w_ib_aux.h"

// The address text of a real value.
void w04fgzn(const double& /*value*/, char* text, int len) { w04fayn(text, len); }
