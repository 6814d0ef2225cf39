#include <algorithm>
#include <cmath>

#include "zeb_a_ib.h"
#include "zeb_x_ib.h"

// (xr + i xi) / (yr + i yi) by Smith's method: the ratio of the denominator's
// smaller part to its larger stays at most 1 in magnitude. Operands near the
// ends of the range are scaled by powers of two first, exactly:
//   a larger part above x02alf/32 (5.6177910464447366e306) by 0.0625, the
//   quotient then by 16.0 (numerator) or 0.0625 (denominator);
//   a larger part below 2*x02akf/x02ajf (4.008336720017946e-292) by
//   1/x02ajf**2 (8.112963841460668e31), the quotient then by x02ajf**2
//   (1.232595164407831e-32, numerator) or 1/x02ajf**2 (denominator).
// A zero denominator gives each part of the numerator divided by +0.0: an
// infinity of its sign, or NaN for a zero part.
void a02acfn(double xr, double xi, double yr, double yi, double& zr, double& zi) {
  const double eps = x02ajfn();
  const double big = x02alfn() / 32.0;
  const double small = 2.0 * x02akfn() / eps;
  const double up = 1.0 / (eps * eps);
  const double down = eps * eps;

  const double ym = std::max(std::fabs(yr), std::fabs(yi));
  if (ym == 0.0) {
    zr = xr / ym;
    zi = xi / ym;
    return;
  }
  double scale = 1.0;
  const double xm = std::max(std::fabs(xr), std::fabs(xi));
  if (xm > big) {
    xr *= 0.0625;
    xi *= 0.0625;
    scale = 16.0;
  } else if (xm < small) {
    xr *= up;
    xi *= up;
    scale = down;
  }
  if (ym > big) {
    yr *= 0.0625;
    yi *= 0.0625;
    scale *= 0.0625;
  } else if (ym < small) {
    yr *= up;
    yi *= up;
    scale *= up;
  }
  double qr;
  double qi;
  if (std::fabs(yr) >= std::fabs(yi)) {
    const double r = yi / yr;
    const double d = yr + yi * r;
    qr = (xr + xi * r) / d;
    qi = (xi - xr * r) / d;
  } else {
    const double r = yr / yi;
    const double d = yi + yr * r;
    qr = (xr * r + xi) / d;
    qi = (xi * r - xr) / d;
  }
  zr = qr * scale;
  zi = qi * scale;
}
