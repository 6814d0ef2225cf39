// The first special functions against their peers: gamma, ln gamma, erfc,
// erf, the normal distribution functions, the exponential integral and
// ln(1+x).
//
// First a table of the peak error of ZEB's bodies and of each peer on the
// points of the reference tables (tests/data/<routine>.csv), in ulps. Then
// Google Benchmark times one call of each, averaged over the same points
// (those where ZEB's routine succeeds), over all of them ("routine/who") and
// over each range of the table ("routine[range]/who").
// Peers: libm (glibc), GSL, and Boost.Math where GSL or libm lacks the
// function (E1 and Ei, the normal distribution).
//
// `make bench` builds and runs it with the others; by hand, against a
// build's static library, from the repository root:
//   g++ -O2 -std=c++20 -ffp-contract=off -I build/gen/include -I flimp/include
//       -DZEB_TEST_DATA_DIR='"tests/data"' bench/bench_s_first.cpp build/libzeb.a
//       -lgfortran -lgomp -lgsl -lgslcblas -lbenchmark -lpthread -o bench_s_first
#include <benchmark/benchmark.h>
#include <gsl/gsl_cdf.h>
#include <gsl/gsl_errno.h>
#include <gsl/gsl_sf_erf.h>
#include <gsl/gsl_sf_expint.h>
#include <gsl/gsl_sf_gamma.h>
#include <gsl/gsl_sf_log.h>

#include <boost/math/distributions/normal.hpp>
#include <boost/math/special_functions/erf.hpp>
#include <boost/math/special_functions/expint.hpp>
#include <boost/math/special_functions/gamma.hpp>
#include <cmath>
#include <cstdio>
#include <functional>
#include <map>
#include <string>
#include <vector>

#ifndef ZEB_TEST_DATA_DIR
#define ZEB_TEST_DATA_DIR "tests/data"
#endif
#include "../tests/accuracy/accuracy.h"
#include "bench_harness.h"
#include "zeb_s_ib.h"

namespace {

using zeb::bench::call;
using zeb::bench::Impl;
using zeb::bench::Real;
using zeb::bench::Timer;
using zeb::bench::run;
#define IMPL ZEB_BENCH_IMPL

template <auto Body>
bool succeeds(double x) {
  char errbuf[zeb::errbuf_len];
  int ifail = 1;
  Body(x, errbuf, ifail);
  return ifail == 0;
}

struct Func {
  std::string routine;  // the table
  std::string what;
  bool (*ok)(double);   // ZEB succeeds at x
  std::vector<Impl> impls;  // ZEB first
};

// Boost's policy that returns NaN or infinity instead of throwing, so that a
// peer and ZEB see the same points.
using NoThrow = boost::math::policies::policy<
    boost::math::policies::domain_error<boost::math::policies::ignore_error>,
    boost::math::policies::pole_error<boost::math::policies::ignore_error>,
    boost::math::policies::overflow_error<boost::math::policies::ignore_error>,
    boost::math::policies::evaluation_error<boost::math::policies::ignore_error>>;

bool always(double) { return true; }

constexpr double kRsqrt2 = 0.70710678118654752;

double boost_e1(double x) {
  // E1(x) for x > 0, -Ei(-x) for x < 0, as s13aaf defines it.
  return x > 0.0 ? boost::math::expint(1, x, NoThrow()) : -boost::math::expint(-x, NoThrow());
}

std::vector<Func> functions() {
  return {
      {"s14aaf", "gamma", succeeds<s14aafn>,
       {IMPL("ZEB", call<s14aafn>(x)), IMPL("libm", std::tgamma(x)),
        IMPL("GSL", gsl_sf_gamma(x)), IMPL("Boost", boost::math::tgamma(x, NoThrow()))}},
      {"s14abf", "ln gamma", succeeds<s14abfn>,
       {IMPL("ZEB", call<s14abfn>(x)), IMPL("libm", std::lgamma(x)),
        IMPL("GSL", gsl_sf_lngamma(x)), IMPL("Boost", boost::math::lgamma(x, NoThrow()))}},
      {"s15adf", "erfc", always,
       {IMPL("ZEB", s15adfn(x)), IMPL("libm", std::erfc(x)), IMPL("GSL", gsl_sf_erfc(x)),
        IMPL("Boost", boost::math::erfc(x, NoThrow()))}},
      {"s15aef", "erf", always,
       {IMPL("ZEB", s15aefn(x)), IMPL("libm", std::erf(x)), IMPL("GSL", gsl_sf_erf(x)),
        IMPL("Boost", boost::math::erf(x, NoThrow()))}},
      {"s15abf", "P(x)", always,
       {IMPL("ZEB", s15abfn(x)), IMPL("libm", 0.5 * std::erfc(-x * kRsqrt2)),
        IMPL("GSL", gsl_cdf_ugaussian_P(x)),
        IMPL("Boost", (boost::math::cdf(boost::math::normal_distribution<double, NoThrow>(), x)))}},
      {"s15acf", "Q(x)", always,
       {IMPL("ZEB", s15acfn(x)), IMPL("libm", 0.5 * std::erfc(x * kRsqrt2)),
        IMPL("GSL", gsl_cdf_ugaussian_Q(x)),
        IMPL("Boost", (boost::math::cdf(boost::math::complement(
                          boost::math::normal_distribution<double, NoThrow>(), x))))}},
      {"s13aaf", "E1, -Ei(-x)", succeeds<s13aafn>,
       {IMPL("ZEB", call<s13aafn>(x)), IMPL("GSL", gsl_sf_expint_E1(x)),
        IMPL("Boost", boost_e1(x))}},
      {"s01baf", "ln(1+x)", succeeds<s01bafn>,
       {IMPL("ZEB", call<s01bafn>(x)), IMPL("libm", std::log1p(x)),
        IMPL("GSL", gsl_sf_log_1plusx(x)), IMPL("Boost", boost::math::log1p(x, NoThrow()))}},
  };
}

double peak(const std::vector<zeb::acc::Row>& rows, const Real& f, bool (*ok)(double)) {
  double p = 0.0;
  for (const auto& r : rows) {
    if (!ok(r.in[0]) || r.label == "defined") continue;
    p = std::max(p, zeb::acc::ulp_error(f(r.in[0]), r.ref[0]));
  }
  return p;
}

}  // namespace

int main(int argc, char** argv) {
  gsl_set_error_handler_off();
  std::printf("Peak error on the reference points where ZEB succeeds (ulp)\n");
  std::printf("%-9s %-12s %7s %10s %10s %10s %10s\n", "routine", "function", "points", "ZEB",
              "libm", "GSL", "Boost");
  for (const auto& fn : functions()) {
    const auto rows = zeb::acc::load(fn.routine, 1);
    if (rows.empty()) {
      std::printf("%-9s (no table)\n", fn.routine.c_str());
      continue;
    }
    std::printf("%-9s %-12s %7zu", fn.routine.c_str(), fn.what.c_str(), rows.size());
    for (const char* who : {"ZEB", "libm", "GSL", "Boost"}) {
      bool found = false;
      for (const auto& im : fn.impls) {
        if (im.who == who) {
          std::printf(" %10.3g", peak(rows, im.f, fn.ok));
          found = true;
        }
      }
      if (!found) std::printf(" %10s", "-");
    }
    std::printf("\n");
    std::vector<double> all;
    std::map<std::string, std::vector<double>> by_range;
    for (const auto& r : rows) {
      if (!fn.ok(r.in[0])) continue;
      all.push_back(r.in[0]);
      if (!r.label.empty()) by_range[r.label].push_back(r.in[0]);
    }
    for (const auto& im : fn.impls) {
      benchmark::RegisterBenchmark((fn.routine + "/" + im.who).c_str(), im.timer, all);
    }
    for (const auto& [range, xs] : by_range) {
      for (const auto& im : fn.impls) {
        benchmark::RegisterBenchmark((fn.routine + "[" + range + "]/" + im.who).c_str(),
                                     im.timer, xs);
      }
    }
  }
  std::printf("\n");
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
