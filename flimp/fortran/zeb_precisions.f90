! Module zeb_precisions: the kinds of the library's reals.
module zeb_precisions
  implicit none
  private
  !> Kind of the library's reals: IEEE binary64.
  integer, parameter, public :: wp = kind(1.0d0)
  !> Kind of the few single-precision twins: IEEE binary32.
  integer, parameter, public :: sp = kind(1.0e0)
end module zeb_precisions
