// erfc through the public wrapper s15adf (wrapper, trace switch, exit), the
// body s15adfn alone, and libm's erfc. The ratio wrapper/body is the cost of
// the call frame on the success path.
#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

#include "zeb_s_ib.h"

extern "C" double s15adf_(const double* x, int* ifail);

namespace {

std::vector<double> points() {
  std::vector<double> x(1024);
  for (std::size_t i = 0; i < x.size(); ++i) x[i] = -6.0 + 12.0 * i / x.size();
  return x;
}

void wrapper(benchmark::State& st) {
  const auto x = points();
  for (auto _ : st) {
    double s = 0;
    for (double v : x) {
      int ifail = 1;
      s += s15adf_(&v, &ifail);
    }
    benchmark::DoNotOptimize(s);
  }
  st.SetItemsProcessed(st.iterations() * x.size());
}

void body(benchmark::State& st) {
  const auto x = points();
  for (auto _ : st) {
    double s = 0;
    for (double v : x) s += s15adfn(v);
    benchmark::DoNotOptimize(s);
  }
  st.SetItemsProcessed(st.iterations() * x.size());
}

void libm(benchmark::State& st) {
  const auto x = points();
  for (auto _ : st) {
    double s = 0;
    for (double v : x) s += std::erfc(v);
    benchmark::DoNotOptimize(s);
  }
  st.SetItemsProcessed(st.iterations() * x.size());
}

BENCHMARK(wrapper);
BENCHMARK(body);
BENCHMARK(libm);

}  // namespace

BENCHMARK_MAIN();
