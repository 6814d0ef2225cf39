#include "zeb_x_ib_aux.h"

namespace {

bool is_label(char c) { return c == 'I' || c == 'C' || c == 'N'; }

}  // namespace

// Argument checks of the printers of a packed triangle, in the order of
// their failure table; the first offence is reported.
int x04cdzn(std::string_view uplo, std::string_view diag,
            std::string_view labrow, std::string_view labcol,
            const std::string_view* usefrm, x04_matrix& a, char* errbuf) {
  const char u = x04_upper1(uplo);
  if (u != 'L' && u != 'U') {
    x04cbun(errbuf, 1, 99999, uplo, nullptr);
    return 1;
  }
  if (!is_label(x04_upper1(labrow)) || !is_label(x04_upper1(labcol))) {
    x04cbun(errbuf, 1, 99998, labrow, &labcol);
    return 1;
  }
  if (usefrm != nullptr) {
    const char f = x04_upper1(*usefrm);
    if (f != 'A' && f != 'B' && f != 'D') {
      x04cbun(errbuf, 1, 99997, *usefrm, nullptr);
      return 1;
    }
  }
  const char d = x04_upper1(diag);
  if (d != 'U' && d != 'N' && d != 'B') {
    x04cbun(errbuf, 2, 99992, uplo, &diag);
    return 2;
  }
  a.store = 'P';
  a.uplo = u;
  a.diag = d;
  return 0;
}
