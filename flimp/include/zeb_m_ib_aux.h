// Private pieces of chapter m01: the sort kernels that other chapters call,
// the merge and parallel-region pieces of the sorts, and the argument checks
// that the m01 bodies share. Positions are 1-based, as the caller's.
#pragma once

#include <string_view>

// ---------------------------------------------------------------------------
// Sort kernels: Singleton's quicksort of rv(m1:m2) in place, in one thread.
// `order` is 'A' or 'a' (ascending) or 'D' or 'd' (descending); the caller has
// checked it and 1 <= m1 <= m2. Equal elements end in no particular order.
// An incomparable value (NaN) cannot make the kernel leave the range, but
// where NaNs end up is not defined; m01cafn moves them out of the way first.
void m01cazn(double* rv, int m1, int m2, char order);
void m01cbzn(int* iv, int m1, int m2, char order);
// Strings of `len` characters (at most 255) compared on the columns l1..l2
// (1 <= l1 <= l2 <= len) as unsigned bytes; strings equal there are ordered by
// their whole text, so the result is one arrangement whatever the algorithm.
void m01cczn(char* ch, int len, int m1, int m2, int l1, int l2, char order);

// Stable merge of the ascending blocks (lo:mid-1) and (mid:hi), through
// `scratch`, which is indexed as the array (positions lo..mid-1 are used).
void m01caxn(double* rv, int lo, int mid, int hi, double* scratch);
void m01cbxn(int* iv, int lo, int mid, int hi, int* scratch);
void m01ccxn(char* ch, int len, int lo, int mid, int hi, int l1, int l2, char* scratch);

// The parallel sorts: inside one parallel region each thread sorts its block
// of (m1:ms) ascending, pairs of blocks are merged in rounds, and for a
// descending order the whole range (m1:m2) is reversed. `scratch` holds at
// least m2 elements. The result is the same for any number of threads.
// m01cayn also orders the signs of zeros in (m1:ms), between the merges and
// the reversal (see m01catn); (ms+1:m2) holds the NaNs, left as they are.
void m01cayn(double* rv, int m1, int ms, int m2, bool descending, double* scratch);
void m01cbyn(int* iv, int m1, int m2, bool descending, int* scratch);
void m01ccyn(char* ch, int len, int m1, int m2, int l1, int l2, bool descending,
             char* scratch);

// Moves the NaNs of rv(m1:m2) to the end of the range; returns the position
// of the last other element (m1-1 when all are NaN).
int m01caun(double* rv, int m1, int m2);
// In the ascending rv(m1:m2) (no NaN), puts every -0.0 before every +0.0, so
// that a sorted array has one bit pattern whatever the algorithm.
void m01catn(double* rv, int m1, int m2);

// ---------------------------------------------------------------------------
// Argument checks of the m01 bodies. Each returns 0 or its failure code, and
// on a failure writes the record into ERRBUF.

// M2 >= 1 (99999), M1 >= 1 (99998), M1 <= M2 (99997): code 1.
int m01cawn(int m1, int m2, char* errbuf);
// ORDER is one of 'A', 'a', 'D', 'd' (99996): failure `code`. `descending`
// receives the direction on success.
int m01cavn(std::string_view order, int code, bool& descending, char* errbuf);
// L1 >= 1 (99995), L2 >= 1 (99994), L1 <= L2 (99993), L2 <= len (99992):
// code 2.
int m01ccwn(int l1, int l2, int len, char* errbuf);
// N1 >= 1 (99995), N2 >= 1 (99994), N1 <= N2 (99993), M2 <= LDM (99992):
// code 1.
int m01dewn(int ldm, int m2, int n1, int n2, char* errbuf);

// Checks that p(m1:m2) is a permutation of m1..m2. On success every entry is
// left negated, the mark that the cycle walks of m01e and m01z expect, and 0
// is returned. Otherwise the array is as it came, and the result is 2 with
// the first position holding an out-of-range value (`pos`, `value`), or 3
// with a value that occurs twice (`value`).
int m01zazn(int* p, int m1, int m2, int& pos, int& value);
// Writes the record of a failure of m01zazn: code 2 (99996, four items: the
// position, its value, M1, M2) or code 3 (99995, the repeated value).
void m01zayn(int code, int pos, int value, int m1, int m2, char* errbuf);

// The first position k in m1..m2-1 whose element is greater than element k+1,
// or 0 if the range is in ascending order.
int m01nayn(const double* rv, int m1, int m2);
int m01nbyn(const int* iv, int m1, int m2);
int m01ncyn(const char* ch, int len, int m1, int m2);
