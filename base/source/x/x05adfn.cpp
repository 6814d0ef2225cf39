#include "zeb_x_ib.h"
#include "zeb_x_ib_helpers.h"

// The time from the date ITIMEF to the date ITIMES as whole days and the
// seconds that remain; both negative when ITIMES is the earlier.
void x05adfn(const int* itimef, const int* itimes, double& days, double& secs,
             char* errbuf, int& ifail) {
  zeb::errbuf_clear(errbuf);
  days = 0.0;
  secs = 0.0;
  long long day1 = 0;
  long long msec1 = 0;
  long long day2 = 0;
  long long msec2 = 0;
  if (!x05adzn(itimef, day1, msec1)) {
    zeb::errbuf_record(errbuf, "(3(1X,I5))", {1, 99999, 0});
    zeb::errbuf_close(errbuf, 1, ifail);
    return;
  }
  if (!x05adzn(itimes, day2, msec2)) {
    zeb::errbuf_record(errbuf, "(3(1X,I5))", {2, 99998, 0});
    zeb::errbuf_close(errbuf, 2, ifail);
    return;
  }
  constexpr long long msec_per_day = 86400000;
  const long long diff = (day2 - day1) * msec_per_day + (msec2 - msec1);
  // Division truncates: days and the remaining seconds share the sign.
  days = static_cast<double>(diff / msec_per_day);
  secs = static_cast<double>(diff % msec_per_day) / 1000.0;
  zeb::errbuf_close(errbuf, 0, ifail);
}
