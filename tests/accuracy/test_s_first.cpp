// Accuracy of gamma, ln gamma, erfc, erf, the normal distribution functions,
// the exponential integral and ln(1+x) against the high-precision tables of
// tools/refdata/gen_s_first.py, and the values and failure records that the
// routines fix at the edges of their domains.
#include <fpu_control.h>
#include <gtest/gtest.h>

#include <bit>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "accuracy.h"
#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_x_ib.h"

namespace {

constexpr double kBound = 2.0;  // ulps, over the whole domain; a missing
                                // table measures as infinite

// A body with ERRBUF and IFAIL, called as the tables are measured: every
// table point lies inside the domain, so any failure code is a fault.
template <double (*Body)(double, char*, int&)>
double measured(const char* routine, int& failures) {
  return zeb::acc::measure(routine, [&](double x) {
    char errbuf[zeb::errbuf_len];
    int ifail = -1;
    const double v = Body(x, errbuf, ifail);
    if (ifail != 0) ++failures;
    return v;
  });
}

struct Call {
  double value;
  int ifail;
  std::string record;  // ERRBUF up to its closing NUL
};

template <double (*Body)(double, char*, int&)>
Call call(double x) {
  char errbuf[zeb::errbuf_len];
  std::memset(errbuf, '?', sizeof errbuf);
  Call c{};
  c.ifail = -1;
  c.value = Body(x, errbuf, c.ifail);
  EXPECT_EQ(errbuf[zeb::errbuf_len - 1], '\0') << "ERRBUF(200:200) is not closed";
  c.record.assign(errbuf, strnlen(errbuf, zeb::errbuf_len));
  return c;
}

// A body with ERRBUF and IFAIL as a function of x alone.
template <double (*Body)(double, char*, int&)>
double value(double x) {
  char errbuf[zeb::errbuf_len];
  int ifail = 1;
  return Body(x, errbuf, ifail);
}

// The failure record starts with `head`.
void expect_record(const Call& c, const std::string& head) {
  EXPECT_EQ(c.record.substr(0, head.size()), head) << "record: [" << c.record << "]";
}

}  // namespace

TEST(SFirstAccuracy, Gamma) {
  int failures = 0;
  EXPECT_LE((measured<s14aafn>("s14aaf", failures)), kBound);
  EXPECT_EQ(failures, 0);
}

TEST(SFirstAccuracy, LnGamma) {
  int failures = 0;
  EXPECT_LE((measured<s14abfn>("s14abf", failures)), kBound);
  EXPECT_EQ(failures, 0);
}

TEST(SFirstAccuracy, ExponentialIntegral) {
  int failures = 0;
  EXPECT_LE((measured<s13aafn>("s13aaf", failures)), kBound);
  EXPECT_EQ(failures, 0);
}

TEST(SFirstAccuracy, Log1p) {
  int failures = 0;
  EXPECT_LE((measured<s01bafn>("s01baf", failures)), kBound);
  EXPECT_EQ(failures, 0);
}

TEST(SFirstAccuracy, ErrorFunctions) {
  EXPECT_LE(zeb::acc::measure("s15adf", s15adfn), kBound);
  EXPECT_LE(zeb::acc::measure("s15aef", s15aefn), kBound);
  EXPECT_LE(zeb::acc::measure("s15abf", s15abfn), kBound);
  EXPECT_LE(zeb::acc::measure("s15acf", s15acfn), kBound);
}

TEST(SFirstEdges, GammaFailures) {
  Call c = call<s14aafn>(171.0);
  EXPECT_EQ(c.value, 4.3e304);
  EXPECT_EQ(c.ifail, 1);
  expect_record(c, "     1 99998     2   1.7100E+02   1.7000E+02");

  c = call<s14aafn>(-171.0);
  EXPECT_EQ(c.value, 0.0);
  EXPECT_EQ(c.ifail, 2);
  expect_record(c, "     2 99999     2  -1.7100E+02  -1.7000E+02");

  c = call<s14aafn>(0.0);
  EXPECT_EQ(c.value, 4.4843049327354256e307);
  EXPECT_EQ(c.ifail, 3);
  expect_record(c, "     3 99997     2   0.0000E+00");
  c = call<s14aafn>(-0.0);
  EXPECT_EQ(c.value, 4.4843049327354256e307);  // positive for a zero argument
  c = call<s14aafn>(-1e-310);
  EXPECT_EQ(c.value, -4.4843049327354256e307);
  EXPECT_EQ(c.ifail, 3);

  c = call<s14aafn>(-3.0);
  EXPECT_EQ(c.value, 4.3e304);
  EXPECT_EQ(c.ifail, 4);
  expect_record(c, "     4 99996     1  -3.0000E+00");
  EXPECT_EQ((call<s14aafn>(-170.0).ifail), 4);
}

TEST(SFirstEdges, GammaBoundaries) {
  Call c = call<s14aafn>(1e-18);
  EXPECT_EQ(c.value, 1.0 / 1e-18);  // 1e18 less 128, the reciprocal of the double
  EXPECT_DOUBLE_EQ(c.value, 1e18);
  EXPECT_EQ(c.ifail, 0);
  EXPECT_EQ(c.record, "");
  EXPECT_EQ((call<s14aafn>(2.23e-308).value), 1.0 / 2.23e-308);
  // Just above -1e-17, 1 + X rounds to 1: no pole for all that.
  c = call<s14aafn>(-5e-17);
  EXPECT_EQ(c.ifail, 0);
  EXPECT_NEAR(c.value, -2e16, 1.0);
  EXPECT_EQ((call<s14aafn>(170.0).ifail), 0);
  EXPECT_EQ((call<s14aafn>(-169.5).ifail), 0);
  // Factorials are exact while they are representable.
  double f = 1.0;
  for (int n = 1; n <= 23; ++n) {
    EXPECT_EQ((call<s14aafn>(n).value), f) << "Gamma(" << n << ")";
    f *= n;
  }
}

TEST(SFirstEdges, LnGammaFailuresAndZeros) {
  Call c = call<s14abfn>(0.0);
  EXPECT_EQ(c.value, x02alfn());
  EXPECT_EQ(c.ifail, 1);
  expect_record(c, "     1  1011     1   0.00000E+00");

  c = call<s14abfn>(-1.0);
  EXPECT_EQ(c.value, 0.0);
  EXPECT_EQ(c.ifail, 1);
  expect_record(c, "     1  1011     1  -1.00000E+00");

  c = call<s14abfn>(3e305);
  EXPECT_EQ(c.value, x02alfn());
  EXPECT_EQ(c.ifail, 2);
  expect_record(c, "     2  1021     1   3.00000+305");

  EXPECT_EQ((call<s14abfn>(2.55e305).ifail), 0);
  EXPECT_LT((call<s14abfn>(2.55e305).value), DBL_MAX);
  EXPECT_EQ((call<s14abfn>(1.0).value), 0.0);
  EXPECT_EQ((call<s14abfn>(2.0).value), 0.0);
}

TEST(SFirstEdges, ErrorFunctionCuts) {
  EXPECT_EQ(s15adfn(26.6), 0.0);
  EXPECT_EQ(s15adfn(1e300), 0.0);
  EXPECT_GT(s15adfn(std::nextafter(26.6, 0.0)), 0.0);  // subnormal, not cut
  EXPECT_EQ(s15adfn(-6.5), 2.0);
  EXPECT_EQ(s15adfn(-INFINITY), 2.0);
  EXPECT_EQ(s15adfn(0.0), 1.0);
  EXPECT_EQ(s15aefn(0.0), 0.0);
  EXPECT_EQ(s15aefn(7.0), 1.0);
  EXPECT_EQ(s15aefn(-INFINITY), -1.0);
  EXPECT_EQ(s15aefn(5e-324), 5e-324);  // 2x/sqrt(pi) rounds back to x
  EXPECT_EQ(s15abfn(0.0), 0.5);
  EXPECT_EQ(s15acfn(0.0), 0.5);
  EXPECT_EQ(s15abfn(INFINITY), 1.0);
  EXPECT_EQ(s15abfn(-INFINITY), 0.0);
  EXPECT_EQ(s15acfn(INFINITY), 0.0);
  EXPECT_EQ(s15acfn(-1e308), 1.0);
  EXPECT_EQ(s15acfn(1e308), 0.0);
  EXPECT_TRUE(std::isnan(s15adfn(NAN)));
  EXPECT_TRUE(std::isnan(s15aefn(NAN)));
}

TEST(SFirstEdges, ExponentialIntegralFailures) {
  Call c = call<s13aafn>(0.0);
  EXPECT_EQ(c.value, x02alfn());
  EXPECT_EQ(c.ifail, 1);
  expect_record(c, "     1  1001     0");

  c = call<s13aafn>(-708.4);
  EXPECT_EQ(c.value, -x02alfn());
  EXPECT_EQ(c.ifail, 2);
  expect_record(c, "     2  1002     0");

  c = call<s13aafn>(-708.3);
  EXPECT_EQ(c.ifail, 0);
  EXPECT_LT(c.value, -1e300);
  EXPECT_EQ((call<s13aafn>(708.4).value), 0.0);
  EXPECT_GT((call<s13aafn>(708.3).value), 0.0);  // subnormal
  // -Ei changes sign at x = -0.37250741078136663.
  EXPECT_GT((call<s13aafn>(-0.3725074107813666).value), 0.0);
  EXPECT_LT((call<s13aafn>(std::nextafter(-0.3725074107813666, -1.0)).value), 0.0);
}

TEST(SFirstEdges, Log1pFailure) {
  Call c = call<s01bafn>(-1.0);
  EXPECT_EQ(c.value, 0.0);
  EXPECT_EQ(c.ifail, 1);
  expect_record(c, "     1 99999     1  -1.00000E+00");
  EXPECT_EQ((call<s01bafn>(0.0).value), 0.0);
  EXPECT_EQ((call<s01bafn>(-0.0).ifail), 0);
  EXPECT_EQ((call<s01bafn>(INFINITY).value), INFINITY);
  EXPECT_EQ((call<s01bafn>(5e-324).value), 5e-324);
}

// The bodies carry their values in the x87 extended format, whose roundings
// follow the x87 precision control: with the control narrowed to 53 bits by a
// caller, every table point must still give the same double as with 64, and
// the caller's control word must be there again after each call.
TEST(SFirstEdges, X87PrecisionControl) {
  struct Fn {
    const char* routine;
    double (*f)(double);
  };
  const Fn fns[] = {{"s14aaf", value<s14aafn>}, {"s14abf", value<s14abfn>},
                    {"s13aaf", value<s13aafn>}, {"s01baf", value<s01bafn>},
                    {"s15adf", s15adfn},        {"s15aef", s15aefn},
                    {"s15abf", s15abfn},        {"s15acf", s15acfn}};
  fpu_control_t saved;
  _FPU_GETCW(saved);
  const fpu_control_t narrow = (saved & ~_FPU_EXTENDED) | _FPU_DOUBLE;
  for (const Fn& fn : fns) {
    const auto rows = zeb::acc::load(fn.routine, 1);
    ASSERT_FALSE(rows.empty()) << fn.routine;
    std::vector<double> wide;
    for (const auto& r : rows) wide.push_back(fn.f(r.in[0]));
    int differ = 0;
    int lost = 0;
    _FPU_SETCW(narrow);
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const double v = fn.f(rows[i].in[0]);
      fpu_control_t now;
      _FPU_GETCW(now);
      if (now != narrow) ++lost;
      if (std::bit_cast<std::uint64_t>(v) != std::bit_cast<std::uint64_t>(wide[i])) ++differ;
    }
    _FPU_SETCW(saved);
    EXPECT_EQ(differ, 0) << fn.routine << ": values that follow the precision control";
    EXPECT_EQ(lost, 0) << fn.routine << ": calls that left another control word";
  }
}
