// Complementary error function erfc(x).
#include "zeb_ext.h"
#include "zeb_s_ib.h"

// erfc(x + xl) in the extended format (s15adzn.cpp).
long double s15adzn(double x, double xl);

// erfc(x); exactly 0 for x >= 26.6 and 2 for x <= -6.5.
double s15adfn(double x) {
  zeb::ext::Precision guard(x);
  double r = static_cast<double>(s15adzn(x, 0.0));
  guard.release(r);
  return r;
}
