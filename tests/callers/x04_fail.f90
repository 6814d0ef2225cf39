! Every failure of x04cbf with IFAIL = -1, in the order of the body's tests,
! then the first-offence rule, a silent failure, and the failures that the
! packed, band and complex printers add.
program x04_fail
  implicit none
  external x04caf, x04cbf, x04cdf, x04cff, x04dbf
  double precision a(3,3), ap(6), ab(3,3)
  complex(kind(1.0d0)) z(3,3)
  character(len=1) rlabs(3), clabs(3)
  integer ifail

  a = 0.5d0
  ap = 0.5d0
  ab = 0.5d0
  z = (0.5d0, 0.5d0)

  write (*, '(A)') ' --- MATRIX'
  ifail = -1
  call x04cbf('X', 'N', 3, 3, a, 3, ' ', 'T', 'I', rlabs, 'I', clabs, 80, 0, ifail)
  write (*, '(A)') ' --- LABROW, LABCOL'
  ifail = -1
  call x04cbf('G', 'N', 3, 3, a, 3, ' ', 'T', 'Z', rlabs, 'I', clabs, 80, 0, ifail)
  write (*, '(A)') ' --- M > LDA'
  ifail = -1
  call x04cbf('G', 'N', 4, 3, a, 3, ' ', 'T', 'I', rlabs, 'I', clabs, 80, 0, ifail)
  write (*, '(A)') ' --- DIAG'
  ifail = -1
  call x04cbf('L', 'X', 3, 3, a, 3, ' ', 'T', 'I', rlabs, 'I', clabs, 80, 0, ifail)
  write (*, '(A)') ' --- FORM'
  ifail = -1
  call x04cbf('G', 'N', 3, 3, a, 3, 'F8', 'T', 'I', rlabs, 'I', clabs, 80, 0, ifail)
  write (*, '(A)') ' --- NCOLS-INDENT'
  ifail = -1
  call x04cbf('G', 'N', 3, 3, a, 3, ' ', 'T', 'I', rlabs, 'I', clabs, 20, 15, ifail)

  write (*, '(A)') ' --- first offence: blank MATRIX before M > LDA'
  ifail = -1
  call x04cbf(' ', 'N', 4, 3, a, 3, ' ', 'T', 'I', rlabs, 'I', clabs, 80, 0, ifail)
  write (*, '(A)') ' --- an integer FORM for reals, a FORM of two records'
  ifail = -1
  call x04cbf('G', 'N', 3, 3, a, 3, 'I5', 'T', 'I', rlabs, 'I', clabs, 80, 0, ifail)
  ifail = -1
  call x04cbf('G', 'N', 3, 3, a, 3, 'F8.4/', 'T', 'I', rlabs, 'I', clabs, 80, 0, ifail)
  write (*, '(A)') ' --- MATLAB with a bad format'
  ifail = -1
  call x04cbf('G', 'N', 3, 3, a, 3, 'MATLAB Q5', 'T', 'I', rlabs, 'I', clabs, 80, 0, ifail)
  write (*, '(A)') ' --- IFAIL = 1: silent'
  ifail = 1
  call x04caf('G', 'N', 3, 3, a, 2, 'T', ifail)
  write (*, '(A,I2)') ' IFAIL:', ifail
  write (*, '(A)') ' --- plain printer'
  ifail = -1
  call x04caf('U', '1', 3, 3, a, 3, 'T', ifail)

  write (*, '(A)') ' --- packed: UPLO, DIAG'
  ifail = -1
  call x04cdf('G', 'N', 3, ap, ' ', 'T', 'I', rlabs, 'I', clabs, 80, 0, ifail)
  ifail = -1
  call x04cdf('U', 'Q', 3, ap, ' ', 'T', 'I', rlabs, 'I', clabs, 80, 0, ifail)
  write (*, '(A)') ' --- band: KL, KU, LDA'
  ifail = -1
  call x04cff(3, 3, -1, 1, ab, 3, ' ', 'T', 'I', rlabs, 'I', clabs, 80, 0, ifail)
  ifail = -1
  call x04cff(3, 3, 1, -2, ab, 3, ' ', 'T', 'I', rlabs, 'I', clabs, 80, 0, ifail)
  ifail = -1
  call x04cff(3, 3, 1, 2, ab, 3, ' ', 'T', 'I', rlabs, 'I', clabs, 80, 0, ifail)
  write (*, '(A)') ' --- complex: USEFRM'
  ifail = -1
  call x04dbf('G', 'N', 3, 3, z, 3, 'Q', ' ', 'T', 'I', rlabs, 'I', clabs, 80, 0, ifail)
end program x04_fail
