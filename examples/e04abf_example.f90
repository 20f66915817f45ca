! examples/e04abf_example.f90 — E04ABF from Fortran: the minimum of sin(x)/x in [3.5, 5]
! with the default tolerances (E1 = E2 = 0 are replaced and returned); then MAXCAL too
! small with IFAIL = -1, which prints the records and returns, and a restart from the
! interval returned.
module e04abf_example_fns
  implicit none
contains
  subroutine funct(xc, fc)
    real(kind=8), intent(in) :: xc
    real(kind=8), intent(out) :: fc
    fc = sin(xc) / xc
  end subroutine funct
end module e04abf_example_fns

program e04abf_example
  use zor
  use e04abf_example_fns
  implicit none
  real(kind=8) :: e1, e2, a, b, x, f
  integer :: maxcal, ifail

  write (*, '(a)') 'e04abf example: minimum of sin(x)/x in [3.5, 5]'
  e1 = 0.0d0
  e2 = 0.0d0
  a = 3.5d0
  b = 5.0d0
  maxcal = 30
  ifail = 0
  call e04abf(funct, e1, e2, a, b, maxcal, x, f, ifail)
  write (*, '(a, es23.16, a, es23.16)') 'e1 = ', e1, ', e2 = ', e2
  write (*, '(a, f10.6, a, f10.6, a, i0)') 'x = ', x, ', f = ', f, ', ifail = ', ifail
  write (*, '(a, l1)') 'final interval contains x and is shorter than 1e-6: ', &
    a <= x .and. x <= b .and. b - a < 1.0d-6
  write (*, '(a, l1)') 'fewer than 15 calls: ', maxcal < 15

  write (*, '(a)') 'with maxcal = 4 and ifail = -1:'
  a = 3.5d0
  b = 5.0d0
  maxcal = 4
  ifail = -1
  call e04abf(funct, e1, e2, a, b, maxcal, x, f, ifail)
  write (*, '(a, i0, a, i0)') 'ifail = ', ifail, ', maxcal = ', maxcal
  maxcal = 30
  ifail = 0
  call e04abf(funct, e1, e2, a, b, maxcal, x, f, ifail)
  write (*, '(a, f10.6, a, i0)') 'restarted from [a, b]: x = ', x, ', ifail = ', ifail
end program e04abf_example
