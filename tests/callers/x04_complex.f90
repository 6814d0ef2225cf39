! The complex printers, plain and labelled, with the three placements of the
! parts: real above imaginary ("A"), bracketed pairs ("B"), side by side
! ("D"); full, packed and band storage, and strips of one column.
program x04_complex
  implicit none
  external x04daf, x04dbf, x04dcf, x04ddf, x04def, x04dff
  complex(kind(1.0d0)) z(3,3), zp(6), zb(2,3)
  character(len=4) rlabs(3), clabs(3)
  integer i, j, k, ifail

  do j = 1, 3
    do i = 1, 3
      z(i,j) = cmplx(0.1d0*i, -0.1d0*j, kind(1.0d0))
    end do
  end do
  do k = 1, 6
    zp(k) = cmplx(k, -k, kind(1.0d0))
  end do
  ! An upper bidiagonal 3 by 3 band matrix, entry (i,j) = (i,j), in row
  ! 2+i-j of column j.
  zb = (-99.0d0, -99.0d0)
  do j = 1, 3
    do i = max(1, j-1), j
      zb(2+i-j, j) = cmplx(i, j, kind(1.0d0))
    end do
  end do
  rlabs = (/'a   ', 'bb  ', 'ccc '/)
  clabs = (/'x   ', 'y   ', 'z   '/)

  ifail = 0
  call x04daf('G', ' ', 2, 3, z, 3, 'Complex general, parts one above the other', ifail)
  call x04dbf('G', ' ', 2, 3, z, 3, 'B', ' ', 'Bracketed', 'I', rlabs, 'I', clabs, &
              80, 0, ifail)
  call x04dbf('G', ' ', 2, 3, z, 3, 'd', 'F7.3', 'Side by side, no row labels', &
              'N', rlabs, 'I', clabs, 80, 0, ifail)
  call x04dcf('U', 'N', 2, zp, 'Packed complex upper', ifail)
  call x04ddf('L', 'B', 3, zp, 'B', ' ', 'Packed lower, bracketed, diagonal not printed', &
              'N', rlabs, 'I', clabs, 80, 0, ifail)
  call x04def(3, 3, 0, 1, zb, 2, 'Complex band', ifail)
  call x04dff(3, 3, 0, 1, zb, 2, 'D', 'F5.1', 'Complex band, side by side', &
              'C', rlabs, 'I', clabs, 30, 0, ifail)
  write (*, '(A,I2)') ' IFAIL:', ifail
end program x04_complex
