// Private pieces of the small kernels of chapter x: the compensated inner
// product of x03 and the date pieces of x05.
#pragma once

#include <string_view>

// The shared argument checks of x03aafn and x03abfn: the code of the first
// offence, with its record in ERRBUF, or 0.
int x03aaxn(int n, int isizea, int isizeb, int istepa, int istepb, char* errbuf);

// Adds the inner product of n elements a[0], a[inca], ... and b[0], b[incb],
// ... (negated if `negate`) to the double-double hi + lo, with every product
// and sum split exactly into its rounded value and its error, the errors
// summed apart: the result is as if computed in twice the working precision.
// On return hi is the rounded value of hi + lo. A non-finite sum comes back
// in hi with lo = 0.
void x03aayn(int n, const double* a, long inca, const double* b, long incb,
             bool negate, double& hi, double& lo);

// A field of digits as an integer: blanks count as zeros; a character that is
// neither a digit nor a blank makes the value 0.
int x05aazn(std::string_view digits);

// Reads a date text of the form x05abf writes, "Mon 01st Jan 2024
// 12:34:56.789", into year, month, day, hour, minute, second and millisecond.
// A text shorter than 30 characters counts as padded with blanks; an unknown
// month name gives month 0.
void x05aczn(std::string_view text, int* itime);

// Checks a date of seven integers (year 0 to 9999, month 1 to 12, day 1 to
// the month's length by the rules of 4, 100 and 400, hour 0 to 23, minute and
// second 0 to 59, millisecond 0 to 999). For a legal date returns true with
// its day number (days from 1 January of year 0) and the milliseconds since
// midnight.
bool x05adzn(const int* itime, long long& day, long long& msec);
