// The algorithms of chapter m01, written once over the element type:
//
//   sort_range     Singleton's quicksort of a subrange (R. C. Singleton,
//                  Algorithm 347, CACM 12 (1969) 185-187), with the median of
//                  three, a Wichmann-Hill random pivot for ranges marked
//                  unbalanced, and a closing insertion pass;
//   merge_blocks   stable merge of two neighbouring sorted blocks through
//                  scratch (the merge rounds of the parallel sorts);
//   rank_list      stable list merge sort in the rank vector itself;
//   perm_*         the sign-mark cycle walks over a permutation.
//
// Positions are 1-based as the caller sees them; element k of a caller's
// array is at offset k-1. An element sequence is reached through a small
// policy (`Seq`) so that reals, integers and fixed-length strings share one
// text of each algorithm:
//
//   Value           a copy of one element, held outside the array
//   lt(i, j)        element i sorts strictly before element j
//   swap(i, j)      exchange elements i and j
//   get(v, k)       v = element k
//   lt_v(i, v)      element i < v;   v_lt(v, j)  v < element j
//   move(d, s)      element d = element s;   put(d, v)  element d = v
//   partition(left, right, t, i, j)
//                   the two-pointer partition of [left, right] about the
//                   value t (see sort_range)
//   shift(i, lo, v) moves the elements before position i that v is below
//                   one place up, from i-1 downwards, stopping at the first
//                   that v is not below or at position lo (lo = 0: no bound);
//                   returns the place left free
// The last two are the inner loops; written over addresses they are as lean
// as the loops of std::sort. generic_partition and generic_shift give them
// from the other operations.
//
// The held values are locals of the algorithms, not members of the policy, so
// that stores into the array cannot be taken to change them.
// Only `<` is asked, and every scan stops when a comparison is false, so an
// incomparable value (a NaN) can misplace elements but never lets a scan leave
// the range.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstring>

namespace zeb::m01 {

// ---------------------------------------------------------------------------
// The Wichmann-Hill generator: three congruential streams with moduli 30269,
// 30307 and 30323 and multipliers 171, 172 and 170, each step done by
// Schrage's method (m = a q + r) so that no product exceeds 32 bits. Seeds are
// fixed, so a given array always costs the same work.
// Moduli and multipliers as published in B. A. Wichmann and I. D. Hill,
// Algorithm AS 183, Applied Statistics 31 (1982) 188-190; the factorisations
// q = m div a, r = m mod a (177, 2; 176, 35; 178, 63) follow L. Schrage, ACM
// TOMS 5 (1979) 132-138, and are exact integers.
struct WichmannHill {
  int s1 = 15223, s2 = 17795, s3 = 28707;

  static int step(int s, int a, int q, int r, int m) {
    s = a * (s % q) - r * (s / q);
    return s < 0 ? s + m : s;
  }

  // The next uniform value in [0, 1).
  double next() {
    s1 = step(s1, 171, 177, 2, 30269);
    s2 = step(s2, 172, 176, 35, 30307);
    s3 = step(s3, 170, 178, 63, 30323);
    const double u = s1 / 30269.0 + s2 / 30307.0 + s3 / 30323.0;
    return u - std::floor(u);
  }
};

// The two-pointer partition from the element operations: with element
// left <= t <= element right, scans from both ends stop at elements not below
// (not above) t and exchange them, until the scans cross. On return
// [left, i-1] <= t <= [j+1, right], and i = j + 1, or i = j on an element
// equal to t.
template <class Seq>
void generic_partition(const Seq& a, int left, int right, const typename Seq::Value& t,
                       int& i, int& j) {
  i = left;
  j = right;
  for (;;) {
    do ++i; while (a.lt_v(i, t));
    do --j; while (a.v_lt(t, j));
    if (i >= j) break;
    const_cast<Seq&>(a).swap(i, j);
  }
}

template <class Seq>
int generic_shift(Seq& a, int i, int lo, const typename Seq::Value& v) {
  do {
    a.move(i, i - 1);
    --i;
  } while ((lo == 0 || i > lo) && a.v_lt(v, i - 1));
  return i;
}

// Ranges shorter than this are left to the closing insertion pass.
inline constexpr int qs_small = 16;
// Pending ranges: the larger part is pushed and the smaller one (at most half
// the range) is worked on, so the depth stays below log2(2^31 / 16) = 27.
inline constexpr int qs_stack = 40;

// The closing insertion pass over [m1, m2], ascending. `sentinel` says that
// the smallest element of the range lies among its first qs_small positions
// (true after partitioning by a consistent order), so that past them the inner
// loop needs no bound test.
template <class Seq>
void insertion_pass(Seq& a, int m1, int m2, bool sentinel) {
  const int guarded_end = sentinel && m2 - m1 >= qs_small ? m1 + qs_small - 1 : m2;
  typename Seq::Value v;
  for (int i = m1 + 1; i <= guarded_end; ++i) {
    if (!a.lt(i, i - 1)) continue;
    a.get(v, i);
    a.put(a.shift(i, m1, v), v);
  }
  for (int i = guarded_end + 1; i <= m2; ++i) {
    if (!a.lt(i, i - 1)) continue;
    a.get(v, i);
    a.put(a.shift(i, 0, v), v);
  }
}

// Reverses the elements of [m1, m2].
template <class Seq>
void reverse_range(Seq& a, int m1, int m2) {
  for (int i = m1, j = m2; i < j; ++i, --j) a.swap(i, j);
}

// Sorts [m1, m2] into ascending order, then reverses it if `descending`.
// `consistent` says that `lt` is a strict weak order on the data (no NaN),
// which lets the insertion pass run without a bound test.
template <class Seq>
void sort_range(Seq& a, int m1, int m2, bool descending, bool consistent) {
  if (m1 >= m2) return;
  if (m2 - m1 > qs_small - 2) {
    int lstack[qs_stack];
    int rstack[qs_stack];
    int sp = 0;
    int left = m1;
    int right = m2;
    bool unbalanced = false;
    WichmannHill wh;
    typename Seq::Value t;
    for (;;) {
      if (unbalanced) {
        // A range left by a lopsided split: a random pivot position, and its
        // mirror, go to the ends before the median of three is taken.
        const int k = left + static_cast<int>((right - left) * wh.next());
        a.swap(left, k);
        a.swap(right, right - (k - left));
      }
      // Median of three: afterwards element left <= t <= element right, the
      // two sentinels that bound the scans below.
      const int mid = left + (right - left) / 2;
      if (a.lt(mid, left)) a.swap(mid, left);
      if (a.lt(right, left)) a.swap(right, left);
      if (a.lt(right, mid)) a.swap(right, mid);
      a.get(t, mid);
      // Two-pointer partition with the pivot value t held outside the array.
      int i = 0;
      int j = 0;
      a.partition(left, right, t, i, j);
      // [left, i-1] <= t <= [i, right]. (Where the scans met on one element,
      // i = j, it equals t and opens the right part.)
      j = i - 1;
      const int p = j - left + 1;
      const int q = right - i + 1;
      int sl, sr, bl, br;
      if (p <= q) {
        sl = left; sr = j; bl = i; br = right;
      } else {
        sl = i; sr = right; bl = left; br = j;
      }
      const int small = sr - sl + 1;
      const int big = br - bl + 1;
      const bool lopsided = big > 5LL * small + 25;
      if (small < qs_small) {
        if (big < qs_small) {
          if (sp == 0) break;
          --sp;
          left = lstack[sp];
          right = rstack[sp];
          unbalanced = left < 0;
          if (unbalanced) left = -left;
        } else {
          left = bl;
          right = br;
          unbalanced = lopsided;
        }
      } else {
        // The larger part waits, its left bound negated if it is to be split
        // at a random pivot.
        lstack[sp] = lopsided ? -bl : bl;
        rstack[sp] = br;
        ++sp;
        left = sl;
        right = sr;
        unbalanced = false;
      }
    }
    insertion_pass(a, m1, m2, consistent);
  } else {
    insertion_pass(a, m1, m2, false);
  }
  if (descending) reverse_range(a, m1, m2);
}

// ---------------------------------------------------------------------------
// Stable merge of the sorted blocks [lo, mid-1] and [mid, hi] of `a`. The
// left block's tail that must move goes to scratch at the same positions; an
// element is taken from the right block only when strictly smaller, so equal
// elements keep their order. `Seq` additionally offers
//   copy_out(k, n)  scratch positions k..k+n-1 = elements k..k+n-1
//   s_lt(j, k)      element j < scratch element k
//   move_in(d, k)   element d = scratch element k
template <class Seq>
void merge_blocks(Seq& a, int lo, int mid, int hi) {
  if (lo >= mid || mid > hi) return;
  if (!a.lt(mid, mid - 1)) return;  // already in order
  // Left elements not above the right block's first stay where they are.
  int first = lo;
  int last = mid - 1;
  while (first < last) {
    const int m = first + (last - first) / 2;
    if (a.lt(mid, m)) last = m; else first = m + 1;
  }
  const int n = mid - first;
  a.copy_out(first, n);
  int k = first;           // next scratch element
  const int kend = mid;    // scratch holds positions first..mid-1
  int j = mid;             // next right element
  int d = first;           // next destination
  while (k < kend && j <= hi) {
    if (a.s_lt(j, k)) {
      a.move(d, j);
      ++j;
    } else {
      a.move_in(d, k);
      ++k;
    }
    ++d;
  }
  while (k < kend) {
    a.move_in(d, k);
    ++k;
    ++d;
  }
}

// ---------------------------------------------------------------------------
// Stable ranking by a list merge sort held in the rank vector itself.
// `after(i, j)` is true when element i must come after element j (i is
// strictly greater). irank[k-1] is IRANK(k); during the sort it is the link
// from element k to the next element of its list, 0 ending a list. On return
// IRANK(k) is the place of element k in sorted order, M1 first; equal
// elements keep their index order in both directions.
//
// Sublists are built by a pass over the elements: an element not below the
// tail is appended, one below the head prepended, and one in between is
// walked in from the head while the list is young (fewer than 10 entrants);
// otherwise it starts the next list. Finished lists are merged on a small
// stack (lengths halve towards its top, so its depth is below 32), older list
// on the left, which keeps the merge stable.
template <class After>
void rank_list(int* irank, int m1, int m2, bool descending, After after) {
  auto link = [irank](int k) -> int& { return irank[k - 1]; };
  if (m1 >= m2) {
    link(m2) = m2;
    return;
  }

  // Merges the lists headed by a (earlier elements) and b; returns the head.
  auto merge = [&](int a, int b) {
    int head, t;
    if (after(a, b)) {
      head = t = b;
      b = link(b);
    } else {
      head = t = a;
      a = link(a);
    }
    while (a != 0 && b != 0) {
      if (after(a, b)) {
        link(t) = b;
        t = b;
        b = link(b);
      } else {
        link(t) = a;
        t = a;
        a = link(a);
      }
    }
    link(t) = a != 0 ? a : b;
    return head;
  };

  constexpr int stack_size = 40;
  int shead[stack_size];
  long long slen[stack_size];
  int sp = 0;
  auto push = [&](int head, long long len) {
    shead[sp] = head;
    slen[sp] = len;
    ++sp;
    while (sp >= 2 && slen[sp - 2] <= 2 * slen[sp - 1]) {
      shead[sp - 2] = merge(shead[sp - 2], shead[sp - 1]);
      slen[sp - 2] += slen[sp - 1];
      --sp;
    }
  };

  int head = m1;
  int tail = m1;
  int start = m1;
  link(m1) = 0;
  for (int i = m1 + 1; i <= m2; ++i) {
    if (!after(tail, i)) {
      link(tail) = i;
      link(i) = 0;
      tail = i;
    } else if (after(head, i)) {
      link(i) = head;
      head = i;
    } else if (i - start >= 10) {
      push(head, i - start);
      head = tail = start = i;
      link(i) = 0;
    } else {
      // Into the young list before its first element above i. The walk stops
      // at the list's end too, should `after` not be consistent.
      int p = head;
      int q = link(p);
      while (q != 0 && !after(q, i)) {
        p = q;
        q = link(q);
      }
      link(i) = q;
      link(p) = i;
      if (q == 0) tail = i;
    }
  }
  push(head, static_cast<long long>(m2) - start + 1);
  while (sp > 1) {
    shead[sp - 2] = merge(shead[sp - 2], shead[sp - 1]);
    --sp;
  }
  head = shead[0];

  if (descending) {
    // Turn the ascending list round run by run: runs of equal elements are
    // moved as a whole, so each keeps its index order.
    int out = 0;
    int e = head;
    while (e != 0) {
      const int s = e;
      int r = e;
      int nx = link(r);
      while (nx != 0 && !after(nx, r)) {
        r = nx;
        nx = link(nx);
      }
      link(r) = out;
      out = s;
      e = nx;
    }
    head = out;
  }

  // Each link becomes the element's place.
  int pos = m1;
  for (int e = head; e != 0;) {
    const int nx = link(e);
    link(e) = pos++;
    e = nx;
  }
}

// ---------------------------------------------------------------------------
// Permutations, marked in place: while a routine works on a permutation every
// entry not yet dealt with is negated, and every entry is positive again when
// it returns.

// Walks the cycles of a fully marked rank vector and moves each element k to
// position IRANK(k), clearing the marks as it goes. `Seq` offers Value,
// get(v, i), put(i, v) and swap_v(v, j) (exchange v with element j); `v` is
// the place for the value held aside.
template <class Seq>
void perm_apply(Seq& a, int* irank, int m1, int m2, typename Seq::Value v = {}) {
  for (int i = m1; i <= m2; ++i) {
    if (irank[i - 1] > 0) continue;
    irank[i - 1] = -irank[i - 1];
    int j = irank[i - 1];
    if (j == i) continue;
    a.get(v, i);
    while (j != i) {
      a.swap_v(v, j);
      irank[j - 1] = -irank[j - 1];
      j = irank[j - 1];
    }
    a.put(i, v);
  }
}

// The policy of perm_apply for plain element types.
template <class T>
struct PlainHold {
  using Value = T;
  T* x;
  void get(T& v, int i) const { v = x[i - 1]; }
  void swap_v(T& v, int j) {
    const T w = x[j - 1];
    x[j - 1] = v;
    v = w;
  }
  void put(int i, const T& v) { x[i - 1] = v; }
};

// ---------------------------------------------------------------------------
// Sequence policies for plain element types (double, int) ordered by `<`.
template <class T>
struct PlainSeq {
  using Value = T;
  T* x;            // element 1 of the caller's array
  T* s = nullptr;  // scratch, indexed as the array

  bool lt(int i, int j) const { return x[i - 1] < x[j - 1]; }
  void swap(int i, int j) {
    const T w = x[i - 1];
    x[i - 1] = x[j - 1];
    x[j - 1] = w;
  }
  void get(T& v, int k) const { v = x[k - 1]; }
  bool lt_v(int i, const T& v) const { return x[i - 1] < v; }
  bool v_lt(const T& v, int j) const { return v < x[j - 1]; }
  void move(int d, int src) { x[d - 1] = x[src - 1]; }
  void put(int d, const T& v) { x[d - 1] = v; }
  void partition(int left, int right, const T& t, int& i, int& j) {
    T* p = x + (left - 1);
    T* q = x + (right - 1);
    for (;;) {
      do ++p; while (*p < t);
      do --q; while (t < *q);
      if (p >= q) break;
      const T w = *p;
      *p = *q;
      *q = w;
    }
    i = static_cast<int>(p - x) + 1;
    j = static_cast<int>(q - x) + 1;
  }
  int shift(int i, int lo, const T& v) {
    T* p = x + (i - 1);
    if (lo > 0) {
      T* const stop = x + (lo - 1);
      do {
        *p = p[-1];
        --p;
      } while (p > stop && v < p[-1]);
    } else {
      do {
        *p = p[-1];
        --p;
      } while (v < p[-1]);
    }
    return static_cast<int>(p - x) + 1;
  }
  void copy_out(int k, int n) {
    std::memcpy(s + (k - 1), x + (k - 1), static_cast<std::size_t>(n) * sizeof(T));
  }
  bool s_lt(int j, int k) const { return x[j - 1] < s[k - 1]; }
  void move_in(int d, int k) { x[d - 1] = s[k - 1]; }
};

// Fixed-length strings compared on the columns l1..l2 as unsigned bytes; ties
// are broken by the whole element, so that strings that differ anywhere have
// one order and any correct sort leaves the same array. Elements are at most
// `max_len` characters (the pivot and held values live on the stack).
inline constexpr int max_len = 255;

// A string held outside the array.
struct CharValue {
  char c[max_len];
};

struct CharSeq {
  using Value = CharValue;
  char* x;               // element 1
  std::size_t len;       // element length
  std::size_t k0;        // offset of column l1
  std::size_t klen;      // l2 - l1 + 1
  bool whole;            // the key is the whole element: no tie-break
  char* s = nullptr;     // scratch, indexed as the array

  CharSeq(char* x_, int len_, int l1, int l2)
      : x(x_), len(static_cast<std::size_t>(len_)),
        k0(static_cast<std::size_t>(l1 - 1)),
        klen(static_cast<std::size_t>(l2 - l1 + 1)),
        whole(l1 == 1 && static_cast<std::size_t>(l2) == len) {}

  char* at(int i) const { return x + static_cast<std::size_t>(i - 1) * len; }
  char* sat(int k) const { return s + static_cast<std::size_t>(k - 1) * len; }
  bool less(const char* a, const char* b) const {
    const int c = std::memcmp(a + k0, b + k0, klen);
    if (c != 0 || whole) return c < 0;
    return std::memcmp(a, b, len) < 0;
  }
  bool lt(int i, int j) const { return less(at(i), at(j)); }
  void swap(int i, int j) {
    char w[max_len];
    std::memcpy(w, at(i), len);
    std::memcpy(at(i), at(j), len);
    std::memcpy(at(j), w, len);
  }
  void get(CharValue& v, int k) const { std::memcpy(v.c, at(k), len); }
  bool lt_v(int i, const CharValue& v) const { return less(at(i), v.c); }
  bool v_lt(const CharValue& v, int j) const { return less(v.c, at(j)); }
  void move(int d, int src) { std::memcpy(at(d), at(src), len); }
  void put(int d, const CharValue& v) { std::memcpy(at(d), v.c, len); }
  void partition(int left, int right, const CharValue& t, int& i, int& j) const {
    generic_partition(*this, left, right, t, i, j);
  }
  int shift(int i, int lo, const CharValue& v) { return generic_shift(*this, i, lo, v); }
  void copy_out(int k, int n) { std::memcpy(sat(k), at(k), static_cast<std::size_t>(n) * len); }
  bool s_lt(int j, int k) const { return less(at(j), sat(k)); }
  void move_in(int d, int k) { std::memcpy(at(d), sat(k), len); }
};

// ---------------------------------------------------------------------------
// Binary search of an ascending range: the last position whose element is at
// most the item, m1-1 if the item is below the first element (or the range is
// empty). `item_lt(k)` is true when the item is below element k. One
// comparison per halving step.
template <class ItemLt>
int search_last_le(int m1, int m2, ItemLt item_lt) {
  if (m2 < m1 || item_lt(m1)) return m1 - 1;
  if (!item_lt(m2)) return m2;
  int lo = m1;  // element lo <= item < element hi
  int hi = m2;
  while (hi - lo > 1) {
    const int mid = lo + (hi - lo) / 2;
    if (item_lt(mid)) hi = mid; else lo = mid;
  }
  return lo;
}

// Fortran's comparison of two texts: the shorter is extended with blanks, and
// characters compare as unsigned bytes. Returns <0, 0 or >0.
inline int text_compare(const char* a, std::size_t na, const char* b, std::size_t nb) {
  const std::size_t n = na < nb ? na : nb;
  const int c = n == 0 ? 0 : std::memcmp(a, b, n);
  if (c != 0) return c;
  for (std::size_t k = n; k < na; ++k) {
    if (a[k] != ' ') return static_cast<unsigned char>(a[k]) < ' ' ? -1 : 1;
  }
  for (std::size_t k = n; k < nb; ++k) {
    if (b[k] != ' ') return static_cast<unsigned char>(b[k]) < ' ' ? 1 : -1;
  }
  return 0;
}

}  // namespace zeb::m01
