! A Fortran caller of ZEB: the gamma function and the complementary error
! function for a few values, then a failing call with IFAIL = -1 (soft
! failure: the messages are printed and control returns).
program demo_fortran
  use zeb_precisions, only: wp
  use zeb_library, only: s14aaf, s15adf
  implicit none
  real(kind=wp), parameter :: xs(5) = [0.5_wp, 1.0_wp, 4.5_wp, 10.0_wp, -1.5_wp]
  real(kind=wp) :: y
  integer :: i, ifail

  write (*, '(A)') ' Gamma function, s14aaf'
  do i = 1, size(xs)
    ifail = 0
    y = s14aaf(xs(i), ifail)
    write (*, '(3X,A,F6.2,A,ES23.15E3)') 'gamma(', xs(i), ') = ', y
  end do

  write (*, '(/A)') ' Complementary error function, s15adf'
  do i = 1, size(xs)
    ifail = 0
    y = s15adf(xs(i), ifail)
    write (*, '(3X,A,F6.2,A,ES23.15E3)') 'erfc(', xs(i), ') = ', y
  end do

  write (*, '(/A)') ' A soft failure: s14aaf(-3.0) with IFAIL = -1'
  ifail = -1
  y = s14aaf(-3.0_wp, ifail)
  write (*, '(3X,A,I2,A,ES12.4)') 'IFAIL on exit = ', ifail, ', value returned = ', y
end program demo_fortran
