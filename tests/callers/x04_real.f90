! The real printers on small matrices, plain and labelled: a general matrix
! and its triangles in full storage, a packed triangle, a band matrix.
program x04_real
  implicit none
  external x04caf, x04cbf, x04ccf, x04cdf, x04cef, x04cff
  double precision a(4,3), ap(6), ab(3,5)
  character(len=8) rlabs(3), clabs(3)
  integer i, j, k, ifail

  do j = 1, 3
    do i = 1, 4
      a(i,j) = 0.1d0*i + 0.01d0*j
    end do
  end do
  do k = 1, 6
    ap(k) = 0.125d0*k
  end do
  ! Band storage of a 4 by 5 matrix with one sub- and one superdiagonal:
  ! entry (i,j) = i + j/10 in row 2+i-j of column j; the unused corners
  ! hold a value that must not appear.
  ab = -99.0d0
  do j = 1, 5
    do i = max(1, j-1), min(4, j+1)
      ab(2+i-j, j) = i + 0.1d0*j
    end do
  end do
  rlabs = (/'Row 1   ', 'Row 2   ', '  Last  '/)
  clabs = (/'Col A   ', 'Col B   ', 'Col C   '/)

  ifail = 0
  call x04caf('G', ' ', 3, 3, a, 4, 'General 3 by 3', ifail)
  call x04caf('U', 'N', 3, 3, a, 4, 'Upper, non-unit', ifail)
  call x04caf('l', 'U', 4, 3, a, 4, 'Lower trapezium, unit diagonal', ifail)
  call x04cbf('U', 'B', 3, 3, a, 4, ' ', 'Upper, diagonal not printed, labels', &
              'C', rlabs, 'C', clabs, 80, 0, ifail)
  call x04ccf('U', 'N', 3, ap, 'Packed upper', ifail)
  call x04cdf('L', 'U', 3, ap, 'F6.3', 'Packed lower, unit, no labels', &
              'N', rlabs, 'N', clabs, 80, 0, ifail)
  call x04cef(4, 5, 1, 1, ab, 3, 'Band', ifail)
  call x04cff(4, 5, 1, 1, ab, 3, 'F6.1', 'Band, rows numbered, strips of 4', &
              'I', rlabs, 'N', clabs, 40, 5, ifail)
  write (*, '(A,I2)') ' IFAIL:', ifail
end program x04_real
