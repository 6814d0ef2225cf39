#include <algorithm>
#include <cstring>

#include "zeb_frame.h"
#include "zeb_w_ib_aux.h"

// This build is made without a way of telling addresses to the caller's
// language, so every address text says so.
void w04fayn(char* text, int len) {
  static constexpr std::string_view none = "(No ISO_C_BINDING; no addresses)";
  if (text == nullptr || len <= 0) return;
  if (len >= static_cast<int>(none.size())) {
    zeb::write_lines("(A)", {none}, text, len, 1);
  } else {
    // A record too short for the text: a Fortran write would fail; the
    // caller gets as much of the text as fits instead.
    std::memcpy(text, none.data(), static_cast<std::size_t>(len));
  }
}
