// The small kernels: complex arithmetic by real operations (a02), the inner
// products (x03), dates (x05), the sign transfer (w00), the address texts
// (w04f) and the banners (a00).
#include <gtest/gtest.h>

#include <array>
#include <cfloat>
#include <cmath>
#include <complex>
#include <cstring>
#include <random>
#include <string>

#include "zeb_a_ib.h"
#include "zeb_a_ib_aux.h"
#include "zeb_w_ib_aux.h"
#include "zeb_x_ib.h"
#include "zeb_x_ib_helpers.h"

namespace {

using cld = std::complex<long double>;

// Normwise relative error against a long double reference, in DBL_EPSILON.
double ulps(double re, double im, cld ref) {
  return static_cast<double>(std::abs(cld(re, im) - ref) / std::abs(ref) / DBL_EPSILON);
}

// Random reals of random sign with exponents in [lo, hi).
double wide(std::mt19937_64& g, int lo, int hi) {
  const double v = std::ldexp(std::uniform_real_distribution<double>(1.0, 2.0)(g),
                              std::uniform_int_distribution<int>(lo, hi - 1)(g));
  return g() % 2 ? -v : v;
}

TEST(A02, ZeroAndTheAxes) {
  double yr = -1, yi = -1;
  EXPECT_EQ(a02abfn(0.0, 0.0), 0.0);
  EXPECT_EQ(a02abfn(3.0, -4.0), 5.0);
  EXPECT_EQ(a02abfn(3e-320, 4e-320), 5e-320);
  EXPECT_EQ(a02abfn(DBL_MAX, 1.0), DBL_MAX);
  a02aafn(0.0, 0.0, yr, yi);
  EXPECT_TRUE(yr == 0.0 && yi == 0.0);
  a02aafn(-3.0, -4.0, yr, yi);  // (1 - 2i)^2
  EXPECT_TRUE(yr == 1.0 && yi == -2.0);
  // On the negative axis the root takes the sign of the zero.
  a02aafn(-4.0, -0.0, yr, yi);
  EXPECT_TRUE(yr == 0.0 && yi == -2.0);
  double zr, zi;
  a02acfn(-6.0, 8.0, 0.0, 2.0, zr, zi);
  EXPECT_TRUE(zr == 4.0 && zi == 3.0);
  // A zero denominator: each part of the numerator over +0.
  a02acfn(1.0, 0.0, 0.0, 0.0, zr, zi);
  EXPECT_EQ(zr, HUGE_VAL);
  EXPECT_TRUE(std::isnan(zi));
}

TEST(A02, SquareRootAndQuotientAgainstLongDouble) {
  // The ends of the range, where |z| + |x| or the cross products of a naive
  // quotient overflow or lose digits below the normal range.
  const double roots[][2] = {{DBL_MAX, DBL_MAX}, {-DBL_MAX, DBL_MAX}, {1.0, DBL_MAX},
                             {4.9e-324, 0.0},    {-3e-320, 4e-320},   {1e-310, -1e-300}};
  for (const auto& x : roots) {
    double yr, yi;
    a02aafn(x[0], x[1], yr, yi);
    EXPECT_LE(ulps(yr, yi, std::sqrt(cld(x[0], x[1]))), 2.5) << x[0] << " " << x[1];
  }
  const double quotients[][4] = {{DBL_MAX, DBL_MAX, 1.0, 1.0},     {1.0, 1.0, DBL_MAX, DBL_MAX / 2},
                                 {DBL_MAX, -DBL_MAX, DBL_MAX, 1.0}, {1e-300, 3e-300, 1e-300, -2e-300},
                                 {1e-310, 2e-310, 1e-10, 3e-10},   {1e-10, 2e-10, 1e-310, 3e-310}};
  auto quotient = [](const double* v) {
    const long double a = v[0], b = v[1], c = v[2], d = v[3], den = c * c + d * d;
    return cld((a * c + b * d) / den, (b * c - a * d) / den);
  };
  for (const auto& v : quotients) {
    double zr, zi;
    a02acfn(v[0], v[1], v[2], v[3], zr, zi);
    EXPECT_LE(ulps(zr, zi, quotient(v)), 4.0) << v[0] << " " << v[1] << " / " << v[2] << " " << v[3];
  }
  std::mt19937_64 g(2);
  double worst_root = 0, worst_quotient = 0;
  for (int i = 0; i < 20000; ++i) {
    const double xr = wide(g, -1074, 1024), xi = i % 3 ? wide(g, -1074, 1024) : xr * wide(g, -60, 60);
    double yr, yi;
    a02aafn(xr, xi, yr, yi);
    worst_root = std::max(worst_root, ulps(yr, yi, std::sqrt(cld(xr, xi))));
    const double v[4] = {wide(g, -500, 500), wide(g, -500, 500), wide(g, -500, 500), wide(g, -500, 500)};
    a02acfn(v[0], v[1], v[2], v[3], yr, yi);
    worst_quotient = std::max(worst_quotient, ulps(yr, yi, quotient(v)));
  }
  EXPECT_LE(worst_root, 2.5);
  EXPECT_LE(worst_quotient, 4.0);
}

struct Dot {
  double d1 = -7, d2 = -7;
  int ifail = -7;
  char errbuf[zeb::errbuf_len];
};

Dot dot(const double* a, int isa, const double* b, int isb, int n, int sa, int sb,
        double c1, double c2, bool sw) {
  Dot r;
  x03aafn(a, isa, b, isb, n, sa, sb, c1, c2, r.d1, r.d2, sw, r.errbuf, r.ifail);
  return r;
}

TEST(X03, ExtendedPrecisionKeepsWhatDoubleLoses) {
  // 1e16 + 1 rounds back to 1e16: the double sum is 0, the exact one 1.
  const double a[] = {1e16, 1.0, -1e16}, ones[] = {1.0, 1.0, 1.0};
  EXPECT_EQ(dot(a, 3, ones, 3, 3, 1, 1, 0.0, 0.0, false).d1, 0.0);
  EXPECT_EQ(dot(a, 3, ones, 3, 3, 1, 1, 0.0, 0.0, true).d1, 1.0);
  // The rounding error of a product: (1 + 2^-30)^2 - (1 + 2^-29) = 2^-60.
  const double x = 1.0 + 0x1p-30, p[] = {x, -1.0}, q[] = {x, 1.0 + 0x1p-29};
  EXPECT_EQ(dot(p, 2, q, 2, 2, 1, 1, 0.0, 0.0, true).d1, 0x1p-60);
  // The low part C2 of the initial value counts in extended precision only.
  EXPECT_EQ(dot(ones, 1, ones, 1, 1, 1, 1, -1.0, 0x1p-70, true).d1, 0x1p-70);
  EXPECT_EQ(dot(ones, 1, ones, 1, 1, 1, 1, -1.0, 0x1p-70, false).d1, 0.0);

  // Random products and a last term cancelling their sum below its last
  // place (condition near 1e17): the error stays within eps |sum| +
  // (n eps)^2 sum|a b|, against a binary128 reference.
  std::mt19937_64 g(4);
  std::uniform_real_distribution<double> u(-1.0, 1.0);
  const int n = 50;
  const double eps = DBL_EPSILON / 2;
  double worst = 0, worst_plain = 0;
  for (int trial = 0; trial < 200; ++trial) {
    double s1[n], s2[n], size = 0;
    __float128 s = 0;
    for (int k = 0; k < n - 1; ++k) {
      s1[k] = std::ldexp(u(g), trial % 20);
      s2[k] = u(g);
      s += static_cast<__float128>(s1[k]) * s2[k];
      size += std::fabs(s1[k] * s2[k]);
    }
    s1[n - 1] = -static_cast<double>(s);
    s2[n - 1] = 1.0;
    const double ref = static_cast<double>(s + static_cast<__float128>(s1[n - 1]));
    if (ref == 0) continue;
    const double bound = eps * std::fabs(ref) + (n * eps) * (n * eps) * (size + std::fabs(s1[n - 1]));
    worst = std::max(worst, std::fabs(dot(s1, n, s2, n, n, 1, 1, 0, 0, true).d1 - ref) / bound);
    worst_plain = std::max(worst_plain, std::fabs(dot(s1, n, s2, n, n, 1, 1, 0, 0, false).d1 / ref - 1));
  }
  EXPECT_LE(worst, 1.0);
  EXPECT_GT(worst_plain, 1.0);  // no digit of the double sum is right
}

TEST(X03, StridesChecksAndComplex) {
  const double a[] = {1, 100, 2, 100, 3}, b[] = {4, 100, 100, 5, 100, 100, 6};
  const Dot r = dot(a, 5, b, 7, 3, 2, 3, 0.5, 0.25, false);
  EXPECT_TRUE(r.ifail == 0 && r.d1 == 32.5 && r.d2 == 0.0);
  EXPECT_EQ(dot(a, 5, b, 7, 0, 2, 3, 0.5, 0.0, true).d1, 0.5);  // N < 1: C alone
  // The first offence wins: steps, then sizes, A before B; a step product
  // beyond 32 bits is caught.
  EXPECT_EQ(std::string(dot(a, 5, b, 7, 3, 0, 0, 0, 0, true).errbuf, 18), "     1 99999     1");
  EXPECT_EQ(std::string(dot(a, 4, b, 7, 3, 2, -1, 0, 0, true).errbuf, 18), "     1 99998     1");
  EXPECT_EQ(std::string(dot(a, 4, b, 6, 3, 2, 3, 0, 0, true).errbuf, 18), "     2 99997     3");
  EXPECT_EQ(std::string(dot(a, 5, b, 6, 3, 2, 3, 0, 0, true).errbuf, 18), "     2 99996     3");
  EXPECT_EQ(dot(a, 5, b, 7, 1 << 30, 1 << 30, 1, 0, 0, true).ifail, 2);
  // An overflowing term gives infinity, as the double sum does, not NaN.
  const double big[] = {DBL_MAX, 1.0}, two[] = {2.0, 1.0};
  EXPECT_EQ(dot(big, 2, two, 2, 2, 1, 1, 0, 0, true).d1, HUGE_VAL);

  using cd = std::complex<double>;
  // (1e16 + 1e16 i)(1 + i) = 2e16 i, the imaginary 1 is lost beside it.
  const cd ca[] = {cd(1e16, 1e16), cd(1, 1), cd(0, -2e16)}, cb[] = {cd(1, 1), cd(1, 0), cd(1, 0)};
  cd d1, d2;
  int ifail;
  char errbuf[zeb::errbuf_len];
  x03abfn(ca, 3, cb, 3, 3, 1, 1, cd(0), cd(0), d1, d2, 1, errbuf, ifail);
  EXPECT_TRUE(ifail == 0 && d1 == cd(1, 1) && d2 == cd(0));
  x03abfn(ca, 3, cb, 3, 3, 1, 1, cd(0), cd(0), d1, d2, 0, errbuf, ifail);
  EXPECT_EQ(d1, cd(1, 0));
  x03abfn(ca, 3, cb, 3, 2, 2, 1, cd(0.5, -0.5), cd(0), d1, d2, 1, errbuf, ifail);
  EXPECT_EQ(d1, ca[0] * cb[0] + ca[2] * cb[1] + cd(0.5, -0.5));
  x03abfn(ca, 2, cb, 3, 2, 2, 1, cd(0), cd(0), d1, d2, 1, errbuf, ifail);
  EXPECT_EQ(ifail, 2);
}

std::string text(int y, int mo, int d, int h = 0, int mi = 0, int s = 0, int ms = 0) {
  const int t[7] = {y, mo, d, h, mi, s, ms};
  char buf[30];
  x05abfn(zeb::fchar{buf, 30}, t);
  return std::string(buf, 30);
}

const std::string illegal = "** Illegal date **            ";

TEST(X05, DateTexts) {
  EXPECT_EQ(text(2000, 1, 1), "Sat 01st Jan 2000 00:00:00.000");
  EXPECT_EQ(text(1900, 1, 1, 9, 5, 7, 45), "Mon 01st Jan 1900 09:05:07.045");
  EXPECT_EQ(text(2021, 12, 31, 23, 59, 59, 999), "Fri 31st Dec 2021 23:59:59.999");
  EXPECT_EQ(text(1, 1, 1), "Mon 01st Jan 0001 00:00:00.000");
  // 29 February by the rules of 4, 100 and 400.
  EXPECT_EQ(text(2024, 2, 29), "Thu 29th Feb 2024 00:00:00.000");
  EXPECT_EQ(text(2000, 2, 29), "Tue 29th Feb 2000 00:00:00.000");
  EXPECT_EQ(text(1900, 3, 1), "Thu 01st Mar 1900 00:00:00.000");
  EXPECT_EQ(text(2023, 2, 29), illegal);
  EXPECT_EQ(text(1900, 2, 29), illegal);
  const std::string suffix = "  stndrdthththththththththththththththththstndrdthththththththst";
  for (int d = 1; d <= 31; ++d) EXPECT_EQ(text(2021, 1, d).substr(6, 2), suffix.substr(2 * d, 2)) << d;
  // Every field out of range, both ways where a field has a lower end.
  const int bad[][7] = {{2021, 0, 1, 0, 0, 0, 0},  {2021, 13, 1, 0, 0, 0, 0}, {2021, 1, 0, 0, 0, 0, 0},
                        {2021, 1, 32, 0, 0, 0, 0}, {2021, 4, 31, 0, 0, 0, 0}, {2021, 1, 1, 24, 0, 0, 0},
                        {2021, 1, 1, -1, 0, 0, 0}, {2021, 1, 1, 0, 60, 0, 0}, {2021, 1, 1, 0, -1, 0, 0},
                        {2021, 1, 1, 0, 0, 60, 0}, {2021, 1, 1, 0, 0, -1, 0}, {2021, 1, 1, 0, 0, 0, 1000},
                        {2021, 1, 1, 0, 0, 0, -1}, {-1, 1, 1, 0, 0, 0, 0},   {10000, 1, 1, 0, 0, 0, 0}};
  for (const auto& t : bad) EXPECT_EQ(text(t[0], t[1], t[2], t[3], t[4], t[5], t[6]), illegal) << t[1];
  // The weekday rule agrees with the day count (day 0, 1 January of year 0,
  // a Saturday) over the whole range of years.
  const std::string names = "SunMonTueWedThuFriSat";
  for (int y = 0; y <= 9999; ++y) {
    for (const int m : {1, 2, 3, 12}) {
      const int t[7] = {y, m, m == 2 ? 28 : 31, 0, 0, 0, 0};
      long long day, ms;
      ASSERT_TRUE(x05adzn(t, day, ms));
      ASSERT_EQ(text(y, m, t[2]).substr(0, 3), names.substr(static_cast<std::size_t>((day + 6) % 7) * 3, 3)) << y;
    }
  }
  // A result longer than 30 is blank padded, a shorter one cut.
  char buf[36];
  const int t[7] = {2000, 1, 1, 0, 0, 0, 0};
  std::memset(buf, 'x', sizeof buf);
  x05abfn(zeb::fchar{buf, 35}, t);
  EXPECT_EQ(std::string(buf, 36), "Sat 01st Jan 2000 00:00:00.000     x");
  std::memset(buf, 'x', sizeof buf);
  x05abfn(zeb::fchar{buf, 8}, t);
  EXPECT_EQ(std::string(buf, 9), "Sat 01stx");
}

TEST(X05, CompareAndParse) {
  EXPECT_EQ(x05aazn(" 7"), 7);
  EXPECT_EQ(x05aazn("1 "), 10);  // blanks count as zeros
  EXPECT_EQ(x05aazn("1x"), 0);
  const std::string d = text(2024, 4, 1, 10, 20, 30, 400);
  EXPECT_EQ(x05acfn(d, d), 0);
  EXPECT_EQ(x05acfn(d, "Sun" + d.substr(3)), 0);  // the weekday is not compared
  // April after February, though "Apr" sorts first; each field decides when
  // those above it are equal.
  EXPECT_EQ(x05acfn(d, text(2024, 2, 1, 10, 20, 30, 400)), 1);
  EXPECT_EQ(x05acfn(d, text(2023, 12, 31, 23, 59, 59, 999)), 1);
  EXPECT_EQ(x05acfn(d, text(2024, 4, 2)), -1);
  EXPECT_EQ(x05acfn(d, text(2024, 4, 1, 10, 21)), -1);
  EXPECT_EQ(x05acfn(d, text(2024, 4, 1, 10, 20, 30, 401)), -1);
  EXPECT_EQ(x05acfn(d.substr(0, 17), d), -1);  // a short text: blank time
}

TEST(X05, DaysAndSecondsBetweenDates) {
  auto diff = [](std::array<int, 7> f, std::array<int, 7> s) {
    double days = -1, secs = -1;
    int ifail = -1;
    char errbuf[zeb::errbuf_len];
    x05adfn(f.data(), s.data(), days, secs, errbuf, ifail);
    return std::array<double, 3>{days, secs, static_cast<double>(ifail)};
  };
  using A = std::array<double, 3>;
  EXPECT_EQ(diff({2024, 2, 28, 0, 0, 0, 0}, {2024, 3, 1, 0, 0, 0, 1}), (A{2, 0.001, 0}));
  EXPECT_EQ(diff({1900, 2, 28, 0, 0, 0, 0}, {1900, 3, 1, 0, 0, 0, 0}), (A{1, 0, 0}));
  EXPECT_EQ(diff({2000, 2, 28, 0, 0, 0, 0}, {2000, 3, 1, 0, 0, 0, 0}), (A{2, 0, 0}));
  EXPECT_EQ(diff({2024, 1, 2, 1, 30, 0, 500}, {2023, 12, 31, 23, 0, 0, 0}), (A{-1, -9000.5, 0}));
  EXPECT_EQ(diff({0, 1, 1, 0, 0, 0, 0}, {9999, 12, 31, 23, 59, 59, 999}), (A{3652424, 86399.999, 0}));
  EXPECT_EQ(diff({2023, 2, 29, 0, 0, 0, 0}, {2023, 3, 1, 24, 0, 0, 0}), (A{0, 0, 1}));
  EXPECT_EQ(diff({2023, 3, 1, 0, 0, 0, 0}, {2023, 3, 1, 24, 0, 0, 0}), (A{0, 0, 2}));
}

TEST(W00W04, SignTransferAndAddressTexts) {
  EXPECT_EQ(w00aazn(3.0, -2.0), -3.0);
  EXPECT_EQ(w00aazn(-3.0, -2.0), 3.0);
  EXPECT_EQ(w00aazn(-3.0, -0.0), -3.0);  // -0 >= 0: A unchanged
  EXPECT_EQ(w00aazn(3.0, NAN), -3.0);
  EXPECT_EQ(w00aazm(2.5f, -1.0f), -2.5f);
  EXPECT_EQ(w00aazm(-2.5f, 0.0f), -2.5f);
  char t[7][41];
  std::memset(t, 'x', sizeof t);
  w04fazn("abc", t[0], 40);
  w04fbzm(std::complex<float>(1, 2), t[1], 40);
  w04fczn(std::complex<double>(1, 2), t[2], 40);
  w04fdzn(5, t[3], 40);
  w04fezn(1, t[4], 40);
  w04ffzm(1.5f, t[5], 40);
  w04fgzn(1.5, t[6], 40);
  for (const auto& s : t) EXPECT_EQ(std::string(s, 41), "(No ISO_C_BINDING; no addresses)        x");
  std::memset(t[0], 'x', 41);
  w04fgzn(1.5, t[0], 10);  // a short text keeps what fits
  EXPECT_EQ(std::string(t[0], 11), "(No ISO_C_x");
}

std::string line(const char* lines, int k) {
  const std::string s(lines + static_cast<long>(k) * a00_line_len, a00_line_len);
  return s.substr(0, s.find_last_not_of(' ') + 1);
}

TEST(A00, Banners) {
  char lines[a00_max_lines * a00_line_len];
  const int n = a00aazu(lines, a00_max_lines);
  EXPECT_EQ(line(lines, 0), " *** Start of ZEB Library implementation details ***");
  EXPECT_EQ(line(lines, n - 1), " *** End of ZEB Library implementation details ***");
  // The labels in their order, separated by blank lines; build values after.
  const char* labels[] = {"", " Implementation title: ", "            Precision: ",
                          "         Product Code: ", "                 Mark: ", "",
                          " Created using:", "     hardware - ", "     op. sys. - ",
                          "     compiler - ", "", " Applicable to:", "     hardware - ",
                          "     op. sys. - ", "     compiler - ", ""};
  ASSERT_EQ(n, 18);
  for (int k = 1; k < n - 1; ++k) EXPECT_EQ(line(lines, k).rfind(labels[k - 1], 0), 0u) << k;
  EXPECT_EQ(line(lines, 5), std::string("                 Mark: ") + a00abyn().version);
  EXPECT_TRUE(line(lines, 15).ends_with(" and compatible systems."));
  EXPECT_EQ(a00abzn(lines, a00_max_lines), 8);
  EXPECT_EQ(line(lines, 0), " *** Start of ZEB Engine implementation details ***");
  EXPECT_EQ(line(lines, 1), " Precision: double");
  EXPECT_EQ(line(lines, 2), std::string(" Built on: ") + a00abyn().date);
  EXPECT_EQ(line(lines, 7), " *** End of ZEB Engine implementation details ***");
}

}  // namespace
