#include "zeb_x_ib.h"
#include "zeb_x_ib_aux.h"

// Opens FILE (trailing blanks ignored) on unit IOUNIT for formatted
// sequential I/O: MODE 0 an existing file for reading, 1 for writing from
// its start, 2 for appending. The runtime's refusal is reported with the
// file name made safe as a record item.
void x04acfn(int iounit, std::string_view file, int mode, char* errbuf,
             int& ifail) {
  zeb::errbuf_clear(errbuf);
  int code = 0;
  if (mode < 0 || mode > 2) {
    code = 1;
    zeb::errbuf_record(errbuf, "(3(1X,I5),1X,I20)", {1, 99999, 1, mode});
  } else {
    const auto end = file.find_last_not_of(' ');
    const std::string_view name = end == std::string_view::npos
                                      ? std::string_view{}
                                      : file.substr(0, end + 1);
    if (zeb_file_open(iounit, name.data(), static_cast<int>(name.size()),
                      mode) != 0) {
      code = 2;
      char text[16];
      zeb::p01abvn(text, 16, name);
      zeb::errbuf_record(
          errbuf, "(3(1X,I5),1X,A16,1X,I20)",
          {2, 99998 - mode, 2, std::string_view(text, 16), iounit});
    }
  }
  zeb::errbuf_close(errbuf, code, ifail);
}
