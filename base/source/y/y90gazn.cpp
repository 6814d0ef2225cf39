#include "zeb_y_ib_aux.h"

void y90gazn(std::string_view trace_name, int entry) {
  y90ahft("");
  y90gbzn();
  y90ahft(trace_name);
  y90ahft(entry != 0 ? "Arguments on entry:" : "Arguments on exit:");
  y90gbzn();
}
