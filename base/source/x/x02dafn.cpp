#include "zeb_x_ib.h"

// Underflow gives zero (gradually) without a trap.
int x02dafn() { return 1; }
