// The erf group against its peers, on the points of the reference tables
// (tests/data): first a table of the peak error of ZEB's bodies and of each
// peer, then Google Benchmark's time per call.
//
// Peers: GSL's Dawson integral and associated Legendre arrays; Boost.Math's
// legendre_p; for erfcx, which neither has, two constructions a caller would
// write: libm's exp(x*x)*erfc(x) and GSL's exp(x*x + log_erfc(x)). Neither
// library has the Fresnel integrals or the Faddeeva function; those are timed
// alone.
//
// Errors are in ulps, divided by max(1, condition number) as the accuracy
// tests do (erfcx below -4, the Legendre functions), over
// the ranges where the body computes its value (not the ranges where it
// returns a flushed 0 or the limit 1/2 by design). For w(z): the largest
// relative error of either part where that part's condition number is at
// most 100.
//
// Build by hand against a build tree, for instance:
//   g++ -O2 -std=c++20 -fopenmp -Iflimp/include -Ibuild/gen/include \
//       -Itests/accuracy -DZEB_TEST_DATA_DIR='"tests/data"' \
//       bench/bench_s_erf.cpp build/libzeb.a -lgsl -lgslcblas -lbenchmark \
//       -lgfortran -lpthread
#include <benchmark/benchmark.h>
#include <gsl/gsl_errno.h>
#include <gsl/gsl_sf_dawson.h>
#include <gsl/gsl_sf_erf.h>
#include <gsl/gsl_sf_legendre.h>

#include <algorithm>
#include <boost/math/special_functions/legendre.hpp>
#include <cmath>
#include <complex>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#ifndef ZEB_TEST_DATA_DIR
#define ZEB_TEST_DATA_DIR "tests/data"
#endif
#include "accuracy.h"
#include "zeb_s_ib.h"

namespace {

using zeb::acc::Row;

// The rows of a real function's table where the body computes its value.
std::vector<Row> computed_rows(const std::string& name) {
  std::vector<Row> out;
  for (auto& r : zeb::acc::load(name, 1))
    if (r.label != "zero" && r.label != "constant") out.push_back(r);
  return out;
}

std::vector<double> inputs(const std::vector<Row>& rows) {
  std::vector<double> x;
  for (const auto& r : rows) x.push_back(r.in[0]);
  return x;
}

// As in the accuracy tests, only erfcx below -4 is judged against its
// condition number (2x^2 there) among the real functions.
double cond(const Row& r) {
  return r.label == "negative" ? std::max(1.0, double(r.ref.at(1))) : 1.0;
}

double peak(const std::vector<Row>& rows, const std::function<double(double)>& f,
            const std::string& range = "") {
  double p = 0;
  for (const auto& r : rows)
    if (range.empty() || r.label == range)
      p = std::max(p, zeb::acc::ulp_error(f(r.in[0]), r.ref[0]) / cond(r));
  return p;
}

// One line per range of the table, then one over all of them.
void print_ranges(const char* name, const std::vector<Row>& rows,
                  const std::function<double(double)>& zeb_f,
                  const std::function<double(double)>& gsl_f,
                  const std::function<double(double)>& other_f) {
  std::vector<std::string> ranges;
  for (const auto& r : rows)
    if (std::find(ranges.begin(), ranges.end(), r.label) == ranges.end()) ranges.push_back(r.label);
  ranges.push_back("");
  for (const auto& rg : ranges) {
    const std::string what = std::string(name) + " [" + (rg.empty() ? "all" : rg) + "]";
    std::printf("%-34s %12.3g", what.c_str(), peak(rows, zeb_f, rg));
    if (gsl_f) std::printf(" %12.3g", peak(rows, gsl_f, rg)); else std::printf(" %12s", "-");
    if (other_f) std::printf(" %12.3g", peak(rows, other_f, rg)); else std::printf(" %12s", "-");
    std::printf("\n");
  }
}

// erfcx as callers build it from libm or GSL.
double erfcx_libm(double x) { return std::exp(x * x) * std::erfc(x); }
double erfcx_gsl(double x) { return std::exp(x * x + gsl_sf_log_erfc(x)); }

double erfcx_zeb(double x) {
  char errbuf[200];
  int ifail;
  return s15agfn(x, errbuf, ifail);
}

// Legendre sets: one call gives P(n, m, x) for n = |m|..|m|+nl.
struct LegCase {
  int mode;
  double x;
  int m;
  int nl;
  std::vector<long double> ref;
  std::vector<double> kappa;
};

std::vector<LegCase> legendre_cases() {
  std::vector<LegCase> out;
  for (const auto& r : zeb::acc::load("s22aaf", 4)) {
    LegCase c{int(r.in[0]), r.in[1], int(r.in[2]), int(r.in[3]), {}, {}};
    for (int l = 0; l <= c.nl; ++l) {
      c.ref.push_back(r.ref[l]);
      c.kappa.push_back(double(r.ref[c.nl + 1 + l]));
    }
    out.push_back(c);
  }
  return out;
}

void leg_zeb(const LegCase& c, double* p) {
  char errbuf[200];
  int ifail;
  s22aafn(c.mode, c.x, c.m, c.nl, p, errbuf, ifail);
}

// GSL: m >= 0 only; MODE 2 is sqrt(2 pi) times the spherical normalisation.
void leg_gsl(const LegCase& c, double* p) {
  const int lmax = c.m + c.nl;
  if (c.mode == 1) {
    gsl_sf_legendre_Plm_array(lmax, c.m, c.x, p);
  } else {
    gsl_sf_legendre_sphPlm_array(lmax, c.m, c.x, p);
    for (int l = 0; l <= c.nl; ++l) p[l] *= std::sqrt(2.0 * M_PI);
  }
}

// Boost: MODE 1 and m >= 0, one value per call.
void leg_boost(const LegCase& c, double* p) {
  for (int l = 0; l <= c.nl; ++l) p[l] = boost::math::legendre_p(c.m + l, c.m, c.x);
}

double leg_peak(const std::vector<LegCase>& cs, void (*f)(const LegCase&, double*),
                bool (*usable)(const LegCase&)) {
  double pk = 0;
  std::vector<double> p(160);
  for (const auto& c : cs) {
    if (!usable(c)) continue;
    f(c, p.data());
    for (int l = 0; l <= c.nl; ++l)
      pk = std::max(pk, zeb::acc::ulp_error(p[l], c.ref[l]) / std::max(1.0, c.kappa[l]));
  }
  return pk;
}

bool all_cases(const LegCase&) { return true; }
bool gsl_cases(const LegCase& c) { return c.m >= 0; }
bool boost_cases(const LegCase& c) { return c.m >= 0 && c.mode == 1; }

double faddeeva_peak() {
  double pk = 0;
  for (const auto& r : zeb::acc::load("s15ddf", 2)) {
    char errbuf[200];
    int ifail;
    const auto w = s15ddfn({r.in[0], r.in[1]}, errbuf, ifail);
    const double parts[2] = {w.real(), w.imag()};
    for (int k = 0; k < 2; ++k)
      if (double(r.ref[2 + k]) <= 100.0 && fabsl(r.ref[k]) >= DBL_MIN)
        pk = std::max(pk, zeb::acc::rel_error(parts[k], r.ref[k]));
  }
  return pk;
}

void print_table() {
  gsl_set_error_handler_off();
  const auto daw = computed_rows("s15aff");
  const auto ex = computed_rows("s15agf");
  const auto fs = computed_rows("s20acf");
  const auto fc = computed_rows("s20adf");
  const auto leg = legendre_cases();
  std::printf("Peak error on the reference points (ulp; divided by the condition number "
              "for erfcx [negative] and the Legendre functions)\n");
  std::printf("%-34s %12s %12s %12s\n", "function [range]", "ZEB", "GSL", "other");
  print_ranges("s15aff Dawson", daw, s15affn, [](double x) { return gsl_sf_dawson(x); }, nullptr);
  std::printf("  (s15agf: GSL is exp(x*x + gsl_sf_log_erfc(x)), other libm exp(x*x)*erfc(x))\n");
  print_ranges("s15agf erfcx", ex, erfcx_zeb, erfcx_gsl, erfcx_libm);
  print_ranges("s20acf Fresnel S", fs, s20acfn, nullptr, nullptr);
  print_ranges("s20adf Fresnel C", fc, s20adfn, nullptr, nullptr);
  std::printf("%-34s %12.3g %12s %12s  (relative, per part)\n", "s15ddf w(z) [all]", faddeeva_peak(),
              "-", "-");
  std::printf("%-34s %12.3g %12.3g %12.3g  (other: Boost legendre_p)\n",
              "s22aaf MODE 1, m >= 0", leg_peak(leg, leg_zeb, boost_cases),
              leg_peak(leg, leg_gsl, boost_cases), leg_peak(leg, leg_boost, boost_cases));
  std::printf("%-34s %12.3g %12.3g %12s\n", "s22aaf MODE 2, m >= 0",
              leg_peak(leg, leg_zeb, [](const LegCase& c) { return c.m >= 0 && c.mode == 2; }),
              leg_peak(leg, leg_gsl, [](const LegCase& c) { return c.m >= 0 && c.mode == 2; }),
              "-");
  std::printf("%-34s %12.3g %12s %12s\n", "s22aaf, all (m < 0 too)",
              leg_peak(leg, leg_zeb, all_cases), "-", "-");
  std::printf("\n");
}

// ---------------------------------------------------------------------------
// Timings: time per call over the table's points, less those where erfcx
// reports its warning (IFAIL = 3): writing the failure record costs a
// formatted write, which no peer does.

void run_real(benchmark::State& st, const char* table, double (*f)(double)) {
  std::vector<Row> rows;
  for (auto& r : computed_rows(table))
    if (r.label != "warning") rows.push_back(r);
  const auto x = inputs(rows);
  for (auto _ : st) {
    double s = 0;
    for (double v : x) s += f(v);
    benchmark::DoNotOptimize(s);
  }
  st.SetItemsProcessed(st.iterations() * x.size());
}

double gsl_dawson(double x) { return gsl_sf_dawson(x); }

void run_faddeeva(benchmark::State& st) {
  std::vector<std::complex<double>> z;
  for (const auto& r : zeb::acc::load("s15ddf", 2)) z.emplace_back(r.in[0], r.in[1]);
  for (auto _ : st) {
    std::complex<double> s = 0;
    for (const auto& v : z) {
      char errbuf[200];
      int ifail;
      s += s15ddfn(v, errbuf, ifail);
    }
    benchmark::DoNotOptimize(s);
  }
  st.SetItemsProcessed(st.iterations() * z.size());
}

void run_legendre(benchmark::State& st, void (*f)(const LegCase&, double*), int mode) {
  std::vector<LegCase> cs;
  for (auto& c : legendre_cases())
    if (c.m >= 0 && c.mode == mode) cs.push_back(c);
  std::vector<double> p(160);
  long values = 0;
  for (const auto& c : cs) values += c.nl + 1;
  for (auto _ : st) {
    double s = 0;
    for (const auto& c : cs) {
      f(c, p.data());
      s += p[c.nl];
    }
    benchmark::DoNotOptimize(s);
  }
  // Items are sets (calls); the label gives the time per value.
  st.SetItemsProcessed(st.iterations() * cs.size());
  st.counters["ns_per_value"] = benchmark::Counter(
      double(values) * st.iterations(), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

BENCHMARK_CAPTURE(run_real, s15aff_zeb, "s15aff", s15affn);
BENCHMARK_CAPTURE(run_real, s15aff_gsl, "s15aff", gsl_dawson);
BENCHMARK_CAPTURE(run_real, s15agf_zeb, "s15agf", erfcx_zeb);
BENCHMARK_CAPTURE(run_real, s15agf_gsl_log_erfc, "s15agf", erfcx_gsl);
BENCHMARK_CAPTURE(run_real, s15agf_libm_exp_erfc, "s15agf", erfcx_libm);
BENCHMARK_CAPTURE(run_real, s20acf_zeb, "s20acf", s20acfn);
BENCHMARK_CAPTURE(run_real, s20adf_zeb, "s20adf", s20adfn);
BENCHMARK(run_faddeeva);
BENCHMARK_CAPTURE(run_legendre, s22aaf_mode1_zeb, leg_zeb, 1);
BENCHMARK_CAPTURE(run_legendre, s22aaf_mode1_gsl, leg_gsl, 1);
BENCHMARK_CAPTURE(run_legendre, s22aaf_mode1_boost, leg_boost, 1);
BENCHMARK_CAPTURE(run_legendre, s22aaf_mode2_zeb, leg_zeb, 2);
BENCHMARK_CAPTURE(run_legendre, s22aaf_mode2_gsl, leg_gsl, 2);

}  // namespace

int main(int argc, char** argv) {
  print_table();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
