// Thread helpers: the OpenMP runtime seen through the library's own names, so
// that bodies do not name the runtime; and the exact-real conversion of sizes.
#pragma once

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
