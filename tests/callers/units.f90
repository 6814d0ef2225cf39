! The message units: queries and sets by x04aaf and x04abf, the line writer
! x04baf between the caller's own writes, and a negative error unit.
program units
  implicit none
  double precision s14aaf
  external s14aaf, x04aaf, x04abf, x04baf
  double precision y
  integer nerr, nadv, ifail

  call x04aaf(0, nerr)
  call x04abf(0, nadv)
  write (*, '(A,I4,A,I4)') ' error unit:', nerr, ', advisory unit:', nadv
  nerr = 99
  call x04aaf(2, nerr)
  call x04aaf(0, nerr)
  write (*, '(A,I4)') ' error unit after IFLAG = 2:', nerr
  nadv = 9
  call x04abf(1, nadv)
  nadv = 0
  call x04abf(0, nadv)
  write (*, '(A,I4)') ' advisory unit after setting 9:', nadv
  nadv = 6
  call x04abf(1, nadv)

  call x04baf(6, ' a line from x04baf, trailing blanks cut      ')
  write (*, '(A)') ' a line from the caller'
  call x04baf(6, '          ')
  call x04baf(-1, ' a line to unit -1 is discarded')
  write (*, '(A)') ' another line from the caller'

  write (*, '(A)') ' --- error unit -1: a failing call with IFAIL = -1 prints nothing'
  nerr = -1
  call x04aaf(1, nerr)
  ifail = -1
  y = s14aaf(-3.0d0, ifail)
  write (*, '(A,I3)') ' IFAIL on exit:', ifail
  write (*, '(A)') ' --- error unit 6 again'
  nerr = 6
  call x04aaf(1, nerr)
  ifail = -1
  y = s14aaf(-3.0d0, ifail)
  write (*, '(A,I3)') ' IFAIL on exit:', ifail
end program units
