! examples/c05azf_example.f90 — C05AZF from Fortran: the zero of x - cos(x) in [0, 1] by
! reverse communication, the caller evaluating f whenever IND /= 0 on return; then an
! error exit (tolx = 0) with IFAIL = -1.
program c05azf_example
  use zor
  implicit none
  real(kind=8) :: x, y, fx, tolx, c(20)
  integer :: ir, ind, ifail, calls

  write (*, '(a)') 'c05azf example: zero of x - cos(x) in [0, 1]'
  x = 0.0d0
  y = 1.0d0
  fx = 0.0d0
  tolx = 1.0d-12
  ir = 2
  ind = 1
  ifail = 0
  calls = 0
  do while (calls < 1000)
    call c05azf(x, y, fx, tolx, ir, c, ind, ifail)
    calls = calls + 1
    if (ind == 0) exit
    fx = x - cos(x)
  end do
  write (*, '(a, f16.12, a, i0)') 'x = ', x, ', ifail = ', ifail
  write (*, '(a, l1)') '|x - y| <= tolx: ', abs(x - y) <= tolx

  write (*, '(a)') 'with tolx = 0 and ifail = -1:'
  x = 0.0d0
  y = 1.0d0
  tolx = 0.0d0
  ind = 1
  ifail = -1
  call c05azf(x, y, fx, tolx, ir, c, ind, ifail)
  write (*, '(a, i0, a, i0)') 'ifail = ', ifail, ', ind = ', ind
end program c05azf_example
