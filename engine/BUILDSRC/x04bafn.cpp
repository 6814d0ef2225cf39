#include "zeb_x_ib.h"
#include "zeb_x_ib_aux.h"

// The line writer: everything the library prints passes here. A negative unit
// discards the line. Trailing blanks are removed, keeping one character, and
// the unit is flushed after each line so that the caller's own output and the
// library's come out in program order.
void x04bafn(int nout, std::string_view rec) {
  if (nout >= 0) {
    std::size_t n = rec.size();
    while (n > 1 && rec[n - 1] == ' ') --n;
    if (n == 0) {
      zeb_unit_write(nout, " ", 1);
    } else {
      zeb_unit_write(nout, rec.data(), static_cast<int>(n));
    }
  }
  x04aazn(nout);
}
