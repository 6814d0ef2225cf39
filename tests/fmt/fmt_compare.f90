! Compares the format engine with gfortran's own runtime: every case is an
! internal WRITE (or READ) done natively and then again through the engine,
! and the two results must agree character for character (value for value
! on input). Where the runtime reports an error the engine must report the
! matching status.
module fmt_harness
  use iso_c_binding
  use iso_fortran_env, only: iostat_end, iostat_eor, int64, real64
  implicit none

  integer :: npass = 0, nfail = 0
  integer, parameter :: maxit = 64

  ! The item list handed to the engine.
  integer :: nit = 0, nsv = 0
  integer(c_int) :: ik(maxit)
  integer(c_long_long) :: iiv(maxit)
  real(c_double) :: irv(maxit)
  integer(c_int) :: ilv(maxit)
  integer(c_int) :: isl(maxit)
  character(len=4000) :: isv

  ! Engine status codes.
  integer, parameter :: st_ok = 0, st_badfmt = 1, st_mismatch = 2, &
                        st_overflow = 3, st_toomany = 4, st_readerr = 5, &
                        st_eor = 6

  integer(int64) :: seed = 20240611_int64

  interface
    function zfmt_write(fmt, fmtlen, n, kinds, iv, rv, lv, sv, slen, buf, &
                        reclen, nrec, nused) bind(c, name='zfmt_write')
      import :: c_char, c_int, c_long_long, c_double
      character(kind=c_char), intent(in) :: fmt(*)
      integer(c_int), value :: fmtlen, n, reclen, nrec
      integer(c_int), intent(in) :: kinds(*), lv(*), slen(*)
      integer(c_long_long), intent(in) :: iv(*)
      real(c_double), intent(in) :: rv(*)
      character(kind=c_char), intent(in) :: sv(*)
      character(kind=c_char) :: buf(*)
      integer(c_int) :: nused
      integer(c_int) :: zfmt_write
    end function
    function zfmt_write_records(fmt, fmtlen, n, kinds, iv, rv, lv, sv, slen, &
                                out, cap, lens, maxrec, nrec) &
                                bind(c, name='zfmt_write_records')
      import :: c_char, c_int, c_long_long, c_double
      character(kind=c_char), intent(in) :: fmt(*)
      integer(c_int), value :: fmtlen, n, cap, maxrec
      integer(c_int), intent(in) :: kinds(*), lv(*), slen(*)
      integer(c_long_long), intent(in) :: iv(*)
      real(c_double), intent(in) :: rv(*)
      character(kind=c_char), intent(in) :: sv(*)
      character(kind=c_char) :: out(*)
      integer(c_int) :: lens(*), nrec
      integer(c_int) :: zfmt_write_records
    end function
    function zfmt_read(fmt, fmtlen, buf, reclen, nrec, maxitems, nout, kinds, &
                       iv, rv, lv, toff, tlen) bind(c, name='zfmt_read')
      import :: c_char, c_int, c_long_long, c_double
      character(kind=c_char), intent(in) :: fmt(*), buf(*)
      integer(c_int), value :: fmtlen, reclen, nrec, maxitems
      integer(c_int) :: nout, kinds(*), lv(*), toff(*), tlen(*)
      integer(c_long_long) :: iv(*)
      real(c_double) :: rv(*)
      integer(c_int) :: zfmt_read
    end function
    function zfmt_valid(fmt, fmtlen) bind(c, name='zfmt_valid')
      import :: c_char, c_int
      character(kind=c_char), intent(in) :: fmt(*)
      integer(c_int), value :: fmtlen
      integer(c_int) :: zfmt_valid
    end function
  end interface

contains

  ! ---- item lists ---------------------------------------------------------

  subroutine clear_items()
    nit = 0
    nsv = 0
  end subroutine

  subroutine add_i(v)
    integer(int64), intent(in) :: v
    nit = nit + 1
    ik(nit) = 1
    iiv(nit) = v
  end subroutine

  subroutine add_r(x)
    real(real64), intent(in) :: x
    nit = nit + 1
    ik(nit) = 2
    irv(nit) = x
  end subroutine

  subroutine add_l(l)
    logical, intent(in) :: l
    nit = nit + 1
    ik(nit) = 3
    ilv(nit) = merge(1, 0, l)
  end subroutine

  subroutine add_s(s)
    character(len=*), intent(in) :: s
    nit = nit + 1
    ik(nit) = 4
    isl(nit) = len(s)
    isv(nsv+1:nsv+len(s)) = s
    nsv = nsv + len(s)
  end subroutine

  ! ---- bookkeeping --------------------------------------------------------

  ! Whether the engine's status matches the runtime's IOSTAT.
  logical function status_match(ios, st, reading)
    integer, intent(in) :: ios, st
    logical, intent(in) :: reading
    if (ios == 0) then
      status_match = st == st_ok
    else if (ios == iostat_eor) then
      status_match = st == st_overflow
    else if (ios == iostat_end) then
      if (reading) then
        status_match = st == st_eor
      else
        status_match = st == st_toomany
      end if
    else if (ios == 5006) then
      ! Format errors and wrong item types are one error to the runtime.
      status_match = st == st_badfmt .or. st == st_mismatch
    else if (ios == 5010 .or. ios == 5011) then
      status_match = st == st_readerr
    else
      status_match = .false.
    end if
  end function

  subroutine tally(ok, label, fmt, nat, eng, ios, st)
    logical, intent(in) :: ok
    character(len=*), intent(in) :: label, fmt, nat, eng
    integer, intent(in) :: ios, st
    if (ok) then
      npass = npass + 1
      return
    end if
    nfail = nfail + 1
    write (*, '(A,": ",A," iostat=",I0," status=",I0)') label, fmt, ios, st
    write (*, '("  gfortran [",A,"]")') nat
    write (*, '("  engine   [",A,"]")') eng
  end subroutine

  ! Runs the engine on the current items into a blank buffer shaped like the
  ! native one and compares.
  subroutine cmp_write(label, fmt, nat, ios, reclen, nrec)
    character(len=*), intent(in) :: label, fmt, nat
    integer, intent(in) :: ios, reclen, nrec
    character(len=len(nat)) :: eng
    integer(c_int) :: st, nused
    logical :: ok
    eng = ' '
    st = zfmt_write(fmt, len(fmt), nit, ik, iiv, irv, ilv, isv, isl, eng, &
                    reclen, nrec, nused)
    if (ios /= 0 .or. st /= 0) then
      ok = status_match(ios, st, .false.)
    else
      ok = nat == eng
    end if
    call tally(ok, label, fmt, nat, eng, ios, st)
  end subroutine

  ! Same for a native array of records.
  subroutine cmp_write_recs(label, fmt, recs, ios)
    character(len=*), intent(in) :: label, fmt
    character(len=*), intent(in) :: recs(:)
    integer, intent(in) :: ios
    character(len=len(recs)*size(recs)) :: cat
    integer :: k, rl
    rl = len(recs)
    do k = 1, size(recs)
      cat((k-1)*rl+1:k*rl) = recs(k)
    end do
    call cmp_write(label, fmt, cat, ios, rl, size(recs))
  end subroutine

  function rtoa(x) result(s)
    real(real64), intent(in) :: x
    character(len=40) :: s
    write (s, '(ES25.17)') x
  end function

  ! Whether x lies within four ulps of a power of ten.
  logical function near_pow10(x)
    real(real64), intent(in) :: x
    real(real64) :: p
    near_pow10 = .false.
    if (x == 0 .or. x /= x .or. abs(x) > huge(x)) return
    p = 10.0_real64**nint(log10(abs(x)))
    near_pow10 = abs(abs(x) - p) <= 4 * spacing(p)
  end function

  ! ---- pseudo-random numbers (Park and Miller) ----------------------------

  integer function rnd(n)
    integer, intent(in) :: n
    seed = mod(seed * 48271_int64, 2147483647_int64)
    rnd = int(mod(seed, int(n, int64)))
  end function

  real(real64) function urand()
    integer :: a, b
    a = rnd(1048576)
    b = rnd(1048576)
    urand = (real(a, real64) + real(b, real64) / 1048576.0_real64) / 1048576.0_real64
  end function

  ! ---- the reals written -------------------------------------------------

  ! Zeros of both signs, extremes, infinities and NaN, powers of ten and
  ! their neighbours, exact binary ties at several decimal places with their
  ! neighbours, values that round up to a new digit, and random values.
  subroutine real_values(v, nv)
    real(real64), intent(out) :: v(:)
    integer, intent(out) :: nv
    real(real64) :: zero, x, ties(40)
    integer :: k, j, nt
    zero = 0
    nv = 0
    call put(0.0_real64)
    call put(-zero)
    call put(1.0_real64)
    call put(-1.0_real64)
    call put(huge(1.0_real64))
    call put(-huge(1.0_real64))
    call put(tiny(1.0_real64))
    call put(tiny(1.0_real64) * 1.0e-10_real64)
    call put(-tiny(1.0_real64) * 1.0e-6_real64)
    call put(4.9406564584124654e-324_real64)
    call put(1.0_real64 / zero)
    call put(-1.0_real64 / zero)
    call put(ieee_nan())
    call put(1.0e300_real64)
    call put(-1.0e-300_real64)
    call put(9.9999999999999997e307_real64)
    call put(3.14159265358979323846_real64)
    call put(-2.718281828459045_real64)
    call put(1.0_real64 / 3.0_real64)
    call put(-2.0_real64 / 3.0_real64)
    call put(123456789.0_real64)
    call put(0.1_real64)
    call put(0.2_real64)
    call put(0.3_real64)
    call put(-0.04_real64)
    call put(0.04_real64)
    call put(0.96_real64)
    call put(-0.96_real64)
    call put(170.0_real64)
    call put(99998.0_real64)
    call put(1.0e22_real64)
    call put(1.0e23_real64)
    call put(2.0_real64**53)
    call put(2.0_real64**53 + 2)
    call put(2.0_real64**(-1074) * 3)
    ! Powers of ten and their neighbours.
    do k = -25, 25, 1
      x = 10.0_real64**k
      call put(x)
      if (mod(k, 3) == 0) then
        call put(nearest(x, 1.0_real64))
        call put(nearest(x, -1.0_real64))
        call put(-x)
      end if
    end do
    ! Exact binary ties at one to five decimals, and their neighbours.
    nt = 0
    do j = 1, 5
      do k = 1, 7, 2
        nt = nt + 1
        ties(nt) = real(k, real64) / 2.0_real64**j
      end do
    end do
    ties(nt+1:nt+12) = [2.5_real64, 0.5_real64, 1.5_real64, 3.5_real64, 9.5_real64, &
      99.5_real64, 999.5_real64, 9999.5_real64, 12.5_real64, 0.625_real64, &
      1234.5_real64, 4.5_real64]
    nt = nt + 12
    do k = 1, nt
      call put(ties(k))
      call put(-ties(k))
      call put(nearest(ties(k), 1.0_real64))
      call put(nearest(ties(k), -1.0_real64))
    end do
    ! Values just either side of a rounding that adds a digit.
    do k = -6, 8
      call put(9.5_real64 * 10.0_real64**k)
      call put(9.95_real64 * 10.0_real64**k)
      call put(9.995_real64 * 10.0_real64**k)
      call put(0.99995_real64 * 10.0_real64**k)
      call put(9.9999999_real64 * 10.0_real64**k)
    end do
    call put(0.09996_real64)
    call put(0.0999_real64)
    call put(999.4_real64)
    call put(999.95_real64)
    call put(0.15_real64)
    call put(0.25_real64)
    call put(0.35_real64)
    call put(0.45_real64)
    call put(1.05_real64)
    call put(2.675_real64)
    ! Random values over many magnitudes, and random bit patterns.
    do k = 1, 150
      x = (1.0_real64 + 9.0_real64 * urand()) * 10.0_real64**(rnd(61) - 30)
      if (rnd(2) == 0) x = -x
      call put(x)
    end do
    do k = 1, 40
      x = transfer(int(rnd(2147483647), int64) * 4294967296_int64 + &
                   int(rnd(2147483647), int64), 1.0_real64)
      if (x == x .and. abs(x) <= huge(x)) call put(x)
    end do
  contains
    subroutine put(y)
      real(real64), intent(in) :: y
      nv = nv + 1
      v(nv) = y
    end subroutine
  end subroutine

  function ieee_nan() result(x)
    use, intrinsic :: ieee_arithmetic
    real(real64) :: x
    x = ieee_value(x, ieee_quiet_nan)
  end function

end module fmt_harness

program fmt_compare
  use fmt_harness
  implicit none

  call real_fields()
  call random_real_fields()
  call integer_fields()
  call logical_fields()
  call text_fields()
  call mixed_lists()
  call real_lists()
  call positioning()
  call random_formats()
  call random_integer_fields()
  call record_limits()
  call records_vs_file()
  call format_syntax()
  call real_reads()
  call other_reads()
  call list_reads()
  call array_reads()
  call random_reads()
  call random_list_reads()

  write (*, '(I0," passed, ",I0," failed")') npass, nfail
  if (nfail > 0) error stop 1

contains

  ! ---- output of reals ----------------------------------------------------

  subroutine real_fields()
    character(len=24), parameter :: f(*) = [character(len=24) :: &
      '(F1.0)', '(F2.0)', '(F3.0)', '(F4.1)', '(F5.1)', '(F5.4)', '(F6.2)', &
      '(F8.3)', '(F10.0)', '(F10.4)', '(F12.6)', '(F15.10)', '(F20.15)', &
      '(F25.2)', '(F40.30)', '(F0.0)', '(F0.1)', '(F0.3)', '(F0.6)', &
      '(F0.17)', '(F0)', '(SP,F8.3)', '(SP,F0.2)', '(2P,F10.3)', &
      '(-2P,F10.3)', '(-5P,F10.2)', '(3P,F0.2)', '(1P,F12.4)', '(-1P,F6.0)', &
      '(f7.2)', '(F 1 2 . 5)', &
      '(E8.1)', '(E9.2)', '(E10.3)', '(E12.4)', '(E13.5)', '(E15.7)', &
      '(E20.12)', '(E30.20)', '(E40.30)', '(E7.1)', '(E6.1)', '(E12.4E1)', &
      '(E12.4E3)', '(E14.4E4)', '(E12.3E0)', '(E0.3)', '(E0.1)', &
      '(1P,E12.4)', '(1PE13.5)', '(1P,E  17.16)', '(2P,E12.4)', &
      '(-1P,E12.4)', '(-2P,E12.4)', '(1P,E8.0)', '(4P,E12.3)', &
      '(SP,E12.4)', '(1P,E10.3E3)', '(-3P,E14.5E3)', '(E9.3)', '(E10.3)', &
      '(E8.0)', '(5P,E12.3)', '(e12.4e2)', &
      '(D12.4)', '(D24.16)', '(1P,D12.4)', '(D0.3)', '(D9.2)', &
      '(ES10.3)', '(ES12.4)', '(ES8.1)', '(ES12.4E3)', '(ES10.0)', &
      '(ES25.17)', '(SP,ES12.4)', '(ES0.3)', '(2P,ES12.4)', &
      '(EN12.3)', '(EN10.2)', '(EN15.5)', '(EN12.3E3)', '(EN9.1)', &
      '(EN10.0)', '(EN0.3)', '(SP,EN12.3)', &
      '(G10.3)', '(G12.4)', '(G13.5)', '(G14.6)', '(G15.7)', '(G20.10)', &
      '(G25.16)', '(G8.1)', '(G7.3)', '(G6.2)', '(G10.3E3)', '(G12.4E1)', &
      '(G0)', '(G0.3)', '(G0.10)', '(1P,G12.4)', '(2P,G12.4)', &
      '(-1P,G12.4)', '(1P,G12.0)', '(SP,G12.4)', '(G5.3)', '(G9.1)', &
      '(G11.4)', '(G12.0)', '(G30.20)']
    real(real64) :: v(1000)
    character(len=120) :: b
    integer :: nv, i, j, ios
    call real_values(v, nv)
    do j = 1, size(f)
      do i = 1, nv
        b = ' '
        write (b, f(j), iostat=ios) v(i)
        call clear_items()
        call add_r(v(i))
        call cmp_write('real '//trim(rtoa(v(i))), trim(f(j)), b, ios, len(b), 1)
      end do
    end do
  end subroutine

  ! Random descriptors, widths, digits, exponent widths, scale factors and
  ! sign modes over the same values.
  subroutine random_real_fields()
    character(len=2), parameter :: ds(*) = ['F ', 'E ', 'D ', 'ES', 'EN', 'G ']
    real(real64) :: v(1000)
    character(len=120) :: b
    character(len=40) :: f
    integer :: nv, i, ios, trial, kd, w, d
    call real_values(v, nv)
    do trial = 1, 30000
      kd = 1 + rnd(size(ds))
      w = rnd(32)
      if (rnd(8) == 0) w = 0
      d = rnd(max(1, min(w, 22)))
      if (rnd(10) == 0) d = rnd(25)
      f = '('
      if (rnd(4) == 0) write (f, '(A,I0,A)') trim(f), rnd(8) - 3, 'P,'
      if (rnd(6) == 0) f = trim(f)//'SP,'
      write (f, '(A,A,I0,A,I0)') trim(f), trim(ds(kd)), w, '.', d
      if (kd /= 1 .and. kd /= 3 .and. rnd(4) == 0) then
        write (f, '(A,A,I0)') trim(f), 'E', 1 + rnd(4)
      end if
      f = trim(f)//')'
      i = 1 + rnd(nv)
      ! The runtime's EN takes its digit count from an estimate of the
      ! exponent that can be wrong within an ulp or two of a power of ten;
      ! with 13 or more decimals that shows in the last digits. The engine
      ! gives the correctly rounded digits there, so such cases are left out.
      if (kd == 5 .and. (d >= 13 .or. (w == 0 .and. d == 0))) then
        if (near_pow10(v(i))) cycle
      end if
      b = ' '
      write (b, f, iostat=ios) v(i)
      call clear_items()
      call add_r(v(i))
      call cmp_write('random '//trim(rtoa(v(i))), trim(f), b, ios, len(b), 1)
    end do
  end subroutine


  ! Random formats: nested groups with repeat counts, data descriptors,
  ! literals, positioning, '/', ':', scale factors and sign modes, over
  ! lists of 0 to 8 reals written into 3 records of 60 characters.
  subroutine random_formats()
    character(len=400) :: f
    character(len=60) :: r(3)
    real(real64) :: v(8)
    integer :: trial, n, k, ios
    v = [1.5_real64, -2.25_real64, 1.0e5_real64, 0.125_real64, &
         -3.0e-7_real64, 42.0_real64, 0.0_real64, 9.995_real64]
    do trial = 1, 6000
      f = '('//trim(gen_list(1))//')'
      n = rnd(9)
      r = ' '
      write (r, f, iostat=ios) v(1:n)
      call clear_items()
      do k = 1, n
        call add_r(v(k))
      end do
      call cmp_write_recs('random format', trim(f), r, ios)
    end do
  end subroutine

  recursive function gen_list(depth) result(s)
    integer, intent(in) :: depth
    character(len=400) :: s
    character(len=12), parameter :: dd(*) = [character(len=12) :: &
      'F6.2', 'E10.3', 'G9.3', 'ES9.2', '2F5.1', 'F0.3', 'EN10.2', 'D10.2', &
      'G0', 'F8.0', '3E9.2', 'G12.4E3']
    character(len=8), parameter :: lit(*) = [character(len=8) :: &
      "'ab'", "'x'", "'--'", "' '", "2Hhi"]
    integer :: n, k, c
    character(len=400) :: e
    s = ''
    n = 1 + rnd(4)
    do k = 1, n
      c = rnd(13)
      select case (c)
      case (0:3)
        e = dd(1 + rnd(size(dd)))
      case (4)
        e = lit(1 + rnd(size(lit)))
      case (5)
        write (e, '(I0,A)') 1 + rnd(6), 'X'
      case (6)
        write (e, '(A,I0)') 'T', 1 + rnd(50)
      case (7)
        write (e, '(A,I0)') 'TL', 1 + rnd(6)
      case (8)
        e = '/'
      case (9)
        e = ':'
      case (10)
        write (e, '(I0,A)') rnd(5) - 1, 'P'
      case (11)
        e = merge('SP', 'SS', rnd(2) == 0)
      case default
        if (depth < 3) then
          if (rnd(2) == 0) then
            e = '('//trim(gen_list(depth + 1))//')'
          else
            write (e, '(I0,A)') 1 + rnd(3), '('//trim(gen_list(depth + 1))//')'
          end if
        else
          e = 'F5.1'
        end if
      end select
      if (k > 1) s = trim(s)//','
      s = trim(s)//trim(e)
    end do
  end function

  subroutine random_integer_fields()
    character(len=40) :: f, b
    integer(int64) :: v
    integer :: trial, w, m, ios
    do trial = 1, 5000
      select case (rnd(5))
      case (0)
        v = 0
      case (1)
        v = int(rnd(100), int64) - 50
      case (2)
        v = int(rnd(2147483647), int64) * (1 - 2 * rnd(2))
      case default
        v = (int(rnd(2147483647), int64) * 4294967296_int64 + rnd(2147483647)) &
            * (1 - 2 * rnd(2))
      end select
      w = rnd(24)
      m = -1
      if (rnd(3) == 0) m = rnd(max(w, 1) + 1)
      if (w > 0 .and. m > w) m = w
      f = '('
      if (rnd(4) == 0) f = trim(f)//'SP,'
      if (rnd(5) == 0) then
        write (f, '(A,A,I0,A,I0,A)') trim(f), 'G', w, '.', max(m, 0), ')'
      else if (m >= 0) then
        write (f, '(A,A,I0,A,I0,A)') trim(f), 'I', w, '.', m, ')'
      else
        write (f, '(A,A,I0,A)') trim(f), 'I', w, ')'
      end if
      b = ' '
      write (b, f, iostat=ios) v
      call clear_items()
      call add_i(v)
      call cmp_write('random int', trim(f), b, ios, len(b), 1)
    end do
  end subroutine

  ! ---- output of integers, logicals, texts --------------------------------

  subroutine integer_fields()
    character(len=16), parameter :: f(*) = [character(len=16) :: &
      '(I1)', '(I2)', '(I3)', '(I5)', '(I8)', '(I12)', '(I20)', '(I25)', &
      '(I5.3)', '(I8.8)', '(I12.10)', '(I0)', '(I0.4)', '(I5.0)', '(I0.0)', &
      '(SP,I5)', '(SP,I0)', '(SP,I5.0)', '(SP,I1)', '(G8.2)', '(G0)', &
      '(G12.0)', '(G20.5)', '(I  12)', '(i 7 . 2)', '(1P,I5)', '(G0.4)']
    integer(int64), parameter :: v(*) = [0_int64, 1_int64, -1_int64, 7_int64, &
      -7_int64, 9_int64, 10_int64, -10_int64, 99_int64, 100_int64, &
      -100_int64, 12345_int64, -12345_int64, 99999_int64, 100000_int64, &
      2147483647_int64, -2147483648_int64, huge(0_int64), -huge(0_int64) - 1, &
      10_int64**15, -10_int64**18, 4096_int64]
    character(len=40) :: b
    integer :: i, j, ios
    do j = 1, size(f)
      do i = 1, size(v)
        b = ' '
        write (b, f(j), iostat=ios) v(i)
        call clear_items()
        call add_i(v(i))
        call cmp_write('int', trim(f(j)), b, ios, len(b), 1)
      end do
    end do
  end subroutine

  subroutine logical_fields()
    character(len=12), parameter :: f(*) = [character(len=12) :: &
      '(L1)', '(L2)', '(L5)', '(L0)', '(L)', '(G5.2)', '(G0)', '(G1.0)', &
      '(SP,L3)', '(2L3)', '(L3,L1)']
    character(len=20) :: b
    integer :: j, ios, t
    logical :: l
    do j = 1, size(f)
      do t = 0, 1
        l = t == 1
        b = ' '
        write (b, f(j), iostat=ios) l
        call clear_items()
        call add_l(l)
        call cmp_write('logical', trim(f(j)), b, ios, len(b), 1)
      end do
    end do
  end subroutine

  subroutine text_fields()
    character(len=12), parameter :: f(*) = [character(len=12) :: &
      '(A)', '(A1)', '(A3)', '(A5)', '(A8)', '(A20)', '(G8.2)', '(G0)', &
      '(G3.1)', '(G20.5)', '(2A)', '(A,A3)', '(A 4)']
    character(len=12), parameter :: s(*) = [character(len=12) :: &
      '', 'x', 'abc', 'hello', 'hello world', "it's", 'a"b']
    character(len=60) :: b
    integer :: i, j, ios
    do j = 1, size(f)
      do i = 1, size(s)
        b = ' '
        write (b, f(j), iostat=ios) trim(s(i))
        call clear_items()
        call add_s(trim(s(i)))
        call cmp_write('text ['//trim(s(i))//']', trim(f(j)), b, ios, len(b), 1)
        ! Blanks at either end are part of the item.
        b = ' '
        write (b, f(j), iostat=ios) ' '//trim(s(i))//'  '
        call clear_items()
        call add_s(' '//trim(s(i))//'  ')
        call cmp_write('text [ '//trim(s(i))//'  ]', trim(f(j)), b, ios, len(b), 1)
      end do
    end do
  end subroutine

  ! ---- lists of mixed items -----------------------------------------------

  subroutine mixed_lists()
    character(len=60), parameter :: f(*) = [character(len=60) :: &
      '(I4,F8.3,L3,A8)', '(G0,1X,G0,1X,G0,1X,G0)', '(4G10.3)', &
      '(I0,F0.2,L1,A)', '(2(G10.3,:,''|''))', '(I4/F8.3/L3/A8)', &
      '(I4,(F8.3,L3,A8))', '(I4,F8.3,:,L3,'' end'')', '(I4,F8.3,L3,A8,I4)', &
      '(I4,T20,F8.3,T1,L3,TR2,A)', '(G12.4)', '(I4,F8.3)', &
      '(I4,I4,L3,A8)', '(1X,G12.4,G12.4E3,G0.3,G4.1)', &
      '(SP,G0,1X,G0,SS,1X,G0,1X,G0)', '(I4,2X,F8.3,3X,L3,4X,A8)', &
      '(I2,F4.1,L1,A2)', '(I4,''a'',F8.3,''bb'',L3,''ccc'',A8,''dddd'')']
    character(len=30) :: r(4)
    integer :: j, ios
    do j = 1, size(f)
      r = ' '
      write (r, f(j), iostat=ios) 42_int64, 3.25_real64, .true., 'hello'
      call clear_items()
      call add_i(42_int64)
      call add_r(3.25_real64)
      call add_l(.true.)
      call add_s('hello')
      call cmp_write_recs('mixed', trim(f(j)), r, ios)
    end do
    ! Shapes the library's failure records and messages take.
    r = ' '
    write (r, '(3(1X,I5),2(1X,1P,E12.4))', iostat=ios) 1_int64, 99998_int64, &
      2_int64, 171.5_real64, 170.0_real64
    call clear_items()
    call add_i(1_int64)
    call add_i(99998_int64)
    call add_i(2_int64)
    call add_r(171.5_real64)
    call add_r(170.0_real64)
    call cmp_write_recs('record', '(3(1X,I5),2(1X,1P,E12.4))', r, ios)
    r = ' '
    write (r, '(2A,1(I0,A))', iostat=ios) 'abc', 'def', 42_int64, 'xyz'
    call clear_items()
    call add_s('abc')
    call add_s('def')
    call add_i(42_int64)
    call add_s('xyz')
    call cmp_write_recs('record', '(2A,1(I0,A))', r, ios)
    r = ' '
    write (r, '(2A,1(I0,A))', iostat=ios) 'abc', 'def', 42_int64, 'xyz', 7_int64, 'q'
    call add_i(7_int64)
    call add_s('q')
    call cmp_write_recs('record', '(2A,1(I0,A))', r, ios)
    r = ' '
    write (r, '(1X,''** X = '',E13.5,''.''/1X,''** X <= '',   E13.5,''.'')', &
           iostat=ios) -2.5_real64, 1.0e-3_real64
    call clear_items()
    call add_r(-2.5_real64)
    call add_r(1.0e-3_real64)
    call cmp_write_recs('message', &
      '(1X,''** X = '',E13.5,''.''/1X,''** X <= '',   E13.5,''.'')', r, ios)
  end subroutine

  ! Real arrays of 0 to 7 items under formats with groups, reversion,
  ! records, colons, literals and positioning.
  subroutine real_lists()
    character(len=48), parameter :: f(*) = [character(len=48) :: &
      '(999(:,F8.4))', '(F8.3)', '(3F8.3)', '(2F8.3/)', &
      '(F8.3,:,'' next '')', '(F8.3,'' next '')', &
      '(''x='',F6.2,'', y='',F6.2)', '(1X,F6.2,T20,F6.2)', &
      '(2(F6.2,1X),/,(F7.3))', '(F6.2,(2F7.3))', '(2(F6.2,:,''|''))', &
      '(''['',2(F5.1,'',''),'']'')', '(1P,E12.4,(0P,F8.3))', &
      '(1P,E12.4,(F8.3))', '(SP,F6.2,(F6.2))', '(F6.2,(SP,F6.2),SS)', &
      '(//F6.2)', '(F6.2/)', '(F6.2//)', '(2(2(F5.1),''/''))', &
      '(*(F5.1,:,'',''))', '(F5.1,2(/,F5.1))', '(3(F5.1))', &
      '(T10,F5.1,T1,F5.1)', '(F5.1,TL3,F5.1)', '(F5.1,5X,F5.1)', &
      '(F5.1,TR2,''a'',F5.1)', '(F20.3,F20.3,F20.3)', &
      '(E12.4,1X,G12.4,1X,ES12.4)', '(''no data'')', '(F5.1,(''lit''))', &
      '(I5)', '(F5.1,:)', '(:F5.1)', '(F5.1,/,:)', '(F5.1,:,/)', &
      '(2(1X,2(F5.1,:),''x''))', '((F5.1))', '(F5.1,(F6.2,(F7.3)))', &
      '(3PF10.2,(F10.2))', '(2(F5.1),3(F6.2))', '(F5.1,2/,F5.1)', &
      '(2/)', '()', '(F10.3,T5)', '(F10.3,5X)', '(''abc'',T2,F5.1)', &
      '(3X,''a'',:,F5.1)', '(1X,F5.1,1X,''|'',TL2,''#'')']
    real(real64) :: v(7)
    character(len=40) :: r(4)
    integer :: j, n, ios, k
    v = [1.5_real64, -2.25_real64, 1.0e5_real64, 0.125_real64, &
         -3.0e-7_real64, 42.0_real64, 0.0_real64]
    do j = 1, size(f)
      do n = 0, 7
        r = ' '
        write (r, f(j), iostat=ios) v(1:n)
        call clear_items()
        do k = 1, n
          call add_r(v(k))
        end do
        call cmp_write_recs('list n='//achar(48+n), trim(f(j)), r, ios)
      end do
    end do
  end subroutine

  ! Random runs of literals, tabs and skips, with and without data, in a
  ! record of 16 characters: overwriting, blank filling and the end of
  ! record must all agree.
  subroutine positioning()
    character(len=80) :: f
    character(len=16) :: r(1)
    character(len=8) :: e
    character(len=8), parameter :: lits = 'cdefghij'
    integer :: trial, nel, k, ios, nd, kind
    integer(int64) :: vals(8)
    do trial = 1, 4000
      nd = 0
      f = "('ab'"
      nel = 1 + rnd(5)
      do k = 1, nel
        kind = rnd(6)
        select case (kind)
        case (0)
          write (e, '(A,I0)') 'T', 1 + rnd(20)
        case (1)
          write (e, '(A,I0)') 'TL', 1 + rnd(8)
        case (2)
          write (e, '(A,I0)') 'TR', 1 + rnd(8)
        case (3)
          write (e, '(I0,A)') 1 + rnd(8), 'X'
        case (4)
          e = "'"//lits(1:1+rnd(4))//"'"
        case default
          if (trial > 2000) then
            e = 'I3'
            nd = nd + 1
          else
            e = "'Z'"
          end if
        end select
        f = trim(f)//','//trim(e)
      end do
      f = trim(f)//",'#')"
      do k = 1, nd
        vals(k) = 10 * k + k
      end do
      r = ' '
      write (r, f, iostat=ios) vals(1:nd)
      call clear_items()
      do k = 1, nd
        call add_i(vals(k))
      end do
      call cmp_write_recs('tabs', trim(f), r, ios)
    end do
  end subroutine

  ! Records too short and too few.
  subroutine record_limits()
    character(len=40), parameter :: f(*) = [character(len=40) :: &
      '(F8.3)', '(2F8.3)', '(F8.3/F8.3)', '(F8.3//)', '(''abcdefghij'')', &
      '(''abcdefghijk'')', '(10X,''a'')', '(9X,''a'')', '(T11,''a'')', &
      '(T10,''a'')', '(''abc'',T20)', '(''abc'',30X)', '(F10.2)', &
      '(/,/,/)', '(/,/)', '(3(F4.1/))', '(F4.1,TR7,''x'')', &
      '(''x'',(''lit''))', '(''x'',2(''lit''),''y'')', '(/)']
    character(len=10) :: r(3)
    integer :: j, ios
    do j = 1, size(f)
      r = ' '
      write (r, f(j), iostat=ios) 1.5_real64, 2.5_real64, 3.5_real64
      call clear_items()
      call add_r(1.5_real64)
      call add_r(2.5_real64)
      call add_r(3.5_real64)
      call cmp_write_recs('limits', trim(f(j)), r, ios)
    end do
  end subroutine

  ! Unbounded records against a formatted file, which keeps each record's
  ! length as written.
  subroutine records_vs_file()
    character(len=40), parameter :: f(*) = [character(len=40) :: &
      '(F6.2,5X)', '(F6.2,T20)', '(F6.2,T20,''x'')', '(''abc'',TL2)', &
      '(F6.2,/)', '(/)', '()', '(''abc'',5X,''d'')', '(F6.2)', &
      '(2F6.2,/,''tail'',3X)', '(''a'',TR3)', '(''abc'',T1,''x'')', &
      '(F40.3)', '(3(F6.2,:,2X))', '(''  '')', '(F6.2,''  '')', &
      '(F6.2,T30,TL25,''x'')', '(2(F6.2,5X))', '(F6.2,F6.2,10X,T2)']
    character(len=200) :: line, eng
    integer :: j, u, ios, wios, k, sz, nrec_nat, off
    integer(c_int) :: st, nrec, lens(10)
    logical :: ok
    do j = 1, size(f)
      open (newunit=u, status='scratch', form='formatted', action='readwrite')
      write (u, f(j), iostat=wios) 1.5_real64, -2.0_real64
      call clear_items()
      call add_r(1.5_real64)
      call add_r(-2.0_real64)
      eng = ' '
      st = zfmt_write_records(trim(f(j)), len_trim(f(j)), nit, ik, iiv, irv, &
                              ilv, isv, isl, eng, len(eng), lens, 10, nrec)
      rewind (u)
      if (wios /= 0 .or. st /= 0) then
        close (u)
        call tally(status_match(wios, st, .false.), 'records', trim(f(j)), &
                   '', '', wios, st)
        cycle
      end if
      ok = .true.
      nrec_nat = 0
      off = 0
      do k = 1, 10
        line = ' '
        read (u, '(A)', advance='no', size=sz, iostat=ios) line
        if (is_iostat_end(ios)) exit
        nrec_nat = nrec_nat + 1
        if (k <= nrec) then
          ok = ok .and. sz == lens(k)
          if (lens(k) > 0) ok = ok .and. line(1:sz) == eng(off+1:off+lens(k))
          off = off + lens(k)
        end if
      end do
      ok = ok .and. nrec_nat == nrec
      close (u)
      call tally(ok, 'records', trim(f(j)), trim(line), eng(1:off), ios, st)
    end do
  end subroutine

  ! ---- format syntax ------------------------------------------------------

  subroutine format_syntax()
    character(len=24), parameter :: f(*) = [character(len=24) :: &
      '(I5)', '(I)', '(A,I)', '(I5.7)', '(F5)', '(I0.3)', '(X)', '(T)', &
      '(3)', '(A,3)', '(P)', '(1P)', '(I5,)', '(,I5)', '(I5,,I5)', &
      '(A''x'')', '(''x''A)', '(I5 I5)', '(2I5.2.3)', '(L)', '(L0)', &
      '(E12.3E)', '(0X)', '(T0)', '(0I5)', '(0(I5))', '(1x,A)', &
      '(-1PE12.3)', '(+1PE12.3)', '(1P2E12.3)', '(1PI5)', '(1P2(I5))', &
      '(1P''x'')', '(2''x'')', '(2X2I5)', '(())', '()', 'I5', ' ( I 5 ) ', &
      '(I5)xyz', '(I5))', '(2Hab)', '(Q)', '(EN12.3E2)', '(ES12.3E2)', &
      '(F12.3E2)', '(A5.3)', '(L5.3)', '(G0)', '(G0.3E2)', '(G12)', &
      '(D12)', '(E12.3E0)', '(F0)', '(BN)', '(BZ)', '(SP)', '(SS)', '(S)', &
      '(:)', '(TL)', '(TR)', '(TL0)', '(TR0)', '(1X,T1)', '(A0)', '(F0.0)', &
      '(I0.0)', '(1PX)', '(1P2X)', '(1PA)', '(1P:)', '(1P(I5))', '(1PT5)', &
      '(1PBN)', '(1PF5.1)', '(1PEN9.1)', '(1PES9.1)', '(1PG9.1)', &
      '(1PD9.1)', '(1P1P)', '(1P,2P)', '(2:)', '(2P)', '(2T5)', '(2BN)', &
      '(3HA,B)', '(I5:I5)', '(I5/I5)', '(I5''a'')', '(I5(I3))', &
      '(2(I5)I5)', '((I5)(I5))', '(I5.)', '(F5.)', '(F.2)', &
      '(E12.3E2.1)', '(I5.3.1)', '(A5A5)', '(A 5)', '(I 5 . 3)', &
      '(1 P E 12 . 3)', '(T5X)', '(5XI3)', '(X5)', '(/ /)', '(:/)', '(::)', &
      '(,)', '(-1X)', '(-I5)', '(i5)', '(e9.1e2)', '(E5.1E+2)', &
      '(E5.-1)', '(I+5)', '(L5L5)', '(SPI5)', '(BNI5)', '(SSF5.1)', &
      '(S,I5)', '(*(I5))', '(2*(I5))', '(''abc''''d'')', '("ab""c")', &
      '(1PE12.3,2P)', '(12)', '(I5,12)', '(D12.3E2)', '(E8.0)', '(G12.0)', &
      '(''a'' ''b'')', '(I5,''a'',,I5)', '(((((I5)))))']
    character(len=20) :: b
    integer :: j, ios, ok_native, ok_engine
    do j = 1, size(f)
      b = ' '
      write (b, f(j), iostat=ios)
      ! With no items a valid format still writes (or ends its record).
      ok_native = merge(0, 1, ios == 5006)
      ok_engine = zfmt_valid(trim(f(j)), len_trim(f(j)))
      call tally(ok_native == ok_engine, 'syntax', trim(f(j)), &
                 merge('valid  ', 'invalid', ok_native == 1), &
                 merge('valid  ', 'invalid', ok_engine == 1), ios, ok_engine)
    end do
  end subroutine

  ! ---- input --------------------------------------------------------------

  subroutine cmp_read_real(label, fmt, rec, nat, ios)
    character(len=*), intent(in) :: label, fmt, rec
    real(real64), intent(in) :: nat
    integer, intent(in) :: ios
    integer(c_int) :: st, nout, kinds(4), lv(4), toff(4), tlen(4)
    integer(c_long_long) :: iv(4)
    real(c_double) :: rv(4)
    logical :: ok
    st = zfmt_read(fmt, len(fmt), rec, len(rec), 1, 1, nout, kinds, iv, rv, &
                   lv, toff, tlen)
    if (ios /= 0 .or. st /= 0) then
      ok = status_match(ios, st, .true.)
    else
      ok = nout == 1 .and. kinds(1) == 2
      if (ok) then
        if (nat /= nat) then
          ok = rv(1) /= rv(1)
        else
          ok = transfer(nat, 1_int64) == transfer(rv(1), 1_int64)
        end if
      end if
    end if
    call tally(ok, label//' ['//rec//']', fmt, trim(rtoa(nat)), &
               trim(rtoa(rv(1))), ios, st)
  end subroutine

  subroutine real_reads()
    character(len=24), parameter :: f(*) = [character(len=24) :: &
      '(F10.0)', '(F10.2)', '(F5.1)', '(F3.1)', '(F40.0)', '(F40.5)', &
      '(E12.3)', '(D12.3)', '(G12.3)', '(ES12.3)', '(EN12.3)', &
      '(BZ,F10.2)', '(BZ,F5.1)', '(BN,F10.2)', '(1P,F10.2)', &
      '(-2P,F10.2)', '(2P,E12.3)', '(3X,F7.2)', '(T3,F6.1)', '(E12.3E3)', &
      '(BZ,E12.3)', '(f 1 0 . 3)']
    character(len=60), parameter :: s(*) = [character(len=60) :: &
      '1.5', '  1.5', '1 5', '15', '-15', '+', '-', '.', '-.', ' ', &
      '1.5E+03', '1.5+03', '1.5D3', '1.5d3', '1.5q3', '1.5E', '1.5E+', &
      '1e5', 'e5', '.e5', 'Inf', '-Infinity', 'NaN', 'nan(0x1)', '1.5x', &
      '1,5', '1.5 E 3', '  .5  ', '1.2.3', '++1', '1e5.0', '1.5e3 ', &
      '1.5-3', '1.5e-3', '12345678901234567890', 'T', '1.5 3', '1e400', &
      '-1e400', '1e-400', '4.9e-324', '2.4703282292062328e-324', &
      '2.2250738585072011e-308', '0.1', '9007199254740993', &
      '1.00000000000000011102230246251565404236316680908203125', &
      '0.30000000000000004', '123456789012345678901234567890', '-0', &
      '-0.0', '  12  ', '1 2 3', '.1e1', '1.e1', '1.5e+3', '1.5 e -3', &
      '7', '-7.', '+.5', '0.000001', '1e-5', '1d-310', '99999999999999999999e-5', &
      '1e', 'E', 'infinity', 'inf x', 'nan(', '--1', '+-1', '1.5ee3', &
      '1+-3', '3.', '00012.5', ' - 1.5', '2.5e 1']
    character(len=:), allocatable :: rec
    real(real64) :: x
    integer :: i, j, ios, lr
    do j = 1, size(f)
      do i = 1, size(s)
        do lr = 1, 2
          ! The record as long as the text, or padded to 40.
          if (lr == 1) then
            rec = trim(s(i))
            if (len(rec) == 0) rec = ' '
          else
            rec = s(i)(1:40)
          end if
          x = -999.0_real64
          read (rec, f(j), iostat=ios) x
          call cmp_read_real('read', trim(f(j)), rec, x, ios)
        end do
      end do
    end do
  end subroutine

  subroutine other_reads()
    character(len=16), parameter :: fi(*) = [character(len=16) :: &
      '(I10)', '(I3)', '(BZ,I10)', '(I20)', '(I25)', '(BZ,I3)', '(2X,I5)', &
      '(BN,I10)', '(SP,I10)']
    character(len=24), parameter :: si(*) = [character(len=24) :: &
      '12', ' 1 2', '-12', '+', '-', ' ', '1.5', '12e1', '1-2', '++1', 'x', &
      '99999999999', '2147483648', '-2147483648', '9223372036854775807', &
      '9223372036854775808', '-9223372036854775808', '-9223372036854775809', &
      '00042', '  7  ', '+0', '-0', '1 2 3 4', '12345678901234567890123']
    character(len=16), parameter :: fl(*) = [character(len=16) :: &
      '(L1)', '(L3)', '(L7)', '(2X,L3)']
    character(len=16), parameter :: sl(*) = [character(len=16) :: &
      'T', 'F', 't', 'f', '.TRUE.', '.false.', ' .T', '  F', 'x', ' ', &
      '1', '.', '.x', 'Tx', 'true']
    integer, parameter :: wa(*) = [1, 3, 5, 8, 12]
    character(len=:), allocatable :: rec, sv
    integer(int64) :: iv
    logical :: lv
    integer :: i, j, ios, lr, k
    character(len=16) :: fa
    integer(c_int) :: st, nout, kinds(4), lvv(4), toff(4), tlen(4)
    integer(c_long_long) :: ivv(4)
    real(c_double) :: rvv(4)
    logical :: ok
    character(len=40) :: engs
    do j = 1, size(fi)
      do i = 1, size(si)
        do lr = 1, 2
          if (lr == 1) then
            rec = trim(si(i))
            if (len(rec) == 0) rec = ' '
          else
            rec = si(i)(1:24)
          end if
          iv = -999
          read (rec, fi(j), iostat=ios) iv
          st = zfmt_read(trim(fi(j)), len_trim(fi(j)), rec, len(rec), 1, 1, &
                         nout, kinds, ivv, rvv, lvv, toff, tlen)
          if (ios /= 0 .or. st /= 0) then
            ok = status_match(ios, st, .true.)
          else
            ok = nout == 1 .and. kinds(1) == 1 .and. ivv(1) == iv
          end if
          call tally(ok, 'read int ['//rec//']', trim(fi(j)), '', '', ios, st)
        end do
      end do
    end do
    do j = 1, size(fl)
      do i = 1, size(sl)
        rec = sl(i)(1:10)
        lv = .false.
        read (rec, fl(j), iostat=ios) lv
        st = zfmt_read(trim(fl(j)), len_trim(fl(j)), rec, len(rec), 1, 1, &
                       nout, kinds, ivv, rvv, lvv, toff, tlen)
        if (ios /= 0 .or. st /= 0) then
          ok = status_match(ios, st, .true.)
        else
          ok = nout == 1 .and. kinds(1) == 3 .and. (lvv(1) == 1 .eqv. lv)
        end if
        call tally(ok, 'read logical ['//rec//']', trim(fl(j)), '', '', ios, st)
      end do
    end do
    ! A: a variable as long as the field, so that the runtime neither
    ! truncates nor pads; the engine's text is what the record holds there.
    do k = 1, size(wa)
      do lr = 1, 3
        select case (lr)
        case (1)
          rec = 'abcdefghij'
          write (fa, '(A,I0,A)') '(A', wa(k), ')'
        case (2)
          rec = 'abc'
          write (fa, '(A,I0,A)') '(A', wa(k), ')'
        case default
          rec = 'abcdefghij'
          write (fa, '(A,I0,A)') '(2X,A', wa(k), ')'
        end select
        allocate (character(len=wa(k)) :: sv)
        read (rec, fa, iostat=ios) sv
        st = zfmt_read(trim(fa), len_trim(fa), rec, len(rec), 1, 1, nout, &
                       kinds, ivv, rvv, lvv, toff, tlen)
        engs = ' '
        if (st == 0 .and. nout == 1) then
          if (tlen(1) > 0) engs = rec(toff(1)+1:toff(1)+tlen(1))
        end if
        if (ios /= 0 .or. st /= 0) then
          ok = status_match(ios, st, .true.)
        else
          ok = nout == 1 .and. kinds(1) == 4 .and. engs(1:wa(k)) == sv
        end if
        call tally(ok, 'read text ['//rec//']', trim(fa), sv, trim(engs), ios, st)
        deallocate (sv)
      end do
    end do
  end subroutine

  ! Several items over several records: reversion, '/', positioning, ':'
  ! and the blank mode switched inside the format.
  subroutine list_reads()
    character(len=40), parameter :: f(*) = [character(len=40) :: &
      '(2F5.1)', '(F5.1,/,F5.1)', '(F5.1)', '(T6,F5.1,T1,F5.1)', &
      '(5X,F5.1)', '(F2.0,TL2,F2.0)', '(F3.0,BZ,F3.0,BN,F3.0)', &
      '(F5.1,:,/)', '(F5.1,/)', '(F5.1,//)', '(3F3.1)', '(2(F2.0,1X))', &
      '(F5.1,(F2.0))', '(TR2,F3.0,TL5,F3.0)', '(1P,F5.1,(F5.1))', &
      '(F5.1,''x'')', '(3(F3.0,:))', '(T12,F3.0)', '(F20.0)', &
      '(2X,2(F2.0,X))', '(/)', '(/,/)', '(2X)', '(F3.0,(/))', &
      '(F3.0,(2X))', '(F3.0,/,(2X))', '(:,/)', '(F3.0,(:,/))', &
      '(F3.0,(2X,/))', '(F3.0,/,(/))', '(F3.0,(/,/))', '(2X,/)']
    character(len=10) :: r(3)
    real(real64) :: x(4)
    integer :: j, n, ios, k
    integer(c_int) :: st, nout, kinds(8), lv(8), toff(8), tlen(8)
    integer(c_long_long) :: iv(8)
    real(c_double) :: rv(8)
    character(len=30) :: cat
    logical :: ok
    r(1) = '1.5 2 3.25'
    r(2) = '  -4  5e1 '
    r(3) = '6 7.5 8 9 '
    cat = r(1)//r(2)//r(3)
    do j = 1, size(f)
      do n = 1, 4
        x = -999.0_real64
        read (r, f(j), iostat=ios) x(1:n)
        st = zfmt_read(trim(f(j)), len_trim(f(j)), cat, 10, 3, n, nout, kinds, &
                       iv, rv, lv, toff, tlen)
        if (ios /= 0 .or. st /= 0) then
          ok = status_match(ios, st, .true.)
        else
          ok = nout == n
          do k = 1, min(n, nout)
            ok = ok .and. kinds(k) == 2 .and. rv(k) == x(k)
          end do
        end if
        call tally(ok, 'read list n='//achar(48+n), trim(f(j)), '', '', ios, st)
      end do
    end do
  end subroutine

  ! Reals read from the first of two records: an array keeps its trailing
  ! blanks where a scalar sets them aside.
  subroutine array_reads()
    character(len=16), parameter :: f(*) = [character(len=16) :: &
      '(F8.1)', '(F8.0)', '(BZ,F8.1)', '(E8.2)', '(F4.1,TL4,F4.1)', &
      '(F8.1,TL3,F2.0)', '(3X,F5.1)']
    character(len=8), parameter :: s(*) = [character(len=8) :: &
      '1.5E+', '1.5+', '1.5E', '3.-', '1.5', '1 5', 'inf', 'nan()', &
      '+', '-', '12 3', '1e1', '  7 ', '.5e-1']
    character(len=8) :: r(2)
    real(real64) :: x(2)
    integer :: i, j, ios, k
    integer(c_int) :: st, nout, kinds(4), lv(4), toff(4), tlen(4)
    integer(c_long_long) :: iv(4)
    real(c_double) :: rv(4)
    logical :: ok
    do j = 1, size(f)
      do i = 1, size(s)
        r(1) = s(i)
        r(2) = '9'
        x = -999.0_real64
        read (r, f(j), iostat=ios) x
        st = zfmt_read(trim(f(j)), len_trim(f(j)), r(1)//r(2), 8, 2, 2, nout, &
                       kinds, iv, rv, lv, toff, tlen)
        if (ios /= 0 .or. st /= 0) then
          ok = status_match(ios, st, .true.)
        else
          ok = nout == 2
          do k = 1, min(nout, 2)
            if (x(k) /= x(k)) then
              ok = ok .and. rv(k) /= rv(k)
            else
              ok = ok .and. transfer(rv(k), 1_int64) == transfer(x(k), 1_int64)
            end if
          end do
        end if
        call tally(ok, 'array read ['//s(i)//']', trim(f(j)), '', '', ios, st)
      end do
    end do
  end subroutine

  ! Random short texts of digits, points, signs, exponent letters and blanks
  ! under random real descriptors and modes.
  subroutine random_reads()
    character(len=16), parameter :: alpha = '0123456789.+-eEd'
    character(len=2), parameter :: ds(*) = ['F ', 'E ', 'D ', 'G ', 'ES', 'EN']
    character(len=:), allocatable :: rec
    character(len=20) :: t
    character(len=40) :: f
    real(real64) :: x
    integer :: trial, n, k, c, ios, w, d
    do trial = 1, 20000
      n = rnd(13)
      t = ' '
      do k = 1, n
        ! Digits more often than the rest.
        c = rnd(22)
        if (c < 16) then
          t(k:k) = alpha(c+1:c+1)
        else if (c < 19) then
          t(k:k) = ' '
        else
          t(k:k) = achar(48 + rnd(10))
        end if
      end do
      w = 1 + rnd(15)
      d = rnd(6)
      f = '('
      if (rnd(3) == 0) f = trim(f)//'BZ,'
      if (rnd(4) == 0) write (f, '(A,I0,A)') trim(f), rnd(7) - 3, 'P,'
      write (f, '(A,A,I0,A,I0,A)') trim(f), trim(ds(1+rnd(size(ds)))), w, '.', d, ')'
      if (rnd(2) == 0) then
        rec = t(1:max(n, 1))
      else
        rec = t
      end if
      x = -999.0_real64
      read (rec, f, iostat=ios) x
      call cmp_read_real('random read', trim(f), rec, x, ios)
    end do
  end subroutine

  ! Random formats of F fields and positioning over three records of numbers,
  ! read into lists of 1 to 6 reals.
  subroutine random_list_reads()
    character(len=12), parameter :: el(*) = [character(len=12) :: &
      'F5.1', 'F3.0', 'E6.2', 'G4.1', '2F4.2', 'BZ', 'BN', '/', ':', &
      'X', '3X', 'T4', 'T9', 'TL2', 'TR3', '1P', '-1P', '0P', '(F2.0)', &
      '2(F3.1,1X)', 'F12.3']
    character(len=12) :: r(3)
    character(len=36) :: cat
    character(len=200) :: f
    real(real64) :: x(6)
    integer :: trial, n, k, ne, ios
    integer(c_int) :: st, nout, kinds(8), lv(8), toff(8), tlen(8)
    integer(c_long_long) :: iv(8)
    real(c_double) :: rv(8)
    logical :: ok
    r(1) = '12 3.5 -7 8 '
    r(2) = ' 1e2 45 6.25'
    r(3) = '9 10 11 1 2 '
    cat = r(1)//r(2)//r(3)
    do trial = 1, 6000
      ne = 1 + rnd(5)
      f = '('
      do k = 1, ne
        if (k > 1) f = trim(f)//','
        f = trim(f)//trim(el(1 + rnd(size(el))))
      end do
      f = trim(f)//',F4.1)'
      n = 1 + rnd(6)
      x = -999.0_real64
      read (r, f, iostat=ios) x(1:n)
      st = zfmt_read(trim(f), len_trim(f), cat, 12, 3, n, nout, kinds, iv, &
                     rv, lv, toff, tlen)
      if (ios /= 0 .or. st /= 0) then
        ok = status_match(ios, st, .true.)
      else
        ok = nout == n
        do k = 1, min(n, nout)
          ok = ok .and. kinds(k) == 2 .and. &
               transfer(rv(k), 1_int64) == transfer(x(k), 1_int64)
        end do
      end if
      call tally(ok, 'random list read', trim(f), '', '', ios, st)
    end do
  end subroutine

end program fmt_compare
