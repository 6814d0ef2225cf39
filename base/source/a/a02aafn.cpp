#include <cmath>

#include "zeb_a_ib.h"
#include "zeb_x_ib.h"

// The principal square root of xr + i xi. With T = sqrt((|z| + |xr|)/2) the
// root is (T, xi/2T) for xr >= 0 and (|xi/2T|, T with the sign of xi) for
// xr < 0, so that no difference of nearly equal numbers is formed.
void a02aafn(double xr, double xi, double& yr, double& yi) {
  // Parts so small that |z| would be subnormal lose digits there: scale them
  // by 2**106, exactly, and the root back by 2**-53. The threshold
  // 2*x02akf/x02ajf is 2**-968.
  double back = 1.0;
  const double eps = x02ajfn();
  if (std::fabs(xr) < 2.0 * x02akfn() / eps && std::fabs(xi) < 2.0 * x02akfn() / eps) {
    const double up = 1.0 / (eps * eps);
    xr *= up;
    xi *= up;
    back = eps;
  }
  double t;
  if (std::fabs(xr) > 1.0) {
    // Halved first, so that |z| + |xr| cannot overflow. When both parts are
    // above x02alf/2 even the halves can: then the eighths are taken and the
    // root doubled, (|z| + |xr|)/2 being 4 (|z|/8 + |xr|/8).
    if (std::fabs(xr) > 0.5 * x02alfn() || std::fabs(xi) > 0.5 * x02alfn()) {
      const double er = 0.125 * xr;
      const double ei = 0.125 * xi;
      t = 2.0 * std::sqrt(a02abfn(er, ei) + std::fabs(er));
    } else {
      const double hr = 0.5 * xr;
      const double hi = 0.5 * xi;
      t = std::sqrt(a02abfn(hr, hi) + std::fabs(hr));
    }
  } else {
    t = std::sqrt(a02abfn(xr, xi) + std::fabs(xr)) * 0.7071067811865476;
  }
  // xi = 0 (either sign) keeps its zero; t = 0 only when z = 0.
  const double w = xi == 0.0 ? xi : xi / (2.0 * t);
  if (xr >= 0.0) {
    yr = t * back;
    yi = w * back;
  } else {
    yr = std::fabs(w) * back;
    yi = std::copysign(t, xi) * back;
  }
}
