! Every failure of s15agf, s15ddf, s20aqf and s22aaf, called with IFAIL = -1
! so that each message prints and control returns; the value returned with
! the failure and IFAIL on exit follow each one. Arrays that a failing call
! must leave alone are preset and printed again.
program s_erf_fail
  implicit none
  integer, parameter :: wp = kind(1.0d0)
  real(kind=wp), external :: s15agf
  complex(kind=wp), external :: s15ddf
  external :: s20aqf, s22aaf
  real(kind=wp) :: v, x(1), f(1), p(0:2)
  complex(kind=wp) :: w
  integer :: ifail, k
  real(kind=wp), parameter :: xa(4) = (/ -26.6_wp, -40.0_wp, 2.53e307_wp, 5.0e7_wp /)
  complex(kind=wp), parameter :: zs(6) = (/ (1.0e8_wp, -1.0e8_wp), (1.0_wp, -30.0_wp), &
      (0.0_wp, -30.0_wp), (0.029088820866572_wp, -27.0_wp), (6900.0_wp, -6900.001_wp), &
      (1.0_wp, -1.0_wp) /)
  integer, parameter :: modes(9) = (/ 0, 3, 1, 1, 1, 2, 1, 1, 2 /)
  real(kind=wp), parameter :: xl(9) = (/ 0.5_wp, 0.5_wp, -1.5_wp, 0.5_wp, 0.5_wp, &
      0.5_wp, 0.5_wp, 0.5_wp, 0.5_wp /)
  ! The fifth M is the most negative integer, whose absolute value the
  ! message must still show.
  integer, parameter :: ms(9) = (/ 0, 0, 0, -28, -huge(1) - 1, 0, 0, 3, -20 /)
  integer, parameter :: nls(9) = (/ 2, 2, 2, 2, 2, -1, 101, -2, 36 /)

  do k = 1, size(xa)
    write (*, '(A,ES12.4)') ' --- s15agf at X =', xa(k)
    ifail = -1
    v = s15agf(xa(k), ifail)
    write (*, '(A,ES23.14,A,I3)') ' value', v, ', IFAIL', ifail
  end do

  do k = 1, size(zs)
    write (*, '(A,2ES12.4)') ' --- s15ddf at Z =', zs(k)
    ifail = -1
    w = s15ddf(zs(k), ifail)
    write (*, '(A,2ES12.4,A,I3)') ' value', w, ', IFAIL', ifail
  end do

  write (*, '(A)') ' --- s20aqf with N = -1 and N = -123456 (wider than an I5 field)'
  f = -7.0_wp
  x = 1.0_wp
  ifail = -1
  call s20aqf(-1, x, f, ifail)
  write (*, '(A,F6.1,A,I3)') ' F unchanged:', f(1), ', IFAIL', ifail
  ifail = -1
  call s20aqf(-123456, x, f, ifail)
  write (*, '(A,F6.1,A,I3)') ' F unchanged:', f(1), ', IFAIL', ifail

  do k = 1, size(modes)
    write (*, '(A,I3,A,F5.1,A,I0,A,I0)') ' --- s22aaf with MODE', modes(k), ', X', xl(k), &
        ', M ', ms(k), ', NL ', nls(k)
    p = -7.0_wp
    ifail = -1
    call s22aaf(modes(k), xl(k), ms(k), nls(k), p, ifail)
    write (*, '(A,3F6.1,A,I3)') ' P unchanged:', p, ', IFAIL', ifail
  end do
end program s_erf_fail
