! tests/bitwise/bitwise_fortran.f90 — the Fortran side of the bitwise identity test: a
! program that calls the F routines by their lower-case names, with the module's explicit
! interfaces, and prints reals as their bit patterns. Its output from zor.dll under Wine
! must equal its output from libzor.so (windows.bitwise_identity).
program bitwise_fortran
  use, intrinsic :: iso_fortran_env, only: int64, real64
  use zor
  implicit none
  integer :: ifail, nerr

  call show('x02ajf', x02ajf())
  call show('x02akf', x02akf())
  call show('x02alf', x02alf())
  call show('x02amf', x02amf())
  write (*, '(A,I0)') 'x02bbf = ', x02bbf()
  write (*, '(A,I0)') 'x02bkf = ', x02bkf()

  nerr = -1
  call x04aaf(0, nerr)
  write (*, '(A,I0)') 'error unit = ', nerr
  call x04baf(6, ' a record from Fortran      ')
  call x04baf(6, '    ')
  call x04baf(-1, ' never printed')

  ifail = -1
  call x04acf(-5, 'none', 1, ifail)
  write (*, '(A,I0)') 'x04acf ifail = ', ifail
  ifail = 1
  call x04acf(20, 'none', 9, ifail)
  write (*, '(A,I0)') 'quiet x04acf ifail = ', ifail

contains

  subroutine show(label, v)
    character(len=*), intent(in) :: label
    real(real64), intent(in) :: v
    write (*, '(A,A,Z16.16)') label, ' = 0x', transfer(v, 0_int64)
  end subroutine show

end program bitwise_fortran
