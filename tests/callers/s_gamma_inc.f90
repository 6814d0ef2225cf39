! S14BAF and S14AHF called as EXTERNAL routines: the incomplete gamma pair
! in each of its methods, the tolerance, the edges, then every failure with
! IFAIL = -1 in the order of the routine's tests.
program s_gamma_inc
  implicit none
  double precision s14ahf
  external s14baf, s14ahf
  double precision p, q, v
  integer ifail

  call head('S14BAF: X = 0 gives P = 0, Q = 1')
  call inc(2.0d0, 0.0d0, 0.0d0)
  call head('S14BAF: A = 1, Q = exp(-X), by each method')
  call inc(1.0d0, 0.5d0, 0.0d0)
  call inc(1.0d0, 3.0d0, 0.0d0)
  call inc(0.3d0, 0.01d0, 0.0d0)
  call inc(5.0d0, 1.0d0, 0.0d0)
  call head('S14BAF: near the transition, A = 100, X = 90 and 110')
  call inc(100.0d0, 90.0d0, 0.0d0)
  call inc(100.0d0, 110.0d0, 0.0d0)
  call head('S14BAF: TOL = 1e-6 stops the series sooner')
  call inc(5.0d0, 1.0d0, 1.0d-6)
  call head('S14BAF: A = 1e306, beyond ln gamma: the step at X = A')
  call inc(1.0d306, 1.0d300, 0.0d0)
  call head('S14BAF: the tails underflow and come back 0 or gradually')
  call inc(10.0d0, 1.0d-40, 0.0d0)
  call inc(2.0d0, 740.0d0, 0.0d0)
  call head('S14BAF code 1: A = 0')
  p = 7.0d0
  q = 7.0d0
  ifail = -1
  call s14baf(0.0d0, 1.0d0, 0.0d0, p, q, ifail)
  call show2(p, q, ifail)
  call head('S14BAF code 2: X = -1')
  ifail = -1
  call s14baf(1.0d0, -1.0d0, 0.0d0, p, q, ifail)
  call show2(p, q, ifail)

  call head('S14AHF: at 1, 0.5, 15, 1e10')
  ifail = -1
  v = s14ahf(1.0d0, ifail)
  call show(v, ifail)
  v = s14ahf(0.5d0, ifail)
  call show(v, ifail)
  v = s14ahf(15.0d0, ifail)
  call show(v, ifail)
  v = s14ahf(1.0d10, ifail)
  call show(v, ifail)
  call head('S14AHF code 1: X = -2')
  ifail = -1
  v = s14ahf(-2.0d0, ifail)
  call show(v, ifail)

contains

  subroutine inc(a, x, tol)
    double precision, intent(in) :: a, x, tol
    integer :: code
    code = -1
    call s14baf(a, x, tol, p, q, code)
    write (*, '(A,ES10.3,A,ES10.3)') ' A = ', a, ', X = ', x
    call show2(p, q, code)
  end subroutine inc

  subroutine head(text)
    character(len=*), intent(in) :: text
    write (*, '(A,A)') ' --- ', text
  end subroutine head

  subroutine show(value, code)
    double precision, intent(in) :: value
    integer, intent(in) :: code
    write (*, '(A,I0,A,ES22.13E3)') ' IFAIL = ', code, ', value = ', value
  end subroutine show

  subroutine show2(pp, qq, code)
    double precision, intent(in) :: pp, qq
    integer, intent(in) :: code
    write (*, '(A,I0,A,ES22.13E3,A,ES22.13E3)') ' IFAIL = ', code, ', P = ', pp, &
      ', Q = ', qq
  end subroutine show2

end program s_gamma_inc
