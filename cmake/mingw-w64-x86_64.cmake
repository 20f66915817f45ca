# cmake/mingw-w64-x86_64.cmake — cross-compiles ZOR for 64-bit Windows with Debian's
# mingw-w64 toolchains. The posix thread model is required: the win32 model has no
# std::thread. Programs built here run under Wine (cmake/ZorWindows.cmake).
#   cmake -S . -B build-windows -G Ninja -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-w64-x86_64.cmake
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR AMD64)

set(ZOR_MINGW_TRIPLET x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${ZOR_MINGW_TRIPLET}-gcc-posix)
set(CMAKE_CXX_COMPILER ${ZOR_MINGW_TRIPLET}-g++-posix)
set(CMAKE_Fortran_COMPILER ${ZOR_MINGW_TRIPLET}-gfortran-posix)
set(CMAKE_RC_COMPILER ${ZOR_MINGW_TRIPLET}-windres)
set(CMAKE_OBJDUMP ${ZOR_MINGW_TRIPLET}-objdump)

set(CMAKE_FIND_ROOT_PATH /usr/${ZOR_MINGW_TRIPLET})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# cmake/ZorWindows.cmake links every program and the DLL with -static, so that each
# carries its C, C++ and Fortran runtimes and imports system DLLs only.
