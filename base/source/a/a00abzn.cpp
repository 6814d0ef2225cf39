#include "zeb_a_ib_aux.h"

// The lower layer's banner: its precision and the machine, system, compiler
// and flags it was built with.
int a00abzn(char* lines, int maxlines) {
  const a00_build_facts& b = a00abyn();
  a00_line l[8];
  l[0] << " *** Start of ZEB Engine implementation details ***";
  l[1] << " Precision: double";
  l[2] << " Built on: " << b.date;
  l[3] << " Hardware: " << b.processor;
  if (b.cpu[0] != '\0') l[3] << " (" << b.cpu << ")";
  l[4] << " Operating system: " << b.system << " " << b.system_version;
  l[5] << " Compiler: " << b.cxx << ", " << b.fortran;
  l[6] << " Compiler flags: " << b.build_type << ": " << b.flags;
  l[7] << " *** End of ZEB Engine implementation details ***";
  const int n = maxlines < 8 ? maxlines : 8;
  for (int k = 0; k < n; ++k) l[k].put(lines, k);
  return n;
}
