! The banner of a00aaf goes to the advisory unit. Its values depend on the
! build, so it is sent to a scratch file and only its frame is printed. A
! negative advisory unit prints nothing.
program kernels_a00aaf
  implicit none
  external a00aaf, x04abf
  character(len=132) line, first, last, applicable
  integer nadv, n, ios

  open (10, status='scratch', form='formatted', action='readwrite')
  nadv = 10
  call x04abf(1, nadv)
  call a00aaf
  nadv = -1
  call x04abf(1, nadv)
  call a00aaf
  nadv = 6
  call x04abf(1, nadv)
  rewind (10)
  n = 0
  do
    read (10, '(A)', iostat=ios) line
    if (ios /= 0) exit
    n = n + 1
    if (n == 1) first = line
    if (n == 16) applicable = line
    last = line
  end do
  close (10)
  write (*, '(1X,A,I3)') 'lines:', n
  write (*, '(A)') trim(first)
  write (*, '(A)') applicable(1:15)
  write (*, '(A)') applicable(len_trim(applicable) - 23:len_trim(applicable))
  write (*, '(A)') trim(last)
end program kernels_a00aaf
