#include "zeb_w_ib_aux.h"

// The address text of a complex value.
void w04fczn(const std::complex<double>& /*value*/, char* text, int len) { w04fayn(text, len); }
