! frame/record_writer.f90 — the record writer on the Fortran runtime, so that a unit
! number means what it means to a Fortran program: 6 standard output, 0 standard error,
! any other unit whatever the program (or X04ACF) connected to it.

! Writes rec(1:n) as one record with the edit (A). ierr: 0, or 1 when the write failed.
! The record is copied into a character variable for the one WRITE statement that keeps
! it whole: a short record on the stack, a long one on the heap (never n characters of
! stack, whatever n is).
subroutine zor_unit_write(unit, rec, n, ierr) bind(c, name='zor_unit_write')
  use, intrinsic :: iso_c_binding, only: c_int32_t, c_char
  implicit none
  integer(c_int32_t), value :: unit, n
  character(kind=c_char), intent(in) :: rec(*)
  integer(c_int32_t), intent(out) :: ierr
  character(len=256) :: short
  character(len=:), allocatable :: long
  integer :: i, ios, st
  ierr = 1
  if (n <= len(short)) then
    do i = 1, n
      short(i:i) = rec(i)
    end do
    write (unit, '(A)', iostat=ios) short(1:n)
  else
    allocate (character(len=n) :: long, stat=st)
    if (st /= 0) return
    do i = 1, n
      long(i:i) = rec(i)
    end do
    write (unit, '(A)', iostat=ios) long
    deallocate (long)
  end if
  if (ios == 0) ierr = 0
  flush (unit, iostat=ios)
end subroutine zor_unit_write

! opened = 1 when the unit is connected to a file, else 0.
subroutine zor_unit_opened(unit, opened) bind(c, name='zor_unit_opened')
  use, intrinsic :: iso_c_binding, only: c_int32_t
  implicit none
  integer(c_int32_t), value :: unit
  integer(c_int32_t), intent(out) :: opened
  logical :: op
  integer :: ios
  op = .false.
  inquire (unit=unit, opened=op, iostat=ios)
  opened = 0
  if (ios == 0 .and. op) opened = 1
end subroutine zor_unit_opened

! Connects a unit to a file: mode 0 read (the file must exist), 1 write (replacing the
! file), 2 append (creating it when missing). ierr: 0, or 1 when the open failed. The
! name is copied to the heap, as it may be of any length.
subroutine zor_unit_open(unit, name, n, mode, ierr) bind(c, name='zor_unit_open')
  use, intrinsic :: iso_c_binding, only: c_int32_t, c_char
  implicit none
  integer(c_int32_t), value :: unit, n, mode
  character(kind=c_char), intent(in) :: name(*)
  integer(c_int32_t), intent(out) :: ierr
  character(len=:), allocatable :: file
  integer :: i, ios, st
  ierr = 1
  allocate (character(len=n) :: file, stat=st)
  if (st /= 0) return
  do i = 1, n
    file(i:i) = name(i)
  end do
  select case (mode)
  case (0)
    open (unit=unit, file=file, status='old', action='read', iostat=ios)
  case (1)
    open (unit=unit, file=file, status='replace', action='write', iostat=ios)
  case default
    open (unit=unit, file=file, status='unknown', action='write', position='append', &
          iostat=ios)
  end select
  ierr = 0
  if (ios /= 0) ierr = 1
end subroutine zor_unit_open

! Disconnects a unit. ierr: 0, or 1 when the close failed.
subroutine zor_unit_close(unit, ierr) bind(c, name='zor_unit_close')
  use, intrinsic :: iso_c_binding, only: c_int32_t
  implicit none
  integer(c_int32_t), value :: unit
  integer(c_int32_t), intent(out) :: ierr
  integer :: ios
  close (unit, iostat=ios)
  ierr = 0
  if (ios /= 0) ierr = 1
end subroutine zor_unit_close

! Flushes one unit's buffer to its file.
subroutine zor_unit_flush(unit) bind(c, name='zor_unit_flush')
  use, intrinsic :: iso_c_binding, only: c_int32_t
  implicit none
  integer(c_int32_t), value :: unit
  integer :: ios
  flush (unit, iostat=ios)
end subroutine zor_unit_flush

! Flushes every connected unit before the process ends: the standard units and the
! program's own files, whose records would otherwise be lost with the runtime's buffers.
! The FLUSH subroutine without a unit (a GNU extension) flushes them all.
subroutine zor_fortran_flush_all() bind(c, name='zor_fortran_flush_all')
  implicit none
  intrinsic :: flush
  call flush()
end subroutine zor_fortran_flush_all
