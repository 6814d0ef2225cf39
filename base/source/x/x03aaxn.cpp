#include "zeb_frame.h"
#include "zeb_x_ib_helpers.h"

// The argument checks that the real and complex inner products share, in the
// order of their failure table. Writes the record of the first offence and
// returns its code, or 0.
int x03aaxn(int n, int isizea, int isizeb, int istepa, int istepb, char* errbuf) {
  if (istepa < 1) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {1, 99999, 1, istepa});
    return 1;
  }
  if (istepb < 1) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {1, 99998, 1, istepb});
    return 1;
  }
  // The last element used is 1 + (N-1)*step; in 64 bits, since the product
  // of two 32-bit integers may not fit in one.
  if (n >= 1 && static_cast<long long>(n - 1) * istepa + 1 > isizea) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),3(1X,I20))", {2, 99997, 3, isizea, istepa, n});
    return 2;
  }
  if (n >= 1 && static_cast<long long>(n - 1) * istepb + 1 > isizeb) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),3(1X,I20))", {2, 99996, 3, isizeb, istepb, n});
    return 2;
  }
  return 0;
}
