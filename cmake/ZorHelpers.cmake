# cmake/ZorHelpers.cmake — the two calls a chapter's CMakeLists.txt makes.

# zor_sources(files...): library sources of a chapter.
function(zor_sources)
  target_sources(zor_objects PRIVATE ${ARGN})
endfunction()

# zor_add_tests(label files...): one GoogleTest program for the chapter, linked with the
# static library (internal services included), its tests labelled with the chapter.
function(zor_add_tests label)
  if(NOT ZOR_BUILD_TESTS)
    return()
  endif()
  set(target ${label}_test)
  add_executable(${target} ${ARGN})
  target_link_libraries(${target} PRIVATE zor_static GTest::gtest GTest::gtest_main)
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/include
                             ${PROJECT_SOURCE_DIR}/${label} ${PROJECT_BINARY_DIR}/generated)
  target_compile_options(${target} PRIVATE -Wall -Wextra -ffp-contract=off)
  gtest_discover_tests(${target} PROPERTIES LABELS ${label} DISCOVERY_TIMEOUT 60
                       DISCOVERY_MODE PRE_TEST)
endfunction()
