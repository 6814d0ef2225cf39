! IFAIL = 12 on a failing call: the messages, the exit lines and a hard
! stop with status 0; nothing after the call is printed.
program hard_12
  implicit none
  double precision s13aaf
  external s13aaf
  double precision y
  integer ifail
  write (*, '(A)') ' Calling s13aaf with IFAIL = 12'
  ifail = 12
  y = s13aaf(0.0d0, ifail)
  write (*, '(A)') ' not reached'
end program hard_12
