#include "zeb_x_ib_helpers.h"

namespace {
// The field of a date text at 1-based columns first..last; missing columns of
// a short text are blanks.
std::string_view field(std::string_view text, std::size_t first, std::size_t last) {
  if (text.size() < first) return {};
  return text.substr(first - 1, last - first + 1);
}
}  // namespace

// Columns of "Mon 01st Jan 2024 12:34:56.789": day 5-6, month name 10-12,
// year 14-17, hour 19-20, minute 22-23, second 25-26, millisecond 28-30.
void x05aczn(std::string_view text, int* itime) {
  static constexpr std::string_view months = "JanFebMarAprMayJunJulAugSepOctNovDec";
  itime[0] = x05aazn(field(text, 14, 17));
  itime[1] = 0;
  const std::string_view mon = field(text, 10, 12);
  if (mon.size() == 3) {
    for (int m = 0; m < 12; ++m) {
      if (months.substr(3 * static_cast<std::size_t>(m), 3) == mon) itime[1] = m + 1;
    }
  }
  itime[2] = x05aazn(field(text, 5, 6));
  itime[3] = x05aazn(field(text, 19, 20));
  itime[4] = x05aazn(field(text, 22, 23));
  itime[5] = x05aazn(field(text, 25, 26));
  itime[6] = x05aazn(field(text, 28, 30));
}
