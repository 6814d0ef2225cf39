// Legendre and associated Legendre functions of the first kind on [-1, 1]:
// P(L) = P_n^m(x) for the degrees n = |M| + L, L = 0..NL, m = M.
//
// Definitions (Ferrers' functions, as in DLMF 14.6.1 and 14.9.3, Abramowitz
// and Stegun 8.6.6, with the Condon-Shortley phase):
//   P_n^m(x)  = (-1)^m (1-x^2)^(m/2) d^m P_n(x)/dx^m          for m >= 0,
//   P_n^-m(x) = (-1)^m (n-m)!/(n+m)! P_n^m(x),
// so that P_1^1(x) = -sqrt(1-x^2).
//   MODE 1: P_n^m(x) itself (unnormalised).
//   MODE 2: the functions normalised to be orthonormal on [-1, 1],
//           sqrt((2n+1)/2 (n-m)!/(n+m)!) P_n^m(x); for negative m this is
//           (-1)^m times the value for |m|.
//
// Method. The starting value at n = mu = |M| is formed from q = 1 - x^2
// (with x^2 carried exactly, so that q keeps its digits near x = +-1):
// P_mu^mu = (-1)^mu (2mu-1)!! q^(mu/2), P_mu^-mu = q^(mu/2)/(2mu)!!,
// normalised: sqrt((2mu+1)/2 (2mu-1)!!/(2mu)!!) q^(mu/2), signed as above.
// The degrees above follow by the three-term recurrence in n, stable upwards
// on [-1, 1]:
//   (n-m+1) P_(n+1) = (2n+1) x P_n - (n+m) P_(n-1),
// and for MODE 2
//   Pbar_n = a_n x Pbar_(n-1) - b_n Pbar_(n-2),
//   a_n = sqrt((4n^2-1)/(n^2-mu^2)),
//   b_n = sqrt((2n+1)((n-1)^2-mu^2) / ((2n-3)(n^2-mu^2))).
// The checks follow the failure table; on a failure P is left unchanged.
#include <cmath>

#include "zeb_dd.h"
#include "zeb_s_ib.h"

namespace {

using ext = long double;

// The value at the lowest degree n = mu, as described above, in the x87
// extended format from q = 1 - x^2 formed exactly as (1 - h) - l, x^2 = h + l.
ext start_value(int mode, double x, int m) {
  const int mu = m < 0 ? -m : m;
  if (mu == 0) return mode == 1 ? 1.0L : std::sqrt(0.5L);
  const zeb::dd::dd x2 = zeb::dd::two_prod(x, x);
  const zeb::dd::dd q = zeb::dd::add(zeb::dd::two_sum(1.0, -x2.hi), -x2.lo);
  if (q.hi <= 0.0) return 0.0L;
  const ext qe = static_cast<ext>(q.hi) + static_cast<ext>(q.lo);
  ext v = (mu & 1) ? std::sqrt(qe) : 1.0L;
  for (int k = 0; k < mu / 2; ++k) v *= qe;
  if (mode == 1) {
    // (2mu-1)!! or 1/(2mu)!!
    ext c = 1.0L;
    for (int k = 1; k <= mu; ++k) c *= static_cast<ext>(m > 0 ? 2 * k - 1 : 2 * k);
    v = m > 0 ? v * c : v / c;
  } else {
    // sqrt((2mu+1)/2 times the product of (2k-1)/(2k))
    ext c = 0.5L * (2 * mu + 1);
    for (int k = 1; k <= mu; ++k) c *= static_cast<ext>(2 * k - 1) / static_cast<ext>(2 * k);
    v *= std::sqrt(c);
  }
  return (m > 0 && (mu & 1)) ? -v : v;
}

}  // namespace

void s22aafn(int mode, double x, int m, int nl, double* p, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  constexpr const char* kInt = "(3(1X,I5),1X,I20)";
  // |M| in 64 bits: the most negative M has no 32-bit absolute value.
  const long long am = m < 0 ? -static_cast<long long>(m) : m;
  int code = 0;
  if (mode < 1) {
    zeb::errbuf_record(errbuf, kInt, {1, 99999, 1, mode});
    code = 1;
  } else if (mode > 2) {
    zeb::errbuf_record(errbuf, kInt, {2, 99998, 1, mode});
    code = 2;
  } else if (!(std::fabs(x) <= 1.0)) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,1P,E12.4)", {3, 99997, 1, std::fabs(x)});
    code = 3;
  } else if (am > 27) {
    zeb::errbuf_record(errbuf, kInt, {4, 99996, 1, am});
    code = 4;
  } else if (am == 0 && nl < 0) {
    zeb::errbuf_record(errbuf, kInt, {5, 99995, 1, nl});
    code = 5;
  } else if (am == 0 && nl > 100) {
    zeb::errbuf_record(errbuf, kInt, {6, 99994, 1, nl});
    code = 6;
  } else if (am != 0 && nl < 0) {
    zeb::errbuf_record(errbuf, kInt, {7, 99993, 1, nl});
    code = 7;
  } else if (am != 0 && nl > 55 - am) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),2(1X,I20))", {8, 99992, 2, nl, am});
    code = 8;
  }
  if (code != 0) {
    zeb::errbuf_close(errbuf, code, ifail);
    return;
  }
  const int mu = static_cast<int>(am);

  // The recurrence runs in the x87 extended format (64-bit significand):
  // its rounding errors, 2^-11 of a double's, stay well below half an ulp of
  // each value after the final rounding, at a few times the cost of double.
  ext p0 = start_value(mode, x, m);
  p[0] = static_cast<double>(p0);
  if (nl >= 1) {
    const ext xe = x;
    ext p1;
    if (mode == 1) {
      p1 = (m >= 0 ? static_cast<ext>(2 * mu + 1) : 1.0L) * xe * p0;
    } else {
      p1 = std::sqrt(static_cast<ext>(2 * mu + 3)) * xe * p0;
    }
    p[1] = static_cast<double>(p1);
    for (int l = 2; l <= nl; ++l) {
      const int n = mu + l;  // the degree computed now
      ext pn;
      if (mode == 1) {
        // The reciprocal does not depend on the values, so it is formed off
        // the chain of dependent operations.
        const ext r = 1.0L / static_cast<ext>(n - m);
        pn = (static_cast<ext>(2 * n - 1) * xe * p1 - static_cast<ext>(n - 1 + m) * p0) * r;
      } else {
        const ext nn = static_cast<ext>(n) * n - static_cast<ext>(mu) * mu;
        const ext a = std::sqrt((4.0L * n * n - 1.0L) / nn);
        const ext b = std::sqrt((2.0L * n + 1.0L) * ((n - 1.0L) * (n - 1.0L) - 1.0L * mu * mu) /
                                ((2.0L * n - 3.0L) * nn));
        pn = a * xe * p1 - b * p0;
      }
      p[l] = static_cast<double>(pn);
      p0 = p1;
      p1 = pn;
    }
  }
  zeb::errbuf_close(errbuf, 0, ifail);
}
