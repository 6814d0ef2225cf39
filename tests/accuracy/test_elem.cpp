// Accuracy of the elementary group of chapter s against the reference tables
// of tools/refdata/gen_elem.py: tan, arcsin, arccos, tanh, sinh, cosh, artanh,
// arsinh, arcosh, Ci, Si and the complex exponential.
//
// Real functions: within 2 ulp of the reference. In the ranges a test names
// as ill-conditioned (Ci of large arguments), the error in ulps divided by max(1, cond), cond = abs(x f'(x)/f(x))
// from the table, is what is bounded by 2 instead. Both figures are reported
// per range. The complex exponential: each part within 1e-14 of its
// reference, relative to the part (or to the smallest normal number, for
// parts that underflow).
#include <gtest/gtest.h>

#include <algorithm>
#include <cfloat>
#include <complex>
#include <map>
#include <set>
#include <string>

#include "accuracy.h"
#include "zeb_s_ib.h"

namespace {

using zeb::acc::Stats;

// Peak of the bounded error over the table: raw ulps, or ulps over the
// condition number in the ranges of `illcond`.
template <class F>
double check(const std::string& routine, F f, const std::set<std::string>& illcond = {}) {
  const auto rows = zeb::acc::load(routine, 1);
  EXPECT_FALSE(rows.empty()) << "no table for " << routine;
  std::map<std::string, Stats> raw;
  std::map<std::string, Stats> scaled;
  Stats all;
  double worst = 0.0;
  for (const auto& r : rows) {
    const double x = r.in[0];
    const double err = zeb::acc::ulp_error(f(x), r.ref[0]);
    all.add(err, x);
    raw[r.label].add(err, x);
    double bounded = err;
    if (illcond.count(r.label)) {
      const double cond = static_cast<double>(r.ref[1]);
      bounded = err / std::max(1.0, cond);
      scaled[r.label].add(bounded, x);
    }
    if (bounded > worst) {
      worst = bounded;
    }
    EXPECT_LE(bounded, 2.0) << routine << " at x = " << std::hexfloat << x;
  }
  for (const auto& [range, s] : raw) zeb::acc::report(routine, range, s);
  for (const auto& [range, s] : scaled) {
    zeb::acc::report(routine, range + ", ill-conditioned", s, "ulp/max(1,cond)");
  }
  zeb::acc::report(routine, "all", all);
  return worst;
}

// A body with ERRBUF and IFAIL as a function of x alone.
template <class Body>
auto plain(Body body) {
  return [body](double x) {
    char errbuf[zeb::errbuf_len];
    int ifail = -1;
    return body(x, errbuf, ifail);
  };
}

TEST(AccuracyElem, Tan) {
  // The reduction keeps tan accurate relative to itself up to the limit
  // 1e13, so even the doubles nearest to the zeros and poles are held to
  // 2 ulp, not to the condition number.
  check("s07aaf", plain(s07aafn));
}

TEST(AccuracyElem, ArcsinArccos) {
  check("s09aaf", plain(s09aafn));
  check("s09abf", plain(s09abfn));
}

TEST(AccuracyElem, TanhSinhCosh) {
  check("s10aaf", s10aafn);
  check("s10abf", plain(s10abfn));
  check("s10acf", plain(s10acfn));
}

TEST(AccuracyElem, InverseHyperbolic) {
  check("s11aaf", plain(s11aafn));
  check("s11abf", s11abfn);
  check("s11acf", plain(s11acfn));
}

TEST(AccuracyElem, CosineSineIntegrals) {
  // Near its zeros Ci is computed relative to itself; only beyond 16, where
  // it is sin x / x of a large argument, is the error scaled by cond.
  check("s13acf", plain(s13acfn), {"x 16 to 1e16"});
  check("s13adf", s13adfn);
}

TEST(AccuracyElem, ComplexExp) {
  const auto rows = zeb::acc::load("s01eaf", 2);
  ASSERT_FALSE(rows.empty());
  std::map<std::string, Stats> by_range;
  Stats all;
  for (const auto& r : rows) {
    char errbuf[zeb::errbuf_len];
    int ifail = -1;
    const std::complex<double> v = s01eafn({r.in[0], r.in[1]}, errbuf, ifail);
    EXPECT_EQ(ifail, 0) << std::hexfloat << r.in[0] << " " << r.in[1];
    double err = 0.0;
    for (int k = 0; k < 2; ++k) {
      const long double ref = r.ref[k];
      const double got = k == 0 ? v.real() : v.imag();
      const long double scale = std::max(fabsl(ref), static_cast<long double>(DBL_MIN));
      err = std::max(err, static_cast<double>(fabsl(got - ref) / scale));
    }
    EXPECT_LE(err, 1e-14) << std::hexfloat << r.in[0] << " " << r.in[1];
    all.add(err, r.in[1]);
    by_range[r.label].add(err, r.in[1]);
  }
  for (const auto& [range, s] : by_range) zeb::acc::report("s01eaf", range, s, "rel");
  zeb::acc::report("s01eaf", "all", all, "rel");
}

// The values the routines fix at their edges.
TEST(AccuracyElem, EdgeValues) {
  char eb[zeb::errbuf_len];
  int ifail = -1;
  EXPECT_TRUE(std::signbit(s07aafn(-0.0, eb, ifail)));
  EXPECT_EQ(s11acfn(1.0, eb, ifail), 0.0);
  EXPECT_EQ(s10aafn(18.715), 1.0);
  EXPECT_EQ(s10aafn(-18.715), -1.0);
  EXPECT_EQ(s13acfn(std::nextafter(1e16, 1e17), eb, ifail), 0.0);
  EXPECT_EQ(s13adfn(std::nextafter(1e17, 1e18)), 1.5707963267948966);
  EXPECT_EQ(s13adfn(-1e300), -1.5707963267948966);
  EXPECT_EQ(s13adfn(INFINITY), 1.5707963267948966);
  EXPECT_EQ(s09abfn(1.0, eb, ifail), 0.0);
  EXPECT_EQ(s09abfn(-1.0, eb, ifail), 3.141592653589793);
  EXPECT_EQ(s09aafn(-1.0, eb, ifail), -1.5707963267948966);
  EXPECT_EQ(s11abfn(INFINITY), INFINITY);
  EXPECT_EQ(s11acfn(INFINITY, eb, ifail), INFINITY);
  // NaN passes through without a failure.
  for (double v : {s07aafn(NAN, eb, ifail), s09aafn(NAN, eb, ifail), s10aafn(NAN),
                   s10abfn(NAN, eb, ifail), s11aafn(NAN, eb, ifail), s11abfn(NAN),
                   s11acfn(NAN, eb, ifail), s13acfn(NAN, eb, ifail), s13adfn(NAN)}) {
    EXPECT_TRUE(std::isnan(v));
  }
  EXPECT_EQ(ifail, 0);
  // exp(x + i0) keeps an exact zero imaginary part, also past ln(1/x02amf).
  const std::complex<double> e = s01eafn({709.0, 0.0}, eb, ifail);
  EXPECT_EQ(ifail, 1);  // a real component of 8.2e307 is judged to overflow
  EXPECT_EQ(e.imag(), 0.0);
}

}  // namespace
