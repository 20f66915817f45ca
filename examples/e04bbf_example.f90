! examples/e04bbf_example.f90 — E04BBF from Fortran: the minimum of sin(x)/x in [3.5, 5]
! from values and derivatives with the default tolerances, then the same with MAXCAL = 1,
! which fails its check, with IFAIL = 1 (quiet).
module e04bbf_example_fns
  implicit none
contains
  subroutine funct(xc, fc, gc)
    real(kind=8), intent(in) :: xc
    real(kind=8), intent(out) :: fc, gc
    fc = sin(xc) / xc
    gc = (xc * cos(xc) - sin(xc)) / xc**2
  end subroutine funct
end module e04bbf_example_fns

program e04bbf_example
  use zor
  use e04bbf_example_fns
  implicit none
  real(kind=8) :: e1, e2, a, b, x, f, g
  integer :: maxcal, ifail

  write (*, '(a)') 'e04bbf example: minimum of sin(x)/x in [3.5, 5] with derivatives'
  e1 = 0.0d0
  e2 = 0.0d0
  a = 3.5d0
  b = 5.0d0
  maxcal = 30
  ifail = 0
  call e04bbf(funct, e1, e2, a, b, maxcal, x, f, g, ifail)
  write (*, '(a, f10.6, a, f10.6, a, i0)') 'x = ', x, ', f = ', f, ', ifail = ', ifail
  write (*, '(a, l1)') '|g| < 1e-7: ', abs(g) < 1.0d-7
  write (*, '(a, l1)') 'fewer than 10 calls: ', maxcal < 10

  maxcal = 1
  ifail = 1
  call e04bbf(funct, e1, e2, a, b, maxcal, x, f, g, ifail)
  write (*, '(a, i0, a, i0)') 'with maxcal = 1 and ifail = 1 on entry: ifail = ', ifail, &
    ', maxcal = ', maxcal
end program e04bbf_example
