// Evaluation of the stored series of chapter s in straight-line Horner form:
// the recursion below unrolls at compile time, so a series written as a
// constexpr table compiles to one multiply and one add per coefficient, with
// no loop and no table look-up.
#pragma once

#include <cstddef>

#include "zeb_dd.h"

namespace zeb::series {

namespace detail {

template <std::size_t K, std::size_t N>
inline double horner_to(double t, const double (&c)[N]) {
  if constexpr (K == 0) {
    return c[0];
  } else {
    return horner_to<K - 1>(t, c) * t + c[K];
  }
}

// c[K] + c[K+1] t + ... + c[N-1] t^(N-1-K): ascending from index K.
template <std::size_t K, std::size_t N>
inline double horner_up(double t, const double (&c)[N]) {
  if constexpr (K + 1 == N) {
    return c[K];
  } else {
    return horner_up<K + 1>(t, c) * t + c[K];
  }
}

// The chain of every second coefficient ending at index Last, in Horner's
// rule in s: c[Last] + c[Last-2] s + c[Last-4] s^2 + ...
template <std::size_t Last, std::size_t N>
inline double chain2(double s, const double (&c)[N]) {
  if constexpr (Last < 2) {
    return c[Last];
  } else {
    return chain2<Last - 2>(s, c) * s + c[Last];
  }
}

}  // namespace detail

// Sum of c[k] t^(N-1-k): the table holds the coefficients from the highest
// power down.
template <std::size_t N>
inline double horner(double t, const double (&c)[N]) {
  static_assert(N >= 1);
  return detail::horner_to<N - 1>(t, c);
}

// The same sum by the second-order Horner rule: the even and the odd powers
// as two Horner chains in t^2, joined at the end. The two chains run side by
// side, which halves the length of the dependent sequence of a long series.
template <std::size_t N>
inline double horner2(double t, const double (&c)[N]) {
  static_assert(N >= 2);
  const double s = t * t;
  return detail::chain2<N - 1>(s, c) + t * detail::chain2<N - 2>(s, c);
}

// The polynomial of the first M entries of c (from the highest power) at u,
// by two Horner chains in u^2: the head of a table whose last entries the
// caller sums in wider precision.
template <std::size_t M, std::size_t N>
inline double head2(double u, const double (&c)[N]) {
  static_assert(M >= 3 && M <= N);
  const double s = u * u;
  double a = c[0];  // the powers M-1, M-3, ...
  double b = c[1];  // the powers M-2, M-4, ...
  std::size_t i = 2;
  for (; i + 1 < M; i += 2) {
    a = a * s + c[i];
    b = b * s + c[i + 1];
  }
  if constexpr (M % 2 == 0) {
    return a * u + b;
  } else {
    return b * u + (a * s + c[M - 1]);
  }
}

// c[0] + c[1] t + ... + c[nt-1] t^(nt-1) at the complex t = tr + i ti, nt
// even and at least 2, as (pr, pi): the even and the odd powers as two
// Horner chains in t^2, side by side, joined at the end.
inline void complex_horner2(const double* c, int nt, double tr, double ti, double& pr,
                            double& pi) {
  const double t2r = tr * tr - ti * ti;
  const double t2i = 2.0 * tr * ti;
  double er = c[nt - 2];
  double ei = 0.0;
  double orr = c[nt - 1];
  double oi = 0.0;
  for (int j = nt - 4; j >= 0; j -= 2) {
    const double ner = er * t2r - ei * t2i + c[j];
    ei = er * t2i + ei * t2r;
    er = ner;
    const double nor = orr * t2r - oi * t2i + c[j + 1];
    oi = orr * t2i + oi * t2r;
    orr = nor;
  }
  pr = er + (orr * tr - oi * ti);
  pi = ei + (orr * ti + oi * tr);
}

// The odd series x + x^3/K + x^5 S(x^2), for K = +-3 or +-6, less its first
// term: q + r with q the rounded x^3/K and r the rest. x^3 is formed exactly
// but for a term of 2^-106 of it (Dekker's products, with the halves of x
// split once), the remainder x^3/K - q exactly (q K = q + 2q, times 1 or 2,
// is an error-free sum), and only x^5 S(x^2), a small part of the value, in
// double. The table S holds the coefficients from the highest power.
template <int K, std::size_t N>
inline void odd_tail(double x, const double (&S)[N], double& q, double& r) {
  static_assert(K == 3 || K == -3 || K == 6 || K == -6);
  constexpr double kinv = 1.0 / K;
  double xh, xl;
  dd::split(x, xh, xl);
  const double u = x * x;
  const double ul = ((xh * xh - u) + 2.0 * xh * xl) + xl * xl;  // x^2 - u
  const double c3 = x * u;
  double uh, um;
  dd::split(u, uh, um);
  const double c3e = ((xh * uh - c3) + xh * um + xl * uh) + xl * um;  // x u - c3
  const double c3l = c3e + x * ul;
  q = c3 * kinv;
  dd::dd qk = dd::two_sum(q, 2.0 * q);  // 3q exactly
  if constexpr (K == 6 || K == -6) qk = {2.0 * qk.hi, 2.0 * qk.lo};
  if constexpr (K < 0) qk = {-qk.hi, -qk.lo};
  const double e = (((c3 - qk.hi) - qk.lo) + c3l) * kinv;
  r = e + c3 * (u * horner2(u, S));
}

// The odd series itself, x + q + r with x + q summed exactly; |q| <= |x|.
template <int K, std::size_t N>
inline double odd_series(double x, const double (&S)[N]) {
  double q = 0.0;
  double r = 0.0;
  odd_tail<K>(x, S, q, r);
  const dd::dd s = dd::fast_two_sum(x, q);
  return s.hi + (s.lo + r);
}

// The same odd series in plain double, for where speed counts more than the
// last tenths of an ulp: x + x u (1/K + u S(u)), u = x^2, with 1/K carried as
// its rounding kinv plus the exact remainder kinv 2^-54 (for K = +-3, +-6 the
// remainder of 1/K is exactly that). Returns the tail x^3/K + x^5 S(x^2),
// whose rounding touches the value through the ratio tail/value only.
template <int K, std::size_t N>
inline double odd_tail_plain(double x, const double (&S)[N]) {
  static_assert(K == 3 || K == -3 || K == 6 || K == -6);
  constexpr double kinv = 1.0 / K;
  constexpr double kinv_lo = kinv * 0x1p-54;
  const double u = x * x;
  return x * (u * (kinv + (kinv_lo + u * horner2(u, S))));
}

// A piece of a piecewise series: the table holds
//   {c, p0 hi, p0 lo, p1 hi, p1 lo, p2 hi, p2 lo, p3 hi, p3 lo, p4, ..., pn}
// for the polynomial p0 + p1 t + ... + pn t^n in t = x - c, and `x - c` must
// be exact (the caller's x lies within a factor 2 of c). The leading two
// terms are summed in double-double, so the rounding of the tail
// p2 t^2 + ... only touches the part of the value that it contributes; the
// low parts of p0 to p3 keep the rounding of the coefficients themselves out.
template <std::size_t N>
inline double piece(double x, const double (&k)[N]) {
  static_assert(N >= 11);
  const double t = x - k[0];
  const double tail = (detail::horner_up<9>(t, k) * t + k[7]) * t + k[5];
  const double tlo = k[6] + t * k[8];  // low parts of p2 + p3 t
  const dd::dd p1t = dd::two_prod(t, k[3]);
  const double lo = p1t.lo + t * k[4] + t * (t * tail) + (t * t) * tlo + k[2];
  const dd::dd s = dd::two_sum(k[1], p1t.hi);
  return s.hi + (s.lo + lo);
}

}  // namespace zeb::series
