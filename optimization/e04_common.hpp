// optimization/e04_common.hpp — what the one-variable minimizers E04ABF and E04BBF
// share: the tolerance replacement, the order in which function values are compared,
// the extra argument checks, and the renumbering of a kernel's error number into the
// number its interfaces report.
#pragma once

#include <cmath>
#include <cstdio>
#include <cstring>

#include "frame/frame.hpp"
#include "frame/machine.hpp"

namespace zor::optimization {

// sqrt(eps) = 2^-26.5 rounded: the accuracy of the position of a minimum that the
// arithmetic can honour (f near a minimum varies as the square of the distance).
inline constexpr double default_tolerance = 1.0536712127723509e-8;
static_assert(default_tolerance * default_tolerance > 0.99999999 * machine::eps &&
              default_tolerance * default_tolerance < 1.00000001 * machine::eps);

// A tolerance below eps is replaced by sqrt(eps); so is a NaN tolerance, which no
// comparison could otherwise use.
inline double replaced_tolerance(double e) { return e >= machine::eps ? e : default_tolerance; }

// fu is worse than fx: larger, or NaN where fx is a number (a NaN value is treated as
// larger than every number, so the search never settles on a point where f is
// undefined if it has seen a point where it is defined).
inline bool worse(double fu, double fx)
{
    return fu > fx || (std::isnan(fu) && !std::isnan(fx));
}

// Checks after the documented ones. The interval must be finite with a finite length,
// and tol(x) = e1*|x| + e2 must stay finite a few tolerances beyond the interval (the
// search may step up to tol(b) past b); 16 leaves room for the few multiples of tol
// the step computes.
inline bool interval_finite(double a, double b)
{
    return std::isfinite(a) && std::isfinite(b) && std::isfinite(b - a);
}
inline bool tolerance_finite(double a, double b, double e1, double e2)
{
    const double hi = std::fmax(std::fabs(a), std::fabs(b));
    const double t1 = e1 * hi + e2;
    const double t2 = e1 * (hi + 16.0 * t1) + e2;
    return std::isfinite(hi + 16.0 * t2);
}

// The kernels number their exits in their own way; an interface reports another
// number for some of them. Rewrites field 1 of the message buffer (the error number)
// so that the F exit, which checks that field against the number it is given, words
// the same records. Runs on the failure path only.
inline void renumber(char* msgbuf, int number)
{
    if (msgbuf[0] != field_sep) return;
    const char* rest = static_cast<const char*>(std::memchr(msgbuf + 1, field_sep, msgbuf_len - 1));
    if (rest == nullptr) return;
    char out[msgbuf_len + 1];
    int n = std::snprintf(out, sizeof out, "%c%d", field_sep, number);
    const std::size_t tail = msgbuf_len - static_cast<std::size_t>(rest - msgbuf);
    const std::size_t room = msgbuf_len - static_cast<std::size_t>(n);
    std::memcpy(out + n, rest, tail < room ? tail : room);
    if (tail < room) std::memset(out + n + tail, ' ', room - tail);
    std::memcpy(msgbuf, out, msgbuf_len);
}

}  // namespace zor::optimization
