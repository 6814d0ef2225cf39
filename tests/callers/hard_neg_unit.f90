! A negative error unit silences everything, but IFAIL = 0 still stops.
program hard_neg_unit
  implicit none
  double precision s14aaf
  external s14aaf, x04aaf
  double precision y
  integer ifail, nerr
  write (*, '(A)') ' Error unit -1, then s14aaf(171.0) with IFAIL = 0'
  nerr = -1
  call x04aaf(1, nerr)
  ifail = 0
  y = s14aaf(171.0d0, ifail)
  write (*, '(A)') ' not reached'
end program hard_neg_unit
