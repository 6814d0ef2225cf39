#include "zeb_x_ib_aux.h"

namespace {

bool is_label(char c) { return c == 'I' || c == 'C' || c == 'N'; }

}  // namespace

// Argument checks of the band printers, in the order of their failure
// table; the first offence is reported. KL+KU+1 is formed in 64 bits.
int x04cfzn(int kl, int ku, int lda, std::string_view labrow,
            std::string_view labcol, const std::string_view* usefrm,
            char* errbuf) {
  if (kl < 0) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {1, 99996, 1, kl});
    return 1;
  }
  if (ku < 0) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {1, 99995, 1, ku});
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
  const long long need = static_cast<long long>(kl) + ku + 1;
  if (lda < need) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),2(1X,I20))",
                       {3, 99993, 2, lda, need});
    return 3;
  }
  return 0;
}
