// The polygamma kernel: scaled derivatives of psi for orders n to n+m-1,
//   ans(j) = (-1)^(k+1) psi^(k)(x) / k!,  k = n + j - 1,
// with, for order 0, -psi(x) (kode 1) or ln x - psi(x) (kode 2). Each order
// comes from s14acyn as a scaled value and is judged against the range of
// the reals of the model (x02bhf, x02bkf, x02blf):
//   0  all orders computed;
//   5  some orders lie below the smallest normal number: they are set to 0,
//      the others stand;
//   6  some order would overflow: the computation is abandoned, all of ans 0;
//   7  the highest order n+m-1 is beyond the integers: nothing computed.
// The caller checks x > 0, n >= 0 and m >= 1.
#include <climits>
#include <cmath>

#include "zeb_dd.h"
#include "zeb_s_ib_aux.h"
#include "zeb_x_ib.h"

int s14aczn(double x, int n, int kode, int m, double* ans) {
  if (n > INT_MAX - (m - 1)) return 7;
  int code = 0;
  for (int j = 0; j < m; ++j) {
    zeb::dd::dd v;
    long long e = 0;
    s14acyn(x, n + j, kode, v, e);
    const double h = v.hi + v.lo;
    if (e == 0) {
      // The kernel leaves a value unscaled only when it is a normal double
      // or 0.
      ans[j] = h;
      continue;
    }
    // Normal numbers have exponents emin <= e <= emax in the form f b^e,
    // 1/b <= f < 1; the kernel's scaled values are formed in base 2.
    const int emin = x02bkfn();
    const int emax = x02blfn();
    int eh = 0;
    std::frexp(h, &eh);
    const long long ev = eh + e;
    if (h != 0.0 && ev > emax) {
      for (int i = 0; i < m; ++i) ans[i] = 0.0;
      return 6;
    }
    if (h != 0.0 && ev < emin) {
      ans[j] = 0.0;
      code = 5;
      continue;
    }
    ans[j] = std::ldexp(h, static_cast<int>(e));
  }
  return code;
}
