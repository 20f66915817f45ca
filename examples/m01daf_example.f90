! examples/m01daf_example.f90 — ranking and rearranging from Fortran: M01DAF, M01DBF,
! M01DCF (vectors), M01DEF, M01DFF (rows), M01DJF, M01DKF (columns), M01DZF (through a
! comparison function), then M01EAF, M01EBF, M01ECF, M01EDF (into rank order).
module m01daf_example_compar
  implicit none
contains
  ! Item i comes before item j when its weight, ruser(i), is smaller.
  logical function lighter(i, j, iuser, ruser)
    integer, intent(in) :: i, j
    integer, intent(inout) :: iuser(*)
    real(kind=8), intent(inout) :: ruser(*)
    iuser(1) = iuser(1) + 1
    lighter = ruser(i) < ruser(j)
  end function lighter
end module m01daf_example_compar

program m01daf_example
  use zor
  use m01daf_example_compar
  implicit none
  real(kind=8) :: rv(8), rm(4, 3), ruser(6)
  integer :: iv(8), im(4, 3), irank(8), iuser(1), ifail, i
  character(len=6) :: ch(5)
  complex(kind=8) :: cv(4)

  ifail = 0
  rv = [2.5d0, -1.0d0, 2.5d0, 0.0d0, 7.0d0, -1.0d0, 2.5d0, 3.0d0]
  call m01daf(rv, 1, 8, 'A', irank, ifail)
  write (*, '(a)') 'M01DAF, ranks ascending (ties keep their order):'
  write (*, '(8i3)') irank
  call m01daf(rv, 1, 8, 'D', irank, ifail)
  write (*, '(a)') 'M01DAF, ranks descending (ties keep their order):'
  write (*, '(8i3)') irank
  call m01eaf(rv, 1, 8, irank, ifail)
  write (*, '(a)') 'M01EAF, rearranged by those ranks:'
  write (*, '(8f6.1)') rv

  iv = [5, 3, 5, 1, -2, 3, 9, 0]
  call m01dbf(iv, 1, 8, 'A', irank, ifail)
  write (*, '(a)') 'M01DBF, ranks ascending:'
  write (*, '(8i3)') irank
  call m01ebf(iv, 1, 8, irank, ifail)
  write (*, '(a)') 'M01EBF, rearranged:'
  write (*, '(8i3)') iv

  ch = ['pear  ', 'apple ', 'plum  ', 'fig   ', 'apricot'(1:6)]
  call m01dcf(ch, 1, 5, 1, 2, 'A', irank, ifail)
  write (*, '(a)') 'M01DCF, ranks on columns 1..2:'
  write (*, '(5i3)') irank(1:5)
  call m01ecf(ch, 1, 5, irank, ifail)
  write (*, '(a)') 'M01ECF, rearranged:'
  write (*, '(5(1x,a))') (trim(ch(i)), i = 1, 5)

  ! A 4 x 3 matrix: rows ranked by columns 2..3, columns by rows 1..2.
  rm = reshape([1.0d0, 2.0d0, 3.0d0, 4.0d0, &
                5.0d0, 1.0d0, 5.0d0, 1.0d0, &
                0.5d0, 9.0d0, 0.25d0, 9.0d0], [4, 3])
  im = nint(rm * 4)
  call m01def(rm, 4, 1, 4, 2, 3, 'A', irank, ifail)
  write (*, '(a)') 'M01DEF, rows 1..4 ranked by columns 2..3:'
  write (*, '(4i3)') irank(1:4)
  call m01dff(im, 4, 1, 4, 2, 3, 'D', irank, ifail)
  write (*, '(a)') 'M01DFF, the same in integers, descending:'
  write (*, '(4i3)') irank(1:4)
  call m01djf(rm, 4, 1, 2, 1, 3, 'A', irank, ifail)
  write (*, '(a)') 'M01DJF, columns 1..3 ranked by rows 1..2:'
  write (*, '(3i3)') irank(1:3)
  call m01dkf(im, 4, 1, 2, 1, 3, 'D', irank, ifail)
  write (*, '(a)') 'M01DKF, the same in integers, descending:'
  write (*, '(3i3)') irank(1:3)

  ruser = [0.7d0, 0.2d0, 0.9d0, 0.2d0, 0.1d0, 0.5d0]
  iuser(1) = 0
  call m01dzf(lighter, 1, 6, irank, iuser, ruser, ifail)
  write (*, '(a)') 'M01DZF, six items ranked by weight through a comparison function:'
  write (*, '(6i3)') irank(1:6)
  write (*, '(a,l1)') 'comparisons counted in IUSER: ', iuser(1) > 0

  cv = [(1.0d0, 1.0d0), (2.0d0, -2.0d0), (3.0d0, 3.0d0), (4.0d0, -4.0d0)]
  irank(1:4) = [4, 3, 2, 1]
  call m01edf(cv, 1, 4, irank, ifail)
  write (*, '(a)') 'M01EDF, four complex numbers reversed by ranks 4 3 2 1:'
  write (*, '(4(" (",f4.1,",",f4.1,")"))') cv

  ! Ranks that are not a permutation: error 2, the vector untouched.
  irank(1:4) = [1, 2, 2, 4]
  ifail = -1
  call m01edf(cv, 1, 4, irank, ifail)
  write (*, '(a,i0)') 'M01EDF with ranks 1 2 2 4: IFAIL = ', ifail
end program m01daf_example
