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
// Method. The starting value at n = mu = |M| is formed in double-double from
// q = 1 - x^2 (with x^2 carried exactly, so that q keeps its digits near
// x = +-1): P_mu^mu = (-1)^mu (2mu-1)!! q^(mu/2), P_mu^-mu = q^(mu/2)/(2mu)!!,
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

using zeb::dd::dd;

// sqrt(a) of a positive double-double, to about 100 bits.
dd dd_sqrt(dd a) {
  const double r = std::sqrt(a.hi);
  const dd r2 = zeb::dd::two_prod(r, r);
  const double c = ((a.hi - r2.hi) - r2.lo + a.lo) / (2.0 * r);
  return zeb::dd::fast_two_sum(r, c);
}

// a^k for k >= 0 by repeated squaring.
dd dd_pow(dd a, int k) {
  dd r{1.0, 0.0};
  while (k > 0) {
    if (k & 1) r = zeb::dd::mul(r, a);
    a = zeb::dd::mul(a, a);
    k >>= 1;
  }
  return r;
}

// The value at the lowest degree n = mu, as described above.
dd start_value(int mode, double x, int m) {
  const int mu = m < 0 ? -m : m;
  if (mu == 0) return mode == 1 ? dd{1.0, 0.0} : dd_sqrt(dd{0.5, 0.0});
  // q = 1 - x^2 = (1 - h) - l with x^2 = h + l.
  const dd x2 = zeb::dd::two_prod(x, x);
  const dd q = zeb::dd::add(zeb::dd::two_sum(1.0, -x2.hi), -x2.lo);
  if (q.hi <= 0.0) return dd{0.0, 0.0};
  dd qp = dd_pow(q, mu / 2);
  if (mu & 1) qp = zeb::dd::mul(qp, dd_sqrt(q));
  dd c{1.0, 0.0};
  if (mode == 1) {
    // (2mu-1)!! or 1/(2mu)!!, each factor an exact small integer.
    for (int k = 1; k <= mu; ++k) c = zeb::dd::mul(c, static_cast<double>(m > 0 ? 2 * k - 1 : 2 * k));
    if (m < 0) c = zeb::dd::recip(c);
  } else {
    // (2mu+1)/2 times the product of (2k-1)/(2k).
    dd num{0.5 * (2 * mu + 1), 0.0};
    dd den{1.0, 0.0};
    for (int k = 1; k <= mu; ++k) {
      num = zeb::dd::mul(num, static_cast<double>(2 * k - 1));
      den = zeb::dd::mul(den, static_cast<double>(2 * k));
    }
    c = dd_sqrt(zeb::dd::div(num, den));
  }
  const dd v = zeb::dd::mul(c, qp);
  return (m > 0 && (mu & 1)) ? zeb::dd::neg(v) : v;
}

}  // namespace

void s22aafn(int mode, double x, int m, int nl, double* p, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  constexpr const char* kInt = "(3(1X,I5),1X,I20)";
  const int mu = m < 0 ? -m : m;
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
  } else if (mu > 27) {
    // |M| of the most negative integer is not representable: report it as
    // the largest one.
    zeb::errbuf_record(errbuf, kInt, {4, 99996, 1, m == -2147483647 - 1 ? 2147483647 : mu});
    code = 4;
  } else if (mu == 0 && nl < 0) {
    zeb::errbuf_record(errbuf, kInt, {5, 99995, 1, nl});
    code = 5;
  } else if (mu == 0 && nl > 100) {
    zeb::errbuf_record(errbuf, kInt, {6, 99994, 1, nl});
    code = 6;
  } else if (mu != 0 && nl < 0) {
    zeb::errbuf_record(errbuf, kInt, {7, 99993, 1, nl});
    code = 7;
  } else if (mu != 0 && nl > 55 - mu) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),2(1X,I20))", {8, 99992, 2, nl, mu});
    code = 8;
  }
  if (code != 0) {
    zeb::errbuf_close(errbuf, code, ifail);
    return;
  }

  dd p0 = start_value(mode, x, m);
  p[0] = p0.hi + p0.lo;
  if (nl >= 1) {
    dd p1;
    if (mode == 1) {
      p1 = zeb::dd::mul(zeb::dd::mul(p0, x), m >= 0 ? 2.0 * mu + 1.0 : 1.0);
    } else {
      p1 = zeb::dd::mul(zeb::dd::mul(p0, x), dd_sqrt(dd{2.0 * mu + 3.0, 0.0}));
    }
    p[1] = p1.hi + p1.lo;
    for (int l = 2; l <= nl; ++l) {
      const int n = mu + l;  // the degree computed now
      dd pn;
      if (mode == 1) {
        const dd t = zeb::dd::mul(zeb::dd::mul(p1, x), static_cast<double>(2 * n - 1));
        const dd u = zeb::dd::mul(p0, static_cast<double>(n - 1 + m));
        pn = zeb::dd::div(zeb::dd::sub(t, u), static_cast<double>(n - m));
      } else {
        const double nn = static_cast<double>(n) * n - static_cast<double>(mu) * mu;
        const dd a = dd_sqrt(zeb::dd::div(dd{4.0 * n * n - 1.0, 0.0}, nn));
        const dd b = dd_sqrt(zeb::dd::div(
            dd{(2.0 * n + 1.0) * ((n - 1.0) * (n - 1.0) - 1.0 * mu * mu), 0.0},
            (2.0 * n - 3.0) * nn));
        pn = zeb::dd::sub(zeb::dd::mul(zeb::dd::mul(p1, x), a), zeb::dd::mul(p0, b));
      }
      p[l] = pn.hi + pn.lo;
      p0 = p1;
      p1 = pn;
    }
  }
  zeb::errbuf_close(errbuf, 0, ifail);
}
