#include "zeb_x_ib_aux.h"

namespace {

bool is_label(char c) { return c == 'I' || c == 'C' || c == 'N'; }

}  // namespace

// Argument checks of the printers of a matrix in full storage, in the order
// of their failure table; the first offence is reported.
int x04cbtn(std::string_view matrix, std::string_view diag, int m, int lda,
            std::string_view labrow, std::string_view labcol,
            const std::string_view* usefrm, x04_matrix& a, char* errbuf) {
  const char mat = x04_upper1(matrix);
  if (mat != 'G' && mat != 'L' && mat != 'U') {
    x04cbun(errbuf, 1, 99999, matrix, nullptr);
    return 1;
  }
  if (!is_label(x04_upper1(labrow)) || !is_label(x04_upper1(labcol))) {
    x04cbun(errbuf, 1, 99998, labrow, &labcol);
    return 1;
  }
  if (usefrm != nullptr) {
    const char u = x04_upper1(*usefrm);
    if (u != 'A' && u != 'B' && u != 'D') {
      x04cbun(errbuf, 1, 99997, *usefrm, nullptr);
      return 1;
    }
  }
  if (m > lda) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),2(1X,I20))", {3, 99993, 2, m, lda});
    return 3;
  }
  a.uplo = mat;
  a.diag = 'N';
  if (mat != 'G') {
    const char d = x04_upper1(diag);
    if (d != 'U' && d != 'N' && d != 'B') {
      x04cbun(errbuf, 2, 99992, matrix, &diag);
      return 2;
    }
    a.diag = d;
  }
  return 0;
}
