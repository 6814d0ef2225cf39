! S14ACF, S14ADF and S14AEF called as EXTERNAL routines: values at a few
! points, then every failure with IFAIL = -1 in the order of each routine's
! tests, with the value or array that comes back.
program s_gamma_psi
  implicit none
  double precision s14acf, s14aef
  external s14acf, s14adf, s14aef
  double precision ans(4)
  double precision v
  integer ifail, i

  call head('S14ACF: psi(x) - ln x at 1, 0.5, 1e6')
  ifail = -1
  v = s14acf(1.0d0, ifail)
  call show(v, ifail)
  v = s14acf(0.5d0, ifail)
  call show(v, ifail)
  v = s14acf(1.0d6, ifail)
  call show(v, ifail)
  call head('S14ACF code 1: X = 0')
  ifail = -1
  v = s14acf(0.0d0, ifail)
  call show(v, ifail)
  call head('S14ACF code 2: ln x - psi(x) ~ 1/(2x) below the normal range')
  ifail = -1
  v = s14acf(1.0d308, ifail)
  call show(v, ifail)
  call head('S14ACF code 3: -1/x beyond the largest real')
  ifail = -1
  v = s14acf(1.0d-320, ifail)
  call show(v, ifail)

  call head('S14ADF: orders 0 to 3 at X = 1: -psi(1), zeta(2), zeta(3), zeta(4)')
  ifail = -1
  call s14adf(1.0d0, 0, 4, ans, ifail)
  call showa(ans, 4, ifail)
  call head('S14ADF code 1: X = -1')
  ans = 7.0d0
  ifail = -1
  call s14adf(-1.0d0, 0, 4, ans, ifail)
  call showa(ans, 4, ifail)
  call head('S14ADF code 2: N = -1')
  ifail = -1
  call s14adf(1.0d0, -1, 4, ans, ifail)
  call showa(ans, 4, ifail)
  call head('S14ADF code 3: M = 0')
  ifail = -1
  call s14adf(1.0d0, 0, 0, ans, ifail)
  call showa(ans, 4, ifail)
  call head('S14ADF code 4: orders 1 to 4 at X = 1e300, the last three underflow')
  ifail = -1
  call s14adf(1.0d300, 1, 4, ans, ifail)
  call showa(ans, 4, ifail)
  call head('S14ADF code 5: order 2 at X = 1e-200 overflows')
  ifail = -1
  call s14adf(1.0d-200, 1, 2, ans, ifail)
  call showa(ans, 2, ifail)
  call head('S14ADF code 6: N + M - 1 beyond the integers')
  ans = 7.0d0
  ifail = -1
  call s14adf(1.0d0, 2147483647, 2, ans, ifail)
  call showa(ans, 2, ifail)

  call head('S14AEF: psi^(K)(x) for K = 0..6 at 2.5 and -2.5')
  do i = 0, 6
    ifail = -1
    v = s14aef(2.5d0, i, ifail)
    call show(v, ifail)
    v = s14aef(-2.5d0, i, ifail)
    call show(v, ifail)
  end do
  call head('S14AEF code 1: K = -1')
  ifail = -1
  v = s14aef(1.0d0, -1, ifail)
  call show(v, ifail)
  call head('S14AEF code 2: K = 7')
  ifail = -1
  v = s14aef(1.0d0, 7, ifail)
  call show(v, ifail)
  call head('S14AEF code 3: X = -3, a pole')
  ifail = -1
  v = s14aef(-3.0d0, 2, ifail)
  call show(v, ifail)
  call head('S14AEF code 3: X = 0')
  ifail = -1
  v = s14aef(0.0d0, 0, ifail)
  call show(v, ifail)
  call head('S14AEF code 3: X = -1e-50, K = 6, next to the pole at 0')
  ifail = -1
  v = s14aef(-1.0d-50, 6, ifail)
  call show(v, ifail)
  call head('S14AEF: X = -7 + 8.9e-16, K = 6, close to a pole but in range')
  ifail = -1
  v = s14aef(-7.0d0 + 1.0d-15, 6, ifail)
  call show(v, ifail)
  call head('S14AEF code 4: X = 1e-50, K = 6: 720/x^7 overflows')
  ifail = -1
  v = s14aef(1.0d-50, 6, ifail)
  call show(v, ifail)
  call head('S14AEF: K = 6 at 1e-40 is still in range')
  ifail = -1
  v = s14aef(1.0d-40, 6, ifail)
  call show(v, ifail)

contains

  subroutine head(text)
    character(len=*), intent(in) :: text
    write (*, '(A,A)') ' --- ', text
  end subroutine head

  subroutine show(value, code)
    double precision, intent(in) :: value
    integer, intent(in) :: code
    write (*, '(A,I0,A,ES22.13E3)') ' IFAIL = ', code, ', value = ', value
  end subroutine show

  subroutine showa(a, n, code)
    integer, intent(in) :: n, code
    double precision, intent(in) :: a(n)
    write (*, '(A,I0,A,4ES22.13E3)') ' IFAIL = ', code, ', ANS = ', a(1:n)
  end subroutine showa

end program s_gamma_psi
