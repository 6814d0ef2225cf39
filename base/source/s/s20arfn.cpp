// The Fresnel integral C(x) for each of the N arguments X(i), into F(i).
// N = 0 is a valid empty request; N < 0 is failure 1 and leaves F unchanged.
// The failure record is "(4(1X,I5))"; an N below -9999 does not fit an I5
// field, so it goes in an I20 field instead and the message still shows it.
#include "zeb_s_ib.h"

void s20arfn(int n, const double* x, double* f, char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  if (n < 0) {
    zeb::errbuf_record(errbuf, n >= -9999 ? "(4(1X,I5))" : "(3(1X,I5),1X,I20)",
                       {1, 99999, 1, n});
    zeb::errbuf_close(errbuf, 1, ifail);
    return;
  }
  for (int i = 0; i < n; ++i) f[i] = s20adfn(x[i]);
  zeb::errbuf_close(errbuf, 0, ifail);
}
