! x03aaf in basic and extended precision on a sum whose double result loses
! every digit, with strides; its two kinds of failure under IFAIL = -1; the
! complex x03abf.
program kernels_x03
  implicit none
  external x03aaf, x03abf
  double precision a(5), b(7), d1, d2
  complex(kind(1.0d0)) ca(3), cb(2), cd1, cd2
  integer ifail

  a = (/ 1.0d16, 9.0d0, 1.0d0, 9.0d0, -1.0d16 /)
  b = (/ 1.0d0, 9.0d0, 9.0d0, 1.0d0, 9.0d0, 9.0d0, 1.0d0 /)
  ifail = 0
  call x03aaf(a, 5, b, 7, 3, 2, 3, 0.5d0, 0.0d0, d1, d2, .false., ifail)
  write (*, '(1X,A,2F8.3,I3)') 'basic:   ', d1, d2, ifail
  call x03aaf(a, 5, b, 7, 3, 2, 3, 0.5d0, 0.0d0, d1, d2, .true., ifail)
  write (*, '(1X,A,2F8.3,I3)') 'extended:', d1, d2, ifail
  ifail = -1
  call x03aaf(a, 5, b, 7, 3, 0, 3, 0.0d0, 0.0d0, d1, d2, .true., ifail)
  write (*, '(1X,A,I2)') 'IFAIL =', ifail
  ifail = -1
  call x03aaf(a, 5, b, 6, 3, 2, 3, 0.0d0, 0.0d0, d1, d2, .false., ifail)
  write (*, '(1X,A,I2)') 'IFAIL =', ifail

  ca = (/ (1.0d0, 2.0d0), (9.0d0, 9.0d0), (3.0d0, -1.0d0) /)
  cb = (/ (0.0d0, 1.0d0), (2.0d0, 0.0d0) /)
  ifail = 0
  call x03abf(ca, 3, cb, 2, 2, 2, 1, (0.5d0, -0.5d0), (0.0d0, 0.0d0), cd1, cd2, .true., ifail)
  write (*, '(1X,A,4F8.3,I3)') 'complex: ', cd1, cd2, ifail
end program kernels_x03
