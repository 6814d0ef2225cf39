#include "zeb_wrap.h"
#include "zeb_y_ib.h"

void y90gcftn(int mode) { y90gczn(1, mode); }
