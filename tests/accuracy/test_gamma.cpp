// Accuracy of the gamma group against the mpmath tables of
// tools/refdata/gen_gamma.py: psi - ln x, the scaled polygamma derivatives,
// the real and complex polygamma, complex ln gamma, the scaled ln gamma, the
// incomplete gamma pair, and the beta kernels of the statistics chapters.
//
// Real functions: the error in ulps, divided by the condition number
// |x f'(x)/f(x)| of the table where that exceeds 1 (near zeros, poles and
// large arguments); those points are reported in ranges of their own marked
// "/ cond". The bound is 2 everywhere. References below the smallest normal
// number are checked apart: the routines may return them as 0.
// Complex functions: each component's relative error, a component smaller
// than a tenth of the modulus measured against that tenth (it is near its
// zero), divided by the condition number where that exceeds 1; bound 1e-14.
#include <gtest/gtest.h>

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <complex>
#include <map>
#include <string>

#include "accuracy.h"
#include "zeb_s_ib.h"
#include "zeb_s_ib_aux.h"

namespace {

using zeb::acc::Row;
using zeb::acc::Stats;

// Peak and RMS per range, the range split by conditioning.
class Tally {
 public:
  explicit Tally(std::string routine) : routine_(std::move(routine)) {}
  void add(const std::string& label, double err, double cond, double x) {
    const std::string key = cond > 1.0 ? label + " / cond" : label;
    const double e = err / std::max(1.0, cond);
    by_[key].add(e, x);
    all_.add(e, x);
  }
  double report(const char* unit = "ulp") const {
    for (const auto& [range, s] : by_) zeb::acc::report(routine_, range, s, unit);
    zeb::acc::report(routine_, "all", all_, unit);
    return all_.n ? all_.peak : INFINITY;
  }

 private:
  std::string routine_;
  std::map<std::string, Stats> by_;
  Stats all_;
};

// Error of a real result against its reference in ulps, or -1 where the
// reference lies below the normal range and the result is within the
// smallest normal number of it (underflow allowed).
double real_error(double got, long double ref, bool& underflow_ok) {
  underflow_ok = true;
  if (fabsl(ref) < DBL_MIN) {
    underflow_ok = fabsl(static_cast<long double>(got) - ref) <= DBL_MIN;
    return -1.0;
  }
  return zeb::acc::ulp_error(got, ref);
}

// One component of a complex result.
double component_error(double got, long double ref, long double modulus) {
  const long double scale = std::max({fabsl(ref), 0.1L * modulus, static_cast<long double>(DBL_MIN)});
  return static_cast<double>(fabsl(static_cast<long double>(got) - ref) / scale);
}

std::vector<Row> table(const char* name, int ninputs) {
  auto rows = zeb::acc::load(name, ninputs);
  EXPECT_FALSE(rows.empty()) << "no reference table " << name;
  return rows;
}

// A real routine over its table: f(inputs, ifail) gives the value; every
// point must succeed, and a reference below the normal range may come back
// as an underflow.
template <class F>
double real_table(const char* name, int ninputs, F f) {
  Tally t(name);
  for (const auto& r : table(name, ninputs)) {
    int ifail = 0;
    const double v = f(r.in, ifail);
    bool ok = true;
    const double e = real_error(v, r.ref[0], ok);
    EXPECT_EQ(ifail, 0) << r.in[0] << " " << (ninputs > 1 ? r.in[1] : 0.0);
    EXPECT_TRUE(ok) << r.in[0];
    if (e >= 0) t.add(r.label, e, static_cast<double>(r.ref[1]), r.in[0]);
  }
  return t.report();
}

// A complex routine over its table, the inputs re z, im z (and an order).
template <class F>
double complex_table(const char* name, int ninputs, F f) {
  Tally t(name);
  for (const auto& r : table(name, ninputs)) {
    int ifail = 0;
    const std::complex<double> v = f(r.in, ifail);
    EXPECT_EQ(ifail, 0) << r.in[0] << " " << r.in[1];
    const long double m = hypotl(r.ref[0], r.ref[1]);
    const double e = std::max(component_error(v.real(), r.ref[0], m),
                              component_error(v.imag(), r.ref[1], m));
    t.add(r.label, e, static_cast<double>(r.ref[2]), r.in[0]);
  }
  return t.report("rel");
}

char eb[200];  // the message buffer of the calls below

TEST(GammaAccuracy, PsiMinusLog) {
  EXPECT_LE(real_table("s14acf", 1, [](const auto& in, int& f) { return s14acfn(in[0], eb, f); }),
            2.0);
}

TEST(GammaAccuracy, ScaledPolygammaDerivatives) {
  auto call = [](const auto& in, int& f) {
    double v = 0.0;
    s14adfn(in[0], static_cast<int>(in[1]), 1, &v, eb, f);
    return v;
  };
  EXPECT_LE(real_table("s14adf", 2, call), 2.0);
}

TEST(GammaAccuracy, PolygammaReal) {
  auto call = [](const auto& in, int& f) { return s14aefn(in[0], static_cast<int>(in[1]), eb, f); };
  EXPECT_LE(real_table("s14aef", 2, call), 2.0);
}

TEST(GammaAccuracy, PolygammaComplex) {
  auto call = [](const auto& in, int& f) {
    return s14affn({in[0], in[1]}, static_cast<int>(in[2]), eb, f);
  };
  EXPECT_LE(complex_table("s14aff", 3, call), 1e-14);
}

TEST(GammaAccuracy, LogGammaComplex) {
  auto call = [](const auto& in, int& f) { return s14agfn({in[0], in[1]}, eb, f); };
  EXPECT_LE(complex_table("s14agf", 2, call), 1e-14);
}

TEST(GammaAccuracy, ScaledLogGamma) {
  EXPECT_LE(real_table("s14ahf", 1, [](const auto& in, int& f) { return s14ahfn(in[0], eb, f); }),
            2.0);
}

TEST(GammaAccuracy, IncompleteGamma) {
  Tally tp("s14baf P");
  Tally tq("s14baf Q");
  for (const auto& r : table("s14baf", 2)) {
    char eb[200];
    int ifail = 0;
    double p = 0.0;
    double q = 0.0;
    s14bafn(r.in[0], r.in[1], 0.0, p, q, eb, ifail);
    EXPECT_EQ(ifail, 0) << r.in[0] << " " << r.in[1];
    bool okp = true;
    bool okq = true;
    const double ep = real_error(p, r.ref[0], okp);
    const double eq = real_error(q, r.ref[1], okq);
    EXPECT_TRUE(okp && okq) << r.in[0] << " " << r.in[1];
    if (ep >= 0) tp.add(r.label, ep, static_cast<double>(r.ref[2]), r.in[0]);
    if (eq >= 0) tq.add(r.label, eq, static_cast<double>(r.ref[3]), r.in[0]);
  }
  EXPECT_LE(tp.report(), 2.0);
  EXPECT_LE(tq.report(), 2.0);
}

TEST(GammaAccuracy, LogBeta) {
  Tally t("s14cbzn");
  for (const auto& r : table("s14cbzn", 2)) {
    const double v = s14cbzn(r.in[0], r.in[1]);
    t.add(r.label, zeb::acc::ulp_error(v, r.ref[0]), static_cast<double>(r.ref[1]), r.in[0]);
  }
  EXPECT_LE(t.report(), 2.0);
}

TEST(GammaAccuracy, IncompleteBeta) {
  Tally ti("s14cczn I");
  Tally tj("s14cczn 1-I");
  for (const auto& r : table("s14cczn", 4)) {
    double w = 0.0;
    double w1 = 0.0;
    const int code = s14cczn(r.in[0], r.in[1], r.in[2], r.in[3], w, w1);
    EXPECT_EQ(code, 0) << r.in[0] << " " << r.in[1] << " " << r.in[2];
    bool oki = true;
    bool okj = true;
    const double ei = real_error(w, r.ref[0], oki);
    const double ej = real_error(w1, r.ref[1], okj);
    EXPECT_TRUE(oki && okj) << r.in[0] << " " << r.in[1] << " " << r.in[2];
    if (ei >= 0) ti.add(r.label, ei, static_cast<double>(r.ref[2]), r.in[2]);
    if (ej >= 0) tj.add(r.label, ej, static_cast<double>(r.ref[3]), r.in[2]);
  }
  EXPECT_LE(ti.report(), 2.0);
  EXPECT_LE(tj.report(), 2.0);
}

}  // namespace
