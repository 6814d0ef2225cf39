! IFAIL = 0 on a failing call: the messages, the exit lines and a hard
! stop with status 0; nothing after the call is printed.
program hard_0
  implicit none
  double precision s14abf
  external s14abf
  double precision y
  integer ifail
  write (*, '(A)') ' Calling s14abf with IFAIL = 0'
  ifail = 0
  y = s14abf(-1.0d0, ifail)
  write (*, '(A)') ' not reached'
end program hard_0
