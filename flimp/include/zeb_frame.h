// The call frame shared by bodies and wrappers: the failure record ERRBUF,
// the types of Fortran arguments as bodies see them, and the helpers that
// generated wrappers call on the failure path.
#pragma once

#include <initializer_list>
#include <string_view>

#include "zeb_fmt.h"

namespace zeb {

// Length of a body's failure record.
inline constexpr int errbuf_len = 200;

// A writable Fortran CHARACTER argument: address and declared length.
struct fchar {
  char* p;
  int n;
};

// A read-only CHARACTER array: address of element 1 and length of one element.
struct fcharray {
  const char* p;
  int n;
};

// A body's entry step: the record starts empty.
inline void errbuf_clear(char* errbuf) { errbuf[0] = '\0'; }

// A body's exit step: ERRBUF(200:200) is NUL and the code goes to IFAIL.
inline void errbuf_close(char* errbuf, int code, int& ifail) {
  errbuf[errbuf_len - 1] = '\0';
  ifail = code;
}

// Writes one failure record into ERRBUF by an internal formatted write, for
// instance errbuf_record(errbuf, "(3(1X,I5),2(1X,1P,E12.4))",
//                        {1, 99998, 2, x, 170.0}).
// The record is blank-padded to 200 characters. A record that cannot be
// written (a fault of the caller's format) leaves ERRBUF holding only its head
// so the wrapper still reports the pair of code and number.
void errbuf_record(char* errbuf, std::string_view format,
                   std::initializer_list<fmt::Item> items);

// Formatted internal write of a list of items into `nrec` records of
// `reclen` characters; `*nused` gets the number of records written.
inline fmt::Status write_lines(std::string_view format,
                               std::initializer_list<fmt::Item> items,
                               char* buf, int reclen, int nrec,
                               int* nused = nullptr) {
  fmt::ListSource src(items.begin(), items.size());
  return fmt::write_internal(format, src, buf, reclen, nrec, nused);
}

// Makes a character argument safe as a text item of a record: blanks and
// separators become '_', an empty text "_", a long one "..." and its last 13
// characters, a text that would read as a number gets a trailing '_'.
// `dest` receives 16 characters, blank padded.
void p01abvn(char* dest, int destlen, std::string_view src);

}  // namespace zeb
