#include "zeb_p_ib_aux.h"

namespace {
bool is_digit(char c) { return c >= '0' && c <= '9'; }
bool is_exponent_letter(char c) {
  return c == 'e' || c == 'E' || c == 'd' || c == 'D';
}
}  // namespace

void e05jhsn(std::string_view text, int& isint, int& isreal, int& isexp,
             int& status) {
  static constexpr std::string_view starts = "0123456789.+-";
  static constexpr std::string_view numchars = "0123456789.eEdD+-";
  isint = isreal = isexp = 0;
  status = 0;
  std::size_t i = 0;
  while (i < text.size() && text[i] == ' ') ++i;
  if (i < text.size() && starts.find(text[i]) == std::string_view::npos) return;

  // The candidate runs to the next blank or the end; any character outside
  // the number's alphabet makes the text partly numeric.
  std::size_t end = i;
  while (end < text.size() && text[end] != ' ') {
    if (numchars.find(text[end]) == std::string_view::npos) {
      status = -4;
      return;
    }
    ++end;
  }
  std::string_view t = text.substr(i, end - i);
  std::size_t k = 0;
  if (!t.empty() && (t[0] == '+' || t[0] == '-')) ++k;
  if (k < t.size()) {
    if (!is_digit(t[k]) && t[k] != '.') {
      status = -4;
      return;
    }
  }
  int points = 0;
  int letters = 0;
  std::size_t n = k;
  for (; n < t.size(); ++n) {
    const char c = t[n];
    if (c == '+' || c == '-') {
      // Only a sign right behind an exponent letter belongs to the number.
      if (n > 0 && is_exponent_letter(t[n - 1])) continue;
      break;
    }
    if (c == '.') {
      ++points;
      if (n + 1 < t.size() && !is_digit(t[n + 1]) && !is_exponent_letter(t[n + 1])) {
        status = -4;
        return;
      }
    } else if (is_exponent_letter(c)) {
      ++letters;
      if (n == k || n + 1 == t.size()) {
        status = -4;
        return;
      }
    }
  }
  if (points > 1 || letters > 1) {
    status = -4;
    return;
  }
  if (letters == 1) {
    isexp = 1;
  } else if (points == 1) {
    isreal = 1;
  } else {
    isint = 1;
  }
}
