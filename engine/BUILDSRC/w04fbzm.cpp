#include "zeb_w_ib_aux.h"

// The address text of a single-precision complex value.
void w04fbzm(const std::complex<float>& /*value*/, char* text, int len) { w04fayn(text, len); }
