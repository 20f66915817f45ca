# tests/check_install.cmake — installs the build into a fresh prefix and builds, outside
# the tree, the clients of tests/install: C through pkg-config (zor.pc), Fortran and C++
# through find_package(zor); each calls X02AJF, X04AAF and A00AAF and must run.
#   cmake -DBUILD=<build dir> -DWORK=<scratch dir> -DSRC=tests/install -DLIBDIR=lib
#         -DGENERATOR=Ninja -DCC=cc -DCXX=c++ -DFC=gfortran -DPKG_CONFIG=pkg-config
#         -P check_install.cmake

function(run what)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT rc EQUAL 0)
    message(FATAL_ERROR "${what} failed (${rc}):\n${out}\n${err}")
  endif()
  set(run_out "${out}" PARENT_SCOPE)
endfunction()

# The client's output: its own line, then the identification block on unit 6.
function(check_output who out)
  foreach(want "${who} client: eps = " " *** Start of ZOR Library implementation details ***"
               " *** End of ZOR Library implementation details ***")
    string(FIND "${out}" "${want}" at)
    if(at EQUAL -1)
      message(FATAL_ERROR "${who} client: \"${want}\" missing from its output:\n${out}")
    endif()
  endforeach()
  if(NOT out MATCHES "eps = *1\\.1102230246251565[eE]-0*16, error unit = 6\n")
    message(FATAL_ERROR "${who} client: wrong values:\n${out}")
  endif()
endfunction()

set(prefix ${WORK}/prefix)
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
run("cmake --install" ${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix})
foreach(f include/zor.h include/zor_types.h include/zor.mod include/zor.f90
          ${LIBDIR}/libzor.so ${LIBDIR}/libzor.a ${LIBDIR}/pkgconfig/zor.pc
          ${LIBDIR}/cmake/zor/zorConfig.cmake)
  if(NOT EXISTS ${prefix}/${f})
    message(FATAL_ERROR "not installed: ${f}")
  endif()
endforeach()

# C through pkg-config; the .pc file finds its prefix from its own place.
set(ENV{PKG_CONFIG_PATH} ${prefix}/${LIBDIR}/pkgconfig)
run("pkg-config" ${PKG_CONFIG} --cflags --libs zor)
string(STRIP "${run_out}" pc_flags)
separate_arguments(pc_flags UNIX_COMMAND "${pc_flags}")
run("building the C client" ${CC} -std=c11 -Wall -Wextra -Werror -pedantic ${SRC}/client.c
    ${pc_flags} -o ${WORK}/client_c)
set(ENV{LD_LIBRARY_PATH} ${prefix}/${LIBDIR})
run("running the C client" ${WORK}/client_c)
check_output(C "${run_out}")
unset(ENV{LD_LIBRARY_PATH})

# Fortran and C++ through find_package.
run("configuring the CMake clients" ${CMAKE_COMMAND} -S ${SRC} -B ${WORK}/build -G ${GENERATOR}
    -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_Fortran_COMPILER=${FC})
run("building the CMake clients" ${CMAKE_COMMAND} --build ${WORK}/build)
run("running the Fortran client" ${WORK}/build/client_f90)
check_output(Fortran "${run_out}")
run("running the C++ client" ${WORK}/build/client_cpp)
check_output(C++ "${run_out}")
message(STATUS "installed package: C (pkg-config), Fortran and C++ (find_package) clients run")
