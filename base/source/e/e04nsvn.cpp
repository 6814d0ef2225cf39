#include "zeb_p_ib_aux.h"

namespace {
bool is_delimiter(char c) {
  return c == ' ' || c == ',' || c == ':' || c == '=' || c == '\t';
}
}  // namespace

bool e04nsvn(std::string_view s, std::size_t from, std::size_t& first,
             std::size_t& last) {
  std::size_t i = from;
  while (i < s.size() && is_delimiter(s[i])) ++i;
  if (i >= s.size()) {
    first = last = 0;
    return false;
  }
  first = i;
  while (i < s.size() && !is_delimiter(s[i])) ++i;
  last = i;
  return true;
}
