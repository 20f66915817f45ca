# cmake/exports.cmake — the list of exported symbols, read from the public headers:
# every declaration marked ZOR_API, nothing else. Run as
#   cmake -DCC=<c compiler> -DHEADER=include/zor.h -DMAP=<version script> -DDEF=<.def> -P exports.cmake
# and writes a GNU ld version script and a Windows module-definition file.
execute_process(COMMAND ${CC} -E -P -DZOR_EXPORT_SCAN ${HEADER}
                OUTPUT_VARIABLE text RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "preprocessing ${HEADER} failed")
endif()
string(REGEX REPLACE "[\r\n\t ]+" " " text "${text}")
string(REGEX MATCHALL "zor_export_mark [^;(]*[ *]([A-Za-z0-9_]+) ?\\(" decls "${text}")
set(names "")
foreach(d IN LISTS decls)
  string(REGEX REPLACE ".*[ *]([A-Za-z0-9_]+) ?\\($" "\\1" n "${d}")
  list(APPEND names ${n})
endforeach()
list(REMOVE_DUPLICATES names)
list(SORT names)
set(map "{\n  global:\n")
set(def "EXPORTS\n")
foreach(n IN LISTS names)
  string(APPEND map "    ${n};\n")
  string(APPEND def "    ${n}\n")
endforeach()
string(APPEND map "  local: *;\n};\n")
file(WRITE ${MAP}.tmp "${map}")
file(WRITE ${DEF}.tmp "${def}")
file(COPY_FILE ${MAP}.tmp ${MAP} ONLY_IF_DIFFERENT)
file(COPY_FILE ${DEF}.tmp ${DEF} ONLY_IF_DIFFERENT)
