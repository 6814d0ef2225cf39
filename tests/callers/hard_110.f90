! IFAIL = 110 on a failing call: the messages, the exit lines and a hard
! stop with status 0; nothing after the call is printed.
program hard_110
  implicit none
  double precision s14aaf
  external s14aaf
  double precision y
  integer ifail
  write (*, '(A)') ' Calling s14aaf with IFAIL = 110'
  ifail = 110
  y = s14aaf(-171.0d0, ifail)
  write (*, '(A)') ' not reached'
end program hard_110
