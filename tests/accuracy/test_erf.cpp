// Accuracy of Dawson's integral, erfcx, the Faddeeva function, the Fresnel
// integrals and the Legendre functions against the mpmath tables of
// tools/refdata/gen_erf.py. Each table labels its points with the range of
// the body that computes them; peak and RMS errors are reported per range.
//
// Real functions: within 2 ulp where they are well conditioned. Where the
// table carries a condition number c = |x f'(x)/f(x)| for a range that is
// not (erfcx for x < -4, where it is 2x^2), the error in ulps is divided by
// max(1, c). Ranges where the body returns a fixed value by design (a flushed
// underflow, the limit 1/2 of the Fresnel integrals) are checked for that
// value. The Faddeeva function: each part within 1e-14 relative to itself,
// where that part's condition number is at most 100 (away from the zeros of
// the part); elsewhere the relative error divided by that condition number;
// a part below the normal range within two subnormal steps.
#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <complex>
#include <map>
#include <string>
#include <vector>

#include "accuracy.h"
#include "zeb_s_ib.h"

namespace {

using zeb::acc::load;
using zeb::acc::rel_error;
using zeb::acc::report;
using zeb::acc::Row;
using zeb::acc::Stats;
using zeb::acc::ulp_error;

// How one range of a real function is judged.
enum class Judge {
  Ulp,          // error in ulps
  Conditioned,  // error in ulps / max(1, condition number in column 2)
  Fixed,        // the body returns a fixed value: `fixed` with the sign of x
};

struct Range {
  std::string name;
  Judge judge;
  double fixed = 0.0;
};

// Runs a real function over its table; returns the peaks per range after
// reporting them. `f` maps x to the value.
template <class F>
std::map<std::string, Stats> run_real(const std::string& routine, const std::vector<Range>& ranges,
                                      F f) {
  const auto rows = load(routine, 1);
  EXPECT_GT(rows.size(), 1000u) << routine << ": table missing or short";
  std::map<std::string, Stats> st;
  for (const Row& r : rows) {
    const double x = r.in[0];
    const double got = f(x);
    const Range* rg = nullptr;
    for (const auto& c : ranges)
      if (c.name == r.label) rg = &c;
    if (rg == nullptr) {
      ADD_FAILURE() << routine << ": unexpected range " << r.label;
      continue;
    }
    double err = ulp_error(got, r.ref[0]);
    if (rg->judge == Judge::Conditioned) {
      err /= std::max(1.0, static_cast<double>(r.ref.at(1)));
    } else if (rg->judge == Judge::Fixed) {
      EXPECT_EQ(got, std::copysign(rg->fixed, x)) << routine << " at x = " << std::hexfloat << x;
      EXPECT_EQ(std::signbit(got), std::signbit(x)) << routine << " at x = " << std::hexfloat << x;
      if (r.ref.size() > 1) err /= std::max(1.0, static_cast<double>(r.ref[1]));
    }
    st[r.label].add(err, x);
  }
  for (const auto& [name, s] : st) {
    const Range* rg = nullptr;
    for (const auto& c : ranges)
      if (c.name == name) rg = &c;
    const char* how = rg->judge == Judge::Ulp ? "" : rg->judge == Judge::Conditioned
                                                         ? ", ulp/condition"
                                                         : ", fixed value; ulp/condition";
    report(routine, name + how, s);
  }
  return st;
}

void expect_within(const std::string& routine, const std::map<std::string, Stats>& st,
                   const std::vector<std::string>& names, double bound) {
  for (const auto& n : names) {
    auto it = st.find(n);
    ASSERT_NE(it, st.end()) << routine << ": no points in range " << n;
    EXPECT_LE(it->second.peak, bound)
        << routine << " [" << n << "]: peak at x = " << std::hexfloat << it->second.at;
  }
}

TEST(AccuracyErf, DawsonS15aff) {
  const auto st = run_real("s15aff",
                           {{"tiny", Judge::Ulp},
                            {"small", Judge::Ulp},
                            {"middle", Judge::Ulp},
                            {"asymptotic", Judge::Ulp},
                            {"reciprocal", Judge::Ulp},
                            {"zero", Judge::Fixed, 0.0}},
                           [](double x) { return s15affn(x); });
  expect_within("s15aff", st, {"tiny", "small", "middle", "asymptotic", "reciprocal"}, 2.0);
}

TEST(AccuracyErf, ErfcxS15agf) {
  std::map<double, int> codes;
  const auto st = run_real("s15agf",
                           {{"negative", Judge::Conditioned},
                            {"moderate", Judge::Ulp},
                            {"small", Judge::Ulp},
                            {"middle", Judge::Ulp},
                            {"asymptotic", Judge::Ulp},
                            {"warning", Judge::Ulp}},
                           [&](double x) {
                             char errbuf[200];
                             int ifail = -7;
                             const double v = s15agfn(x, errbuf, ifail);
                             codes[x] = ifail;
                             return v;
                           });
  expect_within("s15agf", st, {"negative", "moderate", "small", "middle", "asymptotic", "warning"},
                2.0);
  // The warning (code 3) is given exactly from 4.74e7 on; elsewhere none.
  for (const auto& [x, code] : codes) EXPECT_EQ(code, x >= 4.74e7 ? 3 : 0) << std::hexfloat << x;
}

TEST(AccuracyErf, FresnelS20acfS20adf) {
  const std::vector<std::string> strict = {"tiny", "series", "middle", "asymptotic", "far"};
  const auto ss = run_real("s20acf",
                           {{"zero", Judge::Fixed, 0.0},
                            {"tiny", Judge::Ulp},
                            {"series", Judge::Ulp},
                            {"middle", Judge::Ulp},
                            {"asymptotic", Judge::Ulp},
                            {"far", Judge::Ulp},
                            {"constant", Judge::Fixed, 0.5}},
                           [](double x) { return s20acfn(x); });
  expect_within("s20acf", ss, strict, 2.0);
  const auto sc = run_real("s20adf",
                           {{"tiny", Judge::Ulp},
                            {"series", Judge::Ulp},
                            {"middle", Judge::Ulp},
                            {"asymptotic", Judge::Ulp},
                            {"far", Judge::Ulp},
                            {"constant", Judge::Fixed, 0.5}},
                           [](double x) { return s20adfn(x); });
  expect_within("s20adf", sc, strict, 2.0);
}

// The vector forms give, element by element, exactly the scalar values, and
// N = 0 is an empty request.
TEST(AccuracyErf, FresnelVectorsMatchScalars) {
  const auto rows = load("s20acf", 1);
  std::vector<double> x;
  for (const auto& r : rows) x.push_back(r.in[0]);
  std::vector<double> fs(x.size(), -1.0), fc(x.size(), -1.0);
  char errbuf[200];
  int ifail = -7;
  s20aqfn(static_cast<int>(x.size()), x.data(), fs.data(), errbuf, ifail);
  EXPECT_EQ(ifail, 0);
  ifail = -7;
  s20arfn(static_cast<int>(x.size()), x.data(), fc.data(), errbuf, ifail);
  EXPECT_EQ(ifail, 0);
  for (std::size_t i = 0; i < x.size(); ++i) {
    EXPECT_EQ(fs[i], s20acfn(x[i])) << std::hexfloat << x[i];
    EXPECT_EQ(fc[i], s20adfn(x[i])) << std::hexfloat << x[i];
  }
  double untouched = -1.0;
  ifail = -7;
  s20aqfn(0, x.data(), &untouched, errbuf, ifail);
  EXPECT_EQ(ifail, 0);
  EXPECT_EQ(untouched, -1.0);
}

TEST(AccuracyErf, LegendreS22aaf) {
  // A row: MODE, X, M, NL, then NL+1 values and NL+1 condition numbers.
  const auto rows = load("s22aaf", 4);
  ASSERT_GT(rows.size(), 300u);
  std::map<std::string, Stats> st;
  for (const auto& r : rows) {
    const int mode = static_cast<int>(r.in[0]);
    const double x = r.in[1];
    const int m = static_cast<int>(r.in[2]);
    const int nl = static_cast<int>(r.in[3]);
    ASSERT_EQ(r.ref.size(), 2u * (nl + 1));
    std::vector<double> p(nl + 2, -123.0);
    char errbuf[200];
    int ifail = -7;
    s22aafn(mode, x, m, nl, p.data(), errbuf, ifail);
    ASSERT_EQ(ifail, 0);
    EXPECT_EQ(p[nl + 1], -123.0) << "written beyond P(NL)";
    const std::string range =
        "MODE " + std::to_string(mode) + (m == 0 ? ", M = 0" : m > 0 ? ", M > 0" : ", M < 0");
    for (int l = 0; l <= nl; ++l) {
      const double c = static_cast<double>(r.ref[nl + 1 + l]);
      st[range].add(ulp_error(p[l], r.ref[l]) / std::max(1.0, c), x);
    }
  }
  for (const auto& [name, s] : st) {
    report("s22aaf", name + ", ulp/condition", s);
    EXPECT_LE(s.peak, 2.0) << name << ": peak at x = " << std::hexfloat << s.at;
  }
}

TEST(AccuracyErf, FaddeevaS15ddf) {
  // A row: x, y, Re w, Im w, condition numbers of Re w and Im w.
  const auto rows = load("s15ddf", 2);
  ASSERT_GT(rows.size(), 1500u);
  std::map<std::string, Stats> plain, cond;
  for (const auto& r : rows) {
    char errbuf[200];
    int ifail = -7;
    const std::complex<double> w = s15ddfn({r.in[0], r.in[1]}, errbuf, ifail);
    EXPECT_EQ(ifail, 0) << std::hexfloat << r.in[0] << " " << r.in[1];
    const double parts[2] = {w.real(), w.imag()};
    for (int k = 0; k < 2; ++k) {
      const double c = static_cast<double>(r.ref[2 + k]);
      if (fabsl(r.ref[k]) < DBL_MIN) {
        // A part below the normal range (exp(-x^2) far out on the real
        // axis): within two subnormal steps.
        EXPECT_LE(fabsl(parts[k] - r.ref[k]), 0x1p-1073L)
            << std::hexfloat << r.in[0] << " " << r.in[1] << " part " << k;
        continue;
      }
      const double e = rel_error(parts[k], r.ref[k]);
      if (c <= 100.0) {
        plain[r.label].add(e, r.in[0]);
      } else {
        cond[r.label].add(e / c, r.in[0]);
      }
    }
  }
  for (const auto& [name, s] : plain) {
    report("s15ddf", name + ", each part", s, "rel");
    EXPECT_LE(s.peak, 1e-14) << name << ": peak at x = " << std::hexfloat << s.at;
  }
  for (const auto& [name, s] : cond) {
    report("s15ddf", name + ", ill-conditioned parts, rel/condition", s, "rel");
    EXPECT_LE(s.peak, 1e-14) << name << ": peak at x = " << std::hexfloat << s.at;
  }
}

// Arguments outside every table: NaN propagates without a failure, the
// infinities give the limits, and the failures of erfcx and s22aaf take them.
TEST(AccuracyErf, NonFiniteArguments) {
  const double inf = INFINITY;
  const double nan = std::nan("");
  EXPECT_TRUE(std::isnan(s15affn(nan)));
  EXPECT_TRUE(std::isnan(s20acfn(nan)));
  EXPECT_TRUE(std::isnan(s20adfn(nan)));
  EXPECT_EQ(s15affn(inf), 0.0);
  EXPECT_EQ(s20acfn(-inf), -0.5);
  EXPECT_EQ(s20adfn(inf), 0.5);
  char errbuf[200];
  int ifail = -7;
  EXPECT_EQ(s15agfn(inf, errbuf, ifail), 0.0);
  EXPECT_EQ(ifail, 2);
  s15agfn(-inf, errbuf, ifail);
  EXPECT_EQ(ifail, 1);
  const std::complex<double> w = s15ddfn({inf, inf}, errbuf, ifail);
  EXPECT_EQ(ifail, 0);
  EXPECT_EQ(w, std::complex<double>(0.0, 0.0));
  EXPECT_TRUE(std::isnan(s15ddfn({nan, 1.0}, errbuf, ifail).real()));
  EXPECT_EQ(ifail, 0);
  double p[3] = {-7.0, -7.0, -7.0};
  s22aafn(1, nan, 0, 2, p, errbuf, ifail);
  EXPECT_EQ(ifail, 3);
  EXPECT_EQ(p[0], -7.0);
}

}  // namespace
