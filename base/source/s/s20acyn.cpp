// sin(pi a^2/2) and cos(pi a^2/2) for 0 <= a <= 2^32, for the asymptotic
// forms of the Fresnel integrals. a^2 is formed exactly as h + l (Dekker's
// product); each part is reduced exactly modulo 4 (a period of the phase in
// units of pi/2) to a whole quadrant count and a remainder in [-1/2, 1/2], so
// that the phase left over, pi/2 times the sum of the two remainders, is
// known to about 1e-16 absolutely however large a is.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_s_ib_aux.h"

void s20acyn(double a, double& s, double& c) {
  constexpr double kPiHalf = 0x1.921fb54442d18p+0;
  const zeb::dd::dd a2 = zeb::dd::two_prod(a, a);
  const double h = std::fmod(a2.hi, 4.0);
  const double l = std::fmod(a2.lo, 4.0);
  const double nh = std::nearbyint(h);
  const double nl = std::nearbyint(l);
  double r = (h - nh) + (l - nl);  // both differences exact, |r| <= 1
  double n = nh + nl;              // an integer of at most 8 in magnitude
  if (r > 0.5) {
    r -= 1.0;
    n += 1.0;
  } else if (r < -0.5) {
    r += 1.0;
    n -= 1.0;
  }
  const double t = kPiHalf * r;
  const double st = std::sin(t);
  const double ct = std::cos(t);
  switch (static_cast<int>(n) & 3) {
    case 0:
      s = st;
      c = ct;
      break;
    case 1:
      s = ct;
      c = -st;
      break;
    case 2:
      s = -st;
      c = -ct;
      break;
    default:
      s = -ct;
      c = st;
      break;
  }
}
