// Chapter m01: sorts and ranks against std::stable_sort on data of many
// shapes, the stability of ranks, the rearrangements and permutation routines
// with their failure paths (arrays left as they came), the searches, and the
// parallel sorts giving the same bits for 1, 2 and 4 threads.
#include <gtest/gtest.h>
#include <omp.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstring>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include "zeb.h"
#include "zeb_m_ib.h"
#include "zeb_m_ib_aux.h"

namespace {

enum class Shape { Random, Sorted, Reversed, Equal, FewDistinct, OrganPipe, Sawtooth };
const Shape shapes[] = {Shape::Random,      Shape::Sorted,    Shape::Reversed, Shape::Equal,
                        Shape::FewDistinct, Shape::OrganPipe, Shape::Sawtooth};
const int sizes[] = {1, 2, 3, 14, 15, 16, 17, 31, 32, 100, 1000, 4099};

std::vector<int> make_ints(Shape s, int n, unsigned seed) {
  std::mt19937 g(seed);
  std::vector<int> v(n);
  for (int i = 0; i < n; ++i) {
    switch (s) {
      case Shape::Random: v[i] = static_cast<int>(g() % 2000000) - 1000000; break;
      case Shape::Sorted: v[i] = i; break;
      case Shape::Reversed: v[i] = n - i; break;
      case Shape::Equal: v[i] = 7; break;
      case Shape::FewDistinct: v[i] = static_cast<int>(g() % 4); break;
      case Shape::OrganPipe: v[i] = std::min(i, n - i); break;
      case Shape::Sawtooth: v[i] = i % 37; break;
    }
  }
  return v;
}

std::vector<double> make_reals(Shape s, int n, unsigned seed) {
  const auto iv = make_ints(s, n, seed);
  std::vector<double> v(iv.begin(), iv.end());
  for (double& x : v) x *= 0.25;
  return v;
}

struct Call {
  char errbuf[zeb::errbuf_len];
  int ifail = -7;
};

// Ranks as a stable sort of the positions m1..m2 gives them.
template <class Less>
std::vector<int> stable_ranks(int m1, int m2, Less less) {
  std::vector<int> idx(m2 - m1 + 1);
  std::iota(idx.begin(), idx.end(), m1);
  std::stable_sort(idx.begin(), idx.end(), less);
  std::vector<int> rank(m2 - m1 + 1);
  for (int k = 0; k < static_cast<int>(idx.size()); ++k) rank[idx[k] - m1] = m1 + k;
  return rank;
}

// ---------------------------------------------------------------------------
// Sorts

TEST(M01Sort, RealsAndIntegersMatchStableSortOnEveryShape) {
  for (Shape s : shapes) {
    for (int n : sizes) {
      for (const char* order : {"A", "d"}) {
        const bool desc = order[0] == 'd';
        // The subrange 3..n+2 of a longer array: the ends must stay.
        auto r = make_reals(s, n + 4, 17u + n);
        auto want = r;
        if (desc) {
          std::stable_sort(want.begin() + 2, want.end() - 2, std::greater<double>());
        } else {
          std::stable_sort(want.begin() + 2, want.end() - 2);
        }
        Call c;
        m01cafn(r.data(), 3, n + 2, order, c.errbuf, c.ifail);
        ASSERT_EQ(c.ifail, 0);
        ASSERT_EQ(r, want) << "reals, shape " << static_cast<int>(s) << ", n " << n << order;

        auto v = make_ints(s, n + 4, 23u + n);
        auto wanti = v;
        if (desc) {
          std::stable_sort(wanti.begin() + 2, wanti.end() - 2, std::greater<int>());
        } else {
          std::stable_sort(wanti.begin() + 2, wanti.end() - 2);
        }
        m01cbfn(v.data(), 3, n + 2, order, c.errbuf, c.ifail);
        ASSERT_EQ(c.ifail, 0);
        ASSERT_EQ(v, wanti) << "integers, shape " << static_cast<int>(s) << ", n " << n << order;
      }
    }
  }
}

// Patterns that defeat the median of three: the random pivot of the
// unbalanced mark must keep the kernel correct (and the stack within bounds).
TEST(M01Sort, KernelSurvivesLopsidedPatterns) {
  const int n = 200000;
  std::vector<std::vector<int>> cases;
  std::vector<int> v(n);
  for (int i = 0; i < n; ++i) v[i] = i % 2 == 0 ? i : n - i;  // interleaved ramps
  cases.push_back(v);
  for (int i = 0; i < n; ++i) v[i] = (i * 7919) % 1000 == 0 ? -i : i;  // sorted with outliers
  cases.push_back(v);
  for (int i = 0; i < n; ++i) v[i] = i < n / 2 ? 2 * i : 2 * (i - n / 2) + 1;  // two runs
  cases.push_back(v);
  for (auto& w : cases) {
    auto want = w;
    std::sort(want.begin(), want.end());
    m01cbzn(w.data(), 1, n, 'A');
    EXPECT_EQ(w, want);
  }
}

TEST(M01Sort, CharacterSortComparesOnlyTheKeyColumns) {
  // Elements of 6 characters keyed on columns 2..4; equal keys are ordered by
  // the whole element.
  const int len = 6;
  std::mt19937 g(5);
  for (int n : {15, 16, 300}) {
    std::string ch(static_cast<std::size_t>(n) * len, ' ');
    for (char& c : ch) c = "ab\xe9 z"[g() % 5];  // a byte above 127 sorts last
    std::vector<std::string> want;
    for (int i = 0; i < n; ++i) want.push_back(ch.substr(i * len, len));
    std::sort(want.begin(), want.end(), [](const std::string& a, const std::string& b) {
      const int c = std::memcmp(a.data() + 1, b.data() + 1, 3);
      return c != 0 ? c < 0 : std::memcmp(a.data(), b.data(), 6) < 0;
    });
    Call c;
    m01ccfn(zeb::fchar{ch.data(), len}, 1, n, 2, 4, "D", c.errbuf, c.ifail);
    ASSERT_EQ(c.ifail, 0);
    for (int i = 0; i < n; ++i) ASSERT_EQ(ch.substr(i * len, len), want[n - 1 - i]) << i;
  }
}

TEST(M01Sort, NaNsGoToTheEndAndZerosAreOrderedBySign) {
  std::vector<double> r = {3.0, NAN, -0.0, 1.0, 0.0, -0.0, NAN, -2.0, 0.0, 5.0};
  Call c;
  m01cafn(r.data(), 1, 10, "A", c.errbuf, c.ifail);
  ASSERT_EQ(c.ifail, 0);
  const double want[] = {-2.0, -0.0, -0.0, 0.0, 0.0, 1.0, 3.0, 5.0};
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(r[i], want[i]);
    EXPECT_EQ(std::signbit(r[i]), std::signbit(want[i])) << i;
  }
  EXPECT_TRUE(std::isnan(r[8]) && std::isnan(r[9]));
  m01cafn(r.data(), 1, 10, "D", c.errbuf, c.ifail);
  EXPECT_TRUE(std::isnan(r[0]) && std::isnan(r[1]));
  EXPECT_EQ(r[2], 5.0);
  EXPECT_EQ(r[9], -2.0);
  EXPECT_TRUE(std::signbit(r[8]) && std::signbit(r[7]) && !std::signbit(r[6]));
  // The kernel itself, given NaNs, stays in its range and keeps every value.
  std::vector<double> k(1000);
  std::mt19937 g(9);
  for (double& x : k) x = g() % 7 == 0 ? NAN : static_cast<double>(g() % 100);
  const auto count = std::count_if(k.begin(), k.end(), [](double x) { return std::isnan(x); });
  m01cazn(k.data(), 1, 1000, 'A');
  EXPECT_EQ(std::count_if(k.begin(), k.end(), [](double x) { return std::isnan(x); }), count);
}

// The parallel path (above its size cut) gives the same bits for any number
// of threads, with duplicates, signed zeros, NaNs and equal string keys.
TEST(M01Sort, ParallelSortsAreBitIdenticalForAnyThreadCount) {
  const int n = 150001;
  std::mt19937 g(11);
  std::vector<double> r0(n);
  std::vector<int> i0(n);
  for (int i = 0; i < n; ++i) {
    const unsigned u = g();
    r0[i] = u % 50 == 0 ? (u % 100 == 0 ? -0.0 : 0.0) : u % 97 == 1 ? NAN : (u % 5000) * 0.5;
    i0[i] = static_cast<int>(u % 3000) - 1500;
  }
  const int len = 5;
  std::string c0(static_cast<std::size_t>(n) * len, ' ');
  for (char& ch : c0) ch = static_cast<char>('a' + g() % 3);

  const int saved = omp_get_max_threads();
  for (const char* order : {"A", "D"}) {
    std::vector<double> rref;
    std::vector<int> iref;
    std::string cref;
    for (int threads : {1, 2, 4}) {
      omp_set_num_threads(threads);
      auto r = r0;
      auto v = i0;
      auto ch = c0;
      Call c;
      m01cafn(r.data(), 2, n, order, c.errbuf, c.ifail);
      ASSERT_EQ(c.ifail, 0);
      m01cbfn(v.data(), 1, n - 1, order, c.errbuf, c.ifail);
      ASSERT_EQ(c.ifail, 0);
      m01ccfn(zeb::fchar{ch.data(), len}, 1, n, 2, 3, order, c.errbuf, c.ifail);
      ASSERT_EQ(c.ifail, 0);
      if (threads == 1) {
        rref = r;
        iref = v;
        cref = ch;
        ASSERT_TRUE(std::is_sorted(v.begin(), v.end() - 1,
                                   [&](int a, int b) { return order[0] == 'A' ? a < b : a > b; }));
        continue;
      }
      EXPECT_EQ(std::memcmp(r.data(), rref.data(), sizeof(double) * n), 0) << threads;
      EXPECT_EQ(v, iref) << threads;
      EXPECT_EQ(ch, cref) << threads;
    }
  }
  omp_set_num_threads(saved);
}

TEST(M01Sort, ArgumentFailuresLeaveTheArray) {
  std::vector<double> r = {3, 2, 1};
  const auto r0 = r;
  Call c;
  const struct { int m1, m2; const char* order; int code; } bad[] = {
      {1, 0, "A", 1}, {0, 3, "A", 1}, {3, 2, "A", 1}, {1, 3, "X", 2}, {1, 3, "", 2}};
  for (const auto& b : bad) {
    m01cafn(r.data(), b.m1, b.m2, b.order, c.errbuf, c.ifail);
    EXPECT_EQ(c.ifail, b.code);
    EXPECT_EQ(r, r0);
  }
  std::string ch = "abcdef";
  m01ccfn(zeb::fchar{ch.data(), 3}, 1, 2, 1, 4, "A", c.errbuf, c.ifail);
  EXPECT_EQ(c.ifail, 2);
  m01ccfn(zeb::fchar{ch.data(), 3}, 1, 2, 1, 2, "Q", c.errbuf, c.ifail);
  EXPECT_EQ(c.ifail, 3);
  std::string longer(2 * 256, 'x');
  m01ccfn(zeb::fchar{longer.data(), 256}, 1, 2, 1, 2, "A", c.errbuf, c.ifail);
  EXPECT_EQ(c.ifail, 4);
  EXPECT_EQ(ch, "abcdef");
}

// ---------------------------------------------------------------------------
// Ranks

TEST(M01Rank, VectorRanksAreStableInBothDirections) {
  for (Shape s : shapes) {
    for (int n : sizes) {
      const auto v = make_ints(s, n + 3, 31u + n);
      const std::vector<double> r(v.begin(), v.end());
      std::vector<int> irank(n + 3, -5);
      Call c;
      for (const char* order : {"a", "D"}) {
        const bool desc = order[0] == 'D';
        const auto want = stable_ranks(2, n + 1, [&](int i, int j) {
          return desc ? v[i - 1] > v[j - 1] : v[i - 1] < v[j - 1];
        });
        m01dafn(r.data(), 2, n + 1, order, irank.data(), c.errbuf, c.ifail);
        ASSERT_EQ(c.ifail, 0);
        ASSERT_EQ(std::vector<int>(irank.begin() + 1, irank.end() - 2), want)
            << "shape " << static_cast<int>(s) << ", n " << n << order;
        m01dbfn(v.data(), 2, n + 1, order, irank.data(), c.errbuf, c.ifail);
        ASSERT_EQ(std::vector<int>(irank.begin() + 1, irank.end() - 2), want);
        EXPECT_EQ(irank[0], -5);
        EXPECT_EQ(irank[n + 2], -5);
      }
    }
  }
}

TEST(M01Rank, CharacterRanksUseTheKeyColumnsOnly) {
  const int n = 400;
  const int len = 4;
  std::mt19937 g(3);
  std::string ch(n * len, ' ');
  for (char& c : ch) c = "xy\x80"[g() % 3];
  for (const char* order : {"A", "d"}) {
    const bool desc = order[0] == 'd';
    const auto want = stable_ranks(1, n, [&](int i, int j) {
      const int c = std::memcmp(&ch[(i - 1) * len + 2], &ch[(j - 1) * len + 2], 2);
      return desc ? c > 0 : c < 0;
    });
    std::vector<int> irank(n);
    Call c;
    m01dcfn(zeb::fcharray{ch.data(), len}, 1, n, 3, 4, order, irank.data(), c.errbuf, c.ifail);
    ASSERT_EQ(c.ifail, 0);
    EXPECT_EQ(irank, want);
  }
}

std::vector<double> compar_data;
int compar_calls = 0;
extern "C" int compar_after(const int* i, const int* j) {
  ++compar_calls;
  return compar_data[*i - 1] > compar_data[*j - 1];
}

TEST(M01Rank, CallerComparisonThroughThePublicWrapper) {
  const auto v = make_ints(Shape::FewDistinct, 500, 1);
  compar_data.assign(v.begin(), v.end());
  std::vector<int> irank(500);
  int m1 = 1, m2 = 500, ifail = 1;
  m01dzf_(compar_after, &m1, &m2, irank.data(), &ifail);
  ASSERT_EQ(ifail, 0);
  EXPECT_GT(compar_calls, 0);
  EXPECT_EQ(irank, stable_ranks(1, 500, [&](int i, int j) { return v[i - 1] < v[j - 1]; }));
}

TEST(M01Rank, RowsAndColumnsOfMatricesCompareLexicographically) {
  const int ldm = 9, ncol = 6;
  std::mt19937 g(8);
  std::vector<int> im(ldm * ncol);
  for (int& x : im) x = static_cast<int>(g() % 3);
  const std::vector<double> rm(im.begin(), im.end());
  auto at = [&](int i, int k) { return im[(i - 1) + (k - 1) * ldm]; };
  // Rows 2..8 on columns 3..5.
  auto row_less = [&](int i, int j) {
    for (int k = 3; k <= 5; ++k) if (at(i, k) != at(j, k)) return at(i, k) < at(j, k);
    return false;
  };
  // Columns 1..6 on rows 4..9.
  auto col_less = [&](int i, int j) {
    for (int k = 4; k <= 9; ++k) if (at(k, i) != at(k, j)) return at(k, i) < at(k, j);
    return false;
  };
  std::vector<int> irank(ldm);
  Call c;
  m01defn(rm.data(), ldm, 2, 8, 3, 5, "A", irank.data(), c.errbuf, c.ifail);
  ASSERT_EQ(c.ifail, 0);
  EXPECT_EQ(std::vector<int>(irank.begin() + 1, irank.begin() + 8), stable_ranks(2, 8, row_less));
  m01dffn(im.data(), ldm, 2, 8, 3, 5, "D", irank.data(), c.errbuf, c.ifail);
  EXPECT_EQ(std::vector<int>(irank.begin() + 1, irank.begin() + 8),
            stable_ranks(2, 8, [&](int i, int j) { return row_less(j, i); }));
  m01djfn(rm.data(), ldm, 4, 9, 1, 6, "A", irank.data(), c.errbuf, c.ifail);
  ASSERT_EQ(c.ifail, 0);
  EXPECT_EQ(std::vector<int>(irank.begin(), irank.begin() + 6), stable_ranks(1, 6, col_less));
  m01dkfn(im.data(), ldm, 4, 9, 1, 6, "d", irank.data(), c.errbuf, c.ifail);
  EXPECT_EQ(std::vector<int>(irank.begin(), irank.begin() + 6),
            stable_ranks(1, 6, [&](int i, int j) { return col_less(j, i); }));
  // M2 beyond LDM, N1 > N2.
  m01defn(rm.data(), ldm, 1, ldm + 1, 1, 2, "A", irank.data(), c.errbuf, c.ifail);
  EXPECT_EQ(c.ifail, 1);
  m01dkfn(im.data(), ldm, 1, 2, 3, 2, "A", irank.data(), c.errbuf, c.ifail);
  EXPECT_EQ(c.ifail, 1);
}

TEST(M01Rank, SingleElementRanksItself) {
  std::vector<int> irank(5, 0);
  const double r[5] = {};
  Call c;
  m01dafn(r, 4, 4, "D", irank.data(), c.errbuf, c.ifail);
  EXPECT_EQ(c.ifail, 0);
  EXPECT_EQ(irank[3], 4);
}

// ---------------------------------------------------------------------------
// Rearrangements and permutations

TEST(M01Rearrange, RanksThenRearrangeGivesTheSortedVector) {
  auto r = make_reals(Shape::Random, 1000, 4);
  std::vector<int> irank(1000);
  Call c;
  m01dafn(r.data(), 1, 1000, "D", irank.data(), c.errbuf, c.ifail);
  const auto irank0 = irank;
  auto want = r;
  std::stable_sort(want.begin(), want.end(), std::greater<double>());
  m01eafn(r.data(), 1, 1000, irank.data(), c.errbuf, c.ifail);
  ASSERT_EQ(c.ifail, 0);
  EXPECT_EQ(r, want);
  EXPECT_EQ(irank, irank0);

  // Complex and integer elements follow the same ranks: element i goes to
  // position IRANK(i).
  std::vector<std::complex<double>> cv(1000), cwant(1000);
  std::vector<int> iv(1000), iwant(1000);
  for (int i = 0; i < 1000; ++i) {
    cv[i] = {1.0 * i, -1.0 * i};
    cwant[irank[i] - 1] = cv[i];
    iv[i] = i;
    iwant[irank[i] - 1] = i;
  }
  m01edfn(cv.data(), 1, 1000, irank.data(), c.errbuf, c.ifail);
  EXPECT_EQ(cv, cwant);
  m01ebfn(iv.data(), 1, 1000, irank.data(), c.errbuf, c.ifail);
  EXPECT_EQ(iv, iwant);
}

TEST(M01Rearrange, LongStringsMoveWhole) {
  const int len = 300;  // beyond the held buffer on the stack
  std::string ch;
  for (char c : {'c', 'a', 'b'}) ch += std::string(len, c);
  int irank[3] = {3, 1, 2};
  Call c;
  m01ecfn(zeb::fchar{ch.data(), len}, 1, 3, irank, c.errbuf, c.ifail);
  ASSERT_EQ(c.ifail, 0);
  EXPECT_EQ(ch, std::string(len, 'a') + std::string(len, 'b') + std::string(len, 'c'));
}

TEST(M01Rearrange, BadRankVectorsFailAndLeaveBothArrays) {
  const std::vector<std::vector<int>> bad = {
      {0, 3, 4, 5, 6, 3},   // IRANK(2:6): a repeated value, found last
      {0, 3, 4, 5, 6, 9},   // out of range
      {0, 2, 2, 4, 5, 6},   // a repeated value at once
      {0, 3, 4, 5, 6, 1}};  // out of range low (M1 is 2); IRANK(1) is not read
  const int want[] = {3, 2, 3, 2};
  for (std::size_t k = 0; k < bad.size(); ++k) {
    auto irank = bad[k];
    std::vector<double> r = {1, 2, 3, 4, 5, 6};
    std::vector<int> iv = {1, 2, 3, 4, 5, 6};
    std::string ch = "abcdef";
    std::vector<std::complex<double>> cv(6);
    Call c;
    m01eafn(r.data(), 2, 6, irank.data(), c.errbuf, c.ifail);
    EXPECT_EQ(c.ifail, want[k]) << k;
    m01ebfn(iv.data(), 2, 6, irank.data(), c.errbuf, c.ifail);
    EXPECT_EQ(c.ifail, want[k]);
    m01ecfn(zeb::fchar{ch.data(), 1}, 2, 6, irank.data(), c.errbuf, c.ifail);
    EXPECT_EQ(c.ifail, want[k]);
    m01edfn(cv.data(), 2, 6, irank.data(), c.errbuf, c.ifail);
    EXPECT_EQ(c.ifail, want[k]);
    m01zafn(irank.data(), 2, 6, c.errbuf, c.ifail);
    EXPECT_EQ(c.ifail, want[k]);
    m01zbfn(irank.data(), 2, 6, c.errbuf, c.ifail);
    EXPECT_EQ(c.ifail, want[k]);
    std::vector<int> icycl(6, -77);
    m01zcfn(irank.data(), 2, 6, icycl.data(), c.errbuf, c.ifail);
    EXPECT_EQ(c.ifail, want[k]);
    EXPECT_EQ(icycl, std::vector<int>(6, -77));
    EXPECT_EQ(irank, bad[k]);
    EXPECT_EQ(r, (std::vector<double>{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(iv, (std::vector<int>{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(ch, "abcdef");
  }
}

TEST(M01Perm, InvertCheckAndCycles) {
  std::mt19937 g(12);
  const int m1 = 3, m2 = 202;
  std::vector<int> p(m2);
  std::iota(p.begin() + (m1 - 1), p.end(), m1);
  std::shuffle(p.begin() + (m1 - 1), p.end(), g);
  p[0] = 99;
  p[1] = -4;  // outside the range: never read or written
  auto q = p;
  Call c;
  m01zbfn(q.data(), m1, m2, c.errbuf, c.ifail);
  ASSERT_EQ(c.ifail, 0);
  EXPECT_EQ(q, p);
  m01zafn(q.data(), m1, m2, c.errbuf, c.ifail);
  ASSERT_EQ(c.ifail, 0);
  for (int i = m1; i <= m2; ++i) ASSERT_EQ(q[p[i - 1] - 1], i);
  EXPECT_EQ(q[0], 99);
  EXPECT_EQ(q[1], -4);

  std::vector<int> icycl(m2, 0);
  m01zcfn(p.data(), m1, m2, icycl.data(), c.errbuf, c.ifail);
  ASSERT_EQ(c.ifail, 0);
  // Each cycle starts with its smallest member, negated, starts increase, and
  // following IPERM from each member gives the next.
  int start = 0, prev_start = 0;
  for (int k = m1; k <= m2; ++k) {
    const int e = icycl[k - 1];
    const bool last = k == m2 || icycl[k] < 0;
    if (e < 0) {
      start = -e;
      EXPECT_GT(start, prev_start);
      prev_start = start;
    } else {
      EXPECT_GT(e, start);
    }
    const int me = e < 0 ? -e : e;
    EXPECT_EQ(p[me - 1], last ? start : std::abs(icycl[k]));
  }
}

// ---------------------------------------------------------------------------
// Searches

TEST(M01Search, LastElementAtMostTheItem) {
  const std::vector<double> r = {0, 1, 1, 1, 4, 9, 9, 20};  // positions 1..8
  const std::vector<int> iv(r.begin(), r.end());
  Call c;
  const struct { double item; int want; } cases[] = {
      {-1, 1}, {0, 1}, {0.5, 1}, {1, 4}, {3.9, 4}, {4, 5}, {9, 7}, {19, 7}, {20, 8}, {1e9, 8}};
  for (const auto& t : cases) {
    // The range 2..8: below the first gives M1-1.
    EXPECT_EQ(m01nafn(0, r.data(), 2, 8, t.item, c.errbuf, c.ifail), t.want) << t.item;
    EXPECT_EQ(c.ifail, 0);
    if (t.item == std::floor(t.item) && std::abs(t.item) < 1e6) {
      EXPECT_EQ(m01nbfn(1, iv.data(), 2, 8, static_cast<int>(t.item), c.errbuf, c.ifail), t.want);
    }
  }
  EXPECT_EQ(m01nafn(1, r.data(), 5, 4, 3.0, c.errbuf, c.ifail), 4);  // empty, not checked
  const std::vector<double> unsorted = {1, 2, 5, 4};
  EXPECT_EQ(m01nafn(0, unsorted.data(), 1, 4, 3.0, c.errbuf, c.ifail), 0);
  EXPECT_EQ(c.ifail, 2);
  m01nafn(0, r.data(), 5, 4, 3.0, c.errbuf, c.ifail);
  EXPECT_EQ(c.ifail, 1);
}

TEST(M01Search, CharacterItemsCompareAsFortranTexts) {
  const std::string ch = "ab  abc b   ";  // "ab  ", "abc ", "b   "
  const zeb::fcharray a{ch.data(), 4};
  Call c;
  EXPECT_EQ(m01ncfn(0, a, 1, 3, "ab", c.errbuf, c.ifail), 1);  // "ab" == "ab  "
  EXPECT_EQ(m01ncfn(0, a, 1, 3, "ab       ", c.errbuf, c.ifail), 1);
  EXPECT_EQ(m01ncfn(0, a, 1, 3, "aa", c.errbuf, c.ifail), 0);
  EXPECT_EQ(m01ncfn(0, a, 1, 3, "abd", c.errbuf, c.ifail), 2);
  EXPECT_EQ(m01ncfn(0, a, 1, 3, "b   x", c.errbuf, c.ifail), 3);
  EXPECT_EQ(m01ncfn(0, a, 1, 3, "ab\t", c.errbuf, c.ifail), 0);  // tab is below blank
  EXPECT_EQ(c.ifail, 0);
  const std::string bad = "b a ";
  m01ncfn(0, zeb::fcharray{bad.data(), 2}, 1, 2, "a", c.errbuf, c.ifail);
  EXPECT_EQ(c.ifail, 2);
  const std::string wide(512, 'a');
  m01ncfn(1, zeb::fcharray{wide.data(), 256}, 1, 2, "a", c.errbuf, c.ifail);
  EXPECT_EQ(c.ifail, 3);
}

}  // namespace
