! examples/c05ayf_example.f90 — C05AYF from Fortran: the zero of exp(-x) - r*x in [0, 1]
! with r passed in RUSER and the evaluations counted in IUSER; then an error exit
! (a = b) with IFAIL = -1, which prints the records and returns.
module c05ayf_example_fns
  implicit none
contains
  real(kind=8) function f(x, iuser, ruser)
    real(kind=8), intent(in) :: x
    integer, intent(inout) :: iuser(*)
    real(kind=8), intent(inout) :: ruser(*)
    iuser(1) = iuser(1) + 1
    f = exp(-x) - ruser(1) * x
  end function f
end module c05ayf_example_fns

program c05ayf_example
  use zor
  use c05ayf_example_fns
  implicit none
  real(kind=8) :: a, b, eps, eta, x, ruser(1)
  integer :: iuser(1), ifail

  write (*, '(a)') 'c05ayf example: zero of exp(-x) - x in [0, 1]'
  a = 0.0d0
  b = 1.0d0
  eps = 1.0d-10
  eta = 0.0d0
  ruser(1) = 1.0d0
  iuser(1) = 0
  ifail = 0
  call c05ayf(a, b, eps, eta, f, x, iuser, ruser, ifail)
  write (*, '(a, f14.10, a, i0)') 'x = ', x, ', ifail = ', ifail
  write (*, '(a, l1)') 'f was evaluated fewer than 15 times: ', iuser(1) < 15

  write (*, '(a)') 'with a = b = 1.5 and ifail = -1:'
  a = 1.5d0
  b = 1.5d0
  ifail = -1
  call c05ayf(a, b, eps, eta, f, x, iuser, ruser, ifail)
  write (*, '(a, i0)') 'ifail = ', ifail
end program c05ayf_example
