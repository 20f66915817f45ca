! tests/install/client.f90 — a Fortran user of the installed library: module zor from the
! installed zor.mod, found by find_package.
program client
  use zor
  implicit none
  integer :: nerr
  nerr = -1
  call x04aaf(0, nerr)
  write (*, '(A, ES24.16E3, A, I0)') 'Fortran client: eps =', x02ajf(), ', error unit = ', nerr
  call a00aaf()
end program client
