// The call trace's loggers: what generated trace layers call when the trace
// switch is on. Every line goes to the error unit through the line writer:
// four blanks, then up to 96 characters. A scalar line has the name from
// column 5, a colon at column 50 and the value from column 55.
#pragma once

#include <complex>
#include <string_view>

#include "zeb_frame.h"

// One trace line: four blanks and `text`.
void y90ahft(std::string_view text);
// Opens (entry != 0: "Arguments on entry:") or closes a call's block.
void y90gazn(std::string_view trace_name, int entry);
// A line of 75 hyphens.
void y90gbzn();
// The extent-status line that follows an array's name when the extent of a
// dimension could not be told (status other than 0).
void y90agyn(int status);

// Scalar loggers: the name, the value, and whether an address line follows.
void y90adft(std::string_view name, long long value, int addr);
void y90aeft(std::string_view name, int value, int addr);
void y90agft(std::string_view name, double value, int addr);
void y90afet(std::string_view name, float value, int addr);
void y90acft(std::string_view name, std::complex<double> value, int addr);
void y90abet(std::string_view name, std::complex<float> value, int addr);
// Character values stand between double quotes from column 56; with
// `nulend` set a NUL ends the text.
void y90aaft(std::string_view name, std::string_view value, int nulend, int addr);

// Array loggers of rank 1, 2 and 3: the array, then for each dimension its
// extent and extent status, then the trace mode (1 elides, 2 prints all).
// For rank 2 and 3 the first extent is also the leading dimension.
void y90bdzn(std::string_view name, const int* a, int n1, int s1, int mode);
void y90bgzn(std::string_view name, const double* a, int n1, int s1, int mode);
void y90bczn(std::string_view name, const std::complex<double>* a, int n1, int s1, int mode);
void y90bezn(std::string_view name, const int* a, int n1, int s1, int mode);
void y90bazn(std::string_view name, zeb::fcharray a, int n1, int s1, int mode);
void y90bfzm(std::string_view name, const float* a, int n1, int s1, int mode);
void y90bbzm(std::string_view name, const std::complex<float>* a, int n1, int s1, int mode);
void y90cdzn(std::string_view name, const int* a, int n1, int s1, int n2, int s2, int mode);
void y90cgzn(std::string_view name, const double* a, int n1, int s1, int n2, int s2, int mode);
void y90cczn(std::string_view name, const std::complex<double>* a, int n1, int s1, int n2, int s2, int mode);
void y90cezn(std::string_view name, const int* a, int n1, int s1, int n2, int s2, int mode);
void y90cazn(std::string_view name, zeb::fcharray a, int n1, int s1, int n2, int s2, int mode);
void y90cfzm(std::string_view name, const float* a, int n1, int s1, int n2, int s2, int mode);
void y90cbzm(std::string_view name, const std::complex<float>* a, int n1, int s1, int n2, int s2, int mode);
void y90ddzn(std::string_view name, const int* a, int n1, int s1, int n2, int s2, int n3, int s3, int mode);
void y90dgzn(std::string_view name, const double* a, int n1, int s1, int n2, int s2, int n3, int s3, int mode);
void y90dczn(std::string_view name, const std::complex<double>* a, int n1, int s1, int n2, int s2, int n3, int s3, int mode);
void y90dezn(std::string_view name, const int* a, int n1, int s1, int n2, int s2, int n3, int s3, int mode);
void y90dazn(std::string_view name, zeb::fcharray a, int n1, int s1, int n2, int s2, int n3, int s3, int mode);
void y90dfzm(std::string_view name, const float* a, int n1, int s1, int n2, int s2, int n3, int s3, int mode);
void y90dbzm(std::string_view name, const std::complex<float>* a, int n1, int s1, int n2, int s2, int n3, int s3, int mode);

// Extent expressions of the declarations: max and min over integers.
inline long long y90_max(long long a, long long b) { return a > b ? a : b; }
inline long long y90_min(long long a, long long b) { return a < b ? a : b; }

// The extent of a leading dimension as the trace takes it: at least 1.
inline int y90_leading(long long ld) { return ld < 1 ? 1 : static_cast<int>(ld); }
