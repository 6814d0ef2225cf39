#include "zeb_a_ib_aux.h"

// The build system passes its facts to this file alone (CMakeLists.txt), so a
// change of compiler or flags rebuilds one object.
#ifndef ZEB_BUILD_VERSION
#define ZEB_BUILD_VERSION ""
#endif
#ifndef ZEB_BUILD_DATE
#define ZEB_BUILD_DATE ""
#endif
#ifndef ZEB_BUILD_CXX
#define ZEB_BUILD_CXX ""
#endif
#ifndef ZEB_BUILD_FORTRAN
#define ZEB_BUILD_FORTRAN ""
#endif
#ifndef ZEB_BUILD_FLAGS
#define ZEB_BUILD_FLAGS ""
#endif
#ifndef ZEB_BUILD_TYPE
#define ZEB_BUILD_TYPE ""
#endif
#ifndef ZEB_BUILD_SYSTEM
#define ZEB_BUILD_SYSTEM ""
#endif
#ifndef ZEB_BUILD_SYSTEM_VERSION
#define ZEB_BUILD_SYSTEM_VERSION ""
#endif
#ifndef ZEB_BUILD_PROCESSOR
#define ZEB_BUILD_PROCESSOR ""
#endif
#ifndef ZEB_BUILD_CPU
#define ZEB_BUILD_CPU ""
#endif

const a00_build_facts& a00abyn() {
  static constexpr a00_build_facts facts{
      ZEB_BUILD_VERSION, ZEB_BUILD_DATE,   ZEB_BUILD_CXX,
      ZEB_BUILD_FORTRAN, ZEB_BUILD_FLAGS,  ZEB_BUILD_TYPE,
      ZEB_BUILD_SYSTEM,  ZEB_BUILD_SYSTEM_VERSION, ZEB_BUILD_PROCESSOR,
      ZEB_BUILD_CPU};
  return facts;
}
