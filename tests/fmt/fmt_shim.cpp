// C entry points through which the Fortran comparison program drives the
// format engine. Items cross as parallel arrays: a kind code per item
// (1 integer, 2 real, 3 logical, 4 text), the values by kind, and the texts
// back to back with their lengths.
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "zeb_fmt.h"

using zeb::fmt::Item;

namespace {

std::vector<Item> make_items(int n, const int* kinds, const long long* iv,
                             const double* rv, const int* lv, const char* sv,
                             const int* slen) {
  std::vector<Item> items;
  std::size_t off = 0;
  for (int k = 0; k < n; ++k) {
    switch (kinds[k]) {
      case 1: items.emplace_back(iv[k]); break;
      case 2: items.emplace_back(rv[k]); break;
      case 3: items.emplace_back(lv[k] != 0); break;
      default:
        items.emplace_back(std::string_view(sv + off, slen[k]));
        off += slen[k];
    }
  }
  return items;
}

}  // namespace

extern "C" {

int zfmt_write(const char* fmt, int fmtlen, int n, const int* kinds,
               const long long* iv, const double* rv, const int* lv,
               const char* sv, const int* slen, char* buf, int reclen,
               int nrec, int* nused) {
  std::vector<Item> items = make_items(n, kinds, iv, rv, lv, sv, slen);
  zeb::fmt::ListSource src(items.data(), items.size());
  return zeb::fmt::write_internal(std::string_view(fmt, fmtlen), src, buf,
                                  reclen, nrec, nused);
}

// write_records: the records are returned back to back in `out` (at most
// `cap` characters) with their lengths in `lens` (at most `maxrec`).
int zfmt_write_records(const char* fmt, int fmtlen, int n, const int* kinds,
                       const long long* iv, const double* rv, const int* lv,
                       const char* sv, const int* slen, char* out, int cap,
                       int* lens, int maxrec, int* nrec) {
  std::vector<Item> items = make_items(n, kinds, iv, rv, lv, sv, slen);
  zeb::fmt::ListSource src(items.data(), items.size());
  std::vector<std::string> recs;
  int st = zeb::fmt::write_records(std::string_view(fmt, fmtlen), src, recs);
  int used = 0;
  *nrec = static_cast<int>(recs.size());
  for (std::size_t k = 0; k < recs.size() && static_cast<int>(k) < maxrec;
       ++k) {
    lens[k] = static_cast<int>(recs[k].size());
    int m = static_cast<int>(recs[k].size());
    if (m > cap - used) m = cap - used;
    std::memcpy(out + used, recs[k].data(), m);
    used += m;
  }
  return st;
}

// read_internal: the items read come back by kind; a text item as its
// offset from the start of `buf` and its length.
int zfmt_read(const char* fmt, int fmtlen, const char* buf, int reclen,
              int nrec, int maxitems, int* nout, int* kinds, long long* iv,
              double* rv, int* lv, int* toff, int* tlen) {
  std::vector<Item> items;
  int st = zeb::fmt::read_internal(std::string_view(fmt, fmtlen), buf, reclen,
                                   nrec, maxitems, items);
  *nout = static_cast<int>(items.size());
  for (std::size_t k = 0; k < items.size(); ++k) {
    const Item& it = items[k];
    kinds[k] = static_cast<int>(it.kind) + 1;
    iv[k] = it.i;
    rv[k] = it.r;
    lv[k] = it.l ? 1 : 0;
    toff[k] = it.kind == Item::Kind::Text
                  ? static_cast<int>(it.s.data() - buf)
                  : 0;
    tlen[k] = static_cast<int>(it.s.size());
  }
  return st;
}

int zfmt_valid(const char* fmt, int fmtlen) {
  return zeb::fmt::valid_format(std::string_view(fmt, fmtlen)) ? 1 : 0;
}

}  // extern "C"
