! The erf group through the public wrappers, called as EXTERNAL functions and
! subroutines: values at a few arguments of each range, IFAIL set to 0 on
! success, and the complex result of s15ddf returned in registers as a
! COMPLEX(KIND=8) function expects (real part first, both parts printed).
program s_erf_values
  implicit none
  integer, parameter :: wp = kind(1.0d0)
  real(kind=wp), external :: s15aff, s15agf, s20acf, s20adf
  complex(kind=wp), external :: s15ddf
  external :: s20aqf, s20arf, s22aaf
  real(kind=wp) :: x(5), f(5), p(0:4), v(4)
  complex(kind=wp) :: w
  integer :: ifail, k, codes(4)
  real(kind=wp), parameter :: xs(6) = (/ -2.5_wp, 0.25_wp, 1.0_wp, 3.75_wp, 50.0_wp, 1.0e7_wp /)
  complex(kind=wp), parameter :: zs(6) = (/ (1.0_wp, 1.0_wp), (0.0_wp, 2.0_wp), &
      (3.0_wp, 0.0_wp), (-5.0_wp, 0.5_wp), (20.0_wp, 30.0_wp), (1.5_wp, -1.0_wp) /)

  ! Each function is called outside the output statements: a routine that
  ! prints a message must not be called within another WRITE.
  write (*, '(A)') ' Dawson F(x), erfcx(x), S(x), C(x), and the four IFAIL values:'
  do k = 1, size(xs)
    codes = 99
    ifail = -1
    v(1) = s15aff(xs(k), ifail)
    codes(1) = ifail
    ifail = -1
    v(2) = s15agf(xs(k), ifail)
    codes(2) = ifail
    ifail = -1
    v(3) = s20acf(xs(k), ifail)
    codes(3) = ifail
    ifail = -1
    v(4) = s20adf(xs(k), ifail)
    codes(4) = ifail
    write (*, '(1X,ES10.2,4ES22.13,4I2)') xs(k), v, codes
  end do

  write (*, '(A)') ' w(z) = exp(-z^2) erfc(-iz):'
  do k = 1, size(zs)
    ifail = -1
    w = s15ddf(zs(k), ifail)
    write (*, '(1X,2F8.3,2ES22.13,I3)') zs(k), w, ifail
  end do

  write (*, '(A)') ' S and C of a vector:'
  x = (/ -1.0_wp, 0.0_wp, 0.5_wp, 2.0_wp, 10.0_wp /)
  ifail = -1
  call s20aqf(5, x, f, ifail)
  write (*, '(1X,5ES22.13,I3)') f, ifail
  ifail = -1
  call s20arf(5, x, f, ifail)
  write (*, '(1X,5ES22.13,I3)') f, ifail

  write (*, '(A)') ' P(n,m,0.5) for m = 2, n = 2..6, MODE 1 and MODE 2; m = -2:'
  do k = 1, 2
    ifail = -1
    call s22aaf(k, 0.5_wp, 2, 4, p, ifail)
    write (*, '(1X,5ES22.13,I3)') p, ifail
  end do
  ifail = -1
  call s22aaf(1, 0.5_wp, -2, 4, p, ifail)
  write (*, '(1X,5ES22.13,I3)') p, ifail
end program s_erf_values
