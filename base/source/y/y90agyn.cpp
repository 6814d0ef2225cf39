#include <string>

#include "y90_text.h"
#include "zeb_y_ib_aux.h"

// Why an extent could not be told, in the words of the documentation markup
// from which the extents are taken.
void y90agyn(int status) {
  static constexpr std::string_view texts[] = {
      "   (<textrequired/> in <dimnote/>)",                          // -11
      "   (<mi/> in <dimnote/>)",                                    // -10
      "   (Unresolvable <var/> in <dimnote/>)",                      // -9
      "   (<xref type=\"arg\"/> in <dimnote/>, external @docid)",     // -8
      "   (No Fortran-or-common <dimnote/>)",                        // -7
      "   (<paramhead purpose=\"engine-communication\"/>)",          // -6
      "   (<paramhead purpose=\"user-workspace\"/>)",                // -5
      "   (<text/> in <dimnote/>)",                                  // -4
      "   (<xref type=\"optparam\"/> in <dimnote/>)",                // -3
      "   (No <dimnote/> child found for arg's sibling <paramtext/> node)",  // -2
      "   (No <paramtext/> child found for arg's parent node)",      // -1
  };
  if (status == 0) return;
  if (status >= -11 && status <= -1) {
    y90ahft(texts[status + 11]);
  } else {
    y90_value_line("   UNEXPECTED STATUS", y90adzn(status));
  }
}
