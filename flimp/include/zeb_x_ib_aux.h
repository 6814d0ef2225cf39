// Private auxiliaries of chapter x: constants and tools that have no public
// entry, the single-precision twins, and the platform pieces of unit I/O.
#pragma once

#include <string_view>

// Single-precision twins of the machine constants.
float x02ajen();
float x02aken();
float x02alen();
float x02amen();
float x02anen();
int x02bjen();
int x02bken();
int x02blen();

// The most negative argument of exp that does not underflow.
double x02aezn();
// The digit band that selects the stored series of the special functions.
int x02bezn();
// Whether a value is a NaN (a real compared with itself).
bool x02eazn(double x);
bool x02eayn(float x);
// Returns a + b; called in a loop it keeps the compiler from reassociating.
double x02zawn(double a, double b);

// Flushes unit `nout` through the Fortran runtime; a negative unit is ignored.
void x04aazn(int nout);
// Flushes each open unit from 6 to 20, in that order.
void x04aayn();

// The line writer's thunk: calls `writer` with the writer's own arguments.
using x04_writer = void (*)(int nout, std::string_view rec);
void x04bafnh(x04_writer writer, int nout, std::string_view rec);
// Writes `nrec` lines of length `reclen` from `rec` through a writer and its
// thunk.
void x04bayn(x04_writer writer, decltype(&x04bafnh) thunk, int nout, int nrec,
             const char* rec, int reclen);

// Unit I/O through the Fortran runtime (engine/BUILDSRC/zeb_units.f90), so that
// the library and a Fortran caller share units and their order of output.
extern "C" {
void zeb_unit_write(int unit, const char* text, int n);
void zeb_unit_flush(int unit);
int zeb_unit_isopen(int unit);
}
