! examples/m01caf_example.f90 — sorting in place from Fortran: reals with signed zeros
! (M01CAF), integers (M01CBF), strings on a range of columns (M01CCF), and the error
! message for an illegal ORDER.
program m01caf_example
  use zor
  implicit none
  real(kind=8) :: rv(20), small(6)
  integer :: iv(10), ifail, i
  character(len=8) :: ch(6)

  ! Equal keys that print differently: -0.0 and +0.0 end where the method puts them.
  small = [0.0d0, -0.0d0, 1.0d0, -0.0d0, 0.0d0, -1.0d0]
  ifail = 0
  call m01caf(small, 1, 6, 'A', ifail)
  write (*, '(a)') 'M01CAF, 6 values with signed zeros, ascending:'
  write (*, '(6f6.1)') small

  rv = [3.0d0, -0.0d0, 2.0d0, 0.0d0, -1.0d0, 0.0d0, -0.0d0, 5.0d0, -2.0d0, 0.0d0, &
        -0.0d0, 4.0d0, 1.0d0, 0.0d0, -0.0d0, -3.0d0, 0.0d0, -0.0d0, 2.5d0, -0.0d0]
  call m01caf(rv, 1, 20, 'a', ifail)
  write (*, '(a)') 'M01CAF, 20 values with signed zeros, ascending:'
  write (*, '(10f6.1)') rv
  call m01caf(rv, 1, 20, 'D', ifail)
  write (*, '(a)') 'M01CAF, the same, descending (the ascending sort reversed):'
  write (*, '(10f6.1)') rv

  ! Only the section 3..8 is sorted.
  iv = [9, 8, 7, 6, 5, 4, 3, 2, 1, 0]
  call m01cbf(iv, 3, 8, 'A', ifail)
  write (*, '(a)') 'M01CBF, section 3..8 ascending:'
  write (*, '(10i3)') iv

  ! Strings sorted on columns 3..5; columns 1..2 are carried along.
  ch = ['a1zeta  ', 'b2alpha ', 'c3gamma ', 'd4alpha ', 'e5beta  ', 'f6delta ']
  call m01ccf(ch, 1, 6, 3, 5, 'A', ifail)
  write (*, '(a)') 'M01CCF, on columns 3..5:'
  write (*, '(6(1x,a))') (trim(ch(i)), i = 1, 6)

  ! An illegal ORDER with IFAIL = -1: the message is printed and control returns.
  ifail = -1
  call m01caf(rv, 1, 20, 'X', ifail)
  write (*, '(a,i0)') 'M01CAF with ORDER = ''X'': IFAIL = ', ifail
end program m01caf_example
