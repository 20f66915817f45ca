// zeros/c05ay_messages.hpp — what C05AYF and c05ayc say: F records keyed by (error,
// message code), c messages keyed by message code. "%1", "%2" and "%s" stand for the
// value texts that the kernel put into its message buffer.
#pragma once

#include "frame/frame.hpp"

namespace zor::zeros {

inline constexpr FRecord c05ayf_records[] = {
    {1, 1001, {" ** On entry, eps = %1.",
               " ** Constraint: eps > 0.0."}},
    {1, 1002, {" ** On entry, a = %1 and b = %2.",
               " ** Constraint: a /= b."}},
    {1, 1003, {" ** On entry, f(a) and f(b) have the same sign with neither equalling 0.0:",
               " ** f(a) = %1 and f(b) = %2."}},
    {1, 1006, {" ** On entry, a = %1 and b = %2.",
               " ** Constraint: a and b must be finite."}},
    {2, 1004, {" ** No further improvement in the solution is possible.",
               " ** eps is too small: eps = %1.",
               " ** The final value of x returned is an accurate approximation to the zero."}},
    {3, 1005, {" ** The function values in the interval [a,b] might contain",
               " ** a pole rather than a zero. Reducing eps may help in distinguishing between",
               " ** a pole and a zero."}},
};

// Error 4 (message code 1007) is reachable through the c interface only: the F
// interface's user function has no way to ask for a stop.
inline constexpr CMessage c05ayc_messages[] = {
    {1001, NE_REAL,
     "NE_REAL:\n  On entry, eps = %s.\n  Constraint: eps > 0.0."},
    {1002, NE_REAL_2,
     "NE_REAL_2:\n  On entry, a = %s and b = %s.\n  Constraint: a != b."},
    {1003, NE_FUNC_END_VAL,
     "NE_FUNC_END_VAL:\n  On entry, f(a) and f(b) have the same sign with neither equalling "
     "0.0:\n  f(a) = %s and f(b) = %s."},
    {1004, NE_TOO_SMALL,
     "NE_TOO_SMALL:\n  No further improvement in the solution is possible.\n  eps is too "
     "small: eps = %s.\n  The final value of x returned is an accurate approximation to the "
     "zero."},
    {1005, NE_PROBABLE_POLE,
     "NE_PROBABLE_POLE:\n  The function values in the interval [a,b] might contain\n  a pole "
     "rather than a zero. Reducing eps may help in distinguishing between\n  a pole and a "
     "zero."},
    {1006, NE_REAL_2,
     "NE_REAL_2:\n  On entry, a = %s and b = %s.\n  Constraint: a and b must be finite."},
    {1007, NE_USER_STOP,
     "NE_USER_STOP:\n  User requested termination, comm->flag = %s."},
};

}  // namespace zor::zeros
