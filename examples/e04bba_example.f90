! examples/e04bba_example.f90 — E04BBA from Fortran: the minimum of x**4 - r*x + 1 with
! r = 3 passed in RUSER and the calls counted in IUSER, beside E04ABA on the same problem;
! then A + E2 >= B with IFAIL = -1, which prints the records and returns.
module e04bba_example_fns
  implicit none
contains
  subroutine fg(xc, fc, gc, iuser, ruser)
    real(kind=8), intent(in) :: xc
    real(kind=8), intent(out) :: fc, gc
    integer, intent(inout) :: iuser(*)
    real(kind=8), intent(inout) :: ruser(*)
    iuser(1) = iuser(1) + 1
    fc = xc**4 - ruser(1) * xc + 1.0d0
    gc = 4.0d0 * xc**3 - ruser(1)
  end subroutine fg

  subroutine fv(xc, fc, iuser, ruser)
    real(kind=8), intent(in) :: xc
    real(kind=8), intent(out) :: fc
    integer, intent(inout) :: iuser(*)
    real(kind=8), intent(inout) :: ruser(*)
    iuser(1) = iuser(1) + 1
    fc = xc**4 - ruser(1) * xc + 1.0d0
  end subroutine fv
end module e04bba_example_fns

program e04bba_example
  use zor
  use e04bba_example_fns
  implicit none
  real(kind=8) :: e1, e2, a, b, x, f, g, ruser(1)
  integer :: maxcal, ifail, iuser(1), calls_bb

  write (*, '(a)') 'e04bba example: minimum of x**4 - 3x + 1 in [-1, 2]'
  ruser(1) = 3.0d0
  iuser(1) = 0
  e1 = 1.0d-10
  e2 = 1.0d-10
  a = -1.0d0
  b = 2.0d0
  maxcal = 50
  ifail = 0
  call e04bba(fg, e1, e2, a, b, maxcal, x, f, g, iuser, ruser, ifail)
  write (*, '(a, f12.8, a, f12.8, a, i0)') 'x = ', x, ', f = ', f, ', ifail = ', ifail
  write (*, '(a, l1)') '|g| < 1e-8: ', abs(g) < 1.0d-8
  write (*, '(a, l1)') 'maxcal counts every call: ', maxcal == iuser(1)
  calls_bb = maxcal

  iuser(1) = 0
  a = -1.0d0
  b = 2.0d0
  maxcal = 50
  ifail = 0
  call e04aba(fv, e1, e2, a, b, maxcal, x, f, iuser, ruser, ifail)
  write (*, '(a, f12.8, a, i0)') 'e04aba: x = ', x, ', ifail = ', ifail
  write (*, '(a, l1)') 'the derivatives saved calls: ', calls_bb < maxcal

  write (*, '(a)') 'with a = 1, b = 1.5, e2 = 0.5 and ifail = -1:'
  a = 1.0d0
  b = 1.5d0
  e2 = 0.5d0
  ifail = -1
  call e04bba(fg, e1, e2, a, b, maxcal, x, f, g, iuser, ruser, ifail)
  write (*, '(a, i0)') 'ifail = ', ifail
end program e04bba_example
