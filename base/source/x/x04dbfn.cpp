#include "zeb_x_ib.h"
#include "zeb_x_ib_aux.h"

// Prints a complex matrix in full storage: general, or the upper or lower
// triangle (trapezium when M and N differ) with its diagonal stored, unit or
// left out.
void x04dbfn(std::string_view matrix, std::string_view diag, int m, int n,
             const std::complex<double>* a, int lda, std::string_view usefrm,
             std::string_view form, std::string_view title,
             std::string_view labrow, zeb::fcharray rlabs,
             std::string_view labcol, zeb::fcharray clabs, int ncols,
             int indent, int nout, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  x04_matrix mat;
  mat.type = 'Z';
  mat.m = m;
  mat.n = n;
  mat.lda = lda;
  mat.z = a;
  int code =
      x04cbtn(matrix, diag, m, lda, labrow, labcol, &usefrm, mat, errbuf);
  if (code == 0) {
    code = x04cbzn(mat, form, x04_upper1(usefrm), title, x04_upper1(labrow),
                   rlabs, x04_upper1(labcol), clabs, ncols, indent, nout,
                   x04bafn, x04bafnh, errbuf);
  }
  zeb::errbuf_close(errbuf, code, ifail);
}
