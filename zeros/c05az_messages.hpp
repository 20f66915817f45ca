// zeros/c05az_messages.hpp — what C05AZF and c05azc say: F records keyed by (error,
// message code), c messages keyed by message code.
#pragma once

#include "frame/frame.hpp"

namespace zor::zeros {

inline constexpr FRecord c05azf_records[] = {
    {1, 1001, {" ** On entry, f(x) and f(y) have the same sign with neither equalling 0.0:",
               " ** f(x) = %1 and f(y) = %2"}},
    {2, 1002, {" ** On entry, ind = %1.",
               " ** Constraint: ind = -1, 1, 2, 3 or 4."}},
    {2, 1007, {" ** On entry, ind = %1 does not continue a search: c, x or y has been",
               " ** altered since the previous return, or c was not set by c05azf."}},
    {3, 1003, {" ** On entry, tolx = %1.",
               " ** Constraint: tolx > 0.0."}},
    {3, 1004, {" ** On entry, ir = %1.",
               " ** Constraint: ir = 0, 1 or 2."}},
    {3, 1008, {" ** On entry, x = %1 and y = %2.",
               " ** Constraint: x and y must be finite."}},
    {4, 1005, {" ** The final interval may contain a pole rather than a zero.",
               " ** Note that this error exit is not completely reliable: it may be taken",
               " ** in extreme cases when [x,y] contains a zero, or it may not be taken",
               " ** when [x,y] contains a pole.",
               " ** Both these cases occur most frequently when tolx is large."}},
    {5, 1006, {" ** The tolerance tolx has been set too small for the problem",
               " ** being solved. However, the values x and y returned may well",
               " ** be good approximations to the zero.",
               " ** tolx = %1"}},
};

// The c twin maps each message code onto the fail record's code of the same meaning.
inline constexpr CMessage c05azc_messages[] = {
    {1001, NE_FUNC_END_VAL,
     "NE_FUNC_END_VAL:\n  On entry, f(x) and f(y) have the same sign with neither equalling "
     "0.0:\n  f(x) = %s and f(y) = %s."},
    {1002, NE_INT,
     "NE_INT:\n  On entry, ind = %s.\n  Constraint: ind = -1, 1, 2, 3 or 4."},
    {1003, NE_REAL,
     "NE_REAL:\n  On entry, tolx = %s.\n  Constraint: tolx > 0.0."},
    {1004, NE_INT,
     "NE_INT:\n  On entry, ir = %s.\n  Constraint: ir = 0, 1 or 2."},
    {1005, NE_PROBABLE_POLE,
     "NE_PROBABLE_POLE:\n  The final interval may contain a pole rather than a zero.\n  Note "
     "that this error exit is not completely reliable: it may be taken\n  in extreme cases "
     "when [x,y] contains a zero, or it may not be taken\n  when [x,y] contains a pole.\n  "
     "Both these cases occur most frequently when tolx is large."},
    {1006, NE_XTOL_TOO_SMALL,
     "NE_XTOL_TOO_SMALL:\n  The tolerance tolx has been set too small for the problem\n  "
     "being solved. However, the values x and y returned may well\n  be good approximations "
     "to the zero.\n  tolx = %s."},
    {1007, NE_STATE_CORRUPT,
     "NE_STATE_CORRUPT:\n  On entry, ind = %s does not continue a search: c, x or y has been\n"
     "  altered since the previous return, or c was not set by c05azc."},
    {1008, NE_REAL_2,
     "NE_REAL_2:\n  On entry, x = %s and y = %s.\n  Constraint: x and y must be finite."},
};

}  // namespace zor::zeros
