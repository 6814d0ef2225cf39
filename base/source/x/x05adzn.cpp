#include "zeb_x_ib_helpers.h"

bool x05adzn(const int* itime, long long& day, long long& msec) {
  static constexpr int length[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  static constexpr int before[12] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
  const int year = itime[0];
  const int month = itime[1];
  const int mday = itime[2];
  if (year < 0 || year > 9999 || month < 1 || month > 12) return false;
  const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
  const int mlen = length[month - 1] + (month == 2 && leap ? 1 : 0);
  if (mday < 1 || mday > mlen) return false;
  if (itime[3] < 0 || itime[3] > 23 || itime[4] < 0 || itime[4] > 59 ||
      itime[5] < 0 || itime[5] > 59 || itime[6] < 0 || itime[6] > 999) {
    return false;
  }
  // Leap years among 0 .. year-1: every fourth, less the centuries, plus every
  // fourth century (year 0 is one).
  const long long y = year;
  const long long leaps = (y + 3) / 4 - (y + 99) / 100 + (y + 399) / 400;
  day = 365 * y + leaps + before[month - 1] + (month > 2 && leap ? 1 : 0) + mday - 1;
  msec = ((itime[3] * 60LL + itime[4]) * 60 + itime[5]) * 1000 + itime[6];
  return true;
}
