// The error of a double result against an extended-precision reference in
// units of the last place of doubles in the reference's binade (for
// references below the normal range, the smallest subnormal).
#pragma once

#include <algorithm>
#include <cmath>

namespace zeb::test {

inline double ulps(double got, long double ref) {
  int e = 0;
  frexpl(ref, &e);
  return static_cast<double>(fabsl(got - ref) / ldexpl(1.0L, std::max(e - 53, -1074)));
}

}  // namespace zeb::test
