#include <cstring>
#include <string>

#include "zeb_frame.h"
#include "zeb_p_ib_aux.h"

void zeb::p01abvn(char* dest, int destlen, std::string_view src) {
  std::size_t n = src.size();
  while (n > 0 && src[n - 1] == ' ') --n;
  std::string t(src.substr(0, n));
  for (char& c : t) {
    if (c == ' ' || c == ',' || c == ':' || c == '=') c = '_';
  }
  if (t.empty()) {
    t = "_";
  } else if (t.size() > 16) {
    t = "..." + t.substr(t.size() - 13);
  } else {
    int isint = 0, isreal = 0, isexp = 0, status = 0;
    e05jhsn(t, isint, isreal, isexp, status);
    if ((isint != 0 || isreal != 0 || isexp != 0) && status != -4) {
      t = t.size() < 16 ? t + "_" : "..." + t.substr(3);
    }
  }
  const std::size_t len = static_cast<std::size_t>(destlen > 0 ? destlen : 0);
  const std::size_t k = t.size() < len ? t.size() : len;
  std::memcpy(dest, t.data(), k);
  std::memset(dest + k, ' ', len - k);
}
