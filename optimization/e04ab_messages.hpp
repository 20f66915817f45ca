// optimization/e04ab_messages.hpp — what E04ABF, E04ABA and e04abc say: F records keyed by
// (IFAIL, message code), c messages keyed by message code, and the IFAIL (errnum) that
// each kernel error number becomes. "%1" ... and "%s" stand for the value texts.
#pragma once

#include "frame/frame.hpp"

namespace zor::optimization {

// Kernel error 1 (MAXCAL < 3) and 2 (interval) are IFAIL 1, 3 (limit) is IFAIL 2, 4
// (stop asked by the c user function) is errnum 3.
inline constexpr int e04ab_ifail(int kernel_error)
{
    switch (kernel_error) {
    case 2: return 1;
    case 3: return 2;
    case 4: return 3;
    default: return kernel_error;
    }
}

// E04ABF and E04ABA word the same records under the routine name "e04abf"; the
// E04ABA records name e04aba.
#define ZOR_E04AB_LIMIT_RECORDS(name)                                                    \
    {" ** The maximum number of function calls, %1, have been",                         \
     " ** performed. This may have happened simply because maxcal was set",             \
     " ** too small for the particular problem, or may be due to a mistake in the",     \
     " ** user-supplied function funct. If no mistake can be found in funct,",          \
     " ** restart " name " (preferably with the values of a and b",                     \
     " ** given on exit from the previous call to " name ")."}

#define ZOR_E04AB_RECORDS(name)                                                          \
    {1, 1001, {" ** On entry, maxcal = %1.",                                             \
               " ** Constraint: maxcal >= 3."}},                                         \
    {1, 1002, {" ** On entry, a = %1, e2 = %2 and",                                      \
               " ** b = %3.",                                                            \
               " ** Constraint: a+e2 < b."}},                                            \
    {1, 1003, {" ** On entry, a = %1 and b = %2.",                                       \
               " ** Constraint: a, b and b-a must be finite."}},                         \
    {1, 1004, {" ** On entry, e1 = %1 and e2 = %2.",                                     \
               " ** Constraint: e1*|x|+e2 must be finite for x near [a,b]."}},           \
    {2, 1005, ZOR_E04AB_LIMIT_RECORDS(name)}

inline constexpr FRecord e04abf_records[] = {ZOR_E04AB_RECORDS("e04abf")};
inline constexpr FRecord e04aba_records[] = {ZOR_E04AB_RECORDS("e04aba")};

#undef ZOR_E04AB_RECORDS
#undef ZOR_E04AB_LIMIT_RECORDS

inline constexpr CMessage e04abc_messages[] = {
    {1001, NE_INT_ARG_LT,
     "NE_INT_ARG_LT:\n  On entry, max_fun = %s.\n  Constraint: max_fun >= 3."},
    {1002, NE_2_REAL_ARG_GE,
     "NE_2_REAL_ARG_GE:\n  On entry, a = %s, e2 = %s and b = %s.\n  Constraint: a + e2 < b."},
    {1003, NE_REAL_2,
     "NE_REAL_2:\n  On entry, a = %s and b = %s.\n  Constraint: a, b and b - a must be finite."},
    {1004, NE_REAL_2,
     "NE_REAL_2:\n  On entry, e1 = %s and e2 = %s.\n  Constraint: e1*|x| + e2 must be finite "
     "for x near [a,b]."},
    {1005, NW_MAX_FUN,
     "NW_MAX_FUN:\n  The maximum number of function calls, %s, have been performed.\n  This "
     "may have happened simply because max_fun was set too small for the\n  particular "
     "problem, or may be due to a mistake in the user-supplied function\n  funct. If no "
     "mistake can be found in funct, restart e04abc (preferably\n  with the values of a and "
     "b given on exit from the previous call to e04abc)."},
    {1006, NE_USER_STOP,
     "NE_USER_STOP:\n  User requested termination, comm->flag = %s."},
};

}  // namespace zor::optimization
