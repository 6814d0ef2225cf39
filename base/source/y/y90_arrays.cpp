#include <string>

#include "y90_text.h"
#include "zeb_y_ib_aux.h"

// The array loggers of every rank and type share one walk: the array's name
// (with the extent status where an extent is not known), then one scalar line
// per element, labelled "NAME(i,j)". In mode 1 a dimension of extent above 2
// shows only its first and last index, and a line after the array says which
// dimensions were elided; an extent below 1 is reported and nothing else.

namespace {

template <class T>
std::string value_text(const T& v) {
  if constexpr (std::is_same_v<T, int>) {
    return y90adzn(v);
  } else if constexpr (std::is_same_v<T, double> || std::is_same_v<T, float>) {
    return y90agzn(static_cast<double>(v));
  } else {
    return y90agzn(static_cast<double>(v.real())) + " " +
           y90agzn(static_cast<double>(v.imag()));
  }
}

struct Logical {};
struct Text {};

template <class Kind, class P>
void log_array(std::string_view name, P a, int rank, const int* ext,
               const int* stat, int mode) {
  bool known = true;
  for (int d = 0; d < rank; ++d) known = known && stat[d] == 0;
  if (!known) {
    y90ahft(name);
    for (int d = 0; d < rank; ++d) y90agyn(stat[d]);
  }
  for (int d = 0; d < rank; ++d) {
    if (ext[d] < 1) {
      y90adft("   Extent is zero in dimension", d + 1, 0);
      return;
    }
  }
  // The k-th index shown in dimension d, and how many are shown.
  auto whole = [&](int d) { return mode == 2 || ext[d] <= 2; };
  auto count = [&](int d) { return whole(d) ? ext[d] : 2; };
  auto index = [&](int d, int k) { return whole(d) ? k + 1 : (k == 0 ? 1 : ext[d]); };
  const int c1 = count(0);
  const int c2 = rank > 1 ? count(1) : 1;
  const int c3 = rank > 2 ? count(2) : 1;
  for (int k3 = 0; k3 < c3; ++k3) {
    for (int k2 = 0; k2 < c2; ++k2) {
      for (int k1 = 0; k1 < c1; ++k1) {
        const int i = index(0, k1);
        const int j = rank > 1 ? index(1, k2) : 1;
        const int l = rank > 2 ? index(2, k3) : 1;
        const long off = (i - 1) + static_cast<long>(ext[0]) *
                                       ((j - 1) + static_cast<long>(rank > 1 ? ext[1] : 1) * (l - 1));
        std::string label(name);
        label += "(" + std::to_string(i);
        if (rank > 1) label += "," + std::to_string(j);
        if (rank > 2) label += "," + std::to_string(l);
        label += ")";
        if constexpr (std::is_same_v<Kind, Logical>) {
          y90aeft(label, a[off], 0);
        } else if constexpr (std::is_same_v<Kind, Text>) {
          y90aaft(label, std::string_view(a.p + off * a.n, static_cast<std::size_t>(a.n)), 0, 0);
        } else {
          y90_value_line(label, value_text(a[off]));
        }
      }
    }
  }
  if (mode != 2) {
    for (int d = 0; d < rank; ++d) {
      if (!whole(d)) y90adft("   Elements were elided in dimension", d + 1, 0);
    }
  }
}

}  // namespace

#define ZEB_Y90_LOGGERS(b, c, d, T, Kind)                                          \
  void b(std::string_view name, T a, int n1, int s1, int mode) {                  \
    const int e[] = {n1}, s[] = {s1};                                             \
    log_array<Kind>(name, a, 1, e, s, mode);                                      \
  }                                                                               \
  void c(std::string_view name, T a, int n1, int s1, int n2, int s2, int mode) {  \
    const int e[] = {n1, n2}, s[] = {s1, s2};                                     \
    log_array<Kind>(name, a, 2, e, s, mode);                                      \
  }                                                                               \
  void d(std::string_view name, T a, int n1, int s1, int n2, int s2, int n3,      \
         int s3, int mode) {                                                      \
    const int e[] = {n1, n2, n3}, s[] = {s1, s2, s3};                             \
    log_array<Kind>(name, a, 3, e, s, mode);                                      \
  }

ZEB_Y90_LOGGERS(y90bdzn, y90cdzn, y90ddzn, const int*, int)
ZEB_Y90_LOGGERS(y90bgzn, y90cgzn, y90dgzn, const double*, double)
ZEB_Y90_LOGGERS(y90bczn, y90cczn, y90dczn, const std::complex<double>*, double)
ZEB_Y90_LOGGERS(y90bezn, y90cezn, y90dezn, const int*, Logical)
ZEB_Y90_LOGGERS(y90bazn, y90cazn, y90dazn, zeb::fcharray, Text)
ZEB_Y90_LOGGERS(y90bfzm, y90cfzm, y90dfzm, const float*, double)
ZEB_Y90_LOGGERS(y90bbzm, y90cbzm, y90dbzm, const std::complex<float>*, double)
