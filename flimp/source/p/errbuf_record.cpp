#include "zeb_frame.h"

void zeb::errbuf_record(char* errbuf, std::string_view format,
                        std::initializer_list<fmt::Item> items) {
  fmt::ListSource all(items.begin(), items.size());
  if (fmt::write_internal(format, all, errbuf, errbuf_len, 1) == fmt::Ok) return;
  // A faulty record format: keep the head, so the wrapper still names the
  // pair of code and message number.
  const fmt::Item* p = items.begin();
  fmt::ListSource head(p, items.size() < 3 ? items.size() : 3);
  fmt::write_internal("(3(1X,I5))", head, errbuf, errbuf_len, 1);
}
