# tests/check_redirect.cmake — runs a client with its standard output and standard error
# sent to one file and compares the file with the expected lines, in which "@" stands for
# the client's language ("C" or "Fortran"). EMULATOR, when given, runs the client (Wine,
# its words separated by "|"); line ends are then compared without CR.
#   cmake -DPROGRAM=<client> -DLANG=C -DEXPECTED=client.expected -DOUT=<file> -P check_redirect.cmake
string(REPLACE "|" ";" emulator "${EMULATOR}")
execute_process(COMMAND ${emulator} ${PROGRAM} OUTPUT_FILE ${OUT} ERROR_FILE ${OUT} RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "${PROGRAM} ended with status ${rc}")
endif()
file(READ ${OUT} got)
if(EMULATOR)
  string(REPLACE "\r\n" "\n" got "${got}")
endif()
file(READ ${EXPECTED} want)
string(REPLACE "@" "${LANG}" want "${want}")
if(NOT got STREQUAL want)
  message(FATAL_ERROR "output in a file, out of order or wrong:\n---- got ----\n${got}---- expected ----\n${want}")
endif()
