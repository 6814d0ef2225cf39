// Private pieces of the format engine shared by its parser, writer and
// reader: the compiled form of a format, the cursor that walks it with the
// runtime's repeat and reversion rules, and the decimal conversions.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "zeb_fmt.h"

namespace zeb::fmt::detail {

// Bounds that keep hostile formats from allocating or looping wildly.
inline constexpr int kMaxCount = 1000000;     // widths, digits, counts, tabs
inline constexpr int kMaxDepth = 64;          // nesting of parentheses
inline constexpr int kUnlimited = 0x7fffffff; // the repeat count of "*("
// Control steps allowed between two data items before the format is judged
// to run away (a huge nest of repeated groups without data descriptors).
inline constexpr std::int64_t kMaxIdleSteps = 1 << 26;

enum class Op : unsigned char {
  Open,   // '(' of a group: rep, and the index of its ')' in `close`
  Close,  // ')' of a group: the index of its '(' in `open`
  I, F, E, EN, ES, D, G, A, L,  // data edit descriptors
  X, T, TL, TR,                 // positioning: n
  Slash,                        // '/'
  Colon,                        // ':'
  P,                            // scale factor: n = k
  Lit,                          // quoted literal or Hollerith text
  BN, BZ, SP, SS, S,            // blank and sign modes
  Dollar                        // '$': accepted, no effect on internal files
};

inline bool is_data(Op op) { return op >= Op::I && op <= Op::L; }

struct Tok {
  Op op = Op::Lit;
  int rep = 1;     // repeat count of a data descriptor, '/' or group
  int w = -1;      // width (-1: not given)
  int d = -1;      // digits after the point, or minimum digits of I (-1: none)
  int e = -1;      // exponent digits (-1: not given)
  int n = 0;       // positions, scale factor, or the matching bracket index
  std::uint32_t lit = 0;     // offset of literal text in Program::text
  std::uint32_t litlen = 0;  // its length
};

struct Program {
  std::vector<Tok> toks;   // outer parentheses excluded
  std::string text;        // the literals' characters, back to back
  int revert = 0;          // token index where reversion resumes
  bool has_colon = false;  // any ':'
  bool revert_has_data = false;  // any data descriptor from `revert` on
};

// Compiles `format`; Ok or BadFormat.
Status compile(std::string_view format, Program& prog);

// Walks a compiled format. `step` yields the next descriptor to act on
// (data, control or literal), unrolling repeat counts and groups; it yields
// nullptr at the final right parenthesis. `revert` restarts the walk at the
// reversion point.
class Cursor {
 public:
  explicit Cursor(const Program& p) : p_(&p) {}
  const Tok* step();
  void revert();
  // Restarts the walk at the first item of the format.
  void restart();
  // A step found only control items for too long: the format runs away.
  bool runaway() const { return runaway_; }
  // Called when a data item is transferred, which ends an idle stretch.
  void reset_idle() { idle_ = 0; }
  // Need of the data descriptor the format would reach next, reverting at
  // its end as the runtime would when items remain; false if there is none.
  bool peek_need(Need& need) const;

 private:
  struct Frame {
    int open;
    int left;
  };
  const Program* p_;
  int pc_ = 0;
  int rep_done_ = 0;
  std::int64_t idle_ = 0;
  bool runaway_ = false;
  std::vector<Frame> stack_;
};

Need need_of(Op op);

// What the end of the format brings when items remain.
enum class AtEnd {
  Revert,   // a new record, and the format reverts
  Restart,  // once more from the start of the format, same record
  Again,    // once more from the reversion point, same record
  Fail      // the format has no data descriptor for the items
};

// Follows the passes through a format as the runtime does. After a pass
// that transferred an item the format reverts. A first pass without any is
// run once more from the start in the same record (a format with a colon
// fails at once); on input a later pass without any is also run once more,
// from the reversion point; then the format fails.
class Passes {
 public:
  explicit Passes(bool reading) : reading_(reading) {}
  void took_item() { took_ = ever_ = true; }
  AtEnd at_end(bool has_colon) {
    if (took_) {
      took_ = false;
      return AtEnd::Revert;
    }
    if (again_) return AtEnd::Fail;
    again_ = true;
    if (!ever_) return has_colon ? AtEnd::Fail : AtEnd::Restart;
    return reading_ ? AtEnd::Again : AtEnd::Fail;
  }

 private:
  bool reading_;
  bool took_ = false;
  bool ever_ = false;
  bool again_ = false;
};

// ---------------------------------------------------------------------------
// Decimal conversion.

// Significant decimal digits of |x| with a decimal exponent: the value is
// 0.d1 d2 d3 ... times 10**exp. Zero has no digits.
struct Decimal {
  std::string digits;
  int exp = 0;
};

// |x| rounded to `nsig` significant digits (nsig >= 1), correctly rounded
// from the exact binary value, ties to even. The result has exactly `nsig`
// digits (zeros appended) and its exponent may exceed that of |x| by one
// when the rounding carries into a new leading digit. x must be finite and
// nonzero.
Decimal round_significant(double x, int nsig);

// |x| * 10**shift rounded to `ndec` digits after the point (ties to even).
// Returns the digits of the integer part followed by `ndec` fraction digits,
// the integer part without leading zeros (empty when it is zero).
void round_fixed(double x, int shift, int ndec, std::string& int_part,
                 std::string& frac_part);

// Decimal exponent of the exact value of |x|: 10**(e-1) <= |x| < 10**e.
int exact_exponent(double x);

// 10**n correctly rounded to a double (an infinity or zero out of range).
double pow10(int n);

// Correctly rounded double from decimal digits times 10**exp10 (digits may be
// empty, meaning zero).
double decimal_to_double(std::string_view digits, long exp10, bool negative);

}  // namespace zeb::fmt::detail
