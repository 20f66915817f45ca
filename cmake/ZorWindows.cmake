# cmake/ZorWindows.cmake — the Windows build: zor.dll with its import library
# libzor.dll.a, exports from the generated module-definition file, runtimes linked in,
# and, when cross-compiling, GoogleTest built from source and every program run under
# Wine (tools/wine_run.sh) as the crosscompiling emulator.

# Called before any target is made, so that every program gets the emulator.
macro(zor_windows_setup)
  if(CMAKE_CROSSCOMPILING)
    find_program(ZOR_WINE wine)
    if(ZOR_WINE)
      set(ZOR_WINE_PREFIX ${PROJECT_BINARY_DIR}/wine CACHE PATH "Wine prefix of the test runs")
      set(CMAKE_CROSSCOMPILING_EMULATOR
          ${PROJECT_SOURCE_DIR}/tools/wine_run.sh ${ZOR_WINE_PREFIX} ${PROJECT_BINARY_DIR})
    endif()
  endif()
  # The C, C++ and Fortran runtimes go into each program and into the DLL (static
  # libgcc, libstdc++, libgfortran, libquadmath, libwinpthread): the DLL imports system
  # DLLs only, and the test programs run under Wine with nothing but zor.dll on WINEPATH.
  add_link_options(-static)
endmacro()

# GoogleTest for the target: Debian's packaged libraries are Linux builds, so the sources
# in /usr/src/googletest are compiled with the cross compiler.
macro(zor_windows_gtest)
  if(CMAKE_CROSSCOMPILING)
    set(ZOR_GTEST_SOURCE /usr/src/googletest CACHE PATH "GoogleTest sources for the cross build")
    set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
    set(gtest_disable_pthreads ON CACHE BOOL "" FORCE)   # Win32 threads and mutexes
    add_subdirectory(${ZOR_GTEST_SOURCE} ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
  else()
    find_package(GTest REQUIRED)
  endif()
endmacro()

# The output window (frame/output_window_win32.cpp) and the DLL: zor.dll, import library libzor.dll.a, exports exactly those of the generated
# zor.def (the same list as the Linux version script), and nothing imported but system
# DLLs — checked after every link, so a runtime that slipped in fails the build.
function(zor_windows_library)
  target_sources(zor_objects PRIVATE ${PROJECT_SOURCE_DIR}/frame/output_window_win32.cpp)
  set_target_properties(zor PROPERTIES PREFIX "" IMPORT_PREFIX "lib" IMPORT_SUFFIX ".dll.a")
  target_link_options(zor PRIVATE ${PROJECT_BINARY_DIR}/zor.def -Wl,--exclude-all-symbols)
  set_property(TARGET zor APPEND PROPERTY LINK_DEPENDS ${PROJECT_BINARY_DIR}/zor.def)
  target_link_libraries(zor PRIVATE user32 gdi32)
  # Programs linked with the static library (the test programs) declare the routines
  # without dllimport.
  target_compile_definitions(zor_static INTERFACE ZOR_STATIC)
  target_link_libraries(zor_static INTERFACE user32 gdi32)
  find_program(ZOR_OBJDUMP NAMES ${CMAKE_OBJDUMP} x86_64-w64-mingw32-objdump objdump REQUIRED)
  add_custom_command(TARGET zor POST_BUILD
    COMMAND ${CMAKE_COMMAND} -DOBJDUMP=${ZOR_OBJDUMP} -DDLL=$<TARGET_FILE:zor>
            -P ${PROJECT_SOURCE_DIR}/cmake/check_dll_imports.cmake
    COMMENT "Checking that zor.dll imports system DLLs only")
  install(FILES ${PROJECT_BINARY_DIR}/zor.def DESTINATION ${CMAKE_INSTALL_LIBDIR})
endfunction()
