// zeros/c05az_step.hpp — the bracketing step shared by C05AYF (direct) and C05AZF
// (reverse communication): state, one evaluation at a time, packing into the caller's C.
//
// Method: Alefeld, Potra and Shi, "Algorithm 748: enclosing zeros of continuous
// functions", ACM TOMS 21 (1995) 327-344, their algorithm 4.2 of "On enclosing simple
// roots of nonlinear equations", Math. Comp. 61 (1993) 733-744 (inverse cubic
// interpolation, Newton steps on the quadratic through three points, a double-length
// secant step, and a bisection whenever an iteration failed to halve the bracket), with
// a third interpolation point carried just beyond the zero in place of the
// double-length step, and an Illinois step (Dowell and Jarratt, BIT 11 (1971) 168-174)
// across stretches where f is constant. Every trial point lies strictly inside the bracket, so the bracket
// shrinks with every evaluation; an iteration takes at most four evaluations and at
// least halves it, so the search needs at most four times the evaluations of bisection
// plus three.
#pragma once

#include <cstdint>

namespace zor::zeros {

// Error tests (IR): with u the end of the final bracket [a, b] that is returned,
//   0: b - a <= tolx * max(1, |u|)   (mixed; C05AYF uses this mode with tolx = eps)
//   1: b - a <= tolx * |u|           (relative)
//   2: b - a <= tolx                 (absolute)
// The returned point is then within the stated distance of a change of sign.
enum class ErrorTest : int { mixed = 0, relative = 1, absolute = 2 };

// Outcome of the step.
enum class StepStatus : int {
    evaluate = -1,   // wants f at the point `next`
    converged = 0,   // the error test is met, or an exact zero was found
    pole = 4,        // converged, but |f| grew: probably a pole (exit 4)
    too_small = 5,   // the bracket cannot be split further and the test is not met (exit 5)
};

// What the next evaluation is for; stored in the state.
enum class Phase : int {
    secant = 1,        // first step: the secant through the two ends
    quadratic = 2,     // second step: two Newton steps on the quadratic through a, b, d
    cubic1 = 3,        // iteration, first point: inverse cubic (or quadratic, 2 steps)
    cubic2 = 4,        // iteration, second point: inverse cubic (or quadratic, 3 steps)
    third = 5,         // iteration, third point: interpolation carried 1% beyond (or the
                       // double-length secant from the better end)
    bisect = 6,        // iteration, fourth point: the midpoint, when the width did not halve
};

// The whole state between evaluations. Invariant after every step: a < b, f(a) and f(b)
// in different classes ("positive" is 0 < f, anything else, NaN included, is not),
// d outside [a, b] with f(d) known (the previous end), e the point d replaced.
struct BracketState {
    double a = 0, fa = 0, b = 0, fb = 0;  // the bracket and its values
    double d = 0, fd = 0, e = 0, fe = 0;  // the two most recent points outside it
    double a0 = 0, b0 = 0;                // the bracket at the start of this iteration
    double c = 0;                         // the point whose value is awaited
    double fmax0 = 0;                     // max |f| at the starting ends (NaN ignored)
    double fsmall = 0;                    // the value at the best end, on exit
    double u = 0;                         // the best end (smaller |f|), on exit
    Phase phase = Phase::secant;
    std::int32_t evaluations = 0;         // inside the bracket, since begin()
    std::int32_t flat = 0;                // equal values in a row at the end last replaced
};

// Begins a search over [x, y] (either order, x != y) with both end values known and of
// different classes (the caller has checked). Returns evaluate with the first trial
// point in s.c, or a final status when the ends already satisfy the test.
StepStatus begin(BracketState& s, double x, double fx, double y, double fy, double tolx,
                 ErrorTest ir) noexcept;

// Takes fc = f(s.c) and returns evaluate with the next point in s.c, or a final status
// with the answer in s.u (value s.fsmall) and the final bracket [s.a, s.b].
StepStatus advance(BracketState& s, double fc, double tolx, ErrorTest ir) noexcept;

// --------------------------------------------------------------------------------
// The state in the caller's C: `c05az_state_len` reals, laid out in pack() alone.
// C(1) holds a check value and C(c05az_state_len) a checksum of C(1..len-1), so that an
// altered array is detected before it is used.

inline constexpr int c05az_state_len = 20;

// Reverse-communication stage stored beside the step's state.
enum class Stage : int {
    want_x = 2,     // waiting for f at the first end (returned IND = 2)
    want_y = 3,     // waiting for f at the second end (returned IND = 3)
    want_c = 4,     // waiting for f at a trial point (returned IND = 4)
};

struct PackedState {
    BracketState step;
    Stage stage = Stage::want_x;
    double x_out = 0, y_out = 0;   // X and Y at the last return: the caller must keep them
    double fx_end = 0;             // f at the first end, while the second is awaited
};

void pack(const PackedState& p, double c[]) noexcept;
// False when C fails its check value or checksum, or holds an impossible state.
bool unpack(const double c[], PackedState& p) noexcept;

}  // namespace zor::zeros
