// The parallel region shared by the sorts m01caf, m01cbf and m01ccf. Each
// element type supplies its serial kernel, its merge, its pair swap and a
// step to run between the merges and the reversal, as callables.
#pragma once

#include <algorithm>

#include "zeb_w_ib_aux.h"

namespace zeb::m01 {

// Sorts (m1:ms) ascending and then, for a descending order, reverses
// (m1:m2), in one parallel region:
//   1. the range is cut into one block per thread by the block rule, and each
//      thread sorts its own block with the serial kernel;
//   2. trunc(log2(P)) + 1 rounds follow, the span of a block doubling each
//      round: thread t < (remaining blocks)/2 merges blocks 2t and 2t+1 (an
//      odd last block waits for a later round); a barrier closes each round;
//   3. one thread runs `between` on the sorted range;
//   4. for a descending order the threads swap pairs (k, m1+m2-k), the pairs
//      cut by the block rule.
// The merges are stable and the kernels' results are unique arrangements, so
// the array that results does not depend on the number of threads.
template <class SortBlock, class Merge, class Between, class SwapPair>
void sort_region(int m1, int ms, int m2, bool descending, SortBlock sort_block,
                 Merge merge, Between between, SwapPair swap_pair) {
  const int n = ms - m1 + 1;
#pragma omp parallel default(none) \
    shared(m1, ms, m2, n, descending, sort_block, merge, between, swap_pair)
  {
    int p = 1;
    int t = 0;
    w01aayn(p);
    w01aaxn(t);
    int first = 0;
    int last = 0;
    w01aawn(p, t, n, first, last);
    if (first < last) sort_block(m1 + first - 1, m1 + last - 1);
#pragma omp barrier
    int rounds = 1;
    for (int q = p; q > 1; q /= 2) ++rounds;
    for (int r = 0, span = 1; r < rounds; ++r, span *= 2) {
      const int blocks = (p + span - 1) / span;
      if (t < blocks / 2) {
        const int b0 = 2 * t * span;                 // first block of the left
        const int b1 = b0 + span;                    // first block of the right
        const int b2 = std::min(b1 + span, p) - 1;   // last block of the right
        int lo = 0, mid = 0, hi = 0, unused = 0;
        w01aawn(p, b0, n, lo, unused);
        w01aawn(p, b1, n, mid, unused);
        w01aawn(p, b2, n, unused, hi);
        merge(m1 + lo - 1, m1 + mid - 1, m1 + hi - 1);
      }
#pragma omp barrier
    }
#pragma omp single
    between();
    if (descending) {
      w01aawn(p, t, (m2 - m1 + 1) / 2, first, last);
      for (int k = first; k <= last; ++k) swap_pair(m1 + k - 1, m2 - k + 1);
    }
  }
}

}  // namespace zeb::m01
