! frame/test/fortran_write.f90 — a WRITE of the test program's own, so that the tests can
! leave a record in the Fortran runtime's buffer (not flushed) before a hard stop.
subroutine zor_test_fortran_write(unit, text, n) bind(c, name='zor_test_fortran_write')
  use, intrinsic :: iso_c_binding, only: c_int32_t, c_char
  implicit none
  integer(c_int32_t), value :: unit, n
  character(kind=c_char), intent(in) :: text(*)
  integer :: i
  character(len=n) :: line
  do i = 1, n
    line(i:i) = text(i)
  end do
  write (unit, '(A)') line
end subroutine zor_test_fortran_write
