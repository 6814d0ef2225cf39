! File I/O of the platform layer: reading a record from a unit, opening and
! closing files on units, and the records of unformatted direct-access files.
! Everything goes through the Fortran runtime so that a unit the caller opened
! and the library's units are the same. Every statement takes IOSTAT: an I/O
! error is reported to the caller as a status, the program never stops here.
!
! Statuses returned to C++: 0 success, 1 end of file (reads only), 2 any
! other failure of the runtime.

! Reads one record with the format "(A)" into text(1:n), blank padded. The
! text is left unchanged unless the read succeeds. A unit that is not
! connected is a failure: the runtime would otherwise connect it to a file
! of its own naming and read nothing.
function zeb_unit_read(unit, text, n) bind(c, name="zeb_unit_read") result(res)
  use, intrinsic :: iso_c_binding, only: c_int, c_char
  use, intrinsic :: iso_fortran_env, only: iostat_end
  implicit none
  integer(c_int), value :: unit, n
  character(kind=c_char), intent(inout) :: text(*)
  integer(c_int) :: res
  character(len=max(n, 0)) :: line
  integer :: ios, i
  logical :: op
  res = 2
  op = .false.
  inquire (unit=unit, opened=op, iostat=ios)
  if (ios /= 0 .or. .not. op) return
  read (unit, '(A)', iostat=ios) line
  if (ios == iostat_end) then
    res = 1
  else if (ios == 0) then
    do i = 1, n
      text(i) = line(i:i)
    end do
    res = 0
  end if
end function zeb_unit_read

! Opens the file name(1:nlen) on a unit for formatted sequential I/O.
! mode 0: an existing file, for reading; 1: for writing, from its start;
! 2: for appending at its end. The caller has checked the mode.
function zeb_file_open(unit, name, nlen, mode) bind(c, name="zeb_file_open") result(res)
  use, intrinsic :: iso_c_binding, only: c_int, c_char
  implicit none
  integer(c_int), value :: unit, nlen, mode
  character(kind=c_char), intent(in) :: name(*)
  integer(c_int) :: res
  character(len=max(nlen, 0)) :: file
  integer :: ios, i
  do i = 1, nlen
    file(i:i) = name(i)
  end do
  ios = 1
  select case (mode)
  case (0)
    open (unit=unit, file=file, status='OLD', action='READ', iostat=ios)
  case (1)
    open (unit=unit, file=file, action='WRITE', iostat=ios)
  case (2)
    open (unit=unit, file=file, action='WRITE', position='APPEND', iostat=ios)
  end select
  res = 0
  if (ios /= 0) res = 2
end function zeb_file_open

! Closes a unit. Closing a unit that is not connected is no error.
function zeb_file_close(unit) bind(c, name="zeb_file_close") result(res)
  use, intrinsic :: iso_c_binding, only: c_int
  implicit none
  integer(c_int), value :: unit
  integer(c_int) :: res
  integer :: ios
  close (unit=unit, iostat=ios)
  res = 0
  if (ios /= 0) res = 2
end function zeb_file_close

! Opens the file name(1:nlen) on a unit for unformatted direct access with
! records of recl bytes. mode 0: an existing file, for reading; 1: for
! writing, the file created if it does not exist.
function zeb_file_open_direct(unit, name, nlen, mode, recl) &
    bind(c, name="zeb_file_open_direct") result(res)
  use, intrinsic :: iso_c_binding, only: c_int, c_char
  implicit none
  integer(c_int), value :: unit, nlen, mode, recl
  character(kind=c_char), intent(in) :: name(*)
  integer(c_int) :: res
  character(len=max(nlen, 0)) :: file
  integer :: ios, i
  do i = 1, nlen
    file(i:i) = name(i)
  end do
  ios = 1
  select case (mode)
  case (0)
    open (unit=unit, file=file, status='OLD', access='direct', &
          form='unformatted', action='read', recl=recl, iostat=ios)
  case (1)
    open (unit=unit, file=file, access='direct', form='unformatted', &
          action='write', recl=recl, iostat=ios)
  end select
  res = 0
  if (ios /= 0) res = 2
end function zeb_file_open_direct

! Writes bytes(1:n) as record rec of a direct-access unit.
function zeb_direct_write(unit, rec, bytes, n) bind(c, name="zeb_direct_write") result(res)
  use, intrinsic :: iso_c_binding, only: c_int, c_signed_char
  implicit none
  integer(c_int), value :: unit, rec, n
  integer(c_signed_char), intent(in) :: bytes(*)
  integer(c_int) :: res
  integer :: ios
  write (unit, rec=rec, iostat=ios) bytes(1:n)
  res = 0
  if (ios /= 0) res = 2
end function zeb_direct_write

! Reads record rec of a direct-access unit into bytes(1:n). A record past
! the end of the file is end of file.
function zeb_direct_read(unit, rec, bytes, n) bind(c, name="zeb_direct_read") result(res)
  use, intrinsic :: iso_c_binding, only: c_int, c_signed_char
  use, intrinsic :: iso_fortran_env, only: iostat_end
  implicit none
  integer(c_int), value :: unit, rec, n
  integer(c_signed_char), intent(inout) :: bytes(*)
  integer(c_int) :: res
  integer :: ios
  read (unit, rec=rec, iostat=ios) bytes(1:n)
  res = 0
  if (ios == iostat_end) then
    res = 1
  else if (ios /= 0) then
    res = 2
  end if
end function zeb_direct_read
