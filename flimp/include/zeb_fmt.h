// Fortran-format engine: formatted internal writes and reads with the edit
// descriptors of the Fortran standard, producing exactly the characters that
// gfortran's runtime produces for the same format and values.
//
// Every formatted text of the library (failure records, messages, trace lines,
// matrix printers, option listings) is made here; only whole records go to a
// unit, through the Fortran runtime.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace zeb::fmt {

// What a data edit descriptor asks of the next item.
enum class Need : unsigned char {
  Int,      // I
  Real,     // F, E, EN, ES, D, G (G on a real)
  Logical,  // L
  Text      // A
};

// One value of an output list, or the place for one value of an input list.
struct Item {
  enum class Kind : unsigned char { Int, Real, Logical, Text };
  Kind kind = Kind::Int;
  std::int64_t i = 0;
  double r = 0.0;
  bool l = false;
  std::string_view s{};

  Item() = default;
  Item(int v) : kind(Kind::Int), i(v) {}
  Item(long v) : kind(Kind::Int), i(v) {}
  Item(long long v) : kind(Kind::Int), i(v) {}
  Item(double v) : kind(Kind::Real), r(v) {}
  Item(bool v) : kind(Kind::Logical), l(v) {}
  Item(std::string_view v) : kind(Kind::Text), s(v) {}
  Item(const char* v) : kind(Kind::Text), s(v) {}
  Item(const std::string& v) : kind(Kind::Text), s(v) {}
};

// Supplies output items on demand, in the order the format consumes them.
// `need` says what the current data edit descriptor wants (G takes what the
// item is). Returns false when the list is exhausted.
class ItemSource {
 public:
  virtual bool next(Need need, Item& out) = 0;

 protected:
  ~ItemSource() = default;
};

// The plain source: a fixed list of items, consumed in order.
class ListSource final : public ItemSource {
 public:
  ListSource(const Item* first, std::size_t n) : p_(first), n_(n) {}
  bool next(Need, Item& out) override {
    if (k_ >= n_) return false;
    out = p_[k_++];
    return true;
  }

 private:
  const Item* p_;
  std::size_t n_;
  std::size_t k_ = 0;
};

// Status of a write or read. 0 is success.
enum Status : int {
  Ok = 0,
  BadFormat = 1,      // the format string is not a valid format
  ItemMismatch = 2,   // an item's type does not suit its edit descriptor
  RecordOverflow = 3, // internal write past the end of the record
  TooManyRecords = 4, // internal write past the last record
  ReadError = 5,      // a field could not be read as its descriptor asks
  EndOfRecord = 6     // read needed more records than were given
};

// Formatted write to a sequence of records, each of length `reclen`, stored
// one after another in `buf` (an internal file of `nrec` records, as a
// CHARACTER*(reclen) array of `nrec` elements). Records written are padded
// with blanks to `reclen`; records not reached are left untouched.
// On return `*nused` (if not null) holds the number of records written.
// Tabbing left of a record's start is TooManyRecords, as the runtime reports
// it as an end of file.
Status write_internal(std::string_view format, ItemSource& items, char* buf,
                      int reclen, int nrec, int* nused = nullptr);

// Formatted write with unbounded records: each record is appended to
// `records` (without padding: a record's length is the position of its last
// character written, as the runtime would emit it before trimming).
Status write_records(std::string_view format, ItemSource& items,
                     std::vector<std::string>& records);

// Check that `format` parses as a format specification.
bool valid_format(std::string_view format);

// Formatted read from internal records (same layout as write_internal).
// Items are stored into `out` in the order the format consumes them: one Item
// per data edit descriptor, of the kind the descriptor reads (I gives Int;
// F, E, D, G give Real; L gives Logical; A gives Text pointing into `buf`).
// At most `maxitems` items are read. An A without a width takes the rest of
// the record. One record is read as the runtime reads a CHARACTER scalar,
// several as a CHARACTER array (the two differ in how trailing blanks bound
// TL and real fields under BN).
Status read_internal(std::string_view format, const char* buf, int reclen,
                     int nrec, int maxitems, std::vector<Item>& out);

}  // namespace zeb::fmt
