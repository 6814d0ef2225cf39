// Sine integral Si(x).
#include <cmath>

#include "zeb_s_ib.h"
#include "zeb_s_series.h"
#include "zeb_x_ib.h"

// F(x) - 1 and G(x) - 1 for x >= 16, F(x) = x f(x), G(x) = x^2 g(x), f and g
// the auxiliary functions (s13aczn.cpp).
void s13aczn(double x, double& f1, double& g1);

namespace {

// <fit_elem:si0>
// Si(x)/x = 1 + u P1(u), u = x^2: minimax polynomial of degree 15 in u on [0,
// 4] for the relative error, constant term held at 1; fitted by
// tools/refdata/fit_elem.py, max relative error 1.4e-19 with the coefficients
// rounded to double. The table is P1, from the highest power.
constexpr double kSiP1[15] = {
    1.8599828010413064e-20,
    -5.58904657776932e-19,
    7.556471348587692e-18,
    -6.071635264297376e-17,
    3.225807003725923e-16,
    -1.1928997562552544e-15,
    3.147125056961716e-15,
    -5.810319654968391e-15,
    -4.285375685518082e-14,
    1.2345323603684495e-11,
    -2.277459305509506e-09,
    3.061924336641174e-07,
    -2.8344671201271387e-05,
    0.0016666666666665976,
    -0.05555555555555555,
};
// </fit_elem:si0>

// <fit_elem:si>
// Si(x) on [2, 5]: minimax polynomial of degree 16 in t = x - 3.5; fitted by
// tools/refdata/fit_elem.py, max relative error 1.8e-18 with the coefficients
// as stored. Ascending powers from p0.
constexpr double kSi0[22] = {
    3.5,  // c
    1.833125398665997, 5.106555189395711e-17,  // p0
    -0.10022377933989135, -6.671979358627215e-18,  // p1
    -0.11946184399298641, -4.022802358748482e-18,  // p2
    0.03945860017435967, -2.5715498171559647e-18,  // p3
    0.0026928795732417718,
    -0.001450713492188784,
    -2.620182221233794e-05,
    2.6302443280483233e-05,
    6.027840122701014e-08,
    -2.914986534684261e-07,
    1.2246980073444156e-09,
    2.1927010884466398e-09,
    -1.570557368904523e-11,
    -1.1946867395952601e-11,
    1.0202760747007587e-13,
    4.790871705285545e-14,
    -4.395682524859236e-16,
};

// Si(x) on [5, 8]: minimax polynomial of degree 16 in t = x - 6.5; fitted by
// tools/refdata/fit_elem.py, max relative error 2.5e-18 with the coefficients
// as stored. Ascending powers from p0.
constexpr double kSi1[22] = {
    6.5,  // c
    1.4217942744358816, 1.092913765970513e-16,  // p0
    0.03309538278274082, 2.1900102641288327e-18,  // p1
    0.07257632638040636, 2.949878025728529e-18,  // p2
    -0.012959622913062059, 2.2300403479391707e-19,  // p3
    -0.004764835982646781,
    0.0008622362082298859,
    9.812946598037203e-05,
    -1.950669355361094e-05,
    -1.1003948291497883e-06,
    2.4168333301946164e-07,
    7.939439530231273e-09,
    -1.9395084455107953e-09,
    -4.0139130188291864e-11,
    1.1009357237535097e-11,
    1.4980593582487936e-13,
    -4.5367986834868986e-14,
    -4.189940855254516e-16,
};

// Si(x) on [8, 11]: minimax polynomial of degree 16 in t = x - 9.5; fitted by
// tools/refdata/fit_elem.py, max relative error 1.8e-18 with the coefficients
// as stored. Ascending powers from p0.
constexpr double kSi2[22] = {
    9.5,  // c
    1.674463342281433, 8.173630419521491e-17,  // p0
    -0.0079106442591378, 4.965954887863668e-19,  // p1
    -0.05206639536511792, -9.35629888973295e-19,  // p2
    0.004972222840741287, 2.692613966224023e-20,  // p3
    0.003981018180100945,
    -0.0004011656717088364,
    -0.00011059543174969281,
    1.1548107460734579e-05,
    1.5396692891752707e-06,
    -1.658622261060559e-07,
    -1.3212409994259742e-08,
    1.462513414544402e-09,
    7.801283682549078e-11,
    -8.845620694800872e-12,
    -3.3879326844617807e-13,
    3.8079139122335796e-14,
    1.1018144316481391e-15,
};

// Si(x) on [11, 14]: minimax polynomial of degree 16 in t = x - 12.5; fitted
// by tools/refdata/fit_elem.py, max relative error 1.3e-18 with the
// coefficients as stored. Ascending powers from p0.
constexpr double kSi3[22] = {
    12.5,  // c
    1.4923370522865, -8.705564166933337e-18,  // p0
    -0.005305751788096072, -2.1510694582223526e-19,  // p1
    0.040124161238667064, -1.7735223530587055e-18,  // p2
    -0.0012556633013792017, -8.349993243424558e-20,  // p3
    -0.0032506544658457556,
    0.00016382728757771025,
    9.99446562919859e-05,
    -5.800619324235693e-06,
    -1.5737151366570387e-06,
    9.728739285630682e-08,
    1.499262283971544e-08,
    -9.574442935317124e-10,
    -9.643264178805744e-11,
    6.2652879884114285e-12,
    4.497151863189379e-13,
    -2.854557416961219e-14,
    -1.552068269084005e-15,
};

// Si(x) on [14, 16]: minimax polynomial of degree 14 in t = x - 15; fitted by
// tools/refdata/fit_elem.py, max relative error 1.3e-19 with the coefficients
// as stored. Ascending powers from p0.
constexpr double kSi4[20] = {
    15.0,  // c
    1.6181944437083688, -1.0693995973482347e-16,  // p0
    0.043352522677141125, 1.4116148235539431e-18,  // p1
    -0.0267680145178654, -5.502747628805316e-20,  // p2
    -0.006035730912062928, 4.025411570615503e-19,  // p3
    0.002412030747988493,
    0.0002326293824177871,
    -8.326532798961229e-05,
    -3.843672269877837e-06,
    1.480311947821895e-06,
    3.17457528183077e-08,
    -1.5861371672352656e-08,
    -1.2479197949973636e-10,
    1.1334135166838422e-10,
    -3.0310316243657613e-15,
    -5.707514800252751e-13,
};

// Si(x) for 2 <= x <= 16: the piece that holds x.
inline double si_piece(double x) {
  if (x < 8.0) {
    if (x < 5.0) {
      return zeb::series::piece(x, kSi0);
    }
    return zeb::series::piece(x, kSi1);
  }
  if (x < 11.0) {
    return zeb::series::piece(x, kSi2);
  }
  if (x < 14.0) {
    return zeb::series::piece(x, kSi3);
  }
  return zeb::series::piece(x, kSi4);
}
// </fit_elem:si>

// pi/2 = kPio2Hi + kPio2Lo (mpmath, 50 digits).
constexpr double kPio2Hi = 1.5707963267948966;
constexpr double kPio2Lo = 6.123233995736766e-17;

}  // namespace

// Si is odd; for a = abs(x): a <= 2: x + x u P1(u), u = x^2. 2 < a <= 16:
// the polynomial pieces. 16 < a <= 1e17: pi/2 - (F cos a + G sin a / a) / a
// with the auxiliary functions; beyond 1e17: pi/2, with the sign of x.
double s13adfn(double x) {
  const double a = std::fabs(x);
  if (a <= 2.0) {
    // Below x02ajf, Si(x) = x - x^3/18 rounds to x (and x^2 would underflow).
    if (a < x02ajfn()) return x;
    const double u = x * x;
    return x + x * (u * zeb::series::horner(u, kSiP1));
  }
  double v;
  if (a <= 16.0) {
    v = si_piece(a);
  } else if (a <= 1.0e17) {
    double f1 = 0.0;
    double g1 = 0.0;
    s13aczn(a, f1, g1);
    const double c = std::cos(a);
    const double w = (c + (c * f1 + (std::sin(a) / a) * (1.0 + g1))) / a;
    v = kPio2Hi + (kPio2Lo - w);
  } else if (a > 1.0e17) {
    v = kPio2Hi;
  } else {
    return x;  // a NaN
  }
  return std::copysign(v, x);
}
