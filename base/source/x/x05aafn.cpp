#include <ctime>

#include "zeb_x_ib.h"

// The local date and time from the system clock.
void x05aafn(int* itime) {
  std::timespec now{};
  if (std::timespec_get(&now, TIME_UTC) == 0) now.tv_sec = std::time(nullptr);
  std::tm local{};
  localtime_r(&now.tv_sec, &local);
  itime[0] = local.tm_year + 1900;
  itime[1] = local.tm_mon + 1;
  itime[2] = local.tm_mday;
  itime[3] = local.tm_hour;
  itime[4] = local.tm_min;
  // A leap second is shown as the last second of its minute, so that the
  // date stays legal for x05abf and x05adf.
  itime[5] = local.tm_sec > 59 ? 59 : local.tm_sec;
  itime[6] = static_cast<int>(now.tv_nsec / 1000000);
}
