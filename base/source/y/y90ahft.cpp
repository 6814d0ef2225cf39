#include "zeb_x_ib.h"
#include "zeb_y_ib_aux.h"

void y90ahft(std::string_view text) {
  char line[100];
  std::size_t n = 4;
  for (std::size_t i = 0; i < 4; ++i) line[i] = ' ';
  for (std::size_t i = 0; i < text.size() && n < sizeof line; ++i) line[n++] = text[i];
  int nerr = 0;
  x04aafn(0, nerr);
  x04bafn(nerr, std::string_view(line, n));
}
