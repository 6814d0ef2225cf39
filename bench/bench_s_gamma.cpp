// The gamma group against its peers: psi - ln x, the scaled polygamma
// derivatives, the real and complex polygamma, complex ln gamma, the scaled
// ln gamma, the incomplete gamma pair, ln B and the incomplete beta pair.
//
// First a table of the peak error of ZEB's bodies and of each peer on the
// points of the reference tables (tests/data/<routine>.csv) where ZEB
// succeeds, measured as the accuracy tests measure it: ulps divided by the
// condition number where that exceeds 1 (for the complex functions the
// relative error of each component so divided). Then Google Benchmark times
// one call of each, averaged over the same points ("routine/who").
// Peers: libm (glibc) where it has the function or its parts, GSL, and
// Boost.Math (which has no complex polygamma or ln gamma).
//
// By hand, against a build's static library, from the repository root:
//   g++ -O2 -std=c++20 -ffp-contract=off -fopenmp -I build/gen/include
//       -I flimp/include -DZEB_TEST_DATA_DIR='"tests/data"'
//       bench/bench_s_gamma.cpp build/libzeb.a -lgsl -lgslcblas -lbenchmark
//       -lgfortran -lpthread -o bench_s_gamma
#include <benchmark/benchmark.h>
#include <gsl/gsl_errno.h>
#include <gsl/gsl_sf_gamma.h>
#include <gsl/gsl_sf_psi.h>
#include <gsl/gsl_sf_result.h>

#include <array>
#include <boost/math/special_functions/beta.hpp>
#include <boost/math/special_functions/digamma.hpp>
#include <boost/math/special_functions/factorials.hpp>
#include <boost/math/special_functions/gamma.hpp>
#include <boost/math/special_functions/polygamma.hpp>
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
#include "zeb_s_ib_aux.h"

namespace {

using Args = std::array<double, 4>;
using Points = std::vector<Args>;
using Timer = void (*)(benchmark::State&, const Points&);
using zeb::bench::run;

using NoThrow = boost::math::policies::policy<
    boost::math::policies::domain_error<boost::math::policies::ignore_error>,
    boost::math::policies::pole_error<boost::math::policies::ignore_error>,
    boost::math::policies::overflow_error<boost::math::policies::ignore_error>,
    boost::math::policies::evaluation_error<boost::math::policies::ignore_error>>;

// A result: one real, or a complex one as two parts.
struct Val {
  double re;
  double im;
};

struct Impl {
  std::string who;
  std::function<Val(const Args&)> f;
  Timer timer;
};

#define IMPL(who, expr)                                                           \
  Impl {                                                                          \
    who, [](const Args& a) { return Val(expr); },                                 \
        [](benchmark::State& st, const Points& p) {                               \
          run(st, p, [](const Args& a) { const Val v(expr); return v.re + v.im; }); \
        }                                                                         \
  }

struct Func {
  std::string table;  // tests/data/<table>.csv
  std::string name;   // the row of the table
  int nin;            // inputs
  int nref;           // 1 real or 2 (complex) reference columns used
  int ref;            // first reference column used
  int cond;           // the column of the condition number
  bool (*ok)(const Args&);
  std::vector<Impl> impls;  // ZEB first
};

Val R(double v) { return {v, 0.0}; }
Val C(std::complex<double> v) { return {v.real(), v.imag()}; }

double zeb_s14adf(double x, int n) {
  char eb[zeb::errbuf_len];
  int ifail = 1;
  double v = 0.0;
  s14adfn(x, n, 1, &v, eb, ifail);
  return v;
}
double zeb_s14aef(double x, int k) {
  char eb[zeb::errbuf_len];
  int ifail = 1;
  return s14aefn(x, k, eb, ifail);
}
std::complex<double> zeb_s14aff(double x, double y, int k) {
  char eb[zeb::errbuf_len];
  int ifail = 1;
  return s14affn({x, y}, k, eb, ifail);
}
std::complex<double> zeb_s14agf(double x, double y) {
  char eb[zeb::errbuf_len];
  int ifail = 1;
  return s14agfn({x, y}, eb, ifail);
}
double zeb_s14baf(double a, double x, bool upper) {
  char eb[zeb::errbuf_len];
  int ifail = 1;
  double p = 0.0;
  double q = 0.0;
  s14bafn(a, x, 0.0, p, q, eb, ifail);
  return upper ? q : p;
}
double zeb_s14cczn(const Args& a, bool upper) {
  double w = 0.0;
  double w1 = 0.0;
  s14cczn(a[0], a[1], a[2], a[3], w, w1);
  return upper ? w1 : w;
}

// The peers' (-1)^(n+1) psi^(n)(x)/n!.
double gsl_scaled(double x, int n) {
  if (n == 0) return -gsl_sf_psi(x);
  const double s = (n % 2 == 1) ? 1.0 : -1.0;
  return s * gsl_sf_psi_n(n, x) / gsl_sf_fact(static_cast<unsigned>(n));
}
double boost_scaled(double x, int n) {
  if (n == 0) return -boost::math::digamma(x, NoThrow());
  const double s = (n % 2 == 1) ? 1.0 : -1.0;
  return s * boost::math::polygamma(n, x, NoThrow()) /
         boost::math::factorial<double>(static_cast<unsigned>(n), NoThrow());
}

Val gsl_cpsi(double x, double y) {
  gsl_sf_result re, im;
  gsl_sf_complex_psi_e(x, y, &re, &im);
  return {re.val, im.val};
}
Val gsl_clngamma(double x, double y) {
  gsl_sf_result lnr, arg;
  gsl_sf_lngamma_complex_e(x, y, &lnr, &arg);
  return {lnr.val, arg.val};
}

constexpr double kHalfLn2Pi = 0.91893853320467274;

bool always(const Args&) { return true; }
bool ok_s14acf(const Args& a) {
  char eb[zeb::errbuf_len];
  int ifail = 1;
  s14acfn(a[0], eb, ifail);
  return ifail == 0;
}

std::vector<Func> functions() {
  return {
      {"s14acf", "psi - ln x", 1, 1, 0, 1, ok_s14acf,
       {IMPL("ZEB", R(zeb::bench::call<s14acfn>(a[0]))),
        IMPL("GSL", R(gsl_sf_psi(a[0]) - std::log(a[0]))),
        IMPL("Boost", R(boost::math::digamma(a[0], NoThrow()) - std::log(a[0])))}},
      {"s14adf", "scaled psi^(n)", 2, 1, 0, 1, always,
       {IMPL("ZEB", R(zeb_s14adf(a[0], static_cast<int>(a[1])))),
        IMPL("GSL", R(gsl_scaled(a[0], static_cast<int>(a[1])))),
        IMPL("Boost", R(boost_scaled(a[0], static_cast<int>(a[1]))))}},
      {"s14aef", "psi^(k), real", 2, 1, 0, 1, always,
       {IMPL("ZEB", R(zeb_s14aef(a[0], static_cast<int>(a[1])))),
        IMPL("GSL", R(a[1] == 0 ? gsl_sf_psi(a[0]) : gsl_sf_psi_n(static_cast<int>(a[1]), a[0]))),
        IMPL("Boost", R(boost::math::polygamma(static_cast<int>(a[1]), a[0], NoThrow())))}},
      {"s14aff", "psi^(k), complex", 3, 2, 0, 2, always,
       {IMPL("ZEB", C(zeb_s14aff(a[0], a[1], static_cast<int>(a[2])))),
        IMPL("GSL", (a[2] == 0 ? gsl_cpsi(a[0], a[1]) : Val{NAN, NAN}))}},
      {"s14agf", "ln gamma, complex", 2, 2, 0, 2, always,
       {IMPL("ZEB", C(zeb_s14agf(a[0], a[1]))), IMPL("GSL", gsl_clngamma(a[0], a[1]))}},
      {"s14ahf", "scaled ln gamma", 1, 1, 0, 1, always,
       {IMPL("ZEB", R(zeb::bench::call<s14ahfn>(a[0]))),
        IMPL("libm", R(std::lgamma(a[0]) - (a[0] - 0.5) * std::log(a[0]) + a[0] - kHalfLn2Pi)),
        IMPL("GSL", R(gsl_sf_lngamma(a[0]) - (a[0] - 0.5) * std::log(a[0]) + a[0] - kHalfLn2Pi)),
        IMPL("Boost", R(boost::math::lgamma(a[0], NoThrow()) - (a[0] - 0.5) * std::log(a[0]) +
                        a[0] - kHalfLn2Pi))}},
      {"s14baf", "P(a,x)", 2, 1, 0, 2, always,
       {IMPL("ZEB", R(zeb_s14baf(a[0], a[1], false))),
        IMPL("GSL", R(gsl_sf_gamma_inc_P(a[0], a[1]))),
        IMPL("Boost", R(boost::math::gamma_p(a[0], a[1], NoThrow())))}},
      {"s14baf", "Q(a,x)", 2, 1, 1, 3, always,
       {IMPL("ZEB", R(zeb_s14baf(a[0], a[1], true))),
        IMPL("GSL", R(gsl_sf_gamma_inc_Q(a[0], a[1]))),
        IMPL("Boost", R(boost::math::gamma_q(a[0], a[1], NoThrow())))}},
      {"s14cbzn", "ln B(a,b)", 2, 1, 0, 1, always,
       {IMPL("ZEB", R(s14cbzn(a[0], a[1]))),
        IMPL("libm", R(std::lgamma(a[0]) + std::lgamma(a[1]) - std::lgamma(a[0] + a[1]))),
        IMPL("GSL", R(gsl_sf_lnbeta(a[0], a[1]))),
        IMPL("Boost", R(boost::math::lgamma(a[0], NoThrow()) + boost::math::lgamma(a[1], NoThrow()) -
                        boost::math::lgamma(a[0] + a[1], NoThrow())))}},
      {"s14cczn", "I_x(a,b)", 4, 1, 0, 2, always,
       {IMPL("ZEB", R(zeb_s14cczn(a, false))), IMPL("GSL", R(gsl_sf_beta_inc(a[0], a[1], a[2]))),
        IMPL("Boost", R(boost::math::ibeta(a[0], a[1], a[2], NoThrow())))}},
      {"s14cczn", "1-I_x(a,b)", 4, 1, 1, 3, always,
       {IMPL("ZEB", R(zeb_s14cczn(a, true))), IMPL("GSL", R(gsl_sf_beta_inc(a[1], a[0], a[3]))),
        IMPL("Boost", R(boost::math::ibetac(a[0], a[1], a[2], NoThrow())))}},
  };
}

// The error measure of the accuracy tests.
double real_err(double got, long double ref, double cond) {
  if (fabsl(ref) < DBL_MIN) return fabsl(got - ref) <= DBL_MIN ? 0.0 : INFINITY;
  if (std::isnan(got)) return INFINITY;
  return zeb::acc::ulp_error(got, ref) / std::max(1.0, cond);
}
double complex_err(Val got, long double rr, long double ri, double cond, bool wrap) {
  if (wrap) {
    // GSL gives the phase of ln gamma reduced to (-pi, pi]: it is given the
    // benefit of the branch.
    const double k = std::nearbyint((static_cast<double>(ri) - got.im) / (2 * M_PI));
    got.im += 2 * M_PI * k;
  }
  const long double m = hypotl(rr, ri);
  auto comp = [&](double g, long double r) {
    const long double s = std::max({fabsl(r), 0.1L * m, static_cast<long double>(DBL_MIN)});
    return static_cast<double>(fabsl(g - r) / s);
  };
  const double e = std::max(comp(got.re, rr), comp(got.im, ri)) / std::max(1.0, cond);
  return std::isnan(e) ? INFINITY : e;
}

}  // namespace

int main(int argc, char** argv) {
  gsl_set_error_handler_off();
  std::printf("Peak error on the reference points where ZEB succeeds: ulp / max(1, cond)\n");
  std::printf("(complex functions: relative error of the parts / max(1, cond))\n");
  std::printf("%-8s %-18s %6s %10s %10s %10s %10s\n", "routine", "function", "points", "ZEB",
              "libm", "GSL", "Boost");
  for (const auto& fn : functions()) {
    const auto rows = zeb::acc::load(fn.table, fn.nin);
    if (rows.empty()) {
      std::printf("%-8s (no table)\n", fn.table.c_str());
      continue;
    }
    Points pts;
    for (const auto& r : rows) {
      Args a{};
      for (int i = 0; i < fn.nin; ++i) a[i] = r.in[i];
      if (fn.ok(a)) pts.push_back(a);
    }
    std::printf("%-8s %-18s %6zu", fn.table.c_str(), fn.name.c_str(), pts.size());
    for (const char* who : {"ZEB", "libm", "GSL", "Boost"}) {
      const Impl* im = nullptr;
      for (const auto& i : fn.impls) {
        if (i.who == who) im = &i;
      }
      if (im == nullptr) {
        std::printf(" %10s", "-");
        continue;
      }
      double peak = 0.0;
      for (const auto& r : rows) {
        Args a{};
        for (int i = 0; i < fn.nin; ++i) a[i] = r.in[i];
        if (!fn.ok(a)) continue;
        const Val v = im->f(a);
        const double cond = static_cast<double>(r.ref[fn.cond]);
        const double e = fn.nref == 1
                             ? real_err(v.re, r.ref[fn.ref], cond)
                             : complex_err(v, r.ref[fn.ref], r.ref[fn.ref + 1], cond,
                                           fn.table == "s14agf" && im->who == "GSL");
        peak = std::max(peak, e);
      }
      std::printf(" %10.3g", peak);
    }
    std::printf("\n");
    for (const auto& im : fn.impls) {
      benchmark::RegisterBenchmark((fn.table + " " + fn.name + "/" + im.who).c_str(), im.timer,
                                   pts);
    }
  }
  std::printf("\n");
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
