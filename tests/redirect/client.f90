! tests/redirect/client.f90 — the program's own WRITEs and the library's records on
! units 6 and 0, with standard output and standard error sent to one file: every line
! must land in the order the program produced it.
program client
  use zor
  implicit none
  integer :: ifail, unit
  write (6, '(A)') 'Fortran line 1'
  call x04baf(6, 'record 1 on unit 6')
  write (6, '(A)') 'Fortran line 2'
  call x04baf(0, 'record 2 on unit 0')
  write (6, '(A)') 'Fortran line 3'
  unit = 0
  call x04aaf(1, unit)
  ifail = -1
  call x04acf(12, 'unused', 9, ifail)
  write (6, '(A, I0)') 'Fortran line 4, IFAIL = ', ifail
  call x04baf(6, 'record 3 on unit 6')
end program client
