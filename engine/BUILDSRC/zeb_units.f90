! Unit I/O of the platform layer. Every record the library writes, every flush
! and every inquiry goes through the Fortran runtime here, so that the library
! and a Fortran caller share unit numbers, buffers and the order of output.
! All entries are called from C++ and never stop the program on an I/O error.

subroutine zeb_unit_write(unit, text, n) bind(c, name="zeb_unit_write")
  use, intrinsic :: iso_c_binding, only: c_int, c_char
  implicit none
  integer(c_int), value :: unit, n
  character(kind=c_char), intent(in) :: text(*)
  integer :: ios
  write (unit, '(*(A))', iostat=ios) text(1:n)
end subroutine zeb_unit_write

subroutine zeb_unit_flush(unit) bind(c, name="zeb_unit_flush")
  use, intrinsic :: iso_c_binding, only: c_int
  implicit none
  integer(c_int), value :: unit
  integer :: ios
  logical :: op
  inquire (unit=unit, opened=op, iostat=ios)
  if (ios == 0 .and. op) flush (unit, iostat=ios)
end subroutine zeb_unit_flush

function zeb_unit_isopen(unit) bind(c, name="zeb_unit_isopen") result(res)
  use, intrinsic :: iso_c_binding, only: c_int
  implicit none
  integer(c_int), value :: unit
  integer(c_int) :: res
  integer :: ios
  logical :: op
  op = .false.
  inquire (unit=unit, opened=op, iostat=ios)
  res = 0
  if (ios == 0 .and. op) res = 1
end function zeb_unit_isopen
