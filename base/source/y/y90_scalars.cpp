#include <cmath>
#include <string>

#include "y90_text.h"
#include "zeb_w_ib_aux.h"
#include "zeb_x_ib_aux.h"
#include "zeb_y_ib_aux.h"

void y90_value_line(std::string_view label, std::string_view value) {
  std::string text(label.substr(0, 45));
  text.resize(45, ' ');  // columns 5 to 49
  text += ":    ";        // the colon at column 50, the value from 55
  text += value;
  y90ahft(text);
}

// The address line: the text that the w04f piece of the value's type makes.
template <class T>
void y90_address_line(const T& value, void (*tell)(const T&, char*, int)) {
  char text[40];
  tell(value, text, sizeof text);
  std::string_view t(text, sizeof text);
  y90_value_line("   Address", t.substr(0, t.find_last_not_of(' ') + 1));
}

std::string y90adzn(long long v) {
  char buf[20];
  zeb::write_lines("(I20)", {v}, buf, sizeof buf, 1);
  return std::string(buf, sizeof buf);
}

std::string y90agzn(double v) {
  if (x02eazn(v)) return "NaN";
  // The format is built as "(1P,E" 22 "." 15 ")": 15 digits after the point.
  char fmt[11];
  zeb::write_lines("(A,I2,A,I2,A)", {"(1P,E", 22, ".", 15, ")"}, fmt, sizeof fmt, 1);
  char buf[22];
  zeb::write_lines(std::string_view(fmt, sizeof fmt), {v}, buf, sizeof buf, 1);
  return std::string(buf, sizeof buf);
}

std::string y90aezn(int v) { return v != 0 ? ".TRUE." : ".FALSE."; }

void y90adft(std::string_view name, long long value, int addr) {
  y90_value_line(name, y90adzn(value));
  const int v = static_cast<int>(value);
  if (addr != 0) y90_address_line(v, w04fdzn);
}

void y90aeft(std::string_view name, int value, int addr) {
  y90_value_line(name, y90aezn(value));
  if (addr != 0) y90_address_line(value, w04fezn);
}

void y90agft(std::string_view name, double value, int addr) {
  y90_value_line(name, y90agzn(value));
  if (addr != 0) y90_address_line(value, w04fgzn);
}

void y90afet(std::string_view name, float value, int addr) {
  y90_value_line(name, y90agzn(static_cast<double>(value)));
  if (addr != 0) y90_address_line(value, w04ffzm);
}

void y90acft(std::string_view name, std::complex<double> value, int addr) {
  y90_value_line(name, y90agzn(value.real()) + " " + y90agzn(value.imag()));
  if (addr != 0) y90_address_line(value, w04fczn);
}

void y90abet(std::string_view name, std::complex<float> value, int addr) {
  y90_value_line(name, y90agzn(value.real()) + " " + y90agzn(value.imag()));
  if (addr != 0) y90_address_line(value, w04fbzm);
}

void y90aaft(std::string_view name, std::string_view value, int nulend, int addr) {
  if (nulend != 0) value = value.substr(0, value.find('\0'));
  std::size_t n = value.size();
  while (n > 0 && value[n - 1] == ' ') --n;
  std::string text = "\"";
  const std::size_t keep = n <= 43 ? n : 41;
  for (std::size_t i = 0; i < keep; ++i) {
    const unsigned char c = static_cast<unsigned char>(value[i]);
    text += c < 32 || c >= 127 ? '*' : static_cast<char>(c);
  }
  if (n > 43) text += "...";
  text += '"';
  // The opening quote stands in column 55, the text from column 56.
  y90_value_line(name, text);
  if (addr != 0) {
    char where[40];
    w04fazn(value, where, sizeof where);
    std::string_view t(where, sizeof where);
    y90_value_line("   Address", t.substr(0, t.find_last_not_of(' ') + 1));
  }
}
