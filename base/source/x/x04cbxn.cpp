#include <string>
#include <vector>

#include "zeb_x_ib_aux.h"

namespace {

// Length of the one record that `wrapped` writes for `count` zeros, or -1
// if the write fails or takes more than one record.
long long written_length(const std::string& wrapped, bool integer, int count) {
  const zeb::fmt::Item zero = integer ? zeb::fmt::Item(0) : zeb::fmt::Item(0.0);
  const zeb::fmt::Item items[2] = {zero, zero};
  zeb::fmt::ListSource src(items, static_cast<std::size_t>(count));
  std::vector<std::string> recs;
  if (zeb::fmt::write_records(wrapped, src, recs) != zeb::fmt::Ok) return -1;
  if (recs.size() != 1) return -1;
  return static_cast<long long>(recs[0].size());
}

}  // namespace

// The width of a column is what a second entry adds to a record: the format
// is wrapped as "(999(:," + form + "))" and used to write one zero and two
// zeros. Leading or trailing positioning and literals of the caller's FORM
// thus count once per column, as in a row written in one statement.
int x04cbxn(std::string_view form, bool integer) {
  std::string wrapped = "(999(:,";
  wrapped.append(form);
  wrapped.append("))");
  const long long once = written_length(wrapped, integer, 1);
  const long long twice = written_length(wrapped, integer, 2);
  if (once < 0 || twice < 0) return 0;
  const long long w = twice - once;
  if (w < 1 || w > 0x7fffffffLL) return 0;
  return static_cast<int>(w);
}
