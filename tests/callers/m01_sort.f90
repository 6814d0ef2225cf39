! In-place sorts from Fortran: m01caf, m01cbf and m01ccf on subranges in both
! orders, then every failure of each with IFAIL = -1, in the order of the
! bodies' tests. A failing call leaves the array as it was.
program m01_sort
  use zeb_precisions, only: wp
  use zeb_library, only: m01caf, m01cbf, m01ccf
  implicit none
  real(kind=wp) :: rv(8)
  integer :: iv(8), ifail, k
  character(len=6) :: ch(5)
  character(len=300) :: wide(2)
  integer, parameter :: m1s(5) = (/ 1, 0, 5, 1, 1 /), m2s(5) = (/ 0, 3, 3, 3, 3 /)
  character(len=1), parameter :: orders(5) = (/ 'A', 'A', 'A', 'X', ' ' /)

  rv = (/ 9.5_wp, 3.0_wp, -1.25_wp, 7.0_wp, 3.0_wp, 0.0_wp, -8.0_wp, 2.0_wp /)
  ifail = 0
  call m01caf(rv, 2, 7, 'A', ifail)
  write (*, '(A,I2/8F7.2)') ' m01caf, 2:7 ascending, IFAIL =', ifail, rv
  call m01caf(rv, 1, 8, 'd', ifail)
  write (*, '(A,I2/8F7.2)') ' m01caf, 1:8 descending, IFAIL =', ifail, rv

  iv = (/ 5, -3, 12, 0, 5, 7, -3, 1 /)
  call m01cbf(iv, 1, 8, 'D', ifail)
  write (*, '(A,I2/8I5)') ' m01cbf, 1:8 descending, IFAIL =', ifail, iv
  call m01cbf(iv, 3, 3, 'A', ifail)
  write (*, '(A,I2/8I5)') ' m01cbf, 3:3, IFAIL =', ifail, iv

  ch = (/ 'delta1', 'alpha9', 'Zulu00', 'bravo5', 'alpha2' /)
  call m01ccf(ch, 1, 5, 1, 6, 'A', ifail)
  write (*, '(A,I2/5(1X,A))') ' m01ccf, columns 1:6 ascending, IFAIL =', ifail, ch
  call m01ccf(ch, 1, 5, 6, 6, 'D', ifail)
  write (*, '(A,I2/5(1X,A))') ' m01ccf, column 6 descending, IFAIL =', ifail, ch

  do k = 1, 5
    write (*, '(A,2I3,3A)') ' --- m01caf M1, M2, ORDER =', m1s(k), m2s(k), ' ''', orders(k), ''''
    ifail = -1
    call m01caf(rv, m1s(k), m2s(k), orders(k), ifail)
    write (*, '(A,I2)') ' IFAIL =', ifail
  end do
  write (*, '(8F7.2)') rv
  do k = 1, 4
    write (*, '(A,2I3,3A)') ' --- m01cbf M1, M2, ORDER =', m1s(k), m2s(k), ' ''', orders(k), ''''
    ifail = -1
    call m01cbf(iv, m1s(k), m2s(k), orders(k), ifail)
    write (*, '(A,I2)') ' IFAIL =', ifail
  end do
  write (*, '(A)') ' --- m01cbf ORDER = ''1'''
  ifail = -1
  call m01cbf(iv, 1, 8, '1', ifail)
  write (*, '(8I5)') iv

  write (*, '(A)') ' --- m01ccf M2 = 0'
  ifail = -1
  call m01ccf(ch, 1, 0, 1, 6, 'A', ifail)
  write (*, '(A)') ' --- m01ccf M1 = 0'
  ifail = -1
  call m01ccf(ch, 0, 5, 1, 6, 'A', ifail)
  write (*, '(A)') ' --- m01ccf M1 > M2'
  ifail = -1
  call m01ccf(ch, 5, 4, 1, 6, 'A', ifail)
  write (*, '(A)') ' --- m01ccf L1 = 0'
  ifail = -1
  call m01ccf(ch, 1, 5, 0, 6, 'A', ifail)
  write (*, '(A)') ' --- m01ccf L2 = -2'
  ifail = -1
  call m01ccf(ch, 1, 5, 1, -2, 'A', ifail)
  write (*, '(A)') ' --- m01ccf L1 > L2'
  ifail = -1
  call m01ccf(ch, 1, 5, 4, 3, 'A', ifail)
  write (*, '(A)') ' --- m01ccf L2 > LEN(CH(1))'
  ifail = -1
  call m01ccf(ch, 1, 5, 1, 7, 'A', ifail)
  write (*, '(A)') ' --- m01ccf ORDER'
  ifail = -1
  call m01ccf(ch, 1, 5, 1, 6, 'b', ifail)
  write (*, '(A,I2)') ' IFAIL =', ifail
  write (*, '(A)') ' --- m01ccf LEN(CH(1)) = 300'
  wide = ' '
  ifail = -1
  call m01ccf(wide, 1, 2, 1, 6, 'A', ifail)
  write (*, '(A,I2)') ' IFAIL =', ifail
  write (*, '(5(1X,A))') ch
end program m01_sort
