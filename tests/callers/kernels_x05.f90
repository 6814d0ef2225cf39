! Dates from Fortran: the texts of x05abf (a CHARACTER*30 function), their
! order by x05acf, the time between two dates by x05adf with its two failures
! reported under IFAIL = -1, and the clock of x05aaf and x05baf.
program kernels_x05
  implicit none
  character(len=30) x05abf
  integer x05acf
  double precision x05baf
  external x05abf, x05acf, x05adf, x05aaf, x05baf
  integer itime(7), itime2(7), ifail
  double precision days, secs, cpu
  character(len=30) t1, t2

  itime = (/ 2024, 2, 29, 13, 5, 9, 7 /)
  t1 = x05abf(itime)
  write (*, '(1X,3A)') '"', t1, '"'
  itime2 = (/ 2023, 2, 29, 0, 0, 0, 0 /)
  t2 = x05abf(itime2)
  write (*, '(1X,3A)') '"', t2, '"'
  itime2 = (/ 2000, 12, 31, 23, 59, 59, 999 /)
  t2 = x05abf(itime2)
  write (*, '(1X,3A)') '"', t2, '"'
  write (*, '(1X,A,3I3)') 'x05acf:', x05acf(t1, t2), x05acf(t2, t1), x05acf(t1, t1)

  write (*, '(1X,A)') '--- x05adf from the last date to the first'
  ifail = -1
  call x05adf(itime2, itime, days, secs, ifail)
  write (*, '(1X,A,F10.1,A,F11.3,A,I2)') 'DAYS =', days, ', SECS =', secs, ', IFAIL =', ifail
  write (*, '(1X,A)') '--- x05adf with a month of 13 in ITIMEF'
  itime2(2) = 13
  ifail = -1
  call x05adf(itime2, itime, days, secs, ifail)
  write (*, '(1X,A,I2)') 'IFAIL =', ifail
  write (*, '(1X,A)') '--- x05adf with an hour of 24 in ITIMES'
  itime2(2) = 12
  itime(4) = 24
  ifail = -1
  call x05adf(itime2, itime, days, secs, ifail)
  write (*, '(1X,A,I2)') 'IFAIL =', ifail

  call x05aaf(itime)
  t1 = x05abf(itime)
  write (*, '(1X,A,L2)') 'the clock gives a legal date:', t1(1:2) /= '**'
  cpu = x05baf()
  write (*, '(1X,A,L2)') 'processor time is not negative:', cpu >= 0.0d0
end program kernels_x05
