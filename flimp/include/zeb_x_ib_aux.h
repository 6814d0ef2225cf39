// Private auxiliaries of chapter x: constants and tools that have no public
// entry, the single-precision twins, and the platform pieces of unit I/O.
#pragma once

#include <complex>
#include <string_view>

#include "zeb_frame.h"

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

// File I/O through the Fortran runtime (engine/BUILDSRC/zeb_files.f90).
// Each returns 0 on success, 1 at end of file (reads), 2 on any other failure
// of the runtime; none stops the program.
extern "C" {
// One record by the format "(A)" into text(1:n), blank padded; the text is
// unchanged unless the read succeeds. A unit not connected is a failure.
int zeb_unit_read(int unit, char* text, int n);
// Formatted sequential file: mode 0 an existing file for reading, 1 for
// writing from its start, 2 for appending.
int zeb_file_open(int unit, const char* name, int nlen, int mode);
int zeb_file_close(int unit);
// Unformatted direct-access file with records of `recl` bytes: mode 0 an
// existing file for reading, 1 for writing.
int zeb_file_open_direct(int unit, const char* name, int nlen, int mode, int recl);
int zeb_direct_write(int unit, int rec, const void* bytes, int n);
int zeb_direct_read(int unit, int rec, void* bytes, int n);
}

// Unformatted direct-access files for the chapters that keep data on file.
// x04acxn opens `file` (trailing blanks ignored) on unit `iounit` with records
// of `recl` bytes: mode 0 reads an existing file, mode 1 writes (the file is
// created if it does not exist). Returns 0 on success, 1 for a mode other
// than 0 or 1 or a record length below 1, 2 when the file cannot be opened.
int x04acxn(int iounit, std::string_view file, int mode, int recl);
// Writes `nbytes` bytes (at most the record length) as record `rec`, counted
// from 1. Returns 0, or 2 on failure.
int x04acwn(int iounit, int rec, const void* data, int nbytes);
// Reads `nbytes` bytes of record `rec`. Returns 0, or 2 on failure (a record
// beyond the end of the file included; one inside it that was never written
// reads as the runtime leaves it, zeros on this platform).
int x04acvn(int iounit, int rec, void* data, int nbytes);

// The matrix printers' shared pieces. A printer's body checks its own
// arguments, describes its matrix in an x04_matrix and hands it to x04cbzn,
// which chooses the format, lays out labels and strips of columns and writes
// every line through the writer and its thunk.
struct x04_matrix {
  char type = 'R';   // 'R' real, 'Z' complex, 'I' integer entries
  char store = 'F';  // 'F' column-major with leading dimension lda;
                     // 'P' a triangle packed column by column;
                     // 'B' band: entry (i,j) in row ku+1+i-j of column j
  char uplo = 'G';   // 'G' the whole rectangle, 'U' upper, 'L' lower triangle
  char diag = 'N';   // of a triangle: 'N' stored, 'U' unit (not stored,
                     // printed as one), 'B' not printed
  int m = 0;         // rows (a packed triangle has n)
  int n = 0;         // columns
  int kl = 0;        // band: subdiagonals
  int ku = 0;        // band: superdiagonals
  int lda = 1;
  const double* r = nullptr;
  const std::complex<double>* z = nullptr;
  const int* i = nullptr;
};

// One entry as it is printed. `state`: 0 outside the stored part (blank),
// 1 a stored value, 2 a diagonal that is not printed (blank), 3 the unit
// diagonal (one).
struct x04_entry {
  int state = 0;
  double re = 0.0;
  double im = 0.0;
  int iv = 0;
};

// Entry (i,j), counted from 1, of a matrix.
x04_entry x04cbwn(const x04_matrix& a, int i, int j);

// The automatic format: by the largest and smallest nonzero magnitude of the
// stored entries, "F8.4", "F11.4" or "1PE13.4"; for integers "I<w>" with w
// one more than the widest entry or `minw`. Writes into `form` (16 chars)
// and returns its length.
int x04cbyn(const x04_matrix& a, int minw, char* form);

// The format that shows all significant digits of a real: "1P,E<w>.<d>"
// from the machine constants. Writes into `form` (16 chars), returns its
// length.
int x04cbvn(char* form);

// Width of a column of `form`: internal writes of one zero and of two by
// "(999(:," + form + "))", the difference of their lengths. Returns 0 when
// the engine cannot use the format for one record per entry.
int x04cbxn(std::string_view form, bool integer);

// Checks shared by the printers of a matrix in full storage (x04cbf, x04dbf,
// x04ebf), in the order of their failure table: MATRIX, LABROW and LABCOL,
// USEFRM where `usefrm` is not null, M <= LDA, DIAG. Fills `a.uplo` and
// `a.diag`; on an offence writes the record and returns its code.
int x04cbtn(std::string_view matrix, std::string_view diag, int m, int lda,
            std::string_view labrow, std::string_view labcol,
            const std::string_view* usefrm, x04_matrix& a, char* errbuf);

// The same for a packed triangle (x04cdf, x04ddf): UPLO, LABROW and LABCOL,
// USEFRM where not null, DIAG.
int x04cdzn(std::string_view uplo, std::string_view diag,
            std::string_view labrow, std::string_view labcol,
            const std::string_view* usefrm, x04_matrix& a, char* errbuf);

// The same for a band matrix (x04cff, x04dff): KL, KU, LABROW and LABCOL,
// USEFRM where not null, LDA >= KL+KU+1.
int x04cfzn(int kl, int ku, int lda, std::string_view labrow,
            std::string_view labcol, const std::string_view* usefrm,
            char* errbuf);

// Writes a record with one or two character items, each cut to its first
// character and made safe by p01abvn.
void x04cbun(char* errbuf, int code, int number, std::string_view c1,
             const std::string_view* c2);

// First character of a character argument in upper case; blank if empty.
inline char x04_upper1(std::string_view s) {
  if (s.empty()) return ' ';
  const char c = s[0];
  return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
}

// Prints a matrix: title, column headings, row labels and strips of
// columns, through `writer` and `thunk` to unit `nout`. `labrow` and
// `labcol` are 'I', 'C' or 'N', `usefrm` 'A', 'B' or 'D' (complex only).
// Returns 0, or writes the record and returns 4 for a format the engine
// does not accept and 5 when no column fits between INDENT and NCOLS.
int x04cbzn(const x04_matrix& a, std::string_view form, char usefrm,
            std::string_view title, char labrow, zeb::fcharray rlabs,
            char labcol, zeb::fcharray clabs, int ncols, int indent, int nout,
            x04_writer writer, decltype(&x04bafnh) thunk, char* errbuf);
