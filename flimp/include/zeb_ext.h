// Arithmetic in the x87 extended format for the kernels of chapter s that
// carry a value a few bits beyond double: long double on x86-64 Linux, a
// 64-bit significand and a 15-bit exponent. Its + - * / round correctly to
// 64 bits on every x86-64 processor, so a few dozen roundings stay below a
// tenth of the ulp of the double result, no intermediate of these kernels
// leaves its range, and the one conversion to double at the end rounds the
// value once, subnormal or not.
//
// The x87 unit rounds to 64 bits only while its precision control says so,
// which is the state every Linux process starts in and the one the C
// library's own long double functions need; a caller may have narrowed it,
// so each kernel holds a Precision for the span of its work.
#pragma once

#include <fpu_control.h>

#include <cstddef>

namespace zeb::ext {

using ld = long double;

// Sets the x87 precision control to the 64-bit significand for the life of
// the object if a caller left it narrower, and puts the caller's back. The
// values given to the constructor pass through an empty asm after the switch,
// so that the computations on them cannot be scheduled before it; release()
// passes the results through one before the switch back. Where the control is
// already at 64 bits, which is the rule, all this costs one fnstcw.
class Precision {
 public:
  template <class... T>
  explicit Precision(T&... v) {
    _FPU_GETCW(saved_);
    if ((saved_ & _FPU_EXTENDED) != _FPU_EXTENDED) [[unlikely]] {
      fpu_control_t cw = saved_ | _FPU_EXTENDED;
      _FPU_SETCW(cw);
      (launder(v), ...);
      changed_ = true;
    }
  }
  Precision(const Precision&) = delete;
  Precision& operator=(const Precision&) = delete;
  ~Precision() { restore(); }

  // The caller's precision control back, once the results v are formed.
  template <class... T>
  void release(T&... v) {
    if (changed_) [[unlikely]] {
      (launder(v), ...);
      restore();
    }
  }

 private:
  static void launder(double& v) { __asm__ volatile("" : "+x"(v)); }
  void restore() {
    if (changed_) {
      _FPU_SETCW(saved_);
      changed_ = false;
    }
  }

  fpu_control_t saved_ = 0;
  bool changed_ = false;
};

// A table of pairs hi + lo of doubles as extended constants, each rounded
// once to 64 bits, formed at compile time.
template <std::size_t N>
struct Pairs {
  ld c[N];
  constexpr explicit Pairs(const double (&p)[N][2]) : c{} {
    for (std::size_t i = 0; i < N; ++i) c[i] = static_cast<ld>(p[i][0]) + p[i][1];
  }
};

// The polynomial c[0] t^(N-1) + ... + c[N-1] (a table from the highest
// power, of doubles or extended constants) at t by K Horner chains in t^K,
// chain m over the powers m, m + K, m + 2K, ..., joined by Horner's rule in t
// at the end: a K-th of the dependent steps of one chain.
template <std::size_t K, class T, std::size_t N>
inline ld horner(const T (&c)[N], ld t) {
  static_assert(K >= 1 && N >= K);
  ld tk = t;
  for (std::size_t i = 1; i < K; ++i) tk *= t;
  ld s[K];
  for (std::size_t m = 0; m < K; ++m) {
    std::size_t i = (N - 1 - m) % K;  // c[i] multiplies t^(N-1-i)
    ld v = c[i];
    for (i += K; i < N; i += K) v = v * tk + c[i];
    s[m] = v;
  }
  ld v = s[K - 1];
  for (std::size_t m = K - 1; m-- > 0;) v = v * t + s[m];
  return v;
}

template <std::size_t K, std::size_t N>
inline ld horner(const Pairs<N>& c, ld t) {
  return horner<K>(c.c, t);
}

}  // namespace zeb::ext
