#include <algorithm>
#include <cstring>

#include "zeb_x_ib.h"
#include "zeb_x_ib_helpers.h"

// "<Day> <dd><st|nd|rd|th> <Mon> yyyy hh:mm:ss.mmm", exactly 30 characters,
// or "** Illegal date **" padded to 30 when a field is out of range.
void x05abfn(zeb::fchar result, const int* itime) {
  static constexpr std::string_view days = "SunMonTueWedThuFriSat";
  static constexpr std::string_view months = "JanFebMarAprMayJunJulAugSepOctNovDec";
  // The months' offsets: the days before the month in a common year, plus 6,
  // modulo 7 (so that 1 January 2000 is a Saturday).
  static constexpr int offset[12] = {6, 2, 2, 5, 0, 3, 5, 1, 4, 6, 2, 4};
  char text[30];
  long long day = 0;
  long long msec = 0;
  if (!x05adzn(itime, day, msec)) {
    zeb::write_lines("(A)", {"** Illegal date **"}, text, 30, 1);
  } else {
    const int y = itime[0];
    const int m = itime[1];
    const int d = itime[2];
    const bool leap = (y % 4 == 0 && y % 100 != 0) || y % 400 == 0;
    // The year's own count: each year moves a date by one weekday, each leap
    // year before it by one more; a leap year's own 29 February counts only
    // from March on.
    int k = (y + y / 4 - y / 100 + y / 400 - (leap ? 1 : 0)) % 7;
    if (k <= 0) k += 7;
    const int wd = (k + offset[m - 1] + (leap && m > 2 ? 1 : 0) + d) % 7;
    const int unit = d % 10;
    const char* suffix = "th";
    if (d / 10 != 1) {
      if (unit == 1) suffix = "st";
      if (unit == 2) suffix = "nd";
      if (unit == 3) suffix = "rd";
    }
    zeb::write_lines(
        "(A3,1X,I2.2,A2,1X,A3,1X,I4.4,1X,I2.2,':',I2.2,':',I2.2,'.',I3.3)",
        {days.substr(3 * static_cast<std::size_t>(wd), 3), d, suffix,
         months.substr(3 * static_cast<std::size_t>(m - 1), 3), y, itime[3],
         itime[4], itime[5], itime[6]},
        text, 30, 1);
  }
  if (result.n <= 0) return;
  const std::size_t n = static_cast<std::size_t>(result.n);
  const std::size_t copied = std::min<std::size_t>(n, 30);
  std::memcpy(result.p, text, copied);
  std::memset(result.p + copied, ' ', n - copied);
}
