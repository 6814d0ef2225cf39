#include <cstring>

#include "zeb_p_ib_aux.h"

int e04nswn(std::string_view s, int nwant, char* words, int wordlen,
            bool upcase) {
  const std::size_t len = static_cast<std::size_t>(wordlen > 0 ? wordlen : 0);
  int found = 0;
  std::size_t from = 0;
  std::size_t first = 0;
  std::size_t last = 0;
  while (found < nwant && e04nsvn(s, from, first, last)) {
    char* slot = words + static_cast<long>(found) * wordlen;
    std::size_t n = last - first < len ? last - first : len;
    for (std::size_t k = 0; k < n; ++k) {
      char c = s[first + k];
      slot[k] = upcase && c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    }
    std::memset(slot + n, ' ', len - n);
    ++found;
    from = last + 1;
  }
  for (int k = found; k < nwant; ++k) {
    std::memset(words + static_cast<long>(k) * wordlen, ' ', len);
  }
  return found;
}
