#include "zeb_x_ib.h"
#include "zeb_x_ib_aux.h"

// Prints a real triangle of order N packed column by column, upper or
// lower, with its diagonal stored, unit or left out.
void x04cdfn(std::string_view uplo, std::string_view diag, int n,
             const double* a, std::string_view form, std::string_view title,
             std::string_view labrow, zeb::fcharray rlabs,
             std::string_view labcol, zeb::fcharray clabs, int ncols,
             int indent, int nout, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  x04_matrix mat;
  mat.type = 'R';
  mat.m = n;
  mat.n = n;
  mat.r = a;
  int code = x04cdzn(uplo, diag, labrow, labcol, nullptr, mat, errbuf);
  if (code == 0) {
    code = x04cbzn(mat, form, 'A', title, x04_upper1(labrow), rlabs,
                   x04_upper1(labcol), clabs, ncols, indent, nout, x04bafn,
                   x04bafnh, errbuf);
  }
  zeb::errbuf_close(errbuf, code, ifail);
}
