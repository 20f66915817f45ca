! examples/x04acf_example.f90 — files on units (X04ACF, X04ADF), from Fortran: write a
! file, append to it, read it back; then an error exit with IFAIL = -1 on entry (a bad
! MODE), which prints its message on the error unit and returns.
! A unit connected by X04ACF is a unit of the library's Fortran runtime: for the library's
! own records and reads. The program reads the file back through a unit of its own, since
! the two runtimes are one only where the runtime is a shared library (Linux); zor.dll
! carries its own.
program x04acf_example
  use zor
  implicit none
  integer, parameter :: nout = 21
  character(len=*), parameter :: file = 'x04acf_example.txt'
  character(len=80) :: line
  integer :: ifail, ios, in

  ifail = 0
  call x04acf(nout, file, 1, ifail)              ! mode 1: write, replacing the file
  call x04baf(nout, 'first record')
  call x04adf(nout, ifail)
  call x04acf(nout, file, 2, ifail)              ! mode 2: append
  call x04baf(nout, 'second record')
  call x04adf(nout, ifail)

  call x04acf(nout, file, 0, ifail)              ! mode 0: read (the file must exist)
  call x04adf(nout, ifail)

  open (newunit=in, file=file, status='old', action='read')
  do
    read (in, '(A)', iostat=ios) line
    if (ios /= 0) exit
    write (*, '(A, A)') 'read back: ', trim(line)
  end do
  close (in)
  write (*, '(A, I0)') 'IFAIL after the file calls: ', ifail

  ! MODE = 3 is not allowed: with IFAIL = -1 the message is printed and control returns.
  ifail = -1
  call x04acf(nout, file, 3, ifail)
  write (*, '(A, I0)') 'IFAIL on return: ', ifail

  ! With IFAIL = 1 the same failure is silent.
  ifail = 1
  call x04acf(-5, file, 1, ifail)
  write (*, '(A, I0)') 'IFAIL on return (quiet): ', ifail
  open (unit=nout, file=file)
  close (unit=nout, status='delete')
end program x04acf_example
