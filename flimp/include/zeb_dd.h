// Double-double arithmetic for the kernels of chapter s that must cancel
// large terms without losing the last bits: a value is the unevaluated sum
// hi + lo with |lo| <= ulp(hi)/2.
//
// Products use Dekker's splitting, so the results are the same on every
// x86-64 processor whether or not it has a fused multiply-add (the library is
// built with -ffp-contract=off). Splitting needs |a| below 2^996; callers keep
// their operands in range by scaling.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>

namespace zeb::dd {

struct dd {
  double hi = 0.0;
  double lo = 0.0;
};

// a + b exactly, for any a and b.
inline dd two_sum(double a, double b) {
  const double s = a + b;
  const double bb = s - a;
  const double e = (a - (s - bb)) + (b - bb);
  return {s, e};
}

// a + b exactly, when |a| >= |b| or a is zero.
inline dd fast_two_sum(double a, double b) {
  const double s = a + b;
  return {s, b - (s - a)};
}

// Dekker's split of a into two halves of 26 significant bits.
inline void split(double a, double& h, double& l) {
  const double c = 134217729.0 * a;  // 2^27 + 1
  h = c - (c - a);
  l = a - h;
}

// a * b exactly.
inline dd two_prod(double a, double b) {
  const double p = a * b;
  double ah, al, bh, bl;
  split(a, ah, al);
  split(b, bh, bl);
  const double e = ((ah * bh - p) + ah * bl + al * bh) + al * bl;
  return {p, e};
}

inline dd add(dd a, dd b) {
  dd s = two_sum(a.hi, b.hi);
  const dd t = two_sum(a.lo, b.lo);
  s.lo += t.hi;
  s = fast_two_sum(s.hi, s.lo);
  s.lo += t.lo;
  return fast_two_sum(s.hi, s.lo);
}

inline dd add(dd a, double b) {
  dd s = two_sum(a.hi, b);
  s.lo += a.lo;
  return fast_two_sum(s.hi, s.lo);
}

inline dd neg(dd a) { return {-a.hi, -a.lo}; }

inline dd sub(dd a, dd b) { return add(a, neg(b)); }

inline dd mul(dd a, dd b) {
  dd p = two_prod(a.hi, b.hi);
  p.lo += a.hi * b.lo + a.lo * b.hi;
  return fast_two_sum(p.hi, p.lo);
}

inline dd mul(dd a, double b) {
  dd p = two_prod(a.hi, b);
  p.lo += a.lo * b;
  return fast_two_sum(p.hi, p.lo);
}

// 1/a to about 100 bits.
inline dd recip(dd a) {
  const double q = 1.0 / a.hi;
  const dd p = two_prod(q, a.hi);
  const double r = ((1.0 - p.hi) - p.lo) - q * a.lo;
  return fast_two_sum(q, q * r);
}

// a / b to about 100 bits.
inline dd div(dd a, dd b) {
  const double q = a.hi / b.hi;
  const dd p = two_prod(q, b.hi);
  const double r = (((a.hi - p.hi) - p.lo) + a.lo - q * b.lo) / b.hi;
  return fast_two_sum(q, r);
}

inline dd div(dd a, double b) { return div(a, dd{b, 0.0}); }

// ln 2 split so that k * ln2_hi is exact for |k| < 2^11.
inline constexpr double ln2_hi = 0x1.62e42fefa3800p-1;
inline constexpr double ln2_lo = 0x1.ef35793c76730p-45;

// ln(a) for a finite positive double-double, with a relative error below
// 2^-64: a = f 2^e with f in [1/sqrt 2, sqrt 2), ln f = 2 atanh(s),
// s = (f-1)/(f+1), the leading 2s (1 + s^2/3) carried in double-double and
// the rest of the odd series, below 2e-4 of it, in double.
inline dd log(dd a) {
  int e = 0;
  double f = 0.0;
  double flo = 0.0;
  // frexp and ldexp by the bits for a normal a.hi, the library's otherwise.
  const auto bits = std::bit_cast<std::uint64_t>(a.hi);
  const int be = static_cast<int>((bits >> 52) & 0x7ff);
  if (be != 0 && be < 0x7fd) {
    e = be - 1022;
    f = std::bit_cast<double>((bits & ~(0x7ffULL << 52)) | (1022ULL << 52));
    flo = a.lo * std::bit_cast<double>(static_cast<std::uint64_t>(1023 - e) << 52);
  } else {
    f = std::frexp(a.hi, &e);
    flo = std::ldexp(a.lo, -e);
  }
  if (f < 0.70710678118654752) {
    f *= 2.0;
    flo *= 2.0;
    --e;
  }
  // f - 1 is exact for f in [1/2, 2]; f + 1 is carried exactly.
  const dd num = fast_two_sum(f - 1.0, flo);
  const dd den = add(two_sum(f, 1.0), flo);
  const dd s = div(num, den);
  // atanh(s)/s - 1 = s^2/3 + s^4/5 + ...: the first term in double-double,
  // the rest (below 2e-4 of 1) in double; |s| <= 0.1716, and thirteen
  // terms reach below 2^-66.
  dd s2 = two_prod(s.hi, s.hi);
  s2.lo += 2.0 * s.hi * s.lo;
  const dd t1 = div(s2, 3.0);
  const double w = s2.hi;
  const double rest =
      w * w * (1.0 / 5 + w * (1.0 / 7 + w * (1.0 / 9 + w * (1.0 / 11 + w * (1.0 / 13 +
      w * (1.0 / 15 + w * (1.0 / 17 + w * (1.0 / 19 + w * (1.0 / 21 + w * (1.0 / 23 +
      w * (1.0 / 25 + w * (1.0 / 27 + w * (1.0 / 29)))))))))))));
  const dd s_2 = {2.0 * s.hi, 2.0 * s.lo};
  dd lf = add(s_2, mul(s_2, t1));
  lf = add(lf, 2.0 * s.hi * rest);
  const dd ke = fast_two_sum(e * ln2_hi, e * ln2_lo);
  return add(ke, lf);
}

inline dd log(double a) { return log(dd{a, 0.0}); }

}  // namespace zeb::dd
