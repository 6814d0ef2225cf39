#include "zeb_x_ib.h"

// The plain printer: the labelled one with the automatic format, rows and
// columns numbered, lines of 80 characters and no indent.
void x04ccfn(std::string_view uplo, std::string_view diag, int n,
             const double* a, std::string_view title, int nout, char* errbuf,
             int& ifail) {
  const zeb::fcharray none{nullptr, 0};
  x04cdfn(uplo, diag, n, a, "", title, "I", none, "I", none, 80, 0, nout,
          errbuf, ifail);
}
