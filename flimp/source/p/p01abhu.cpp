#include <cmath>
#include <cstring>
#include <vector>

#include "zeb_p_ib_aux.h"
#include "zeb_wrap.h"

namespace {

constexpr int max_tokens = 15;
constexpr int token_len = 80;

// Reads a head field of the record by "(BN, E16.0)" and truncates it.
bool read_head(const char* token, int& value) {
  std::vector<zeb::fmt::Item> out;
  if (zeb::fmt::read_internal("(BN, E16.0)", token, token_len, 1, 1, out) !=
          zeb::fmt::Ok ||
      out.empty()) {
    return false;
  }
  const double t = std::trunc(out[0].r);
  if (!(t >= -2147483648.0 && t <= 2147483647.0)) return false;
  value = static_cast<int>(t);
  return true;
}

}  // namespace

bool p01abhu(const char* errbuf, int& code, int& number, int maxitems,
             int& ntext, int& nreal, char* texts, int textlen, double* reals) {
  const std::size_t len = errbuf[zeb::errbuf_len - 1] != '\0'
                              ? zeb::errbuf_len
                              : zeb::errbuf_len - 1;
  char tokens[max_tokens * token_len];
  const int ntok = e04nswn(std::string_view(errbuf, len), max_tokens, tokens,
                           token_len, false);
  int count = 0;
  if (ntok < 1 || !read_head(tokens, code)) return false;
  if (ntok < 2 || !read_head(tokens + token_len, number)) return false;
  if (ntok < 3 || !read_head(tokens + 2 * token_len, count)) return false;

  ntext = 0;
  nreal = 0;
  int nitems = ntok - 3;
  if (nitems > maxitems) nitems = maxitems;
  for (int k = 0; k < nitems; ++k) {
    const char* tok = tokens + (3 + k) * token_len;
    std::string_view t(tok, token_len);
    int isint = 0, isreal = 0, isexp = 0, status = 0;
    e05jhsn(t, isint, isreal, isexp, status);
    if ((isint != 0 || isreal != 0 || isexp != 0) && status != -4) {
      int st = 0;
      p01abgu(t, reals[nreal++], st);
    } else {
      char* dest = texts + static_cast<long>(ntext++) * textlen;
      const int n = textlen < token_len ? textlen : token_len;
      std::memcpy(dest, tok, static_cast<std::size_t>(n));
      if (textlen > n) std::memset(dest + n, ' ', static_cast<std::size_t>(textlen - n));
    }
  }
  return true;
}
