#include <cmath>

#include "zeb_p_ib_aux.h"
#include "zeb_wrap.h"

namespace {

using zeb::line_len;
constexpr int text_len = 16;
constexpr int max_items = 12;

// Feeds a message format with the decoded items: text items to A
// descriptors, real items to the others, an integer descriptor getting the
// real truncated.
class DecodedItems final : public zeb::fmt::ItemSource {
 public:
  DecodedItems(const char* texts, int ntext, const double* reals, int nreal)
      : texts_(texts), ntext_(ntext), reals_(reals), nreal_(nreal) {}
  bool next(zeb::fmt::Need need, zeb::fmt::Item& out) override {
    if (need == zeb::fmt::Need::Text) {
      if (kt_ >= ntext_) return false;
      out = zeb::fmt::Item(std::string_view(texts_ + kt_++ * text_len, text_len));
      return true;
    }
    if (kr_ >= nreal_) return false;
    const double v = reals_[kr_++];
    if (need == zeb::fmt::Need::Int) {
      const double t = std::trunc(v);
      out = zeb::fmt::Item(static_cast<long long>(
          t > 9.2e18 ? 9.2e18 : (t < -9.2e18 ? -9.2e18 : t)));
    } else {
      out = zeb::fmt::Item(v);
    }
    return true;
  }

 private:
  const char* texts_;
  int ntext_;
  const double* reals_;
  int nreal_;
  int kt_ = 0;
  int kr_ = 0;
};

}  // namespace

int p01abmu(int code, const char* errbuf, const zeb::Message* table,
            int ntable, int maxitems, char* lines, int maxlines) {
  int nrec = 0;
  if (code == -999) {
    zeb::write_lines("(1X,A)", {"** Internal memory allocation failed."}, lines,
                     line_len, 1, &nrec);
    return nrec;
  }
  int rcode = code;
  int number = 0;
  int ntext = 0;
  int nreal = 0;
  char texts[max_items * text_len];
  double reals[max_items];
  if (maxitems > max_items) maxitems = max_items;
  const zeb::Message* msg = nullptr;
  if (p01abhu(errbuf, rcode, number, maxitems, ntext, nreal, texts, text_len,
              reals)) {
    for (int i = 0; i < ntable; ++i) {
      if (table[i].code == rcode && table[i].number == number) {
        msg = &table[i];
        break;
      }
    }
  } else {
    // The head could not be read: report the code the body returned.
    rcode = code;
  }
  if (msg != nullptr) {
    DecodedItems items(texts, ntext, reals, nreal);
    zeb::fmt::write_internal(msg->format, items, lines, line_len, maxlines,
                             &nrec);
  } else {
    zeb::write_lines("(1X,'** Unexpected error (',I5,',',I5,')')",
                     {rcode, number}, lines, line_len, 1, &nrec);
  }
  return nrec;
}
