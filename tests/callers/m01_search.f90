! Binary search from Fortran: the index of the last element at most ITEM,
! M1-1 below the first; character items compare as Fortran texts. Then the
! failures with IFAIL = -1 (checked only when VALID is false).
program m01_search
  use zeb_precisions, only: wp
  use zeb_library, only: m01naf, m01nbf, m01ncf
  implicit none
  real(kind=wp) :: rv(6)
  integer :: iv(6), ifail, k, idx
  character(len=4) :: ch(5)
  character(len=256) :: wide(2)
  real(kind=wp), parameter :: items(5) = (/ -3.0_wp, 1.0_wp, 1.5_wp, 7.0_wp, 99.0_wp /)

  rv = (/ -2.0_wp, 1.0_wp, 1.0_wp, 4.0_wp, 7.0_wp, 9.0_wp /)
  iv = nint(rv)
  ch = (/ 'ant ', 'bee ', 'bee ', 'cat ', 'dog ' /)
  do k = 1, 5
    ifail = 0
    idx = m01naf(.false., rv, 2, 6, items(k), ifail)
    write (*, '(A,F6.1,A,I3,A,I2)') ' m01naf ITEM =', items(k), ': ', idx, ', IFAIL =', ifail
    idx = m01nbf(.true., iv, 1, 6, nint(items(k)), ifail)
    write (*, '(A,I6,A,I3,A,I2)') ' m01nbf ITEM =', nint(items(k)), ': ', idx, ', IFAIL =', ifail
  end do
  write (*, '(A,5I3)') ' m01ncf aardvark, bee, bee (long), cow, zebra:', &
      m01ncf(.false., ch, 1, 5, 'aardvark', ifail), m01ncf(.false., ch, 1, 5, 'bee', ifail), &
      m01ncf(.true., ch, 1, 5, 'bee         ', ifail), m01ncf(.true., ch, 1, 5, 'cow', ifail), &
      m01ncf(.true., ch, 1, 5, 'zebra', ifail)

  write (*, '(A)') ' --- m01naf M2 = 0, M1 = 0, M1 > M2, unsorted'
  ifail = -1
  idx = m01naf(.false., rv, 1, 0, 1.0_wp, ifail)
  ifail = -1
  idx = m01naf(.false., rv, 0, 6, 1.0_wp, ifail)
  ifail = -1
  idx = m01naf(.false., rv, 4, 3, 1.0_wp, ifail)
  rv(5) = 0.0_wp
  ifail = -1
  idx = m01naf(.false., rv, 1, 6, 1.0_wp, ifail)
  write (*, '(A,I3,A,I2)') ' result', idx, ', IFAIL =', ifail
  idx = m01naf(.true., rv, 4, 3, 1.0_wp, ifail)
  write (*, '(A,I3,A,I2)') ' VALID true, empty range: result', idx, ', IFAIL =', ifail
  write (*, '(A)') ' --- m01nbf M2 = 0, M1 = 0, M1 > M2, unsorted'
  ifail = -1
  idx = m01nbf(.false., iv, 1, -1, 1, ifail)
  ifail = -1
  idx = m01nbf(.false., iv, -4, 6, 1, ifail)
  ifail = -1
  idx = m01nbf(.false., iv, 6, 5, 1, ifail)
  iv(2) = 5
  ifail = -1
  idx = m01nbf(.false., iv, 1, 6, 1, ifail)
  write (*, '(A)') ' --- m01ncf M2 = 0, M1 = 0, M1 > M2, length above 255, unsorted'
  ifail = -1
  idx = m01ncf(.false., ch, 1, 0, 'cat', ifail)
  ifail = -1
  idx = m01ncf(.false., ch, 0, 5, 'cat', ifail)
  ifail = -1
  idx = m01ncf(.false., ch, 3, 2, 'cat', ifail)
  wide = ' '
  ifail = -1
  idx = m01ncf(.true., wide, 1, 2, 'cat', ifail)
  ch(1) = 'eel'
  ifail = -1
  idx = m01ncf(.false., ch, 1, 5, 'cat', ifail)
  write (*, '(A,I2)') ' IFAIL =', ifail
end program m01_search
