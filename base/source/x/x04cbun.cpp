#include "zeb_x_ib_aux.h"

// A record naming one or two character arguments. Only the first character
// of each is tested, so only it is reported; p01abvn turns a blank into "_"
// and marks a digit as text.
void x04cbun(char* errbuf, int code, int number, std::string_view c1,
             const std::string_view* c2) {
  char t1[16];
  char t2[16];
  zeb::p01abvn(t1, 16, c1.substr(0, 1));
  const std::string_view s1(t1, 16);
  if (c2 == nullptr) {
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,A16)", {code, number, 1, s1});
    return;
  }
  zeb::p01abvn(t2, 16, c2->substr(0, 1));
  zeb::errbuf_record(errbuf, "(3(1X,I5),2(1X,A16))",
                     {code, number, 2, s1, std::string_view(t2, 16)});
}
