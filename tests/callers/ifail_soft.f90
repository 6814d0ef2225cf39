! Every value of IFAIL on entry that returns control, on a failing call of
! s14aaf (X = -3.0, a negative integer, code 4), then the silent success path
! and the failure codes 1 to 3.
program ifail_soft
  implicit none
  double precision s14aaf, s15adf
  external s14aaf, s15adf
  double precision y
  integer ifail, k
  integer, parameter :: modes(11) = (/1, 2, 9, 11, 100, 111, -1, -13, -2, -14, -100/)
  double precision, parameter :: bad(3) = (/171.0d0, -171.0d0, 0.0d0/)

  do k = 1, size(modes)
    write (*, '(A,I5)') ' --- IFAIL on entry:', modes(k)
    ifail = modes(k)
    y = s14aaf(-3.0d0, ifail)
    write (*, '(A,I3,A,ES12.4)') ' IFAIL on exit:', ifail, ', value:', y
  end do

  write (*, '(A)') ' --- success: nothing printed, IFAIL set to 0'
  ifail = -1
  y = s14aaf(4.0d0, ifail)
  write (*, '(A,I3,A,F8.4)') ' IFAIL on exit:', ifail, ', value:', y
  ifail = 111
  y = s15adf(0.0d0, ifail)
  write (*, '(A,I3,A,F8.4)') ' IFAIL on exit:', ifail, ', value:', y

  do k = 1, size(bad)
    write (*, '(A,I5)') ' --- IFAIL on entry:', -1
    ifail = -1
    y = s14aaf(bad(k), ifail)
    write (*, '(A,I3,A,ES24.16)') ' IFAIL on exit:', ifail, ', value:', y
  end do
end program ifail_soft
