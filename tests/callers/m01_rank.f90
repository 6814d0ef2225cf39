! Ranking from Fortran: vectors of reals, integers and strings, a caller's
! comparison, rows and columns of matrices. Equal elements keep their index
! order in both directions. Then every failure with IFAIL = -1.
program m01_rank
  use zeb_precisions, only: wp
  use zeb_library, only: m01daf, m01dbf, m01dcf, m01dzf, m01def, m01dff, m01djf, m01dkf
  implicit none
  real(kind=wp) :: rv(7), rm(4,3)
  integer :: iv(7), im(4,3), irank(7), ifail, k
  character(len=4) :: ch(6)
  character(len=256) :: wide(2)
  ! The matrix routines' failures in the order of their tests: M2, M1,
  ! M1 > M2, N1, N2, N1 > N2, M2 > LDM, ORDER.
  integer, parameter :: mm1(8) = (/ 1, 0, 4, 1, 1, 1, 1, 1 /), mm2(8) = (/ 0, 4, 3, 4, 4, 4, 4, 4 /)
  integer, parameter :: nn1(8) = (/ 1, 1, 1, 0, 1, 3, 1, 1 /), nn2(8) = (/ 3, 3, 3, 3, 0, 2, 3, 3 /)
  integer, parameter :: ldms(8) = (/ 4, 4, 4, 4, 4, 4, 3, 4 /)
  character(len=1), parameter :: mord(8) = (/ 'A', 'A', 'A', 'A', 'A', 'A', 'A', 'R' /)
  common /keys/ iv
  interface
    logical function after(i, j)
      integer, intent(in) :: i, j
    end function after
  end interface

  rv = (/ 2.5_wp, -1.0_wp, 2.5_wp, 0.0_wp, -1.0_wp, 2.5_wp, 7.0_wp /)
  ifail = 0
  call m01daf(rv, 1, 7, 'A', irank, ifail)
  write (*, '(A,I2/7I4)') ' m01daf ascending, IFAIL =', ifail, irank
  call m01daf(rv, 1, 7, 'D', irank, ifail)
  write (*, '(A,I2/7I4)') ' m01daf descending, IFAIL =', ifail, irank
  iv = (/ 3, 1, 3, 2, 1, 3, 0 /)
  irank = 0
  call m01dbf(iv, 2, 6, 'd', irank, ifail)
  write (*, '(A,I2/7I4)') ' m01dbf 2:6 descending, IFAIL =', ifail, irank
  call m01dzf(after, 1, 7, irank, ifail)
  write (*, '(A,I2/7I4)') ' m01dzf by the integers, IFAIL =', ifail, irank
  ch = (/ 'xb2 ', 'ya1 ', 'zb1 ', 'wa2 ', 'vb1 ', 'ua1 ' /)
  call m01dcf(ch, 1, 6, 2, 3, 'A', irank, ifail)
  write (*, '(A,I2/6I4)') ' m01dcf on columns 2:3, IFAIL =', ifail, irank(1:6)

  rm = reshape((/ 1.0_wp, 0.0_wp, 1.0_wp, 0.0_wp, &
                  2.0_wp, 5.0_wp, 2.0_wp, 5.0_wp, &
                  3.0_wp, 1.0_wp, 0.0_wp, 1.0_wp /), (/ 4, 3 /))
  im = nint(rm)
  call m01def(rm, 4, 1, 4, 1, 3, 'A', irank, ifail)
  write (*, '(A,I2/4I4)') ' m01def rows 1:4, IFAIL =', ifail, irank(1:4)
  call m01dff(im, 4, 1, 4, 2, 3, 'D', irank, ifail)
  write (*, '(A,I2/4I4)') ' m01dff rows on columns 2:3, descending, IFAIL =', ifail, irank(1:4)
  call m01djf(rm, 4, 2, 4, 1, 3, 'A', irank, ifail)
  write (*, '(A,I2/3I4)') ' m01djf columns on rows 2:4, IFAIL =', ifail, irank(1:3)
  call m01dkf(im, 4, 1, 1, 1, 3, 'D', irank, ifail)
  write (*, '(A,I2/3I4)') ' m01dkf columns on row 1, descending, IFAIL =', ifail, irank(1:3)

  write (*, '(A)') ' --- m01daf M2 = 0, M1 = 0, M1 > M2, ORDER'
  ifail = -1
  call m01daf(rv, 1, 0, 'A', irank, ifail)
  ifail = -1
  call m01daf(rv, 0, 7, 'A', irank, ifail)
  ifail = -1
  call m01daf(rv, 7, 6, 'A', irank, ifail)
  ifail = -1
  call m01daf(rv, 1, 7, 'Z', irank, ifail)
  write (*, '(A)') ' --- m01dbf M2 = 0, M1 = 0, M1 > M2, ORDER'
  ifail = -1
  call m01dbf(iv, 1, -5, 'A', irank, ifail)
  ifail = -1
  call m01dbf(iv, -1, 7, 'A', irank, ifail)
  ifail = -1
  call m01dbf(iv, 3, 2, 'A', irank, ifail)
  ifail = -1
  call m01dbf(iv, 1, 7, '?', irank, ifail)
  write (*, '(A)') ' --- m01dcf M2, M1, M1 > M2, L1, L2, L1 > L2, L2 > LEN, ORDER, LEN > 255'
  ifail = -1
  call m01dcf(ch, 1, 0, 1, 2, 'A', irank, ifail)
  ifail = -1
  call m01dcf(ch, 0, 6, 1, 2, 'A', irank, ifail)
  ifail = -1
  call m01dcf(ch, 6, 1, 1, 2, 'A', irank, ifail)
  ifail = -1
  call m01dcf(ch, 1, 6, 0, 2, 'A', irank, ifail)
  ifail = -1
  call m01dcf(ch, 1, 6, 1, 0, 'A', irank, ifail)
  ifail = -1
  call m01dcf(ch, 1, 6, 3, 2, 'A', irank, ifail)
  ifail = -1
  call m01dcf(ch, 1, 6, 1, 5, 'A', irank, ifail)
  ifail = -1
  call m01dcf(ch, 1, 6, 1, 4, 'x', irank, ifail)
  wide = ' '
  ifail = -1
  call m01dcf(wide, 1, 2, 1, 4, 'A', irank, ifail)
  write (*, '(A,I2)') ' IFAIL =', ifail
  write (*, '(A)') ' --- m01dzf M2 = 0, M1 = 0, M1 > M2'
  ifail = -1
  call m01dzf(after, 1, 0, irank, ifail)
  ifail = -1
  call m01dzf(after, 0, 1, irank, ifail)
  ifail = -1
  call m01dzf(after, 2, 1, irank, ifail)
  do k = 1, 8
    write (*, '(A,5I3,3A)') ' --- matrix ranks M1, M2, N1, N2, LDM, ORDER =', &
        mm1(k), mm2(k), nn1(k), nn2(k), ldms(k), ' ''', mord(k), ''''
    ifail = -1
    call m01def(rm, ldms(k), mm1(k), mm2(k), nn1(k), nn2(k), mord(k), irank, ifail)
    ifail = -1
    call m01dff(im, ldms(k), mm1(k), mm2(k), nn1(k), nn2(k), mord(k), irank, ifail)
    ifail = -1
    call m01djf(rm, ldms(k), mm1(k), mm2(k), nn1(k), nn2(k), mord(k), irank, ifail)
    ifail = -1
    call m01dkf(im, ldms(k), mm1(k), mm2(k), nn1(k), nn2(k), mord(k), irank, ifail)
  end do
end program m01_rank

! Element I comes after element J when its integer key is greater.
logical function after(i, j)
  implicit none
  integer, intent(in) :: i, j
  integer :: keys(7)
  common /keys/ keys
  after = keys(i) > keys(j)
end function after
