// The elementary group of chapter s against its peers: ln(1+x), exp(z), tan,
// arcsin, arccos, tanh, sinh, cosh, artanh, arsinh, arcosh, Ci and Si.
//
// First a table of the peak error of ZEB's bodies and of each peer on the
// points of the reference tables (tests/data/<routine>.csv): ulps for the
// real functions, the largest componentwise relative error for exp(z). Then
// Google Benchmark times one call of each, averaged over the same points
// (those where ZEB's routine succeeds).
// Peers: libm (glibc), GSL where it has the function, Boost.Math for what GSL
// lacks.
#include <benchmark/benchmark.h>
#include <gsl/gsl_complex_math.h>
#include <gsl/gsl_errno.h>
#include <gsl/gsl_math.h>
#include <gsl/gsl_sf_expint.h>
#include <gsl/gsl_sf_log.h>

#include <boost/math/special_functions/acosh.hpp>
#include <boost/math/special_functions/asinh.hpp>
#include <boost/math/special_functions/atanh.hpp>
#include <boost/math/special_functions/log1p.hpp>
#include <cfloat>
#include <cmath>
#include <complex>
#include <cstdio>
#include <functional>
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

struct Func {
  std::string routine;  // the table
  std::string what;
  std::vector<Impl> impls;  // ZEB first
};

// Boost's policy that returns NaN on a domain error instead of throwing, so
// that a peer and ZEB see the same points.
using NoThrow = boost::math::policies::policy<
    boost::math::policies::domain_error<boost::math::policies::ignore_error>,
    boost::math::policies::overflow_error<boost::math::policies::ignore_error>>;

std::vector<Func> functions() {
  return {
      {"s01baf", "ln(1+x)",
       {IMPL("ZEB", call<s01bafn>(x)), IMPL("libm", std::log1p(x)),
        IMPL("GSL", gsl_sf_log_1plusx(x)), IMPL("Boost", boost::math::log1p(x, NoThrow()))}},
      {"s07aaf", "tan x", {IMPL("ZEB", call<s07aafn>(x)), IMPL("libm", std::tan(x))}},
      {"s09aaf", "arcsin x", {IMPL("ZEB", call<s09aafn>(x)), IMPL("libm", std::asin(x))}},
      {"s09abf", "arccos x", {IMPL("ZEB", call<s09abfn>(x)), IMPL("libm", std::acos(x))}},
      {"s10aaf", "tanh x", {IMPL("ZEB", s10aafn(x)), IMPL("libm", std::tanh(x))}},
      {"s10abf", "sinh x", {IMPL("ZEB", call<s10abfn>(x)), IMPL("libm", std::sinh(x))}},
      {"s10acf", "cosh x", {IMPL("ZEB", call<s10acfn>(x)), IMPL("libm", std::cosh(x))}},
      {"s11aaf", "artanh x",
       {IMPL("ZEB", call<s11aafn>(x)), IMPL("libm", std::atanh(x)), IMPL("GSL", gsl_atanh(x)),
        IMPL("Boost", boost::math::atanh(x, NoThrow()))}},
      {"s11abf", "arsinh x",
       {IMPL("ZEB", s11abfn(x)), IMPL("libm", std::asinh(x)), IMPL("GSL", gsl_asinh(x)),
        IMPL("Boost", boost::math::asinh(x, NoThrow()))}},
      {"s11acf", "arcosh x",
       {IMPL("ZEB", call<s11acfn>(x)), IMPL("libm", std::acosh(x)), IMPL("GSL", gsl_acosh(x)),
        IMPL("Boost", boost::math::acosh(x, NoThrow()))}},
      {"s13acf", "Ci(x)", {IMPL("ZEB", call<s13acfn>(x)), IMPL("GSL", gsl_sf_Ci(x))}},
      {"s13adf", "Si(x)", {IMPL("ZEB", s13adfn(x)), IMPL("GSL", gsl_sf_Si(x))}},
  };
}

// The arguments of a table where ZEB's body succeeds (tan reports the
// doubles nearest to its poles): a failure's record is formatted text, and
// its cost is not the function's.
std::vector<double> args(const std::string& routine, const std::vector<zeb::acc::Row>& rows) {
  std::vector<double> x;
  for (const auto& r : rows) {
    char errbuf[zeb::errbuf_len];
    int ifail = 0;
    if (routine == "s07aaf") s07aafn(r.in[0], errbuf, ifail);
    if (ifail == 0) x.push_back(r.in[0]);
  }
  return x;
}

// The peak error of `f` over a table; with `xmax` only the points up to it.

double peak(const std::vector<zeb::acc::Row>& rows, const Real& f, double xmax = INFINITY) {
  double p = 0.0;
  for (const auto& r : rows) {
    if (std::fabs(r.in[0]) > xmax) continue;
    p = std::max(p, zeb::acc::ulp_error(f(r.in[0]), r.ref[0]));
  }
  return p;
}

// exp(z): the three implementations and their error.
using Complex = std::function<std::complex<double>(std::complex<double>)>;

std::vector<std::pair<std::string, Complex>> cexps() {
  return {{"ZEB",
           [](std::complex<double> z) {
             char errbuf[zeb::errbuf_len];
             int ifail = 1;
             return s01eafn(z, errbuf, ifail);
           }},
          {"libm", [](std::complex<double> z) { return std::exp(z); }},
          {"GSL", [](std::complex<double> z) {
             const gsl_complex w = gsl_complex_exp(gsl_complex_rect(z.real(), z.imag()));
             return std::complex<double>(GSL_REAL(w), GSL_IMAG(w));
           }}};
}

double peak_complex(const std::vector<zeb::acc::Row>& rows, const Complex& f) {
  double p = 0.0;
  for (const auto& r : rows) {
    const std::complex<double> v = f({r.in[0], r.in[1]});
    for (int k = 0; k < 2; ++k) {
      const long double ref = r.ref[k];
      const double got = k == 0 ? v.real() : v.imag();
      const long double scale = std::max(fabsl(ref), static_cast<long double>(DBL_MIN));
      p = std::max(p, static_cast<double>(fabsl(got - ref) / scale));
    }
  }
  return p;
}

void time_complex(benchmark::State& st, Complex f, std::vector<std::complex<double>> z) {
  for (auto _ : st) {
    std::complex<double> s = 0.0;
    for (auto v : z) s += f(v);
    benchmark::DoNotOptimize(s);
  }
  st.SetItemsProcessed(st.iterations() * static_cast<long>(z.size()));
}

}  // namespace

int main(int argc, char** argv) {
  gsl_set_error_handler_off();
  std::printf("Peak error on the reference points (ulp; exp(z): relative)\n");
  std::printf("%-9s %-10s %7s  %-10s %10s %10s %10s %10s\n", "routine", "function", "points",
              "range", "ZEB", "libm", "GSL", "Boost");
  for (const auto& fn : functions()) {
    const auto rows = zeb::acc::load(fn.routine, 1);
    if (rows.empty()) {
      std::printf("%-9s (no table)\n", fn.routine.c_str());
      continue;
    }
    const std::vector<double> ranges =
        fn.routine == "s13acf" ? std::vector<double>{16.0, INFINITY} : std::vector<double>{INFINITY};
    for (double xmax : ranges) {
      std::printf("%-9s %-10s %7zu  %-10s", fn.routine.c_str(), fn.what.c_str(), rows.size(),
                  xmax == INFINITY ? "all" : "x <= 16");
      for (const char* who : {"ZEB", "libm", "GSL", "Boost"}) {
        bool found = false;
        for (const auto& im : fn.impls) {
          if (im.who == who) {
            std::printf(" %10.3g", peak(rows, im.f, xmax));
            found = true;
          }
        }
        if (!found) std::printf(" %10s", "-");
      }
      std::printf("\n");
    }
    for (const auto& im : fn.impls) {
      benchmark::RegisterBenchmark((fn.routine + "/" + im.who).c_str(), im.timer, args(fn.routine, rows));
    }
  }
  const auto crows = zeb::acc::load("s01eaf", 2);
  if (!crows.empty()) {
    std::printf("%-9s %-10s %7zu  %-10s", "s01eaf", "exp(z)", crows.size(), "all");
    std::vector<std::complex<double>> z;
    for (const auto& r : crows) z.emplace_back(r.in[0], r.in[1]);
    for (const auto& [who, f] : cexps()) {
      std::printf(" %10.3g", peak_complex(crows, f));
      benchmark::RegisterBenchmark(("s01eaf/" + who).c_str(), time_complex, f, z);
    }
    std::printf(" %10s\n", "-");
  }
  std::printf("\n");
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
