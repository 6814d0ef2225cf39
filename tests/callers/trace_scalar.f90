! The call trace on scalar routines: off, then on (mode 1) for a failing and a
! successful call, then off again. A failing traced call shows its ERRBUF.
program trace_scalar
  implicit none
  double precision s14aaf, s15adf
  external s14aaf, s15adf, y90gcft
  double precision y
  integer ifail
  ifail = 1
  y = s14aaf(2.0d0, ifail)
  write (*, '(A)') ' --- trace on'
  call y90gcft(1)
  ifail = -1
  y = s14aaf(171.0d0, ifail)
  ifail = 0
  y = s15adf(0.0d0, ifail)
  call y90gcft(0)
  write (*, '(A)') ' --- trace off'
  ifail = 1
  y = s14aaf(3.0d0, ifail)
  write (*, '(A,F6.2)') ' gamma(3) =', y
end program trace_scalar
