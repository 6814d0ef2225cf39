// Private auxiliaries of chapter s: kernels that bodies share and that have no
// public entry.
#pragma once

#include "zeb_dd.h"

// erfcx(x) = exp(x^2) erfc(x) for -26.6 < x, with no checks (s15agzn.cpp):
// the kernel of s15agfn and s15ddfn.
double s15agzn(double x);

// The auxiliary functions of the Fresnel integrals for a > 3 (s20aczn.cpp):
// S(a) = 1/2 - f cos(pi a^2/2) - g sin(pi a^2/2) and
// C(a) = 1/2 + f sin(pi a^2/2) - g cos(pi a^2/2).
void s20aczn(double a, double& f, double& g);

// sin(pi a^2/2) and cos(pi a^2/2) for 0 <= a <= 2^32, with a^2 carried
// exactly so that the result is accurate for large a (s20acyn.cpp).
void s20acyn(double a, double& s, double& c);

// The inverse hyperbolic kernels (s11aazn.cpp): atanh(x) - x for
// x^2 <= 1/2 in double (s11aazn), atanh x for x^2 <= 1/2 in the x87
// extended format (s11aayn), and ln(2^k (hi + lo)) in the extended format
// for 2^-1022 <= hi < 2^1022 (s11aaxn); the extended ones need the 64-bit precision
// control (zeb::ext::Precision) held by the caller.
double s11aazn(double x);
long double s11aayn(double x);
long double s11aaxn(double hi, double lo, int k);

// ---------------------------------------------------------------------------
// Gamma-function kernels: scaled log gamma, polygamma, incomplete gamma and
// the beta functions of the statistics chapters.

// D(x) = ln gamma(x) - (x-1/2) ln x + x - (1/2) ln(2 pi), the correction to
// Stirling's formula, as hi + lo: s14ahzn for 0 < x < 15 (s14ahzn.cpp),
// s14ahyn, its asymptotic series, for x >= 10 (s14ahyn.cpp). No checks.
zeb::dd::dd s14ahzn(double x);
zeb::dd::dd s14ahyn(double x);

// The polygamma kernel (s14aczn.cpp): ans(j) = (-1)^(k+1) psi^(k)(x)/k! for
// the orders k = n .. n+m-1, order 0 being -psi(x) for kode 1 and
// ln x - psi(x) for kode 2. Returns 0, or 5 (some orders underflow and are
// 0), 6 (an order would overflow; ans all 0), 7 (n+m-1 is beyond the
// integers). Needs x > 0, n >= 0, m >= 1.
int s14aczn(double x, int n, int kode, int m, double* ans);
// One order k of the kernel as the scaled value (m.hi + m.lo) 2^e
// (s14acyn.cpp).
void s14acyn(double x, int k, int kode, zeb::dd::dd& m, long long& e);

// ln gamma(x + iy) for x >= 1/2, y >= 0, the principal branch (s14agzn.cpp).
void s14agzn(double x, double y, double& re, double& im);
// 1 - q, 1 + q and q, q = exp(2 pi i (x + iy)), for y >= 0, each with full
// relative accuracy (s14agyn.cpp).
void s14agyn(double x, double y, double& re, double& im, double& pre,
             double& pim, double& qre, double& qim);
// psi^(k)(x + iy) for x >= 1/2, y >= 0, 0 <= k <= 6 (s14afzn.cpp).
void s14afzn(double x, double y, int k, double& re, double& im);

// Temme's uniform expansion of the incomplete gamma functions for a >= 20,
// 0.7 a <= x <= 1.4 a: the smaller tail, Q for x >= a, P for x < a
// (s14bazn.cpp).
double s14bazn(double a, double x, double tol);
// The same with the smaller tail in small and its complement in large, each
// rounded once from the extended format.
void s14bazn(double a, double x, double tol, double& small, double& large);
// The continued fraction f of Q(a, x) = a x^a e^-x / gamma(a+1) f in the
// x87 extended format, stopped when a step moves it by at most eps, and on
// until at most fine (s14bawn.cpp); met: the eps test was passed within
// maxit steps.
long double s14bawn(long double a, long double x, long double eps, long double fine, int maxit,
                    bool& met);
// mu - ln(1+mu) for mu > -1, as hi + lo (s14bayn.cpp).
zeb::dd::dd s14bayn(double mu);

// The beta functions of the statistics chapters.
// ln B(a, b) for a, b > 0, a + b finite; NaN otherwise (s14cbzn.cpp).
double s14cbzn(double a, double b);
// The incomplete beta function I_x(a, b) in w and its complement
// 1 - I_x(a, b) = I_y(b, a) in w1, y = 1 - x given apart so that an upper
// tail keeps its digits (s14cczn.cpp). Returns 0, or 1 (a or b not
// positive, or NaN), 2 (x or y outside [0, 1], or x + y not 1 to within
// three units of the last place), 3 (the continued fraction did not settle
// within its limit of terms; w and w1 hold its last values).
int s14cczn(double a, double b, double x, double y, double& w, double& w1);
// I_x(a, b) and its complement for a >= 100, b <= a/20, by the expansion in
// incomplete gamma functions (s14ccxn.cpp).
void s14ccxn(double a, double b, double x, double& w, double& w1);
// Extended-precision pieces of the beta kernels; each needs the 64-bit x87
// precision control (zeb::ext::Precision) held by its caller.
// ln x for finite x > 0 (s14cbyn.cpp).
long double s14cbyn(long double x);
// (atanh(s)/s - 1)/s^2 at w = s^2, 0 <= w <= 0.0295 (s14cbqn.cpp).
long double s14cbqn(long double w);
// phi(mu) = mu - ln(1 + mu) for mu > -1, given with l = 1 + mu (s14cbxn.cpp).
long double s14cbxn(long double mu, long double l);
// e^x (s14cbwn.cpp).
long double s14cbwn(long double x);
// D(x), the correction to Stirling's formula, for x >= 12 (s14cbvn.cpp).
long double s14cbvn(long double x);
// ln B(a, b) for a, b > 0, a + b finite (s14cbun.cpp).
long double s14cbun(double a, double b);
// ln(x^a y^b / B(a, b)), y = 1 - x given apart, for a, b > 0,
// 0 < x, y <= 1 (s14ccwn.cpp).
long double s14ccwn(double a, double b, double x, double y);
// ln(gamma(a+b) / (gamma(1+a) gamma(b))) = -ln(a B(a, b)) for 0 < a <= 1,
// b > 0, accurate as a goes to 0 (s14ccvn.cpp).
long double s14ccvn(double a, double b);
