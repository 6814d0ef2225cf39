#include <ctime>

#include "zeb_x_ib.h"

// Processor time of the whole process (all threads) since it started.
double x05bafn() {
  timespec t{};
  if (clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t) == 0) {
    return static_cast<double>(t.tv_sec) + 1.0e-9 * static_cast<double>(t.tv_nsec);
  }
  return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}
