// Pieces shared by the peer benchmarks of chapter s: a body with ERRBUF and
// IFAIL as a function of x alone, the timing loop with the function inlined
// into it, and an implementation of a real function of one argument as the
// pair the benchmarks need (a callable for the error table, and a timer that
// inlines the same expression into the loop).
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>
#include <vector>

#include "zeb_frame.h"

namespace zeb::bench {

template <auto Body>
double call(double x) {
  char errbuf[zeb::errbuf_len];
  int ifail = 1;
  return Body(x, errbuf, ifail);
}

// The points are doubles or tuples of arguments, whatever f takes.
template <class Points, class F>
void run(benchmark::State& st, const Points& pts, F f) {
  for (auto _ : st) {
    double s = 0.0;
    for (const auto& a : pts) s += f(a);
    benchmark::DoNotOptimize(s);
  }
  st.SetItemsProcessed(st.iterations() * static_cast<long>(pts.size()));
}

using Real = std::function<double(double)>;
using Timer = void (*)(benchmark::State&, const std::vector<double>&);

struct Impl {
  std::string who;
  Real f;       // for the error table
  Timer timer;  // the same expression, inlined into the timing loop
};

}  // namespace zeb::bench

#define ZEB_BENCH_IMPL(who, expr)                                            \
  zeb::bench::Impl {                                                         \
    who, [](double x) { return expr; },                                      \
        [](benchmark::State& st, const std::vector<double>& xs) {            \
          zeb::bench::run(st, xs, [](double x) { return expr; });            \
        }                                                                    \
  }
