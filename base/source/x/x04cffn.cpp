#include "zeb_x_ib.h"
#include "zeb_x_ib_aux.h"

// Prints an M by N real band matrix with KL subdiagonals and KU
// superdiagonals, stored by columns with entry (i,j) in row KU+1+i-j;
// entries outside the band are blank.
void x04cffn(int m, int n, int kl, int ku, const double* a, int lda,
             std::string_view form, std::string_view title,
             std::string_view labrow, zeb::fcharray rlabs,
             std::string_view labcol, zeb::fcharray clabs, int ncols,
             int indent, int nout, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  int code = x04cfzn(kl, ku, lda, labrow, labcol, nullptr, errbuf);
  if (code == 0) {
    x04_matrix mat;
    mat.type = 'R';
    mat.store = 'B';
    mat.m = m;
    mat.n = n;
    mat.kl = kl;
    mat.ku = ku;
    mat.lda = lda;
    mat.r = a;
    code = x04cbzn(mat, form, 'A', title, x04_upper1(labrow), rlabs,
                   x04_upper1(labcol), clabs, ncols, indent, nout, x04bafn,
                   x04bafnh, errbuf);
  }
  zeb::errbuf_close(errbuf, code, ifail);
}
