! Rearranging into rank order from Fortran: ranks from m01daf put reals,
! integers, strings and complex numbers in order; then the failures with
! IFAIL = -1. A rank vector that is no permutation leaves both the data and
! IRANK as they came.
program m01_rearrange
  use zeb_precisions, only: wp
  use zeb_library, only: m01daf, m01eaf, m01ebf, m01ecf, m01edf
  implicit none
  real(kind=wp) :: rv(6)
  integer :: iv(6), irank(6), ifail, k
  integer, parameter :: m1s(3) = (/ 1, 0, 6 /), m2s(3) = (/ 0, 6, 5 /)
  character(len=3) :: ch(6)
  complex(kind=wp) :: cv(6)
  integer, parameter :: outside(6) = (/ 2, 3, 1, 9, 5, 6 /), twice(6) = (/ 2, 3, 1, 5, 5, 6 /)

  rv = (/ 4.0_wp, -2.0_wp, 8.5_wp, 0.5_wp, -2.0_wp, 1.0_wp /)
  iv = (/ 40, -20, 85, 5, -21, 10 /)
  ch = (/ 'd40', 'b20', 'f85', 'c05', 'a21', 'e10' /)
  cv = cmplx(rv, -rv, kind=wp)
  ifail = 0
  call m01daf(rv, 1, 6, 'A', irank, ifail)
  write (*, '(A/6I4)') ' ranks of RV, ascending:', irank
  call m01eaf(rv, 1, 6, irank, ifail)
  write (*, '(A,I2/6F7.2)') ' m01eaf, IFAIL =', ifail, rv
  call m01ebf(iv, 1, 6, irank, ifail)
  write (*, '(A,I2/6I5)') ' m01ebf, IFAIL =', ifail, iv
  call m01ecf(ch, 1, 6, irank, ifail)
  write (*, '(A,I2/6(1X,A))') ' m01ecf, IFAIL =', ifail, ch
  call m01edf(cv, 1, 6, irank, ifail)
  write (*, '(A,I2/6(1X,F5.1,SP,F5.1,SS,''i''))') ' m01edf, IFAIL =', ifail, cv
  write (*, '(A/6I4)') ' IRANK after the calls:', irank

  do k = 1, 3
    write (*, '(A,2I3)') ' --- M1, M2 =', m1s(k), m2s(k)
    ifail = -1
    call m01eaf(rv, m1s(k), m2s(k), irank, ifail)
    ifail = -1
    call m01ebf(iv, m1s(k), m2s(k), irank, ifail)
    ifail = -1
    call m01ecf(ch, m1s(k), m2s(k), irank, ifail)
    ifail = -1
    call m01edf(cv, m1s(k), m2s(k), irank, ifail)
  end do
  write (*, '(A)') ' --- out of range, then repeated, for each routine'
  irank = outside
  ifail = -1
  call m01eaf(rv, 1, 6, irank, ifail)
  write (*, '(A,I2)') ' IFAIL =', ifail
  irank = twice
  ifail = -1
  call m01eaf(rv, 1, 6, irank, ifail)
  write (*, '(A,I2)') ' IFAIL =', ifail
  irank = outside
  ifail = -1
  call m01ebf(iv, 1, 6, irank, ifail)
  irank = twice
  ifail = -1
  call m01ebf(iv, 1, 6, irank, ifail)
  irank = outside
  ifail = -1
  call m01ecf(ch, 1, 6, irank, ifail)
  irank = twice
  ifail = -1
  call m01ecf(ch, 1, 6, irank, ifail)
  irank = outside
  ifail = -1
  call m01edf(cv, 1, 6, irank, ifail)
  irank = twice
  ifail = -1
  call m01edf(cv, 1, 6, irank, ifail)
  write (*, '(A/6I4)') ' IRANK as it came:', irank
  write (*, '(6F7.2/6I5/6(1X,A))') rv, iv, ch
end program m01_rearrange
