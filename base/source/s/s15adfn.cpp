// Complementary error function erfc(x).
#include "zeb_s_ib.h"

// scale * erfc(x + xl) rounded, and what remains as lo (s15adzn.cpp).
double s15adzn(double x, double xl, double scale, double& lo);

// erfc(x); exactly 0 for x >= 26.6 and 2 for x <= -6.5.
double s15adfn(double x) {
  double lo = 0.0;
  return s15adzn(x, 0.0, 1.0, lo);
}
