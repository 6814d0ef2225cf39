! Line width, indent, strips of columns and a wrapped title: NCOLS = 0 and
! NCOLS = 133 both give lines of 80, INDENT below 0 or not less than the
! width gives no indent, and a title longer than the line is cut into lines.
program x04_layout
  implicit none
  external x04cbf
  double precision w(2,12)
  character(len=1) rlabs(1), clabs(1)
  integer i, j, ifail

  do j = 1, 12
    do i = 1, 2
      w(i,j) = 0.1d0*i + 0.01d0*j
    end do
  end do

  ifail = 0
  call x04cbf('G', ' ', 2, 12, w, 2, ' ', 'NCOLS = 0: nine columns a strip', &
              'I', rlabs, 'I', clabs, 0, 0, ifail)
  call x04cbf('G', ' ', 2, 12, w, 2, ' ', 'NCOLS = 133: the same', &
              'I', rlabs, 'I', clabs, 133, 0, ifail)
  call x04cbf('G', ' ', 2, 3, w, 2, ' ', 'INDENT = -3: no indent', &
              'I', rlabs, 'I', clabs, 80, -3, ifail)
  call x04cbf('G', ' ', 2, 3, w, 2, ' ', 'INDENT = NCOLS: no indent', &
              'I', rlabs, 'I', clabs, 40, 40, ifail)
  call x04cbf('G', ' ', 2, 3, w, 2, ' ', &
              'A title that is longer than the line and must be wrapped', &
              'I', rlabs, 'I', clabs, 30, 4, ifail)
  write (*, '(A,I2)') ' IFAIL:', ifail
end program x04_layout
