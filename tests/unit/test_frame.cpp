// The frame's machinery: constants, record decoding, scanners, the selection
// and formatting of messages, the block rule.
#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstring>
#include <string>

#include "zeb_p_ib_aux.h"
#include "zeb_w_ib_aux.h"
#include "zeb_wrap.h"
#include "zeb_x_ib.h"
#include "zeb_x_ib_aux.h"

namespace {

std::string line(const char* lines, int k) {
  std::string s(lines + k * zeb::line_len, zeb::line_len);
  return s.substr(0, s.find_last_not_of(' ') + 1);
}

// A record written as a body writes it, with ERRBUF(200:200) NUL.
void make_record(char* errbuf, std::string_view format,
                 std::initializer_list<zeb::fmt::Item> items) {
  zeb::errbuf_clear(errbuf);
  zeb::errbuf_record(errbuf, format, items);
  int code = 0;
  zeb::errbuf_close(errbuf, 1, code);
}

TEST(Constants, ExactToTheBit) {
  EXPECT_EQ(x01aafn(), M_PI);
  EXPECT_EQ(x02ajfn(), DBL_EPSILON / 2);
  EXPECT_EQ(x02akfn(), DBL_MIN);
  EXPECT_EQ(x02alfn(), DBL_MAX);
  EXPECT_EQ(x02amfn(), 2.225073858507202e-308);
  EXPECT_GT(x02amfn(), DBL_MIN);
  EXPECT_TRUE(std::isfinite(1.0 / x02amfn()));
  EXPECT_EQ(x02anfn(), x02amfn());
  EXPECT_EQ(x02ahfn(), 1.42724769270596e+45);
  EXPECT_EQ(x02aezn(), -708.3964185322641);
  EXPECT_EQ(x02bbfn(), 2147483647);
  EXPECT_EQ(x02befn(), 15);
  EXPECT_EQ(x02bhfn(), 2);
  EXPECT_EQ(x02bjfn(), 53);
  EXPECT_EQ(x02bkfn(), -1021);
  EXPECT_EQ(x02blfn(), 1024);
  EXPECT_EQ(x02bezn(), 16);
  EXPECT_EQ(x02ajen(), 5.960464477539063e-08f);
  EXPECT_EQ(x02aken(), FLT_MIN);
  EXPECT_EQ(x02alen(), FLT_MAX);
  EXPECT_EQ(x02amen(), 1.175494490952134e-38f);
  EXPECT_GT(x02amen(), FLT_MIN);
  // 1 + eps may round to 1: the test against eps is "less or equal".
  volatile double one = 1.0;
  EXPECT_EQ(one + x02ajfn(), 1.0);
  EXPECT_TRUE(x02eazn(std::nan("")));
  EXPECT_FALSE(x02eazn(1.0));
}

TEST(Scanner, SplitsOnEveryDelimiterRun) {
  char words[4 * 8];
  const int n = e04nswn("  ab,: =cd\tEf  ", 4, words, 8, true);
  ASSERT_EQ(n, 3);
  EXPECT_EQ(std::string(words, 8), "AB      ");
  EXPECT_EQ(std::string(words + 8, 8), "CD      ");
  EXPECT_EQ(std::string(words + 16, 8), "EF      ");
  EXPECT_EQ(std::string(words + 24, 8), "        ");
  EXPECT_EQ(e04nswn("    ", 2, words, 8, false), 0);
  EXPECT_EQ(e04nswn("abcdefghijk", 1, words, 4, false), 1);
  EXPECT_EQ(std::string(words, 4), "abcd");
}

TEST(Classifier, NumbersAndText) {
  struct Case {
    const char* text;
    int isint, isreal, isexp, status;
  } cases[] = {
      {"12345", 1, 0, 0, 0},        {"-1.5", 0, 1, 0, 0},
      {"1.7100E+02", 0, 0, 1, 0},   {"0.17977+309", 0, 1, 0, 0},
      {"abc", 0, 0, 0, 0},          {"1.2.3", 0, 0, 0, -4},
      {"12a", 0, 0, 0, -4},         {"E5", 0, 0, 0, 0},
      {"1E", 0, 0, 0, -4},          {".5", 0, 1, 0, 0},
      {"", 1, 0, 0, 0},             {"-x", 0, 0, 0, -4},
      {"1.E5", 0, 0, 1, 0},         {"  42  ", 1, 0, 0, 0},
  };
  for (const auto& c : cases) {
    int i = -1, r = -1, e = -1, s = -1;
    e05jhsn(c.text, i, r, e, s);
    EXPECT_EQ(s, c.status) << c.text;
    if (c.status == 0) {
      EXPECT_EQ(i, c.isint) << c.text;
      EXPECT_EQ(r, c.isreal) << c.text;
      EXPECT_EQ(e, c.isexp) << c.text;
    }
  }
}

TEST(RealDecoder, PrintedFormsReadBack) {
  double v = 0;
  int st = 0;
  p01abgu("1.7100E+02", v, st);
  EXPECT_EQ(v, 171.0);
  EXPECT_EQ(st, 0);
  p01abgu("-0.30000E+01", v, st);
  EXPECT_EQ(v, -3.0);
  p01abgu("1.234+100", v, st);  // exponent with a bare sign
  EXPECT_EQ(v, 1.234e100);
  p01abgu("0.1234D-5", v, st);
  EXPECT_EQ(v, 0.1234e-5);
  p01abgu("42", v, st);
  EXPECT_EQ(v, 42.0);
  p01abgu("0.000", v, st);
  EXPECT_EQ(v, 0.0);
  // The largest real printed and read again overflows to itself.
  p01abgu("1.7977+308", v, st);
  EXPECT_EQ(v, DBL_MAX);
  EXPECT_EQ(st, -102);
  p01abgu("-9.9E+999", v, st);
  EXPECT_EQ(v, -DBL_MAX);
  EXPECT_EQ(st, -102);
  // A nonzero value too small to represent reads as the safe-range constant.
  p01abgu("1.0E-400", v, st);
  EXPECT_EQ(v, x02amfn());
  EXPECT_EQ(st, 0);
}

TEST(SafeText, SeparatorsNumbersAndLength) {
  char d[16];
  auto safe = [&](std::string_view s) {
    zeb::p01abvn(d, 16, s);
    return std::string(d, 16);
  };
  EXPECT_EQ(safe("   "), "_               ");
  EXPECT_EQ(safe("1"), "1_              ");
  EXPECT_EQ(safe("E"), "E               ");
  EXPECT_EQ(safe("a b,c:d=e"), "a_b_c_d_e       ");
  EXPECT_EQ(safe("abcdefghijklmnopqrstuvwxyz"), "...nopqrstuvwxyz");
  EXPECT_EQ(safe("1234567890123456"), "...4567890123456");
}

TEST(Decode, HeadItemsAndLimit) {
  char errbuf[zeb::errbuf_len];
  make_record(errbuf, "(3(1X,I5),2(1X,1P,E12.4))", {1, 99998, 2, 171.0, 170.0});
  EXPECT_EQ(std::string(errbuf, 44), "     1 99998     2   1.7100E+02   1.7000E+02");
  int code = 0, number = 0, nt = 0, nr = 0;
  char texts[12 * 16];
  double reals[12];
  ASSERT_TRUE(p01abhu(errbuf, code, number, 12, nt, nr, texts, 16, reals));
  EXPECT_EQ(code, 1);
  EXPECT_EQ(number, 99998);
  EXPECT_EQ(nr, 2);
  EXPECT_EQ(nt, 0);
  EXPECT_EQ(reals[0], 171.0);
  EXPECT_EQ(reals[1], 170.0);
  // Only as many items as the wrapper's limit are decoded.
  ASSERT_TRUE(p01abhu(errbuf, code, number, 1, nt, nr, texts, 16, reals));
  EXPECT_EQ(nr, 1);
  // Text items, made safe by the body.
  char item[16];
  zeb::p01abvn(item, 16, "1");
  make_record(errbuf, "(3(1X,I5),1X,A16,1X,I20)",
              {2, 99996, 2, std::string_view(item, 16), 7});
  ASSERT_TRUE(p01abhu(errbuf, code, number, 12, nt, nr, texts, 16, reals));
  EXPECT_EQ(nt, 1);
  EXPECT_EQ(std::string(texts, 16), "1_              ");
  EXPECT_EQ(nr, 1);
  EXPECT_EQ(reals[0], 7.0);
  // A record whose head is not numeric cannot be decoded.
  std::memset(errbuf, ' ', sizeof errbuf);
  std::memcpy(errbuf, "garbage", 7);
  EXPECT_FALSE(p01abhu(errbuf, code, number, 12, nt, nr, texts, 16, reals));
}

TEST(Messages, SelectionByCodeAndNumber) {
  static const zeb::Message table[] = {
      {1, 99998, "(1X,'** On entry, X = ',E13.5,'.'/1X,'** Constraint: X <= ',            E13.5,'.')"},
      {2, 99996, "(1X,'** ''',A1,''' is an invalid value of N = ',I16,'.')"},
  };
  char errbuf[zeb::errbuf_len];
  char lines[3 * zeb::line_len];
  make_record(errbuf, "(3(1X,I5),2(1X,1P,E12.4))", {1, 99998, 2, 171.0, 170.0});
  ASSERT_EQ(p01abmu(1, errbuf, table, 2, 2, lines, 3), 2);
  EXPECT_EQ(line(lines, 0), " ** On entry, X =   0.17100E+03.");
  EXPECT_EQ(line(lines, 1), " ** Constraint: X <=   0.17000E+03.");
  // An integer item travels as a real and is truncated for I16.
  make_record(errbuf, "(3(1X,I5),1X,A1,1X,I20)", {2, 99996, 2, "D", 12});
  ASSERT_EQ(p01abmu(2, errbuf, table, 2, 2, lines, 3), 1);
  EXPECT_EQ(line(lines, 0), " ** 'D' is an invalid value of N =               12.");
  // An unknown pair, and a record that cannot be read at all.
  make_record(errbuf, "(3(1X,I5))", {3, 1234, 0});
  ASSERT_EQ(p01abmu(3, errbuf, table, 2, 0, lines, 3), 1);
  EXPECT_EQ(line(lines, 0), " ** Unexpected error (    3, 1234)");
  std::memset(errbuf, 0, sizeof errbuf);
  ASSERT_EQ(p01abmu(5, errbuf, table, 2, 0, lines, 3), 1);
  EXPECT_EQ(line(lines, 0), " ** Unexpected error (    5,    0)");
  // The allocation failure needs no record.
  ASSERT_EQ(p01abmu(-999, errbuf, table, 2, 0, lines, 3), 1);
  EXPECT_EQ(line(lines, 0), " ** Internal memory allocation failed.");
  // The largest real survives its way through the record.
  make_record(errbuf, "(3(1X,I5),2(1X,1P,E12.4))", {1, 99998, 2, DBL_MAX, 170.0});
  ASSERT_EQ(p01abmu(1, errbuf, table, 2, 2, lines, 3), 2);
  EXPECT_EQ(line(lines, 0), " ** On entry, X =   0.17977+309.");
}

TEST(BlockRule, CoversTheRangeInOrder) {
  for (int n : {0, 1, 7, 64, 1001}) {
    for (int p : {1, 2, 3, 8}) {
      int next = 1;
      for (int t = 0; t < p; ++t) {
        int first = 0, last = 0;
        w01aawn(p, t, n, first, last);
        EXPECT_EQ(first, next) << n << " " << p << " " << t;
        const int size = last - first + 1;
        EXPECT_EQ(size, n / p + (t < n % p ? 1 : 0));
        next = last + 1;
      }
      EXPECT_EQ(next, n + 1);
    }
  }
  int first = 0, last = 0;
  w01aawn(4, 3, 2147483647, first, last);
  EXPECT_EQ(last, 2147483647);
  EXPECT_EQ(w02aazn(12345), 12345.0);
  EXPECT_EQ(w02aazn((1LL << 53) + 1), 9007199254740994.0);
}

}  // namespace
