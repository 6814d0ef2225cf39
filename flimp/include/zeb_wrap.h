// What generated wrappers and trace layers need of the frame, and nothing more:
// the export mark, the message table type, the failure path and the trace
// switch. Kept small: every generated file includes it.
#pragma once

#include <string_view>

#include "zeb_frame.h"
#include "zeb_p_ib.h"

#define ZEB_EXPORT __attribute__((visibility("default")))

namespace zeb {

// One row of a wrapper's failure table: the pair of failure code and message
// number that a body's record names, and the Fortran format of the message.
struct Message {
  int code;
  int number;
  const char* format;
};

// Length of a message line.
inline constexpr int line_len = 80;

// The line array handed to the exit when there are no message lines.
inline constexpr fcharray no_lines{nullptr, line_len};

}  // namespace zeb

// Steps 2 and 3 of a wrapper on a non-zero code: decode the record in
// ERRBUF, select the message by the pair of code and message number, and
// write its lines (at most `maxlines` lines of zeb::line_len characters) into
// `lines`. An unknown pair gives the "Unexpected error" line, the code -999
// the allocation line. Returns the number of lines.
int p01abmu(int code, const char* errbuf, const zeb::Message* table,
            int ntable, int maxitems, char* lines, int maxlines);

// The trace switch: flag 0 reads it into `value`, any other flag sets it.
void y90gczn(int flag, int& value);
