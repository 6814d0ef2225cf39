! The integer printers: the field suits the widest entry and heading, a unit
! diagonal prints as 1, a narrow FORM prints asterisks, and the MATLAB form.
program x04_integer
  implicit none
  external x04eaf, x04ebf
  integer ia(2,3), ib(3,3), i, j, ifail
  character(len=8) rlabs(3), clabs(3)

  ia = reshape((/1, -20, 300, 4, 5, 6/), (/2, 3/))
  do j = 1, 3
    do i = 1, 3
      ib(i,j) = 10*i + j
    end do
  end do
  clabs = (/'one     ', 'two     ', 'three   '/)

  ifail = 0
  call x04eaf('G', ' ', 2, 3, ia, 2, 'Integer matrix', ifail)
  call x04ebf('U', 'U', 3, 3, ib, 3, ' ', 'Upper, unit diagonal, indent 4', &
              'N', rlabs, 'C', clabs, 80, 4, ifail)
  call x04ebf('G', ' ', 2, 3, ia, 2, 'I2', 'Narrow I2', 'I', rlabs, 'I', clabs, &
              80, 0, ifail)
  call x04ebf('G', ' ', 2, 3, ia, 2, 'MATLAB', 'IA', 'I', rlabs, 'I', clabs, &
              80, 0, ifail)
  write (*, '(A,I2)') ' IFAIL:', ifail
end program x04_integer
