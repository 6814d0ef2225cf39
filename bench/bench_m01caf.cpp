// m01caf (the public wrapper, ascending) against std::sort and
// std::stable_sort on 10^3 to 10^7 doubles, random, sorted and reversed;
// m01caf on 1 and 2 threads. Each iteration sorts a fresh copy of the data;
// only the sort is timed. Every case runs three times and the console shows
// the aggregates; a last table gives each case's fastest time as a ratio to
// the fastest std::sort on the same data (below 1: faster), which is the
// figure least disturbed by other work on the machine.
#include <benchmark/benchmark.h>
#include <omp.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "zeb.h"

namespace {

const char* const kinds[] = {"random", "sorted", "reversed"};
const int sizes[] = {1000, 10000, 100000, 1000000, 10000000};

std::vector<double> data(int kind, int n) {
  std::vector<double> v(n);
  std::mt19937_64 g(20240601);
  std::uniform_real_distribution<double> u(-1.0, 1.0);
  for (double& x : v) x = u(g);
  if (kind == 1) std::sort(v.begin(), v.end());
  if (kind == 2) std::sort(v.begin(), v.end(), std::greater<double>());
  return v;
}

// Times `sort` on a fresh copy of the data in every iteration.
template <class Sort>
void run(benchmark::State& st, int kind, int n, Sort sort) {
  const auto src = data(kind, n);
  std::vector<double> work(n);
  for (auto _ : st) {
    std::copy(src.begin(), src.end(), work.begin());
    const auto t0 = std::chrono::steady_clock::now();
    sort(work);
    const auto t1 = std::chrono::steady_clock::now();
    benchmark::DoNotOptimize(work.data());
    st.SetIterationTime(std::chrono::duration<double>(t1 - t0).count());
  }
  if (!std::is_sorted(work.begin(), work.end())) st.SkipWithError("not sorted");
  st.SetItemsProcessed(st.iterations() * static_cast<long long>(n));
}

void m01caf(benchmark::State& st, int kind, int n, int threads) {
  omp_set_num_threads(threads);
  run(st, kind, n, [n](std::vector<double>& v) {
    const int m1 = 1;
    int ifail = 1;
    m01caf_(v.data(), &m1, &n, "A", &ifail, 1);
  });
}

void std_sort(benchmark::State& st, int kind, int n) {
  run(st, kind, n, [](std::vector<double>& v) { std::sort(v.begin(), v.end()); });
}

void std_stable_sort(benchmark::State& st, int kind, int n) {
  run(st, kind, n, [](std::vector<double>& v) { std::stable_sort(v.begin(), v.end()); });
}

std::string key(const char* what, int kind, int n) {
  return std::string(what) + "/" + kinds[kind] + "/" + std::to_string(n);
}

// Keeps each case's fastest repetition so that the ratios can be printed
// after the runs.
class RatioReporter : public benchmark::ConsoleReporter {
 public:
  std::map<std::string, double> time;
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const auto& r : runs) {
      if (r.error_occurred) continue;
      if (r.run_type == Run::RT_Aggregate && r.aggregate_name != "min") continue;
      std::string name = r.run_name.str();
      const auto rep = name.find("/repeats:");
      if (rep != std::string::npos) name.erase(rep, name.find('/', rep + 1) - rep);
      const double t = r.GetAdjustedRealTime();
      const auto it = time.find(name);
      if (it == time.end() || t < it->second) time[name] = t;
    }
    ConsoleReporter::ReportRuns(runs);
  }
};

double fastest(const std::vector<double>& v) { return *std::min_element(v.begin(), v.end()); }

void configure(benchmark::internal::Benchmark* b) {
  b->UseManualTime()
      ->Unit(benchmark::kMicrosecond)
      ->Repetitions(3)
      ->DisplayAggregatesOnly(true)
      ->ComputeStatistics("min", fastest);
}

}  // namespace

int main(int argc, char** argv) {
  for (int n : sizes) {
    for (int kind = 0; kind < 3; ++kind) {
      for (int threads : {1, 2}) {
        configure(benchmark::RegisterBenchmark(
            (key("m01caf", kind, n) + "/threads:" + std::to_string(threads)).c_str(), m01caf,
            kind, n, threads));
      }
      configure(benchmark::RegisterBenchmark(key("std::sort", kind, n).c_str(), std_sort, kind, n));
      configure(benchmark::RegisterBenchmark(key("std::stable_sort", kind, n).c_str(),
                                             std_stable_sort, kind, n));
    }
  }
  benchmark::Initialize(&argc, argv);
  RatioReporter rep;
  benchmark::RunSpecifiedBenchmarks(&rep);

  std::printf("\nTime relative to std::sort on the same data (below 1: faster)\n");
  std::printf("%-9s %9s %14s %14s %17s\n", "data", "n", "m01caf 1 thr", "m01caf 2 thr",
              "std::stable_sort");
  for (int kind = 0; kind < 3; ++kind) {
    for (int n : sizes) {
      const auto base = rep.time.find(key("std::sort", kind, n) + "/manual_time");
      if (base == rep.time.end()) continue;
      std::printf("%-9s %9d", kinds[kind], n);
      for (const std::string& k :
           {key("m01caf", kind, n) + "/threads:1", key("m01caf", kind, n) + "/threads:2",
            key("std::stable_sort", kind, n)}) {
        const auto it = rep.time.find(k + "/manual_time");
        if (it == rep.time.end()) {
          std::printf(" %14s", "-");
        } else {
          std::printf(" %14.3f", it->second / base->second);
        }
      }
      std::printf("\n");
    }
  }
  benchmark::Shutdown();
  return 0;
}
