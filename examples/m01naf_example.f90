! examples/m01naf_example.f90 — searching sorted vectors (M01NAF, M01NBF, M01NCF,
! M01NDF in its five modes) and permutations (M01ZAF, M01ZBF, M01ZCF) from Fortran.
program m01naf_example
  use zor
  implicit none
  real(kind=8) :: valid(6), x(5)
  integer :: ivalid(5), idx(5), iperm(6), icycl(6), ifail, mode
  character(len=5) :: names(4)

  ifail = 0
  valid = [1.0d0, 2.0d0, 2.0d0, 3.5d0, 7.0d0, 9.0d0]
  write (*, '(a)') 'M01NAF, last position with valid(i) <= item (0 if none):'
  write (*, '(a,i0)') '  item 2.0: ', m01naf(valid, 1, 6, 2.0d0, ifail)
  write (*, '(a,i0)') '  item 0.5: ', m01naf(valid, 1, 6, 0.5d0, ifail)
  write (*, '(a,i0)') '  item 8.0 in the section 2..5: ', m01naf(valid, 2, 5, 8.0d0, ifail)

  ivalid = [-4, 0, 0, 10, 20]
  write (*, '(a,i0)') 'M01NBF, item 5: ', m01nbf(ivalid, 1, 5, 5, ifail)

  names = ['alpha', 'beta ', 'delta', 'gamma']
  write (*, '(a,i0)') 'M01NCF, item ''charlie'': ', m01ncf(names, 1, 4, 'charlie', ifail)
  write (*, '(a,i0)') 'M01NCF, item ''beta'': ', m01ncf(names, 1, 4, 'beta', ifail)

  x = [2.0d0, 0.0d0, 3.0d0, 9.5d0, 8.1d0]
  write (*, '(a)') 'M01NDF on valid(1:6), items 2.0 0.0 3.0 9.5 8.1:'
  do mode = 0, 4
    call m01ndf(valid, 6, 1, 6, x, 5, mode, idx, ifail)
    write (*, '(a,i0,a,5i3)') '  mode ', mode, ':', idx
  end do

  iperm = [3, 1, 2, 5, 4, 6]
  call m01zbf(iperm, 1, 6, ifail)
  write (*, '(a,i0)') 'M01ZBF, 3 1 2 5 4 6 is a permutation: IFAIL = ', ifail
  call m01zcf(iperm, 1, 6, icycl, ifail)
  write (*, '(a)') 'M01ZCF, its cycles (each led by its smallest element, negated):'
  write (*, '(6i4)') icycl
  call m01zaf(iperm, 1, 6, ifail)
  write (*, '(a)') 'M01ZAF, its inverse:'
  write (*, '(6i4)') iperm

  iperm = [3, 1, 7, 5, 4, 6]
  ifail = 1
  call m01zbf(iperm, 1, 6, ifail)
  write (*, '(a,i0)') 'M01ZBF, 3 1 7 5 4 6 (quietly): IFAIL = ', ifail
  ifail = -1
  call m01ndf(valid, 6, 1, 6, x, 5, 7, idx, ifail)
end program m01naf_example
