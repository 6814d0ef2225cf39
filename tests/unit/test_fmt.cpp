// The format engine: syntax, statuses, the fields that are easy to get
// wrong, records and reversion, positioning, the item protocol, input, and
// hostile formats. The character-for-character comparison with gfortran over
// many formats and values is tests/fmt/fmt_compare.
#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "zeb_fmt.h"

namespace {

using namespace zeb::fmt;

// One record of `reclen` characters written from `items`, trailing blanks
// kept.
std::string rec(std::string_view format, std::initializer_list<Item> items,
                int reclen = 40) {
  std::vector<Item> v(items);
  ListSource src(v.data(), v.size());
  std::string buf(reclen, '?');
  write_internal(format, src, buf.data(), reclen, 1);
  return buf;
}

// The same with trailing blanks removed.
std::string line(std::string_view format, std::initializer_list<Item> items) {
  std::string s = rec(format, items, 200);
  return s.substr(0, s.find_last_not_of(' ') + 1);
}

Status status(std::string_view format, std::initializer_list<Item> items,
              int reclen = 40, int nrec = 1) {
  std::vector<Item> v(items);
  ListSource src(v.data(), v.size());
  std::string buf(static_cast<std::size_t>(reclen) * nrec, ' ');
  return write_internal(format, src, buf.data(), reclen, nrec);
}

std::vector<std::string> records(std::string_view format,
                                 std::initializer_list<Item> items) {
  std::vector<Item> v(items);
  ListSource src(v.data(), v.size());
  std::vector<std::string> out;
  EXPECT_EQ(write_records(format, src, out), Ok) << format;
  return out;
}

double inf() { return std::numeric_limits<double>::infinity(); }

TEST(FormatSyntax, AcceptsWhatTheRuntimeAccepts) {
  for (const char* f :
       {"(I5)", " ( I 5 ) ", "(i5)", "(1PE13.4)", "(1P,E  17.16)", "(I  12)",
        "(2A,1(I0,A))", "(999(:,F8.4))", "(I5,)", "(A'x')", "('x'A)",
        "(I5 I5)", "(2X2I5)", "(())", "()", "(I5)xyz", "(I5))", "(2Hab)",
        "(E12.3E0)", "(G0)", "(G0.3E2)", "(F0)", "(L)", "(X)", "(1P2E12.3)",
        "(1P2(I5))", "(1P/)", "(-1PE12.3)", "(*(I5))", "('it''s')",
        "(\"a\"\"b\")", "(E8.0)", "(G12.0)", "(BN,BZ,SP,SS,S,:,$)"})
    EXPECT_TRUE(valid_format(f)) << f;
}

TEST(FormatSyntax, RejectsWhatTheRuntimeRejects) {
  for (const char* f :
       {"", "I5", "(I5", "((I5)", "(I)", "(A,I)", "(F5)", "(F5.)", "(F.2)",
        "(I5.7)", "(E12.3E)", "(D12.3E2)", "(F12.3E2)", "(A0)", "(A5.3)",
        "(T)", "(T0)", "(TL0)", "(0X)", "(0I5)", "(0(I5))", "(3)", "(A,3)",
        "(2'x')", "(2:)", "(2T5)", "(P)", "(1PI5)", "(1PX)", "(1P'x')",
        "(1P(I5))", "(,I5)", "(I5,,I5)", "(,)", "(Q)", "(H)", "(5Habc)",
        "('abc)", "(2*(I5))", "(-I5)", "(ES)", "(EN12)", "(G12)", "(X5)"})
    EXPECT_FALSE(valid_format(f)) << f;
}

TEST(FormatSyntax, BoundsInsteadOfWildAllocation) {
  EXPECT_FALSE(valid_format("(I99999999999)"));
  EXPECT_FALSE(valid_format("(99999999999I5)"));
  std::string deep(100, '(');
  deep += "I5";
  deep += std::string(100, ')');
  EXPECT_FALSE(valid_format(deep));
  // A huge nest of groups without data runs away and is stopped.
  auto t0 = std::chrono::steady_clock::now();
  EXPECT_EQ(status("(1000000(1000000(1X)),I5)", {1}), BadFormat);
  EXPECT_EQ(status("(*(1X))", {1}), BadFormat);
  EXPECT_LT(std::chrono::steady_clock::now() - t0, std::chrono::seconds(20));
}

TEST(WriteStatus, Codes) {
  int nused = -1;
  ListSource none(nullptr, 0);
  char buf[8];
  EXPECT_EQ(write_internal("(I", none, buf, 8, 1, &nused), BadFormat);
  EXPECT_EQ(nused, 0);
  EXPECT_EQ(status("(I5)", {"text"}), ItemMismatch);
  EXPECT_EQ(status("(F5.1)", {3}), ItemMismatch);
  EXPECT_EQ(status("(A)", {2.5}), ItemMismatch);
  EXPECT_EQ(status("(L2)", {1}), ItemMismatch);
  EXPECT_EQ(status("(I2)", {true}), ItemMismatch);
  // The scale factor must suit E: -d < k < d+2.
  EXPECT_EQ(status("(E8.0)", {2.5}), BadFormat);
  EXPECT_EQ(status("(5PE12.3)", {2.5}), BadFormat);
  EXPECT_EQ(status("(1PE12.0)", {2.5}), Ok);
  EXPECT_EQ(status("('abcdefghij','X')", {}, 10), RecordOverflow);
  EXPECT_EQ(status("(10X,'a')", {}, 10), RecordOverflow);
  EXPECT_EQ(status("(9X,'a')", {}, 10), Ok);
  EXPECT_EQ(status("(/,/)", {}, 4, 3), Ok);
  EXPECT_EQ(status("(/,/,/)", {}, 4, 3), TooManyRecords);
  EXPECT_EQ(status("(F4.1)", {1.0, 2.0, 3.0}, 4, 2), TooManyRecords);
  // Items left over and no data descriptor to take them.
  EXPECT_EQ(status("('abc')", {1}), BadFormat);
  EXPECT_EQ(status("(F5.1,('lit'))", {1.0, 2.0}, 40, 3), BadFormat);
}

TEST(WriteFields, Fixed) {
  EXPECT_EQ(line("(F5.4)", {0.5}), ".5000");
  EXPECT_EQ(line("(F6.4)", {0.5}), "0.5000");
  EXPECT_EQ(line("(F4.4)", {0.5}), "****");
  EXPECT_EQ(line("(F5.1)", {-0.04}), " -0.0");
  EXPECT_EQ(line("(F5.1)", {-0.0}), " -0.0");
  EXPECT_EQ(line("(F3.1)", {-0.04}), "-.0");
  EXPECT_EQ(line("(F2.0)", {-0.4}), "**");
  EXPECT_EQ(line("(F0.3)", {-0.04}), "-.040");
  EXPECT_EQ(line("(F0.0)", {0.4}), "0.");
  EXPECT_EQ(line("(F8.2)", {0.125}), "    0.12");  // ties to even
  EXPECT_EQ(line("(F8.2)", {0.375}), "    0.38");
  EXPECT_EQ(line("(F6.0)", {2.5}), "    2.");
  EXPECT_EQ(line("(2PF12.3)", {1.234}), "     123.400");
  EXPECT_EQ(line("(-2PF12.3)", {1.234}), "       0.012");
  EXPECT_EQ(line("(SP,F6.2)", {1.5}), " +1.50");
  EXPECT_EQ(line("(F8.1)", {1e22}), "********");
}

TEST(WriteFields, Exponent) {
  EXPECT_EQ(line("(E12.4)", {1e301}), "  0.1000+302");
  EXPECT_EQ(line("(E12.4)", {1e-301}), "  0.1000-300");
  EXPECT_EQ(line("(E12.4E4)", {1e-301}), "0.1000E-0300");
  EXPECT_EQ(line("(E12.4E1)", {1e-301}), "************");
  EXPECT_EQ(line("(D12.4)", {10.0}), "  0.1000D+02");
  EXPECT_EQ(line("(E8.3)", {1e5}), ".100E+06");
  EXPECT_EQ(line("(E9.3)", {-1e5}), "-.100E+06");
  EXPECT_EQ(line("(E12.3)", {0.0}), "   0.000E+00");
  EXPECT_EQ(line("(1PE12.3)", {2.5}), "   2.500E+00");
  EXPECT_EQ(line("(2PE12.3)", {1.234}), "   12.34E-01");
  EXPECT_EQ(line("(-2PE12.3)", {1.234}), "   0.001E+03");
  EXPECT_EQ(line("(ES10.1)", {0.125}), "   1.2E-01");
  EXPECT_EQ(line("(EN12.3)", {12345.0}), "  12.345E+03");
  EXPECT_EQ(line("(EN12.3)", {9999.5}), "  10.000E+03");
  EXPECT_EQ(line("(E0.3)", {2.5}), "0.250E+1");
  EXPECT_EQ(line("(E0.3)", {0.5}), "0.500");
  // The scale factor stays in force for later descriptors.
  EXPECT_EQ(line("(1P,E10.2,F8.3)", {2.5, 2.5}), "  2.50E+00  25.000");
}

TEST(WriteFields, General) {
  EXPECT_EQ(rec("(G12.3)", {0.0}, 12), "    0.00    ");
  EXPECT_EQ(rec("(G12.3)", {999.4}, 12), "    999.    ");
  EXPECT_EQ(line("(G12.3)", {999.5}), "   0.100E+04");
  EXPECT_EQ(line("(G12.3)", {0.09996}), "   0.100");
  EXPECT_EQ(line("(G12.3)", {0.0999}), "   0.999E-01");
  // The bound between forms is taken in double precision: 9.9995 as a
  // double is not below 10 * (1 - 0.00005) so computed.
  EXPECT_EQ(line("(G12.4)", {9.9995}), "   10.00");
  EXPECT_EQ(line("(2PG12.3)", {1e5}), "   10.00E+04");
  EXPECT_EQ(line("(G5.3)", {1.6}), "*****");
  EXPECT_EQ(line("(G8.3)", {-0.0}), "-.00");
  EXPECT_EQ(line("(G0)", {1.6}), "1.6000000000000001");
  EXPECT_EQ(line("(G0.3)", {1e20}), "0.100E+21");
  EXPECT_EQ(status("(G12.0)", {1.0}), BadFormat);
  // G on other kinds edits like I, L and A.
  EXPECT_EQ(line("(G8.2,G5.2,G8.2)", {-42, true, "hello"}), "     -42    T   hello");
  EXPECT_EQ(line("(G0,1X,G0,1X,G0)", {7, false, "x"}), "7 F x");
}

TEST(WriteFields, InfinityAndNaN) {
  double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(line("(F2.1)", {inf()}), "**");
  EXPECT_EQ(line("(F3.1)", {inf()}), "Inf");
  EXPECT_EQ(line("(F3.1)", {-inf()}), "***");
  EXPECT_EQ(line("(F8.1)", {inf()}), "Infinity");
  EXPECT_EQ(line("(F8.1)", {-inf()}), "    -Inf");
  EXPECT_EQ(line("(F9.1)", {-inf()}), "-Infinity");
  EXPECT_EQ(line("(SP,F4.1)", {inf()}), "+Inf");
  EXPECT_EQ(line("(SP,F3.1)", {inf()}), "Inf");
  EXPECT_EQ(line("(E10.3)", {nan}), "       NaN");
  EXPECT_EQ(line("(F2.1)", {nan}), "**");
  EXPECT_EQ(line("(G10.3)", {inf()}), "  Infinity");
  EXPECT_EQ(line("(F0.1)", {-inf()}), "-Inf");
  EXPECT_EQ(line("(E8.0)", {inf()}), "Infinity");  // no scale check
}

TEST(WriteFields, IntegerLogicalText) {
  EXPECT_EQ(line("(I5)", {-42}), "  -42");
  EXPECT_EQ(line("(I2)", {-42}), "**");
  EXPECT_EQ(line("(I5.3)", {-42}), " -042");
  EXPECT_EQ(line("(I0)", {-42}), "-42");
  EXPECT_EQ(line("(I0.5)", {-42}), "-00042");
  EXPECT_EQ(rec("(I5.0)", {0}, 5), "     ");
  EXPECT_EQ(rec("(SP,I5.0)", {0}, 5), "     ");
  EXPECT_EQ(line("(SP,I3)", {0}), " +0");
  EXPECT_EQ(line("(SP,I1)", {7}), "*");
  EXPECT_EQ(line("(I20)", {std::numeric_limits<long long>::min()}),
            "-9223372036854775808");
  EXPECT_EQ(line("(L1,L5,L)", {true, false, true}), "T    FT");
  EXPECT_EQ(line("(A3)", {"hello"}), "hel");
  EXPECT_EQ(line("(A8)", {"hello"}), "   hello");
  EXPECT_EQ(line("(A,'|')", {" x "}), " x |");
  EXPECT_EQ(line("('it''s',\"a\"\"b\",3Hc,d)", {}), "it'sa\"bc,d");
}

TEST(Records, ReversionAndColon) {
  EXPECT_EQ(line("(999(:,F8.4))", {1.0, 2.0, 3.0}),
            "  1.0000  2.0000  3.0000");
  EXPECT_EQ(line("(2A,1(I0,A))", {"ab", "cd", 42, "ef"}), "abcd42ef");
  EXPECT_EQ(line("(F5.1,:,' next')", {1.0}), "  1.0");
  EXPECT_EQ(line("(F5.1,' next')", {1.0}), "  1.0 next");
  EXPECT_EQ(line("(I3,' abc',I3)", {1}), "  1 abc");
  auto r = records("(I3,(2I3))", {1, 2, 3, 4, 5, 6});
  ASSERT_EQ(r.size(), 3u);
  EXPECT_EQ(r[0], "  1  2  3");
  EXPECT_EQ(r[1], "  4  5");
  EXPECT_EQ(r[2], "  6");
  // Reversion goes to the last top-level group with its repeat count.
  r = records("(I2,2(I2,'/'),I2)", {1, 2, 3, 4, 5, 6, 7});
  ASSERT_EQ(r.size(), 2u);
  EXPECT_EQ(r[0], " 1 2/ 3/ 4");
  EXPECT_EQ(r[1], " 5/ 6/ 7");
  // The scale factor survives reversion.
  r = records("(1PE10.2,(E10.2))", {1.0, 2.0, 3.0});
  ASSERT_EQ(r.size(), 2u);
  EXPECT_EQ(r[1], "  3.00E+00");
}

TEST(Records, InternalFileLayout) {
  char buf[3 * 6];
  std::memset(buf, '#', sizeof buf);
  int nused = 0;
  Item items[] = {Item(1.5), Item(2.5)};
  ListSource src(items, 2);
  EXPECT_EQ(write_internal("(F4.1)", src, buf, 6, 3, &nused), Ok);
  EXPECT_EQ(nused, 2);
  EXPECT_EQ(std::string(buf, 18), " 1.5   2.5  ######");
  // A slash at the end still begins (and pads) a record.
  std::memset(buf, '#', sizeof buf);
  ListSource one(items, 1);
  EXPECT_EQ(write_internal("(F4.1,/)", one, buf, 6, 3, &nused), Ok);
  EXPECT_EQ(nused, 2);
  EXPECT_EQ(std::string(buf, 18), " 1.5        ######");
  // No items: the format runs to its first data descriptor.
  ListSource none(nullptr, 0);
  EXPECT_EQ(write_internal("('a',I5,'b')", none, buf, 6, 3, &nused), Ok);
  EXPECT_EQ(nused, 1);
  EXPECT_EQ(std::string(buf, 6), "a     ");
}

TEST(Records, UnboundedLengths) {
  EXPECT_EQ(records("('abc',5X)", {}), std::vector<std::string>{"abc"});
  EXPECT_EQ(records("('abc',T20)", {}), std::vector<std::string>{"abc"});
  EXPECT_EQ(records("('abc',5X,'d')", {}),
            std::vector<std::string>{"abc     d"});
  EXPECT_EQ(records("('abc',TL2)", {}), std::vector<std::string>{"abc"});
  EXPECT_EQ(records("('  ')", {}), std::vector<std::string>{"  "});
  EXPECT_EQ(records("()", {}), std::vector<std::string>{""});
  EXPECT_EQ(records("(/)", {}), (std::vector<std::string>{"", ""}));
}

TEST(Positioning, TabsOverwriteLikeTheRuntime) {
  EXPECT_EQ(line("('abc',T2,'X')", {}), "aXc");
  EXPECT_EQ(line("('abc',TL1,'X')", {}), "abX");
  EXPECT_EQ(line("('abc',TL5,'X')", {}), "Xbc");
  EXPECT_EQ(line("('abcdef',T3,2X,'X')", {}), "abcdXf");
  EXPECT_EQ(line("(T5,'ab',T1,'X')", {}), "X   ab");
  EXPECT_EQ(line("(1X,A,T20,F6.2)", {"name", 1.5}), " name                1.50");
  // Before anything is written TL may go back to the start of the record.
  EXPECT_EQ(line("(3X,TL3,'a')", {}), "a");
  // T measures from the last transfer plus the blanks owed; a second T in
  // a row goes by that reckoning, not by the first T's target.
  EXPECT_EQ(line("('abcd',T6,T6,'X')", {}), "abcd X");
  EXPECT_EQ(line("('abcd',T1,T5,'X')", {}), "Xbcd");
  // Tabs left of the record's start are an end-of-file condition.
  EXPECT_EQ(status("('abcd',T1,T1,'X')", {}), TooManyRecords);
}

// Records what the engine asks for and hands out items by position.
class Recorder final : public ItemSource {
 public:
  explicit Recorder(std::vector<Item> items) : items_(std::move(items)) {}
  bool next(Need need, Item& out) override {
    needs.push_back(need);
    if (k_ >= items_.size()) return false;
    out = items_[k_++];
    return true;
  }
  std::vector<Need> needs;

 private:
  std::vector<Item> items_;
  std::size_t k_ = 0;
};

TEST(ItemProtocol, NeedOfTheDescriptorThatWillTakeTheItem) {
  char buf[80];
  Recorder r({Item(1), Item("x"), Item(2.0)});
  EXPECT_EQ(write_internal("(I3,A,G9.2,L2)", r, buf, 80, 1), Ok);
  EXPECT_EQ(r.needs, (std::vector<Need>{Need::Int, Need::Text, Need::Real,
                                        Need::Logical}));
  // A colon looks ahead to the next data descriptor; the item fetched is the
  // one that descriptor then uses.
  Recorder c({Item("ab"), Item(7)});
  EXPECT_EQ(write_internal("(A,:,'-',I2)", c, buf, 80, 1), Ok);
  EXPECT_EQ(c.needs, (std::vector<Need>{Need::Text, Need::Int, Need::Text}));
  EXPECT_EQ(std::string(buf, 5), "ab- 7");
  // At the end of the format the next item is asked for with the need of
  // the first descriptor after the reversion point.
  Recorder e({Item(1.0), Item("z")});
  EXPECT_EQ(write_internal("(F4.1,(A))", e, buf, 8, 3), Ok);
  EXPECT_EQ(e.needs, (std::vector<Need>{Need::Real, Need::Text, Need::Text}));
}

std::vector<Item> read(std::string_view format, std::string_view text,
                       Status* st = nullptr, int maxitems = 10,
                       int nrec = 1) {
  std::vector<Item> out;
  int reclen = static_cast<int>(text.size()) / nrec;
  Status s = read_internal(format, text.data(), reclen, nrec, maxitems, out);
  if (st) *st = s;
  return out;
}

double read1(std::string_view format, std::string_view text,
             Status* st = nullptr) {
  auto v = read(format, text, st, 1);
  return v.empty() ? -999.0 : v[0].r;
}

TEST(Read, Reals) {
  EXPECT_EQ(read1("(F10.2)", "1.5"), 1.5);
  EXPECT_EQ(read1("(F10.2)", "15"), 0.15);        // implied point
  EXPECT_EQ(read1("(F10.2)", "1 5"), 0.15);       // BN ignores blanks
  EXPECT_EQ(read1("(BZ,F5.1)", "1 2  "), 1020.0); // BZ reads zeros
  EXPECT_EQ(read1("(BZ,F5.1)", "1 2"), 10.2);     // the field is what is there
  EXPECT_EQ(read1("(F10.2)", "1.5E+03"), 1500.0);
  EXPECT_EQ(read1("(F10.2)", "1.5+03"), 1500.0);
  EXPECT_EQ(read1("(F10.2)", "1.5D3"), 1500.0);
  EXPECT_EQ(read1("(F10.2)", "1e5"), 1000.0);
  EXPECT_EQ(read1("(E16.0)", "0.1"), 0.1);
  EXPECT_EQ(read1("(G12.3)", "  -2.5  "), -2.5);
  EXPECT_EQ(read1("(F10.2)", "          "), 0.0);
  EXPECT_TRUE(std::signbit(read1("(F10.2)", "-.")));
  EXPECT_EQ(read1("(1P,F3.0)", "15 "), 1.5);      // kP without exponent
  EXPECT_EQ(read1("(1P,F3.0)", "1e4"), 1e4);      // and with
  EXPECT_EQ(read1("(F10.0)", "-Infinity"), -inf());
  EXPECT_TRUE(std::isnan(read1("(F10.0)", "nan()")));
  // Exactly halfway between 1 and the next double, and just above.
  EXPECT_EQ(read1("(F60.0)",
                  "1.00000000000000011102230246251565404236316680908203125"),
            1.0);
  EXPECT_EQ(read1("(F60.0)",
                  "1.00000000000000011102230246251565404236316680908203126"),
            1.0000000000000002);
  Status st;
  for (const char* bad : {"1.5E", "1.5x", "1,5", "1.2.3", "T", "1e10003"}) {
    read1("(F10.2)", bad, &st);
    EXPECT_EQ(st, ReadError) << bad;
  }
}

TEST(Read, IntegersLogicalsTexts) {
  Status st;
  auto v = read("(I4,BZ,I4,BN,I4,L3,L4,A3,A)", "12  1 2 1 2 .T.  F abcdef",
                &st, 7);
  ASSERT_EQ(st, Ok);
  ASSERT_EQ(v.size(), 7u);
  EXPECT_EQ(v[0].i, 12);
  EXPECT_EQ(v[1].i, 1020);
  EXPECT_EQ(v[2].i, 12);
  EXPECT_TRUE(v[3].l);
  EXPECT_FALSE(v[4].l);
  EXPECT_EQ(v[5].s, "abc");
  EXPECT_EQ(v[6].s, "def");  // A without a width: the rest of the record
  read("(I5)", "1.5", &st);
  EXPECT_EQ(st, ReadError);
  read("(I3)", "  +", &st);
  EXPECT_EQ(st, ReadError);
  read("(I20)", "9223372036854775808", &st);
  EXPECT_EQ(st, ReadError);
  EXPECT_EQ(read("(I20)", "-9223372036854775808")[0].i,
            std::numeric_limits<long long>::min());
  read("(L3)", "   ", &st);
  EXPECT_EQ(st, ReadError);
  // A text item points into the caller's records.
  std::string text = "hello";
  std::vector<Item> out;
  ASSERT_EQ(read_internal("(A5)", text.data(), 5, 1, 1, out), Ok);
  EXPECT_EQ(out[0].s.data(), text.data());
}

TEST(Read, RecordsPositioningAndLimits) {
  Status st;
  // Three records of 5 characters.
  const std::string recs = "  1.5  2.5  3.5";
  auto v = read("(F5.1)", recs, &st, 2, 3);
  ASSERT_EQ(st, Ok);
  ASSERT_EQ(v.size(), 2u);
  EXPECT_EQ(v[1].r, 2.5);
  read("(F5.1)", recs, &st, 4, 3);
  EXPECT_EQ(st, EndOfRecord);
  read("(F5.1,/,/,/)", recs, &st, 1, 3);
  EXPECT_EQ(st, EndOfRecord);
  v = read("(T3,F2.0,TL4,F2.0,5X,A)", "9912cd", &st, 3);
  ASSERT_EQ(st, Ok);
  EXPECT_EQ(v[0].r, 12.0);
  EXPECT_EQ(v[1].r, 99.0);
  EXPECT_EQ(v[2].s, "");
  read("(I2,'x')", "12", &st);
  EXPECT_EQ(st, BadFormat);
  read("(I0)", "12", &st);
  EXPECT_EQ(st, BadFormat);
  EXPECT_TRUE(read("(I2)", "12", &st, 0).empty());
  EXPECT_EQ(st, Ok);
}

TEST(Robustness, RandomTextNeverCrashes) {
  std::mt19937 gen(7);
  const std::string alphabet = "()IFEDGALXTPSBNZH0123456789.,:/'\"*$+- ";
  std::uniform_int_distribution<std::size_t> pick(0, alphabet.size() - 1);
  std::uniform_int_distribution<int> len(0, 24);
  char buf[4 * 32];
  std::vector<Item> out;
  Item items[] = {Item(1), Item(2.5), Item(true), Item("s"), Item(-1e300)};
  for (int trial = 0; trial < 20000; ++trial) {
    std::string f = "(";
    for (int n = len(gen); n > 0; --n) f += alphabet[pick(gen)];
    if (trial % 2) f += ")";
    valid_format(f);
    ListSource src(items, 5);
    write_internal(f, src, buf, 32, 4);
    std::vector<std::string> recs;
    ListSource src2(items, 5);
    write_records(f, src2, recs);
    read_internal(f, "1 2 3 4 5 6 T x 9", 17, 1, 5, out);
  }
  ListSource none(nullptr, 0);
  EXPECT_EQ(write_internal("(I5)", none, nullptr, 10, 1), TooManyRecords);
  EXPECT_EQ(read_internal("(I5)", nullptr, 5, 1, 1, out), EndOfRecord);
}

TEST(Robustness, ThreadsShareNothing) {
  auto work = [](int seed, std::string* result) {
    char buf[64];
    for (int k = 0; k < 2000; ++k) {
      Item items[] = {Item(seed), Item(seed * 0.1), Item("t")};
      ListSource src(items, 3);
      write_internal("(I4,1P,E12.4,(A,:,'|'))", src, buf, 64, 1);
    }
    *result = std::string(buf, 20);
  };
  std::vector<std::string> res(8);
  std::vector<std::thread> ts;
  for (int i = 0; i < 8; ++i) ts.emplace_back(work, i, &res[i]);
  for (auto& t : ts) t.join();
  for (int i = 0; i < 8; ++i)
    EXPECT_EQ(res[i], rec("(I4,1P,E12.4,(A,:,'|'))", {i, i * 0.1, "t"}, 20));
}

}  // namespace
