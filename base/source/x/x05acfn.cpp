#include "zeb_x_ib.h"
#include "zeb_x_ib_helpers.h"

// Compares two date texts field by field, from the year down to the
// millisecond: -1 if the first is earlier, 1 if later, 0 if the same.
int x05acfn(std::string_view ctime1, std::string_view ctime2) {
  int t1[7];
  int t2[7];
  x05aczn(ctime1, t1);
  x05aczn(ctime2, t2);
  for (int i = 0; i < 7; ++i) {
    if (t1[i] < t2[i]) return -1;
    if (t1[i] > t2[i]) return 1;
  }
  return 0;
}
