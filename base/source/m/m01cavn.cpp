#include "zeb_frame.h"
#include "zeb_m_ib_aux.h"

int m01cavn(std::string_view order, int code, bool& descending, char* errbuf) {
  const char c = order.empty() ? ' ' : order[0];
  if (c == 'A' || c == 'a' || c == 'D' || c == 'd') {
    descending = c == 'D' || c == 'd';
    return 0;
  }
  // The message shows the one character; it travels as a safe text item.
  char item[16];
  zeb::p01abvn(item, 16, order.substr(0, 1));
  zeb::errbuf_record(errbuf, "(3(1X,I5),1X,A16)", {code, 99996, 1, std::string_view(item, 16)});
  return code;
}
