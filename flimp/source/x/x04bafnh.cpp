#include "zeb_x_ib_aux.h"

void x04bafnh(x04_writer writer, int nout, std::string_view rec) {
  writer(nout, rec);
}
