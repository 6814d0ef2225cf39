#include "zeb_wrap.h"

namespace {
// The trace switch: 0 off, 1 on with arrays elided, 2 on with whole arrays.
int trace_switch = 0;
}  // namespace

void y90gczn(int flag, int& value) {
  if (flag == 0) {
    value = trace_switch;
  } else {
    trace_switch = value;
  }
}
