! The choice of FORM: the automatic format at its three thresholds, every
! significant digit with "*", the MATLAB form (real, complex, a blank title,
! a row continued), and a narrow FORM that prints asterisks without failing.
program x04_form
  implicit none
  external x04caf, x04cbf, x04dbf
  double precision v(1,2), b(2,2), c(1,5)
  complex(kind(1.0d0)) z(1,2)
  character(len=1) rlabs(1), clabs(1)
  integer ifail

  ifail = 0
  v(1,:) = (/1.0d0, 0.5d0/)
  call x04caf('G', ' ', 1, 2, v, 1, 'Largest 1.0: F8.4', ifail)
  v(1,:) = (/1.0d0, 0.001d0/)
  call x04caf('G', ' ', 1, 2, v, 1, 'Smallest 0.001: F8.4', ifail)
  v(1,:) = (/0.0d0, 0.0d0/)
  call x04caf('G', ' ', 1, 2, v, 1, 'All zero: F8.4', ifail)
  v(1,:) = (/1000.0d0, 0.5d0/)
  call x04caf('G', ' ', 1, 2, v, 1, 'Largest 1000.0: F11.4', ifail)
  v(1,:) = (/-9999.9999d0, 0.5d0/)
  call x04caf('G', ' ', 1, 2, v, 1, 'Largest 9999.9999: F11.4', ifail)
  v(1,:) = (/10000.0d0, 0.5d0/)
  call x04caf('G', ' ', 1, 2, v, 1, 'Largest 10000.0: 1PE13.4', ifail)
  v(1,:) = (/1.0d-4, 0.5d0/)
  call x04caf('G', ' ', 1, 2, v, 1, 'Smallest 1e-4: 1PE13.4', ifail)

  v(1,:) = (/1.0d0/3.0d0, -2.0d0/)
  call x04cbf('G', ' ', 1, 2, v, 1, '*', 'Every digit', 'I', rlabs, 'I', clabs, &
              80, 0, ifail)

  b = reshape((/1.5d0, 0.25d0, -2.0d0, 4.0d0/), (/2, 2/))
  call x04cbf('G', ' ', 2, 2, b, 2, 'MATLAB', 'B', 'I', rlabs, 'I', clabs, &
              80, 0, ifail)
  c(1,:) = (/1.0d0, 2.0d0, 3.0d0, 4.0d0, 5.0d0/)
  call x04cbf('G', ' ', 1, 5, c, 1, 'MATLAB  F6.2', ' ', 'I', rlabs, 'I', clabs, &
              30, 2, ifail)
  z(1,:) = (/(1.0d0, -2.0d0), (0.5d0, 3.0d0)/)
  call x04dbf('G', ' ', 1, 2, z, 1, 'A', 'MATLAB F5.1', 'Z', 'I', rlabs, 'I', clabs, &
              80, 0, ifail)

  v(1,:) = (/123.4d0, -1234.5d0/)
  call x04cbf('G', ' ', 1, 2, v, 1, 'F5.1', 'Narrow F5.1', 'I', rlabs, 'I', clabs, &
              80, 0, ifail)
  write (*, '(A,I2)') ' IFAIL:', ifail
end program x04_form
