#include "zeb_x_ib_aux.h"

// Opens an unformatted direct-access file for the chapters that keep data
// on file; see zeb_x_ib_aux.h for the statuses.
int x04acxn(int iounit, std::string_view file, int mode, int recl) {
  if ((mode != 0 && mode != 1) || recl < 1) return 1;
  const auto end = file.find_last_not_of(' ');
  const std::string_view name = end == std::string_view::npos
                                    ? std::string_view{}
                                    : file.substr(0, end + 1);
  return zeb_file_open_direct(iounit, name.data(),
                              static_cast<int>(name.size()), mode, recl) == 0
             ? 0
             : 2;
}
