! include/zor.f90 — module zor: explicit interfaces of every F routine of the library.
! A Fortran program that says "use zor" has its calls checked against them; the
! routines themselves are called by their usual names (x02ajf, c05ayf, ...).
module zor
  implicit none
  interface
    include 'fortran/zor_frame.fi'
    include 'fortran/zor_c05.fi'
    include 'fortran/zor_e04.fi'
    include 'fortran/zor_m01.fi'
  end interface
end module zor
