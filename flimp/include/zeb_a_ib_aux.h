// Private pieces of chapter a: the implementation banner of the library and
// of its lower layer, and the facts of the build that they print.
#pragma once

// Length of a banner line.
inline constexpr int a00_line_len = 132;
// The most lines a banner has.
inline constexpr int a00_max_lines = 20;

// What the build system knew when the library was built: each a
// NUL-terminated text, possibly empty.
struct a00_build_facts {
  const char* version;     // the library's version, the banner's mark
  const char* date;        // the day of the build, yyyy-mm-dd (UTC)
  const char* cxx;         // C++ compiler and version: "GNU C++ 12.2.0"
  const char* fortran;     // Fortran compiler and version
  const char* flags;       // C++ flags of the build type
  const char* build_type;  // Release, Debug, ...
  const char* system;      // target system name
  const char* system_version;  // and its version
  const char* processor;   // target processor family
  const char* cpu;         // the building machine's processor
};
const a00_build_facts& a00abyn();

// A banner line under construction: text appended and cut at a00_line_len
// characters, then written into its place by the format "(A)".
struct a00_line {
  char text[a00_line_len];
  int n = 0;
  a00_line& operator<<(const char* s);
  void put(char* lines, int k) const;
};

// Fills `lines` (at most `maxlines` lines of a00_line_len characters, blank
// padded) with the library's banner, from " *** Start of ZEB Library
// implementation details ***" to its closing line. Returns the line count.
int a00aazu(char* lines, int maxlines);

// The same for the lower layer: " *** Start of ZEB Engine implementation
// details ***" with precision, build day, hardware, system, compiler and its
// flags.
int a00abzn(char* lines, int maxlines);
