// optimization/e04bb_messages.hpp — what E04BBF, E04BBA and e04bbc say: F records keyed by
// (IFAIL, message code), c messages keyed by message code. The kernel's error numbers
// are the IFAIL values (1 argument errors, 2 limit reached); 3, a stop asked by the c
// user function, reaches the c interface only.
#pragma once

#include "frame/frame.hpp"

namespace zor::optimization {

#define ZOR_E04BB_RECORDS(name)                                                          \
    {1, 1001, {" ** On entry, a+e2 = %1 and",                                            \
               " ** b = %2.",                                                            \
               " ** Constraint: a+e2 < b."}},                                            \
    {1, 1002, {" ** On entry, maxcal = %1.",                                             \
               " ** Constraint: maxcal >= 2."}},                                         \
    {1, 1003, {" ** On entry, a = %1 and b = %2.",                                       \
               " ** Constraint: a, b and b-a must be finite."}},                         \
    {1, 1004, {" ** On entry, e1 = %1 and e2 = %2.",                                     \
               " ** Constraint: e1*|x|+e2 must be finite for x near [a,b]."}},           \
    {2, 1005, {" ** The maximum number of function calls, %1, have been",                \
               " ** performed. This may have happened simply because maxcal was set",    \
               " ** too small for the particular problem, or may be due to a mistake in the", \
               " ** user-supplied function funct. If no mistake can be found in funct,", \
               " ** restart " name " (preferably with the values of a and b",            \
               " ** given on exit from the previous call to " name ")."}}

inline constexpr FRecord e04bbf_records[] = {ZOR_E04BB_RECORDS("e04bbf")};
inline constexpr FRecord e04bba_records[] = {ZOR_E04BB_RECORDS("e04bba")};

#undef ZOR_E04BB_RECORDS

inline constexpr CMessage e04bbc_messages[] = {
    {1001, NE_2_REAL_ARG_GE,
     "NE_2_REAL_ARG_GE:\n  On entry, a + e2 = %s and b = %s.\n  Constraint: a + e2 < b."},
    {1002, NE_INT_ARG_LT,
     "NE_INT_ARG_LT:\n  On entry, max_fun = %s.\n  Constraint: max_fun >= 2."},
    {1003, NE_REAL_2,
     "NE_REAL_2:\n  On entry, a = %s and b = %s.\n  Constraint: a, b and b - a must be finite."},
    {1004, NE_REAL_2,
     "NE_REAL_2:\n  On entry, e1 = %s and e2 = %s.\n  Constraint: e1*|x| + e2 must be finite "
     "for x near [a,b]."},
    {1005, NW_MAX_FUN,
     "NW_MAX_FUN:\n  The maximum number of function calls, %s, have been performed.\n  This "
     "may have happened simply because max_fun was set too small for the\n  particular "
     "problem, or may be due to a mistake in the user-supplied function\n  funct. If no "
     "mistake can be found in funct, restart e04bbc (preferably\n  with the values of a and "
     "b given on exit from the previous call to e04bbc)."},
    {1006, NE_USER_STOP,
     "NE_USER_STOP:\n  User requested termination, comm->flag = %s."},
};

}  // namespace zor::optimization
