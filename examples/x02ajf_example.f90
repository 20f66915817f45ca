! examples/x02ajf_example.f90 — the machine constants of the X02 family, from Fortran:
! each value with its bit pattern, and the properties that give eps and saferange their
! meaning.
program x02ajf_example
  use zor
  implicit none
  integer, parameter :: dp = kind(1.0d0)
  real(dp) :: one, eps

  write (*, '(A)') 'X02 machine constants'
  call show('maxsc', x02ahf())
  call show('eps', x02ajf())
  call show('tiny_zor', x02akf())
  call show('huge_zor', x02alf())
  call show('saferange', x02amf())
  call show('zrange', x02anf())
  call show_int('hugeint', x02bbf())
  call show_int('iprec', x02bef())
  call show_int('irad', x02bhf())
  call show_int('idigs', x02bjf())
  call show_int('minexp', x02bkf())
  call show_int('maxexp', x02blf())

  one = 1.0_dp
  eps = x02ajf()
  write (*, '(A, L1, A, L1)') '1 + eps == 1: ', one + eps == one, &
                              '; 1 + 2*eps == 1: ', one + 2 * eps == one
  write (*, '(A, L1)') 'saferange is the successor of tiny_zor: ', &
                       x02amf() == nearest(x02akf(), 1.0_dp)
  write (*, '(A, L1)') 'tiny_zor = 2**(minexp-1): ', x02akf() == 2.0_dp**(x02bkf() - 1)

contains

  subroutine show(name, v)
    character(len=*), intent(in) :: name
    real(dp), intent(in) :: v
    character(len=10) :: label
    label = name
    write (*, '(A, 1X, ES24.16E3, 2X, Z16.16)') label, v, transfer(v, 0_8)
  end subroutine show

  subroutine show_int(name, i)
    character(len=*), intent(in) :: name
    integer, intent(in) :: i
    character(len=10) :: label
    label = name
    write (*, '(A, 1X, I0)') label, i
  end subroutine show_int

end program x02ajf_example
