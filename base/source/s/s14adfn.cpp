// Scaled derivatives of psi: ANS(j) = (-1)^(k+1) psi^(k)(x) / k! for
// k = N+j-1, j = 1..M, and -psi(x) for k = 0, by the polygamma kernel.
#include "zeb_frame.h"
#include "zeb_s_ib.h"
#include "zeb_s_ib_aux.h"

void s14adfn(double x, int n, int m, double* ans, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  int code = 0;
  if (!(x > 0.0)) {  // a NaN fails here too
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,1P,E12.4)", {1, 99999, 1, x});
    code = 1;
  } else if (n < 0) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {2, 99998, 1, n});
    code = 2;
  } else if (m < 1) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {3, 99997, 1, m});
    code = 3;
  } else {
    // The kernel's 5 (orders that underflow, set to 0), 6 (overflow, all of
    // ANS 0) and 7 (orders beyond the integers) are this routine's 4, 5, 6.
    const int k = s14aczn(x, n, 1, m, ans);
    if (k == 5) {
      zeb::errbuf_record(errbuf, "(3(1X,I5))", {4, 99996, 0});
      code = 4;
    } else if (k == 6) {
      zeb::errbuf_record(errbuf, "(3(1X,I5))", {5, 99995, 0});
      code = 5;
    } else if (k == 7) {
      zeb::errbuf_record(errbuf, "(3(1X,I5))", {6, 99994, 0});
      code = 6;
    }
  }
  zeb::errbuf_close(errbuf, code, ifail);
}
