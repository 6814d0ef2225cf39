#include "zeb_w_ib_aux.h"

// The address text of a character value.
void w04fazn(std::string_view /*value*/, char* text, int len) { w04fayn(text, len); }
