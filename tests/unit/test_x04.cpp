// The matrix printers' pieces (column widths, the automatic format, storage
// of packed and band matrices, the layout engine through a capturing writer)
// and the direct-access files of x04acxn.
#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <cstdio>
#include <limits>
#include <string>
#include <vector>

#include "zeb_x_ib.h"
#include "zeb_x_ib_aux.h"

namespace {

std::vector<std::string> captured;
std::vector<int> captured_units;

void capture(int nout, std::string_view rec) {
  captured_units.push_back(nout);
  std::string s(rec);
  s.erase(s.find_last_not_of(' ') + 1);
  captured.push_back(s);
}

std::string auto_form(const x04_matrix& a, int minw = 0) {
  char f[16];
  return std::string(f, static_cast<std::size_t>(x04cbyn(a, minw, f)));
}

x04_matrix real_row(const double* v, int n) {
  x04_matrix a;
  a.m = 1;
  a.n = n;
  a.r = v;
  return a;
}

TEST(X04Printers, ColumnWidthIsWhatASecondEntryAdds) {
  EXPECT_EQ(x04cbxn("F8.4", false), 8);
  EXPECT_EQ(x04cbxn("1PE13.4", false), 13);
  EXPECT_EQ(x04cbxn("F8.4,2X", false), 10);  // trailing blanks count once
  EXPECT_EQ(x04cbxn("1X,F8.4", false), 9);
  EXPECT_EQ(x04cbxn("I5", true), 5);
  // Not a format, not one record per entry, or not for this type.
  EXPECT_EQ(x04cbxn("Q8.4", false), 0);
  EXPECT_EQ(x04cbxn("F8", false), 0);
  EXPECT_EQ(x04cbxn("F8.4/", false), 0);
  EXPECT_EQ(x04cbxn("I5", false), 0);
  EXPECT_EQ(x04cbxn("A", false), 0);
  EXPECT_EQ(x04cbxn("T20,F8.4", false), 0);  // every entry over the last
  EXPECT_EQ(x04cbxn("", false), 0);
}

TEST(X04Printers, StarFormatHoldsEveryDigitWithASeparatingBlank) {
  char f[16];
  const std::string form(f, static_cast<std::size_t>(x04cbvn(f)));
  EXPECT_EQ(form, "1P,E 23. 15");
  EXPECT_EQ(x04cbxn(form, false), 23);
  // The most negative value with a three-digit exponent still leaves a
  // blank ahead of it.
  char field[23];
  const double v = -std::numeric_limits<double>::max();
  ASSERT_EQ(zeb::write_lines("(999(:,1P,E 23. 15))", {v}, field, 23, 1),
            zeb::fmt::Ok);
  EXPECT_EQ(std::string(field, 23), " -1.797693134862316+308");
}

TEST(X04Printers, AutomaticFormatAtItsThresholds) {
  const double one = 1.0;
  double v[2] = {1.0, 0.5};
  EXPECT_EQ(auto_form(real_row(v, 2)), "F8.4");
  v[0] = std::nextafter(one, 2.0);
  EXPECT_EQ(auto_form(real_row(v, 2)), "F11.4");
  v[0] = 0.001;
  EXPECT_EQ(auto_form(real_row(v, 2)), "F8.4");
  v[0] = std::nextafter(0.001, 0.0);
  EXPECT_EQ(auto_form(real_row(v, 2)), "1PE13.4");
  v[0] = std::nextafter(9999.99991, 0.0);
  EXPECT_EQ(auto_form(real_row(v, 2)), "F11.4");
  v[0] = -9999.99991;
  EXPECT_EQ(auto_form(real_row(v, 2)), "1PE13.4");
  v[0] = 0.0;  // zeros say nothing of the smallest magnitude
  v[1] = 0.0;
  EXPECT_EQ(auto_form(real_row(v, 2)), "F8.4");
  v[0] = std::nan("");
  v[1] = 0.5;
  EXPECT_EQ(auto_form(real_row(v, 2)), "F8.4");
  v[0] = HUGE_VAL;
  EXPECT_EQ(auto_form(real_row(v, 2)), "1PE13.4");
  EXPECT_EQ(auto_form(real_row(v, 0)), "F8.4");  // empty
}

TEST(X04Printers, AutomaticFormatScansOnlyWhatIsPrinted) {
  // Column-major 2 by 2 with a large diagonal and a large unused corner.
  const double a[4] = {5000.0, 7000.0, 0.5, 6000.0};
  x04_matrix m;
  m.m = 2;
  m.n = 2;
  m.lda = 2;
  m.r = a;
  m.uplo = 'U';
  m.diag = 'U';
  EXPECT_EQ(auto_form(m), "F8.4");
  m.diag = 'B';
  EXPECT_EQ(auto_form(m), "F8.4");
  m.diag = 'N';
  EXPECT_EQ(auto_form(m), "F11.4");
  // The imaginary parts count for a complex matrix.
  const std::complex<double> z[2] = {{0.5, 0.0}, {0.25, 2e4}};
  x04_matrix c;
  c.type = 'Z';
  c.m = 1;
  c.n = 2;
  c.z = z;
  EXPECT_EQ(auto_form(c), "1PE13.4");
  // Integers: one more than the widest entry, sign included, or heading.
  const int k[3] = {7, std::numeric_limits<int>::min(), 0};
  x04_matrix ik;
  ik.type = 'I';
  ik.m = 1;
  ik.n = 3;
  ik.i = k;
  EXPECT_EQ(auto_form(ik), "I12");
  ik.n = 1;
  EXPECT_EQ(auto_form(ik), "I2");
  EXPECT_EQ(auto_form(ik, 5), "I6");
}

TEST(X04Printers, PackedAndBandStorage) {
  const double p[6] = {1, 2, 3, 4, 5, 6};
  x04_matrix up;
  up.store = 'P';
  up.uplo = 'U';
  up.m = up.n = 3;
  up.r = p;
  // Upper by columns: (1,1) (1,2) (2,2) (1,3) (2,3) (3,3).
  EXPECT_EQ(x04cbwn(up, 2, 2).re, 3.0);
  EXPECT_EQ(x04cbwn(up, 1, 3).re, 4.0);
  EXPECT_EQ(x04cbwn(up, 3, 3).re, 6.0);
  EXPECT_EQ(x04cbwn(up, 3, 1).state, 0);
  x04_matrix lo = up;
  lo.uplo = 'L';
  // Lower by columns: (1,1) (2,1) (3,1) (2,2) (3,2) (3,3).
  EXPECT_EQ(x04cbwn(lo, 3, 1).re, 3.0);
  EXPECT_EQ(x04cbwn(lo, 2, 2).re, 4.0);
  EXPECT_EQ(x04cbwn(lo, 3, 2).re, 5.0);
  EXPECT_EQ(x04cbwn(lo, 1, 2).state, 0);
  lo.diag = 'U';
  EXPECT_EQ(x04cbwn(lo, 2, 2).state, 3);
  EXPECT_EQ(x04cbwn(lo, 2, 2).re, 1.0);
  lo.diag = 'B';
  EXPECT_EQ(x04cbwn(lo, 2, 2).state, 2);
  // Band, KL = 1, KU = 2, LDA = 5 (one spare row): entry (i,j) in row
  // KU+1+i-j of column j.
  double b[5 * 4];
  for (int k = 0; k < 20; ++k) b[k] = k;
  x04_matrix band;
  band.store = 'B';
  band.m = 4;
  band.n = 4;
  band.kl = 1;
  band.ku = 2;
  band.lda = 5;
  band.r = b;
  EXPECT_EQ(x04cbwn(band, 1, 1).re, 2.0);          // row 3, column 1
  EXPECT_EQ(x04cbwn(band, 1, 3).re, 10.0);         // row 1, column 3
  EXPECT_EQ(x04cbwn(band, 4, 3).re, 5.0 * 2 + 3);  // row 4, column 3
  EXPECT_EQ(x04cbwn(band, 1, 4).state, 0);
  EXPECT_EQ(x04cbwn(band, 3, 1).state, 0);
}

TEST(X04Printers, LayoutThroughThePassedWriter) {
  const double a[3] = {0.5, -0.25, 1.0};
  x04_matrix m = real_row(a, 3);
  char errbuf[zeb::errbuf_len];
  const zeb::fcharray none{nullptr, 0};
  captured.clear();
  captured_units.clear();
  // A title of exactly the line's length is one line; one more character
  // starts a second.
  const std::string title(40, 't');
  EXPECT_EQ(x04cbzn(m, "", 'A', title, 'I', none, 'N', none, 40, 0, 17, capture,
                    x04bafnh, errbuf),
            0);
  ASSERT_EQ(captured.size(), 2u);
  EXPECT_EQ(captured[0], title);
  EXPECT_EQ(captured[1], " 1   0.5000 -0.2500  1.0000");
  EXPECT_EQ(captured_units, (std::vector<int>{17, 17}));
  captured.clear();
  EXPECT_EQ(x04cbzn(m, "", 'A', title + "u", 'N', none, 'N', none, 40, 0, 17,
                    capture, x04bafnh, errbuf),
            0);
  ASSERT_EQ(captured.size(), 3u);
  EXPECT_EQ(captured[1], "u");
  EXPECT_EQ(captured[2], "   0.5000 -0.2500  1.0000");
  // Failures leave a record and print nothing.
  captured.clear();
  EXPECT_EQ(x04cbzn(m, "F8.4,Q", 'A', "T", 'I', none, 'I', none, 80, 0, 17,
                    capture, x04bafnh, errbuf),
            4);
  EXPECT_EQ(std::string(errbuf, 35), "     4 99991     1 F8.4_Q          ");
  EXPECT_EQ(x04cbzn(m, "", 'A', "T", 'I', none, 'I', none, 12, 1, 17, capture,
                    x04bafnh, errbuf),
            5);
  EXPECT_TRUE(captured.empty());
}

TEST(X04Printers, MatlabFormFillsWhatIsNotStored) {
  const double a[4] = {0.5, 9.0, 0.25, 0.75};
  x04_matrix m;
  m.m = m.n = m.lda = 2;
  m.r = a;
  m.uplo = 'U';
  m.diag = 'B';
  char errbuf[zeb::errbuf_len];
  const zeb::fcharray none{nullptr, 0};
  captured.clear();
  EXPECT_EQ(x04cbzn(m, "matlab F5.2", 'A', " U ", 'I', none, 'I', none, 80, 0,
                    6, capture, x04bafnh, errbuf),
            0);
  EXPECT_EQ(captured, (std::vector<std::string>{"U = [", "  0.00  0.25",
                                                "  0.00  0.00", "];"}));
}

TEST(X04Files, DirectAccessRoundTrip) {
  const char* name = "x04_direct.tmp";
  const double out[2] = {1.5, -2.5};
  ASSERT_EQ(x04acxn(31, std::string(name) + "   ", 1, 16), 0);
  EXPECT_EQ(x04acwn(31, 1, out, 16), 0);
  EXPECT_EQ(x04acwn(31, 3, out, 16), 0);
  EXPECT_EQ(x04acwn(31, 2, out, 24), 2);  // longer than a record
  EXPECT_EQ(x04acwn(31, 0, out, 16), 2);
  double in[2] = {0.0, 0.0};
  EXPECT_EQ(x04acvn(31, 1, in, 16), 2);  // opened for writing only
  EXPECT_EQ(zeb_file_close(31), 0);
  ASSERT_EQ(x04acxn(31, name, 0, 16), 0);
  EXPECT_EQ(x04acvn(31, 3, in, 16), 0);
  EXPECT_EQ(in[0], 1.5);
  EXPECT_EQ(in[1], -2.5);
  EXPECT_EQ(x04acvn(31, 4, in, 16), 2);   // past the end
  EXPECT_EQ(x04acwn(31, 1, out, 16), 2);  // opened for reading only
  EXPECT_EQ(zeb_file_close(31), 0);
  std::remove(name);
  EXPECT_EQ(x04acxn(31, name, 0, 16), 2);  // no longer there
  EXPECT_EQ(x04acxn(31, name, 2, 16), 1);
  EXPECT_EQ(x04acxn(31, name, 1, 0), 1);
}

}  // namespace
