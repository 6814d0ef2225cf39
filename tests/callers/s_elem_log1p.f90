! S01BAF called as an EXTERNAL function with IFAIL = -1: its one failure, X
! at most -1, with the message and the value 0, then values near the edge and
! where ln(1+x) differs from x in the last bits only.
program s_elem_log1p
  implicit none
  double precision s01baf
  external s01baf
  double precision y
  integer ifail, k
  double precision, parameter :: xs(5) = (/-1.0d0, -2.0d0, -0.9999999999999999d0, &
                                           1.0d-3, 1.0d-20/)

  do k = 1, size(xs)
    write (*, '(A,ES25.16E3)') ' --- X =', xs(k)
    ifail = -1
    y = s01baf(xs(k), ifail)
    write (*, '(A,I2,A,ES25.16E3)') ' IFAIL =', ifail, ', value =', y
  end do
end program s_elem_log1p
