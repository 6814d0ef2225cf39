// Thread helpers: the OpenMP runtime seen through the library's own names, so
// that bodies do not name the runtime; the exact-real conversion of sizes; the
// sign transfer; and the address texts of the call trace.
#pragma once

#include <complex>
#include <string_view>

// Sets the number of threads of later parallel regions.
void w01aatn(int n);
// This thread's number in its team, from 0.
int w01aaun();
// Whether a parallel region is active.
bool w01aavn();
// This thread's number, into an argument.
void w01aaxn(int& t);
// The number of threads in the current team, into an argument.
void w01aayn(int& n);
// The number of threads a parallel region would have.
int w01aazn();
// Block partition of the items 1..n over p threads: the first and last items
// of thread t (a negative t asks for the calling thread's number). The first
// n mod p threads take one item more than the others.
void w01aawn(int p, int t, int n, int& first, int& last);

// An integer as an exact real for workspace sizes returned in real arrays:
// stepped up to the next value that converts exactly; -1.0 if out of range.
double w02aazn(long long i);

// Sign transfer without abs: a if b >= 0, otherwise -a (a NaN b counts as
// negative). Double and single precision.
double w00aazn(double a, double b);
float w00aazm(float a, float b);

// The w04f family: a text that tells where a value lies, written by the
// format "(A)" into text(1:len), for the call trace's address lines. This
// build has no way of telling addresses, so the text is always
// "(No ISO_C_BINDING; no addresses)", cut to `len` if the text is shorter.
// One piece per type: character, single complex, complex, integer, logical,
// single real, real.
void w04fazn(std::string_view value, char* text, int len);
void w04fbzm(const std::complex<float>& value, char* text, int len);
void w04fczn(const std::complex<double>& value, char* text, int len);
void w04fdzn(const int& value, char* text, int len);
void w04fezn(const int& value, char* text, int len);
void w04ffzm(const float& value, char* text, int len);
void w04fgzn(const double& value, char* text, int len);
// What the family writes: the address text of this build, into text(1:len).
void w04fayn(char* text, int len);
