// phi(mu) = mu - ln(1 + mu) >= 0 in x87 extended precision, for mu > -1
// given with l = 1 + mu (which the caller may hold with more relative
// accuracy than 1 + mu when mu is near -1). For 1 + mu in
// [1/sqrt 2, sqrt 2], with u = mu/(2+mu), ln(1+mu) = 2u(1 + u^2 q(u^2))
// and mu - 2u = mu u, so that phi = mu u - 2 u^3 q(u^2) loses nothing to
// cancellation where it is small; elsewhere mu - ln l. Needs the 64-bit
// precision control held by the caller.
#include "zeb_ext.h"
#include "zeb_s_ib_aux.h"

using zeb::ext::ld;

ld s14cbxn(ld mu, ld l) {
  if (mu > -0.2928932188134524L && mu < 0.4142135623730950L) {
    const ld u = mu / (2.0L + mu);
    const ld w = u * u;
    return mu * u - 2.0L * u * w * s14cbqn(w);
  }
  return mu - s14cbyn(l);
}
