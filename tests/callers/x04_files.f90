! Units and files: a unit opened by the caller, written by the caller and by
! x04baf in turn and read back by x04bbf; x04acf and x04adf on a scratch
! file for appending, reading and writing; the failures of both, and of
! x04bbf at end of file and on a unit that is not open.
program x04_files
  implicit none
  external x04baf, x04bbf, x04acf, x04adf
  character(len=20) line
  character(len=4) short
  integer k, ifail, ios
  character(len=*), parameter :: scratch = 'x04_files.tmp'

  write (*, '(A)') ' --- a unit opened by the caller'
  open (21, file=scratch, status='replace', action='write')
  write (21, '(A)') 'caller line 1'
  call x04baf(21, 'library line 2      ')
  write (21, '(A)') 'caller line 3'
  close (21)
  open (21, file=scratch, status='old', action='read')
  do k = 1, 4
    line = 'unchanged'
    ifail = -1
    call x04bbf(21, line, ifail)
    write (*, '(A,I2,3A)') ' IFAIL', ifail, ' [', line, ']'
  end do
  close (21)

  write (*, '(A)') ' --- x04acf: append, read, a record longer than RECIN'
  ifail = 0
  call x04acf(22, scratch, 2, ifail)
  call x04baf(22, 'appended by x04baf')
  call x04adf(22, ifail)
  call x04acf(22, scratch, 0, ifail)
  do k = 1, 5
    short = '....'
    ifail = 1
    call x04bbf(22, short, ifail)
    write (*, '(A,I2,3A)') ' IFAIL', ifail, ' [', short, ']'
  end do
  call x04adf(22, ifail)

  write (*, '(A)') ' --- x04acf: write from the start'
  call x04acf(22, scratch, 1, ifail)
  call x04baf(22, 'only line')
  call x04adf(22, ifail)
  open (21, file=scratch, status='old', action='read')
  do
    read (21, '(A)', iostat=ios) line
    if (ios /= 0) exit
    write (*, '(3A)') ' [', line, ']'
  end do
  close (21, status='delete')

  write (*, '(A)') ' --- x04bbf: a negative unit reads nothing, a unit not open fails'
  line = 'unchanged'
  ifail = -1
  call x04bbf(-1, line, ifail)
  write (*, '(A,I2,3A)') ' IFAIL', ifail, ' [', line, ']'
  ifail = -1
  call x04bbf(37, line, ifail)
  write (*, '(A,I2,3A)') ' IFAIL', ifail, ' [', line, ']'

  write (*, '(A)') ' --- x04acf and x04adf failures'
  ifail = -1
  call x04acf(22, scratch, 3, ifail)
  ifail = -1
  call x04acf(22, 'no_such_file.dat', 0, ifail)
  ifail = -1
  call x04acf(22, '/nonexistent-dir/x04.dat', 1, ifail)
  ifail = -1
  call x04acf(22, '/nonexistent-dir/x04.dat', 2, ifail)
  ifail = -1
  call x04acf(-5, 'x04_files.neg', 1, ifail)
  ifail = -1
  call x04adf(23, ifail)
  write (*, '(A,I2)') ' closing a unit that is not open: IFAIL', ifail
end program x04_files
