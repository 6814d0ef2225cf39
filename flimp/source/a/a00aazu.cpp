#include "zeb_a_ib_aux.h"
#include "zeb_frame.h"

a00_line& a00_line::operator<<(const char* s) {
  for (; s != nullptr && *s != '\0' && n < a00_line_len; ++s) text[n++] = *s;
  return *this;
}

void a00_line::put(char* lines, int k) const {
  zeb::write_lines("(A)", {std::string_view(text, static_cast<std::size_t>(n))},
                   lines + static_cast<long>(k) * a00_line_len, a00_line_len, 1);
}

// The library's banner: title, precision, product code and mark, then the
// system the library was made on and the systems it serves, between the
// frame lines, with blank lines as separators.
int a00aazu(char* lines, int maxlines) {
  const a00_build_facts& b = a00abyn();
  a00_line l[18];
  l[0] << " *** Start of ZEB Library implementation details ***";
  l[2] << " Implementation title: ZEB Library for " << b.system << " " << b.processor
       << ", " << b.fortran << ", double precision, 32-bit integers";
  l[3] << "            Precision: double precision (IEEE 754 binary64)";
  l[4] << "         Product Code: ZEB-" << b.version << "-" << b.system << "-"
       << b.processor;
  l[5] << "                 Mark: " << b.version;
  l[7] << " Created using:";
  l[8] << "     hardware - " << b.processor;
  if (b.cpu[0] != '\0') l[8] << " (" << b.cpu << ")";
  l[9] << "     op. sys. - " << b.system << " " << b.system_version;
  l[10] << "     compiler - " << b.cxx << ", " << b.fortran;
  l[12] << " Applicable to:";
  l[13] << "     hardware - " << b.processor;
  l[14] << "     op. sys. - " << b.system;
  l[15] << "     compiler - " << b.fortran << " and compatible systems.";
  l[17] << " *** End of ZEB Library implementation details ***";
  const int n = maxlines < 18 ? maxlines : 18;
  for (int k = 0; k < n; ++k) l[k].put(lines, k);
  return n;
}
