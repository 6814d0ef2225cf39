#include "zeb_x_ib.h"

// The plain printer: the labelled one with the automatic format, rows and
// columns numbered, lines of 80 characters and no indent.
void x04dafn(std::string_view matrix, std::string_view diag, int m, int n,
             const std::complex<double>* a, int lda, std::string_view title,
             int nout, char* errbuf, int& ifail) {
  const zeb::fcharray none{nullptr, 0};
  x04dbfn(matrix, diag, m, n, a, lda, "A", "", title, "I", none, "I", none, 80,
          0, nout, errbuf, ifail);
}
