! Permutations from Fortran: inverse, check and cycles of a permutation of
! 3..9, then the failures with IFAIL = -1; IPERM is as it came after each.
program m01_perm
  use zeb_library, only: m01zaf, m01zbf, m01zcf
  implicit none
  integer :: iperm(9), icycl(9), ifail, k
  integer, parameter :: m1s(3) = (/ 1, 0, 9 /), m2s(3) = (/ 0, 9, 3 /)

  iperm = (/ 0, 0, 5, 9, 3, 4, 7, 8, 6 /)
  ifail = 0
  call m01zbf(iperm, 3, 9, ifail)
  write (*, '(A,I2)') ' m01zbf, IFAIL =', ifail
  icycl = 0
  call m01zcf(iperm, 3, 9, icycl, ifail)
  write (*, '(A,I2/9I4)') ' m01zcf, IFAIL =', ifail, icycl
  call m01zaf(iperm, 3, 9, ifail)
  write (*, '(A,I2/9I4)') ' m01zaf, IFAIL =', ifail, iperm
  call m01zaf(iperm, 3, 9, ifail)
  write (*, '(A/9I4)') ' inverted twice:', iperm

  do k = 1, 3
    write (*, '(A,2I3)') ' --- M1, M2 =', m1s(k), m2s(k)
    ifail = -1
    call m01zaf(iperm, m1s(k), m2s(k), ifail)
    ifail = -1
    call m01zbf(iperm, m1s(k), m2s(k), ifail)
    ifail = -1
    call m01zcf(iperm, m1s(k), m2s(k), icycl, ifail)
  end do
  write (*, '(A)') ' --- out of range, then repeated, for each routine'
  iperm(9) = 2
  ifail = -1
  call m01zaf(iperm, 3, 9, ifail)
  ifail = -1
  call m01zbf(iperm, 3, 9, ifail)
  ifail = -1
  call m01zcf(iperm, 3, 9, icycl, ifail)
  iperm(9) = 7
  ifail = -1
  call m01zaf(iperm, 3, 9, ifail)
  ifail = -1
  call m01zbf(iperm, 3, 9, ifail)
  ifail = -1
  call m01zcf(iperm, 3, 9, icycl, ifail)
  write (*, '(A,I2/9I4/9I4)') ' IFAIL =', ifail, iperm, icycl
end program m01_perm
