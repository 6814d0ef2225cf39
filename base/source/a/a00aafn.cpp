#include "zeb_a_ib.h"
#include "zeb_a_ib_aux.h"
#include "zeb_x_ib.h"
#include "zeb_x_ib_aux.h"

// Prints the banner on the advisory unit, line by line through the writer.
void a00aafn() {
  char lines[a00_max_lines * a00_line_len];
  const int n = a00aazu(lines, a00_max_lines);
  int nadv = 0;
  x04abfn(0, nadv);
  x04bayn(x04bafn, x04bafnh, nadv, n, lines, a00_line_len);
}
