! The call of s14aaf at X = 171.0: with IFAIL = 1 nothing is printed and the
! code and value come back; with IFAIL = 0 the message and the exit lines are
! printed and the program stops with status 0.
program walkthrough
  implicit none
  double precision s14aaf
  external s14aaf
  double precision x, y
  integer ifail
  x = 171.0d0
  ifail = 1
  y = s14aaf(x, ifail)
  write (*, '(A,I2)') ' IFAIL on exit =', ifail
  write (*, '(A,ES12.4)') ' value returned =', y
  write (*, '(A)') ' Again with IFAIL = 0:'
  ifail = 0
  y = s14aaf(x, ifail)
  write (*, '(A)') ' not reached'
end program walkthrough
