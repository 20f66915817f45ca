! examples/a00aaf_example.f90 — the library's identification (A00AAF), printed on the
! advisory unit.
program a00aaf_example
  use zor
  implicit none
  write (*, '(A)') 'A00AAF example'
  call a00aaf()
end program a00aaf_example
