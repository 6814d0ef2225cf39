// The frame's decoding of failure records, and the scanners it shares with the
// option engines.
#pragma once

#include <string_view>

// Ends the program as a plain stop: exit status 0, nothing printed.
[[noreturn]] void p01abzn();

// Decodes a failure record: the failure code, the message number, and up to
// `maxitems` items, each either a text (cut or blank-padded to `textlen`
// characters, stored one after another in `texts`) or a real (in `reals`).
// Returns false if the head of the record cannot be read; `code` and `number`
// then hold what was read before the fault.
bool p01abhu(const char* errbuf, int& code, int& number, int maxitems,
             int& ntext, int& nreal, char* texts, int textlen, double* reals);

// Reads a real printed by an I, F, E or 1P,E edit descriptor, without the
// runtime's conversion: an item printed from an extreme value must read back.
// Status 0, or -102 when the value overflows (then +-x02alf is returned).
void p01abgu(std::string_view token, double& value, int& status);

// The word scanner: from position `from` (0-based) skips the delimiters
// (blank, comma, colon, equals sign, tab) and marks the next word as
// [first, last). Returns false, with first = last = 0, when none remains.
bool e04nsvn(std::string_view s, std::size_t from, std::size_t& first,
             std::size_t& last);

// Splits `s` into at most `nwant` words, copied into slots of `wordlen`
// characters (cut or blank-padded; upper-cased if asked); slots beyond the
// words found are blanked. Returns the number of words.
int e04nswn(std::string_view s, int nwant, char* words, int wordlen,
            bool upcase);

// Classifies a text as a number: exactly one of the three flags is set for a
// number; all are 0 for plain text; status -4 for text that is partly numeric.
void e05jhsn(std::string_view text, int& isint, int& isreal, int& isexp,
             int& status);
