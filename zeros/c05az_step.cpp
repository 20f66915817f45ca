// zeros/c05az_step.cpp — the bracketing step of C05AYF and C05AZF (Alefeld, Potra and
// Shi, ACM TOMS 21 (1995) 327-344, algorithm 4.2 of Math. Comp. 61 (1993) 733-744),
// written as a resumable state machine: one trial point out, one value in.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

#include "c05az_step.hpp"
#include "frame/machine.hpp"

namespace zor::zeros {

namespace {

// Values are classified, never multiplied: 0 < v is "positive", anything else (negative,
// zero, NaN) is not, so a NaN cannot make the bracket test undefined.
bool positive(double v) { return v > 0.0; }

// An iteration that does not shrink the bracket to this fraction of its width at the
// start of the iteration is followed by a bisection (mu of the paper).
constexpr double mu = 0.5;

// Trial points keep this fraction of the requested width from the ends: close to a
// zero that sits near one end, the point just inside the other side of the zero then
// closes the bracket to within the tolerance in one evaluation (Brent's "step at least
// tol" device; the paper's 0.7 tole with a 2 tole stopping width is the same 0.35).
constexpr double push = 0.35;

// No bracket of doubles needs more: a halving per four evaluations, and at most 2098
// halvings from 2^1024 to the spacing of the subnormals. Only a state that has been
// tampered with could reach it.
constexpr std::int32_t max_evaluations = 4 * 2100 + 8;

// Equal values in a row beyond this count no more: the other end's value is then scaled
// by 2^-60 in the flat step, which already places the point at the far safeguard.
constexpr std::int32_t max_flat = 60;

double required_width(double u, double tolx, ErrorTest ir)
{
    switch (ir) {
    case ErrorTest::relative: return tolx * std::fabs(u);
    case ErrorTest::absolute: return tolx;
    case ErrorTest::mixed: break;
    }
    return tolx * std::max(1.0, std::fabs(u));
}

// Halfway between a and b, without overflow for any finite a, b; equal to a or b only
// when they are adjacent doubles.
double midpoint(double a, double b) { return 0.5 * a + 0.5 * b; }

// The end with the smaller |f|; an end whose value is NaN is never the better one.
bool a_is_better(const BracketState& s)
{
    if (std::isnan(s.fa)) return false;
    if (std::isnan(s.fb)) return true;
    return std::fabs(s.fa) <= std::fabs(s.fb);
}

bool finite(double v) { return std::isfinite(v); }

// The secant through (a, fa), (b, fb); NaN when it is undefined.
double secant(double a, double fa, double b, double fb)
{
    if (!(finite(fa) && finite(fb)) || fa == fb) return NAN;
    return a - fa * ((b - a) / (fb - fa));
}

// k Newton steps on the quadratic through (a, fa), (b, fb), (d, fd), from the end at
// which its sign agrees with its curvature (procedure NEWQUA of the paper); the secant
// when the quadratic degenerates.
double newton_quadratic(const BracketState& s, int k)
{
    const double a = s.a, b = s.b, d = s.d, fa = s.fa, fb = s.fb, fd = s.fd;
    if (!(finite(fa) && finite(fb) && finite(fd) && finite(d))) return NAN;
    const double fab = (fb - fa) / (b - a);
    const double aq = ((fd - fb) / (d - b) - fab) / (d - a);
    if (aq == 0.0 || !finite(aq)) return secant(a, fa, b, fb);
    double r = (aq * fa > 0.0) ? a : b;
    for (int i = 0; i < k; ++i) {
        const double p = fa + (fab + aq * (r - b)) * (r - a);
        const double dp = fab + aq * (2.0 * r - a - b);
        if (dp == 0.0) return secant(a, fa, b, fb);
        r -= p / dp;
    }
    if (!(a < r && r < b)) return secant(a, fa, b, fb);
    return r;
}

// Inverse cubic interpolation through (a, fa), (b, fb), (d, fd), (e, fe), evaluated at
// 0 by Aitken-Neville (procedure IPZERO of the paper); NaN when two values coincide or
// the result leaves (a, b), so that the caller falls back to the quadratic.
double inverse_cubic(const BracketState& s)
{
    const double a = s.a, b = s.b, d = s.d, e = s.e;
    const double fa = s.fa, fb = s.fb, fd = s.fd, fe = s.fe;
    if (!(finite(fa) && finite(fb) && finite(fd) && finite(fe) && finite(d) && finite(e)))
        return NAN;
    if (fa == fb || fa == fd || fa == fe || fb == fd || fb == fe || fd == fe) return NAN;
    const double q11 = (d - e) * fd / (fe - fd);
    const double q21 = (b - d) * fb / (fd - fb);
    const double q31 = (a - b) * fa / (fb - fa);
    const double d21 = (b - d) * fd / (fd - fb);
    const double d31 = (a - b) * fb / (fb - fa);
    const double q22 = (d21 - q11) * fb / (fe - fb);
    const double q32 = (d31 - q21) * fa / (fd - fa);
    const double d32 = (d31 - q21) * fd / (fd - fa);
    const double q33 = (d32 - q22) * fa / (fe - fa);
    const double c = a + (q31 + q32 + q33);
    return (a < c && c < b) ? c : NAN;
}

// Chandrupatla's test (Adv. Eng. Software 28 (1997) 145-149): the inverse quadratic
// through the newest end, the other end and d is monotone over the bracket. Where it is
// not, the interpolants of the iteration are not trusted and the point is the midpoint.
// Departure from the paper: on the Alefeld-Potra-Shi problems it saves the evaluations
// that the interpolants waste on strongly curved functions (families 3, 11 and 13)
// and costs a few on flat ones, which is why equal values at the newest end and d (a
// flat stretch, where the secant-based steps do well) skip the test.
bool interpolation_sound(const BracketState& s)
{
    const bool a_new = s.d < s.a;   // d is the end that the newest point replaced
    const double x1 = a_new ? s.a : s.b, f1 = a_new ? s.fa : s.fb;
    const double x2 = a_new ? s.b : s.a, f2 = a_new ? s.fb : s.fa;
    if (f1 == s.fd) return true;
    const double xi = (x1 - x2) / (s.d - x2), phi = (f1 - f2) / (s.fd - f2);
    return phi * phi < xi && (1 - phi) * (1 - phi) < 1 - xi;
}

// Inverse quadratic interpolation through (a, fa), (b, fb), (d, fd), evaluated at 0
// (the Lagrange form of Brent's step); NaN when two values coincide or the result
// leaves (a, b). Departure from the paper: tried before the Newton steps on the direct
// quadratic when the inverse cubic is unavailable, since functions such as 2 - 1/x
// are far closer to their inverse interpolants (22 evaluations fewer on the 154
// problems).
double inverse_quadratic(const BracketState& s)
{
    const double a = s.a, b = s.b, d = s.d, fa = s.fa, fb = s.fb, fd = s.fd;
    if (!(finite(fa) && finite(fb) && finite(fd) && finite(d))) return NAN;
    if (fa == fb || fa == fd || fb == fd) return NAN;
    const double c = a * (fb / (fa - fb)) * (fd / (fa - fd)) +
                     b * (fa / (fb - fa)) * (fd / (fb - fd)) +
                     d * (fa / (fd - fa)) * (fb / (fd - fb));
    return (a < c && c < b) ? c : NAN;
}

// The step on a flat stretch: when the newest point has exactly the value of the end it
// replaced (f constant there, as where a function saturates or underflows), the
// interpolants have nothing to work on. The point is then the secant through the two
// ends with the other end's value halved once for every such equal value in a row (k):
// the Illinois modification of regula falsi (Dowell and Jarratt, BIT 11 (1971)
// 168-174), which moves the point geometrically towards the end where f still changes.
// Since a constant f says nothing about distances, the point also goes at least the
// fraction 1 - 2^-k of the way (the midpoint at k = 1): a flat value far smaller than
// the other end's (-1e-300 against 1) would otherwise keep the secant at the flat end.
// On the Alefeld-Potra-Shi problems this step and the saved bisection below take
// families 14 and 15 (flat for x < 0) from 1561 evaluations to 1216 (brentq: 1689).
double flat_secant(const BracketState& s)
{
    const bool a_new = s.d < s.a;   // d is the end that the newest point replaced
    const double x1 = a_new ? s.a : s.b, f1 = a_new ? s.fa : s.fb;
    const double x2 = a_new ? s.b : s.a, f2 = a_new ? s.fb : s.fa;
    if (!(finite(f1) && finite(f2))) return NAN;
    const double g = std::ldexp(std::fabs(f2), -s.flat);
    const double t = std::max(std::fabs(f1) / (std::fabs(f1) + g), 1.0 - std::ldexp(1.0, -s.flat));
    return x1 + (x2 - x1) * t;
}

double cubic_or_quadratic(const BracketState& s, int k)
{
    if (s.flat > 0) return flat_secant(s);
    if (!interpolation_sound(s)) return NAN;
    double c = inverse_cubic(s);
    if (std::isnan(c)) c = inverse_quadratic(s);
    return std::isnan(c) ? newton_quadratic(s, k) : c;
}

// Places the trial point strictly inside (a, b), at least `push` of the requested width
// (and a few units of rounding) from either end; the midpoint when the candidate is
// undefined or the bracket is too narrow for that.
double safeguard(const BracketState& s, double c, double width)
{
    const double a = s.a, b = s.b;
    const double mid = midpoint(a, b);
    const double delta =
        std::max(push * width, 4.0 * machine::eps * std::max(std::fabs(a), std::fabs(b)));
    const double lo = a + delta, hi = b - delta;
    if (std::isnan(c) || !(lo < hi))
        c = mid;
    else if (c < lo)
        c = lo;
    else if (c > hi)
        c = hi;
    if (!(a < c && c < b)) c = mid;
    return c;
}

// Status at the end of a search: converged, unless the value at the answer is larger
// than both starting values (a pole rather than a zero) or the other end's value is NaN
// (the sign change found is where f stops being defined, not a zero).
StepStatus finish(BracketState& s, StepStatus reached)
{
    const bool a_best = a_is_better(s);
    s.u = a_best ? s.a : s.b;
    s.fsmall = a_best ? s.fa : s.fb;
    const double other = a_best ? s.fb : s.fa;
    if (!(std::fabs(s.fsmall) <= s.fmax0) || std::isnan(other)) return StepStatus::pole;
    return reached;
}

// After the bracket has changed: the final status, or evaluate to go on, with the
// width that the error test requires at the better end in `width`.
StepStatus test(BracketState& s, double tolx, ErrorTest ir, double& width)
{
    const double u = a_is_better(s) ? s.a : s.b;
    width = required_width(u, tolx, ir);
    if (s.b - s.a <= width) return finish(s, StepStatus::converged);
    const double mid = midpoint(s.a, s.b);
    if (!(s.a < mid && mid < s.b) || s.evaluations >= max_evaluations)
        return finish(s, StepStatus::too_small);
    return StepStatus::evaluate;
}

// Chooses the point for s.phase and stores it in s.c.
void choose(BracketState& s, double width)
{
    double c = NAN;
    switch (s.phase) {
    case Phase::secant:
        c = secant(s.a, s.fa, s.b, s.fb);
        break;
    case Phase::quadratic:
        c = newton_quadratic(s, 2);
        s.e = s.d;
        s.fe = s.fd;
        break;
    case Phase::cubic1:
        s.a0 = s.a;
        s.b0 = s.b;
        c = cubic_or_quadratic(s, 2);
        s.e = s.d;
        s.fe = s.fd;
        break;
    case Phase::cubic2:
        c = cubic_or_quadratic(s, 3);
        break;
    case Phase::third: {
        // Departure from the paper, whose third point is the double-length secant step
        // from the better end u: a third interpolation point, carried 1% further from u.
        // Close to a simple zero its error is far below 1% of its distance from u, so
        // it lands just beyond the zero and, with the push from the ends, the next point
        // closes the bracket; the double-length step instead leaves a bracket about as
        // wide as the step for the next iteration to shrink. When it fails to cross, the
        // iteration does not halve the bracket and ends with the bisection. On the
        // Alefeld-Potra-Shi problems: 2116 evaluations instead of 2181, fewer or as many
        // in every family; any factor from 1 to 1.03 gives 2100 to 2125.
        const bool a_best = a_is_better(s);
        const double u = a_best ? s.a : s.b, fu = a_best ? s.fa : s.fb;
        const double ci = cubic_or_quadratic(s, 3);
        if (!std::isnan(ci))
            c = u + (ci - u) * 1.01;
        else if (finite(s.fa) && finite(s.fb) && s.fa != s.fb)
            c = u - 2.0 * (fu / (s.fb - s.fa)) * (s.b - s.a);
        if (!(std::fabs(c - u) <= 0.5 * (s.b - s.a))) c = NAN;
        s.e = s.d;
        s.fe = s.fd;
        break;
    }
    case Phase::bisect:
        s.e = s.d;
        s.fe = s.fd;
        break;
    }
    s.c = safeguard(s, c, width);
}

Phase next_phase(const BracketState& s)
{
    switch (s.phase) {
    case Phase::secant: return Phase::quadratic;
    case Phase::quadratic: return Phase::cubic1;
    case Phase::cubic1: return Phase::cubic2;
    case Phase::cubic2: {
        // Departure from the paper: the third point is taken only when the last point
        // reduced |f| at the end it replaced; otherwise f is not yet near
        // its zero and the step would hug that end, so the iteration bisects at once.
        // An iteration that has already halved the bracket needs no bisection (the flat
        // steps below often do so with their first two points).
        const double fnew = (s.d < s.a) ? s.fa : s.fb;
        if (std::fabs(fnew) < std::fabs(s.fd)) return Phase::third;
        return (s.b - s.a < mu * (s.b0 - s.a0)) ? Phase::cubic1 : Phase::bisect;
    }
    case Phase::third:
        return (s.b - s.a < mu * (s.b0 - s.a0)) ? Phase::cubic1 : Phase::bisect;
    case Phase::bisect: break;
    }
    return Phase::cubic1;
}

}  // namespace

StepStatus begin(BracketState& s, double x, double fx, double y, double fy, double tolx,
                 ErrorTest ir) noexcept
{
    s = BracketState{};
    if (x < y) {
        s.a = x, s.fa = fx, s.b = y, s.fb = fy;
    } else {
        s.a = y, s.fa = fy, s.b = x, s.fb = fx;
    }
    s.d = s.e = NAN;
    s.fd = s.fe = NAN;
    s.a0 = s.a;
    s.b0 = s.b;
    s.fmax0 = std::fmax(std::fabs(fx), std::fabs(fy));   // fmax: a NaN value is ignored
    s.phase = Phase::secant;
    double width = 0;
    const StepStatus st = test(s, tolx, ir, width);
    if (st == StepStatus::evaluate) choose(s, width);
    return st;
}

StepStatus advance(BracketState& s, double fc, double tolx, ErrorTest ir) noexcept
{
    ++s.evaluations;
    if (fc == 0.0) {   // an exact zero ends the search at once
        s.u = s.c;
        s.fsmall = fc;
        return StepStatus::converged;
    }
    // The new point replaces the end whose value is of its class; the replaced end
    // becomes d, the point just outside the bracket used by the interpolations.
    const bool a_was_new = s.d < s.a;   // false before the first step (d is NaN)
    if (positive(fc) != positive(s.fa)) {
        s.d = s.b, s.fd = s.fb;
        s.b = s.c, s.fb = fc;
    } else {
        s.d = s.a, s.fd = s.fa;
        s.a = s.c, s.fa = fc;
    }
    // Equal values in a row at one end; a flat stretch at the other end starts anew.
    if (!(fc == s.fd))
        s.flat = 0;
    else
        s.flat = (a_was_new == (s.d < s.a)) ? std::min(s.flat + 1, max_flat) : 1;
    double width = 0;
    const StepStatus st = test(s, tolx, ir, width);
    if (st != StepStatus::evaluate) return st;
    s.phase = next_phase(s);
    choose(s, width);
    return st;
}

// --------------------------------------------------------------------------------
// Packing into C.

namespace {

// C(1): an arbitrary value that a fresh or foreign array is unlikely to hold.
constexpr double check_value = 0x1.c05a2fp+17;
constexpr int last = c05az_state_len - 1;

// A sum of the 64-bit words of C(1..len-1), each scrambled by an xorshift and an odd
// multiplier of its own (both invertible, so that a change of any one word always
// changes the sum; changes of several words escape with probability about 2^-52), then
// mixed by the finalizer of MurmurHash3 (Appleby) and cut to 52 bits, an integer that
// a double holds exactly. The terms are independent, so the sum costs a few cycles a
// word, twice per call of C05AZF.
constexpr auto multipliers = [] {
    std::array<std::uint64_t, last> m{};
    for (int i = 0; i < last; ++i) m[i] = 0x9e3779b97f4a7c15ULL * static_cast<std::uint64_t>(2 * i + 1);
    return m;
}();

double checksum(const double c[])
{
    std::uint64_t w[last];
    std::memcpy(w, c, sizeof w);
    std::uint64_t h = 0;
    for (int i = 0; i < last; ++i) h += (w[i] ^ (w[i] >> 29)) * multipliers[i];
    h ^= h >> 33;
    h *= 0xff51afd7ed558ccdULL;
    h ^= h >> 33;
    return static_cast<double>(h >> 12);
}

}  // namespace

void pack(const PackedState& p, double c[]) noexcept
{
    const BracketState& s = p.step;
    const double v[last] = {check_value, static_cast<double>(p.stage),
                            static_cast<double>(static_cast<int>(s.phase) + 8 * s.flat),
                            static_cast<double>(s.evaluations),
                            s.a, s.fa, s.b, s.fb, s.d, s.fd, s.e, s.fe, s.a0, s.b0, s.c,
                            s.fmax0, p.x_out, p.y_out, p.fx_end};
    std::memcpy(c, v, sizeof v);
    c[last] = checksum(c);
}

bool unpack(const double c[], PackedState& p) noexcept
{
    if (!(c[0] == check_value) || !(c[last] == checksum(c))) return false;
    // C(3) holds the phase plus 8 times the count of equal values in a row.
    const double stage = c[1], phase_flat = c[2], evaluations = c[3];
    if (!(stage == 2 || stage == 3 || stage == 4)) return false;
    // Range first, so that the conversions below are defined; then integral values only.
    if (!(phase_flat >= 1 && phase_flat <= 6 + 8 * max_flat && evaluations >= 0 &&
          evaluations <= max_evaluations))
        return false;
    const int iphase_flat = static_cast<int>(phase_flat);
    const std::int32_t ievaluations = static_cast<std::int32_t>(evaluations);
    if (iphase_flat != phase_flat || ievaluations != evaluations) return false;
    const int iphase = iphase_flat % 8;
    if (iphase < 1 || iphase > 6) return false;
    p.stage = static_cast<Stage>(static_cast<int>(stage));
    BracketState& s = p.step;
    s.phase = static_cast<Phase>(iphase);
    s.flat = iphase_flat / 8;
    s.evaluations = ievaluations;
    s.a = c[4], s.fa = c[5], s.b = c[6], s.fb = c[7];
    s.d = c[8], s.fd = c[9], s.e = c[10], s.fe = c[11];
    s.a0 = c[12], s.b0 = c[13], s.c = c[14], s.fmax0 = c[15];
    p.x_out = c[16], p.y_out = c[17], p.fx_end = c[18];
    if (!(finite(p.x_out) && finite(p.y_out))) return false;
    if (p.stage == Stage::want_c &&
        !(finite(s.a) && finite(s.b) && s.a < s.c && s.c < s.b && positive(s.fa) != positive(s.fb)))
        return false;
    return true;
}

}  // namespace zor::zeros
