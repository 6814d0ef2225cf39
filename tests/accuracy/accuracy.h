// Shared pieces of the accuracy tests: reading a reference table, measuring
// errors in units of the last place, and reporting peak and RMS errors.
//
// A table tests/data/<name>.csv holds comment lines beginning with '#' (its
// provenance) and data lines of comma-separated fields: first the inputs, as
// C99 hexadecimal floats (exact), then the reference values as decimal
// strings of at least 25 significant digits, and optionally a last field that
// is a range label (any text that does not start like a number).
#pragma once

#include <cfloat>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#ifndef ZEB_TEST_DATA_DIR
#error "ZEB_TEST_DATA_DIR must name the directory of the reference tables"
#endif

namespace zeb::acc {

struct Row {
  std::vector<double> in;        // the inputs
  std::vector<long double> ref;  // the reference values
  std::string label;             // the range, or empty
};

// Reads tests/data/<name>.csv; `ninputs` fields are inputs, the rest
// references. Returns an empty vector if the file is missing.
inline std::vector<Row> load(const std::string& name, int ninputs) {
  std::vector<Row> rows;
  std::ifstream f(std::string(ZEB_TEST_DATA_DIR) + "/" + name + ".csv");
  std::string line;
  while (std::getline(f, line)) {
    if (line.empty() || line[0] == '#') continue;
    std::stringstream ss(line);
    std::string field;
    Row r;
    int k = 0;
    while (std::getline(ss, field, ',')) {
      const char c = field.empty() ? ' ' : field[0];
      const bool numeric = (c >= '0' && c <= '9') || c == '-' || c == '+' ||
                           c == '.' || field == "inf" || field == "nan";
      if (k < ninputs) {
        r.in.push_back(std::strtod(field.c_str(), nullptr));
      } else if (numeric) {
        r.ref.push_back(std::strtold(field.c_str(), nullptr));
      } else {
        r.label = field;
      }
      ++k;
    }
    rows.push_back(r);
  }
  return rows;
}

// The spacing of the doubles at |v|: for subnormal and zero values the
// subnormal spacing.
inline long double ulp_of(long double v) {
  const double d = static_cast<double>(fabsl(v));
  if (d < DBL_MIN) return 0x1p-1074L;
  int e = 0;
  std::frexp(d, &e);  // d = m 2^e, 0.5 <= m < 1
  return std::ldexp(1.0L, e - 53);
}

// Error of `got` against `ref` in units of the last place of the reference.
// A reference beyond the largest double counts against the largest double.
inline double ulp_error(double got, long double ref) {
  if (std::isnan(got)) return std::isnan(static_cast<double>(ref)) ? 0.0 : INFINITY;
  if (std::isinf(got) && std::isinf(static_cast<double>(ref)) &&
      (got > 0) == (ref > 0)) {
    return 0.0;
  }
  return static_cast<double>(fabsl(static_cast<long double>(got) - ref) / ulp_of(ref));
}

// Relative error, for complex components and ill-conditioned places.
inline double rel_error(double got, long double ref) {
  if (ref == 0) return got == 0 ? 0.0 : INFINITY;
  return static_cast<double>(fabsl((static_cast<long double>(got) - ref) / ref));
}

struct Stats {
  double peak = 0;
  double at = 0;  // the first input where the peak was seen
  double sumsq = 0;
  std::size_t n = 0;
  void add(double err, double x) {
    if (n == 0 || err > peak) {
      peak = err;
      at = x;
    }
    sumsq += err * err;
    ++n;
  }
  double rms() const { return n ? std::sqrt(sumsq / static_cast<double>(n)) : 0.0; }
};

// Prints one line of the accuracy report and appends it, as a row of a
// Markdown table, to the file named by ZEB_ACCURACY_REPORT if that is set.
// `unit` is "ulp" or "rel".
inline void report(const std::string& routine, const std::string& range,
                   const Stats& s, const char* unit = "ulp") {
  std::printf("%s [%s]: peak %.3g %s at x=%a, rms %.3g %s, %zu points\n",
              routine.c_str(), range.c_str(), s.peak, unit, s.at, s.rms(), unit, s.n);
  if (const char* path = std::getenv("ZEB_ACCURACY_REPORT")) {
    if (FILE* f = std::fopen(path, "a")) {
      std::fprintf(f, "| `%s` | %s | %.3g %s | %.3g %s | %zu |\n", routine.c_str(),
                   range.c_str(), s.peak, unit, s.rms(), unit, s.n);
      std::fclose(f);
    }
  }
}

// Measures a real function of one real argument over a table: peak and RMS
// errors in ulps per range label and over all points. Returns the peak.
template <class F>
double measure(const std::string& routine, F f) {
  const auto rows = load(routine, 1);
  std::map<std::string, Stats> by_range;
  Stats all;
  for (const auto& r : rows) {
    const double err = ulp_error(f(r.in[0]), r.ref[0]);
    all.add(err, r.in[0]);
    if (!r.label.empty()) by_range[r.label].add(err, r.in[0]);
  }
  for (const auto& [range, s] : by_range) report(routine, range, s);
  report(routine, "all", all);
  return all.n ? all.peak : INFINITY;
}

}  // namespace zeb::acc
