! examples/x04acf_hard_example.f90 — a hard failure: with IFAIL = 0 on entry an error
! prints its message on the error unit and stops the program with exit status 1. What
! the program wrote before the stop is not lost.
program x04acf_hard_example
  use zor
  implicit none
  integer :: ifail

  write (*, '(A)') 'calling x04acf with MODE = 5 and IFAIL = 0'
  ifail = 0
  call x04acf(23, 'x04acf_hard_example.txt', 5, ifail)
  write (*, '(A)') 'never reached'
end program x04acf_hard_example
