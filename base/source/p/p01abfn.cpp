#include <cstdlib>

#include "zeb_p_ib.h"
#include "zeb_p_ib_aux.h"
#include "zeb_x_ib.h"

// The failure exit. The caller's IFAIL on entry decides: its tens digit
// prints, its units digit 1 returns (soft) and any other digit stops (hard);
// 0, -1 and -13 are read as whole values. Every other negative value and every
// positive value without a tens digit is silent and soft.
int p01abfn(int ifail, int ierror, std::string_view srname, int nrec,
            zeb::fcharray rec) {
  if (ierror == 0) return 0;
  const bool whole = ifail == 0 || ifail == -1 || ifail == -13;
  if (!whole && (ifail < 1 || (ifail / 10) % 10 == 0)) return ierror;

  int nerr = 0;
  x04aafn(0, nerr);
  for (int i = 0; i < nrec; ++i) {
    x04bafn(nerr, std::string_view(rec.p + static_cast<long>(i) * rec.n,
                                   static_cast<std::size_t>(rec.n)));
  }
  if (ifail == -13) return ierror;

  char line[72];
  zeb::write_lines(
      "(' ** ABNORMAL EXIT from ZEB Library routine ',A,': IFAIL',' =',"
      "          I6)",
      {srname, ierror}, line, sizeof line, 1);
  x04bafn(nerr, std::string_view(line, sizeof line));
  if (std::abs(ifail % 10) != 1) {
    x04bafn(nerr, " ** ZEB hard failure - execution terminated");
    p01abzn();
  }
  x04bafn(nerr, " ** ZEB soft failure - control returned");
  return ierror;
}
