! The call trace on a routine with array arguments: mode 1 elides arrays to
! their first and last elements, mode 2 shows them whole, an extent below 1 is
! reported as zero, and mode 0 prints nothing.
program trace_array
  implicit none
  external m01daf, y90gcft
  double precision rv(3)
  integer irank(3), ifail
  rv = (/3.0d0, 1.0d0, 2.0d0/)
  irank = 0
  call y90gcft(1)
  ifail = 0
  call m01daf(rv, 1, 3, 'A', irank, ifail)
  call y90gcft(2)
  ifail = 0
  call m01daf(rv, 1, 3, 'D', irank, ifail)
  call y90gcft(1)
  ifail = 1
  call m01daf(rv, 1, 0, 'A', irank, ifail)
  call y90gcft(0)
  write (*, '(A,I3)') ' IFAIL on exit:', ifail
  ifail = 0
  call m01daf(rv, 1, 3, 'A', irank, ifail)
  write (*, '(A,3I3)') ' ranks:', irank
end program trace_array
