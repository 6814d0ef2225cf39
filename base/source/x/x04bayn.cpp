#include "zeb_x_ib_aux.h"

void x04bayn(x04_writer writer, decltype(&x04bafnh) thunk, int nout, int nrec,
             const char* rec, int reclen) {
  for (int i = 0; i < nrec; ++i) {
    thunk(writer, nout, std::string_view(rec + static_cast<long>(i) * reclen,
                                         static_cast<std::size_t>(reclen)));
  }
}
