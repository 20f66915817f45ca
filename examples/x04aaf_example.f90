! examples/x04aaf_example.f90 — the error and advisory units (X04AAF, X04ABF) and the
! record writer (X04BAF), from Fortran: the library's records land in order among the
! program's own WRITEs, trailing blanks dropped, a blank record as an empty line.
program x04aaf_example
  use zor
  implicit none
  integer :: nerr, nadv, unit
  character(len=40) :: rec

  ! Both units start at 6, the standard output.
  call x04aaf(0, nerr)
  call x04abf(0, nadv)
  write (*, '(A, I0, A, I0)') 'error unit ', nerr, ', advisory unit ', nadv

  ! Set, then get: the new values. IFLAG = 2 changes nothing.
  unit = 0
  call x04aaf(1, unit)
  unit = 9
  call x04abf(1, unit)
  call x04aaf(0, nerr)
  call x04abf(0, nadv)
  write (*, '(A, I0, A, I0)') 'error unit ', nerr, ', advisory unit ', nadv
  unit = 55
  call x04aaf(2, unit)
  call x04aaf(0, nerr)
  write (*, '(A, I0, A, I0)') 'after IFLAG = 2: unit argument ', unit, ', error unit ', nerr
  unit = 6
  call x04aaf(1, unit)
  call x04abf(1, unit)

  ! Records on unit 6, between the program's own lines.
  write (*, '(A)') 'program line 1'
  rec = 'a record of 40 characters, mostly blank'
  call x04baf(6, rec)
  rec = ' '
  call x04baf(6, rec)
  write (*, '(A)') 'program line 2'
  call x04baf(6, '   indented record   ')
  ! A negative unit prints nothing.
  call x04baf(-1, 'never printed')
  write (*, '(A)') 'program line 3'
end program x04aaf_example
