! S14AFF and S14AGF called as EXTERNAL COMPLEX(KIND=8) functions: the result
! comes back in the two floating-point return registers as a Fortran complex
! function returns it. Values at a few points on both sides of the imaginary
! axis, the branch of ln gamma on the negative real axis, then every failure
! with IFAIL = -1 in the order of each routine's tests.
program s_gamma_complex
  implicit none
  complex(kind=8) s14aff, s14agf
  external s14aff, s14agf
  complex(kind=8) z, w
  integer ifail, k

  call head('S14AGF: ln gamma(1) = 0, ln gamma(1/2) = ln sqrt(pi)')
  ifail = -1
  w = s14agf((1.0d0, 0.0d0), ifail)
  call show(w, ifail)
  w = s14agf((0.5d0, 0.0d0), ifail)
  call show(w, ifail)
  call head('S14AGF: Z = (3, 4) and its conjugate')
  z = (3.0d0, 4.0d0)
  w = s14agf(z, ifail)
  call show(w, ifail)
  w = s14agf(conjg(z), ifail)
  call show(w, ifail)
  call head('S14AGF: the cut, continuous from above: -2.5 and -2.5 - 1e-300 i')
  w = s14agf((-2.5d0, 0.0d0), ifail)
  call show(w, ifail)
  w = s14agf((-2.5d0, -1.0d-300), ifail)
  call show(w, ifail)
  call head('S14AGF: Z = (-7.3, 12), by the reflection')
  w = s14agf((-7.3d0, 12.0d0), ifail)
  call show(w, ifail)
  call head('S14AGF code 1: Z = -4, a pole')
  ifail = -1
  w = s14agf((-4.0d0, 0.0d0), ifail)
  call show(w, ifail)
  call head('S14AGF code 2: abs(Z) beyond 2.55e305')
  ifail = -1
  w = s14agf((2.0d305, 2.0d305), ifail)
  call show(w, ifail)

  call head('S14AFF: psi^(K)(Z) at Z = (1.5, -2) and (-3.2, 0.5), K = 0..4')
  do k = 0, 4
    ifail = -1
    w = s14aff((1.5d0, -2.0d0), k, ifail)
    call show(w, ifail)
    w = s14aff((-3.2d0, 0.5d0), k, ifail)
    call show(w, ifail)
  end do
  call head('S14AFF code 2: K = -1')
  ifail = -1
  w = s14aff((1.0d0, 1.0d0), -1, ifail)
  call show(w, ifail)
  call head('S14AFF code 3: K = 5')
  ifail = -1
  w = s14aff((1.0d0, 1.0d0), 5, ifail)
  call show(w, ifail)
  call head('S14AFF code 1: Z = (-2, 0), a pole')
  ifail = -1
  w = s14aff((-2.0d0, 0.0d0), 1, ifail)
  call show(w, ifail)
  call head('S14AFF code 1: Z = (0, 1e-80), K = 4: the pole term overflows')
  ifail = -1
  w = s14aff((0.0d0, 1.0d-80), 4, ifail)
  call show(w, ifail)

contains

  subroutine head(text)
    character(len=*), intent(in) :: text
    write (*, '(A,A)') ' --- ', text
  end subroutine head

  subroutine show(value, code)
    complex(kind=8), intent(in) :: value
    integer, intent(in) :: code
    write (*, '(A,I0,A,ES22.13E3,A,ES22.13E3,A)') ' IFAIL = ', code, ', value = (', &
      real(value), ',', aimag(value), ')'
  end subroutine show

end program s_gamma_complex
