! The failures of the real elementary functions of chapter s, called as
! EXTERNAL functions with IFAIL = -1: each message prints, control returns,
! and the value the routine defines comes back with the code. The routines
! that cannot fail set IFAIL to 0.
program s_elem_fail
  implicit none
  double precision s07aaf, s09aaf, s09abf, s10aaf, s10abf, s10acf
  double precision s11aaf, s11abf, s11acf, s13acf, s13adf
  external s07aaf, s09aaf, s09abf, s10aaf, s10abf, s10acf
  external s11aaf, s11abf, s11acf, s13acf, s13adf
  double precision y
  integer ifail

  call head('S07AAF, X = 1.0E13 (the largest allowed)')
  ifail = -1
  y = s07aaf(1.0d13, ifail)
  call show(y, ifail)
  call head('S07AAF, X = -2.0E13')
  ifail = -1
  y = s07aaf(-2.0d13, ifail)
  call show(y, ifail)
  call head('S07AAF, X = pi/2 rounded (too close to a pole)')
  ifail = -1
  y = s07aaf(1.5707963267948966d0, ifail)
  call show(y, ifail)
  call head('S07AAF, X = -3 pi/2 rounded')
  ifail = -1
  y = s07aaf(-4.71238898038469d0, ifail)
  call show(y, ifail)

  call head('S09AAF, X = 1.0 and X = 1.5')
  ifail = -1
  y = s09aaf(1.0d0, ifail)
  call show(y, ifail)
  ifail = -1
  y = s09aaf(1.5d0, ifail)
  call show(y, ifail)
  call head('S09ABF, X = -1.0 and X = -1.0000000000000002')
  ifail = -1
  y = s09abf(-1.0d0, ifail)
  call show(y, ifail)
  ifail = -1
  y = s09abf(-1.0000000000000002d0, ifail)
  call show(y, ifail)

  call head('S10AAF, X = -20.0 (cannot fail)')
  ifail = -1
  y = s10aaf(-20.0d0, ifail)
  call show(y, ifail)
  call head('S10ABF, X = 708.0 and X = -708.5')
  ifail = -1
  y = s10abf(708.0d0, ifail)
  call show(y, ifail)
  ifail = -1
  y = s10abf(-708.5d0, ifail)
  call show(y, ifail)
  call head('S10ACF, X = -709.0')
  ifail = -1
  y = s10acf(-709.0d0, ifail)
  call show(y, ifail)

  call head('S11AAF, X = 1.0 and X = -0.5')
  ifail = -1
  y = s11aaf(1.0d0, ifail)
  call show(y, ifail)
  ifail = -1
  y = s11aaf(-0.5d0, ifail)
  call show(y, ifail)
  call head('S11ABF, X = -1.0E300 (cannot fail)')
  ifail = -1
  y = s11abf(-1.0d300, ifail)
  call show(y, ifail)
  call head('S11ACF, X = 1.0 and X = 0.99')
  ifail = -1
  y = s11acf(1.0d0, ifail)
  call show(y, ifail)
  ifail = -1
  y = s11acf(0.99d0, ifail)
  call show(y, ifail)

  call head('S13ACF, X = 0.0, X = -1.0 and X = 2.0E16')
  ifail = -1
  y = s13acf(0.0d0, ifail)
  call show(y, ifail)
  ifail = -1
  y = s13acf(-1.0d0, ifail)
  call show(y, ifail)
  ifail = -1
  y = s13acf(2.0d16, ifail)
  call show(y, ifail)
  call head('S13ADF, X = -2.0E17 (cannot fail)')
  ifail = -1
  y = s13adf(-2.0d17, ifail)
  call show(y, ifail)

contains

  subroutine head(text)
    character(len=*), intent(in) :: text
    write (*, '(A)') ' --- ' // text
  end subroutine head

  subroutine show(v, code)
    double precision, intent(in) :: v
    integer, intent(in) :: code
    write (*, '(A,I2,A,ES25.16E3)') ' IFAIL =', code, ', value =', v
  end subroutine show

end program s_elem_fail
