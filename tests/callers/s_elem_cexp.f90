! S01EAF called as an EXTERNAL COMPLEX(KIND=8) function: the result comes
! back in the two floating-point return registers as a Fortran complex
! function returns it. Then each of the five failures with IFAIL = -1, in the
! order of the routine's tests, with the parts that can still be computed.
program s_elem_cexp
  implicit none
  complex(kind=8) s01eaf
  external s01eaf
  complex(kind=8) z, w
  integer ifail

  call head('Z = (1, pi/4): e (cos pi/4 + i sin pi/4)')
  ifail = -1
  w = s01eaf((1.0d0, 0.78539816339744831d0), ifail)
  call show(w, ifail)
  call head('Z = (-2.5, -3): a value held in a variable and passed on')
  z = (-2.5d0, -3.0d0)
  ifail = 0
  w = s01eaf(z, ifail)
  call show(w, ifail)
  write (*, '(A,L1)') ' Z unchanged: ', z == (-2.5d0, -3.0d0)

  call head('code 5: abs(Im Z) beyond 1/x02ajf')
  ifail = -1
  w = s01eaf((0.0d0, 1.0d16), ifail)
  call show(w, ifail)
  call head('code 3: both parts overflow')
  ifail = -1
  w = s01eaf((800.0d0, 0.7d0), ifail)
  call show(w, ifail)
  call head('code 1: the real part overflows, sin(Im Z) small')
  ifail = -1
  w = s01eaf((710.0d0, 3.141592653589793d0), ifail)
  call show(w, ifail)
  call head('code 2: the imaginary part overflows, cos(Im Z) small')
  ifail = -1
  w = s01eaf((710.0d0, 1.5707963267948966d0), ifail)
  call show(w, ifail)
  call head('code 4: abs(Im Z) beyond the half-precision limit')
  ifail = -1
  w = s01eaf((0.0d0, 1.0d8), ifail)
  call show(w, ifail)
  call head('within the limits: abs(Im Z) = 9.0E7')
  ifail = -1
  w = s01eaf((0.0d0, 9.0d7), ifail)
  call show(w, ifail)
  call head('Re Z = 708.5, past ln(1/x02amf), with both parts finite')
  ifail = -1
  w = s01eaf((708.5d0, 0.78539816339744831d0), ifail)
  call show(w, ifail)
  call head('Re Z = 709, Im Z = pi/4: past the limit for both parts')
  ifail = -1
  w = s01eaf((709.0d0, 0.78539816339744831d0), ifail)
  call show(w, ifail)

contains

  subroutine head(text)
    character(len=*), intent(in) :: text
    write (*, '(A)') ' --- ' // text
  end subroutine head

  subroutine show(v, code)
    complex(kind=8), intent(in) :: v
    integer, intent(in) :: code
    write (*, '(A,I2,A,ES23.14E3,A,ES23.14E3,A)') ' IFAIL =', code, ', value = (', &
      real(v), ',', aimag(v), ')'
  end subroutine show

end program s_elem_cexp
