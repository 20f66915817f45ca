// optimization/e04ab.cpp — kernel of E04ABF, E04ABA and e04abc: minimum of a function of
// one variable in [a, b] from function values alone. A safeguarded quadratic search in
// the manner of Gill and Murray ("Safeguarded steplength algorithms for optimization
// using descent methods", NPL Report NAC 37, 1974) with the parabolic step and the
// stopping rule of Brent ("Algorithms for Minimization without Derivatives",
// Prentice-Hall 1973, ch. 5): a parabola through the best three points when it is
// trusted, otherwise a step from the bracket ends that splits the larger side
// unevenly, or an expansion while the minimum is not yet bracketed on the right.
#include <algorithm>
#include <cmath>

#include "e04_common.hpp"
#include "frame/frame.hpp"
#include "zor_e04.h"

namespace zor::optimization {

namespace {

// Kernel error numbers.
constexpr int maxcal_small = 1;   // message 1001
constexpr int bad_interval = 2;   // messages 1002, 1003, 1004
constexpr int limit_reached = 3;  // message 1005
constexpr int user_stop = 4;      // message 1006

// The search, all positions relative to the best point x (absolute xabs): the bracket
// a <= 0 <= b, the second-best point w and the third point v with their values, the
// last step d, the step before last e, and the step bound smax (the farthest the next
// step may go to the right, shifted with the other positions).
struct Search {
    double xabs, fx;
    double a, b;
    double w, fw, v, fv;
    double d, e, smax;
    double fref;   // reference value: see the acceptance test of the parabola
    double tol;
    int direction;  // -1 while the minimum is not bracketed on the right by a point seen
};

// Takes the new point u (relative) with value fu into the search.
void take_point(Search& s, double u, double fu, double e1, double e2)
{
    if (worse(fu, s.fx)) {
        if (u >= 0.0) {
            s.b = u;
            s.direction = 1;
        } else {
            s.a = u;
            s.fref = fu;
        }
        // f(v) is not consulted: a worse point that does not beat w always replaces v.
        if (worse(fu, s.fw) && s.w != 0.0) {
            s.v = u;
            s.fv = fu;
        } else {
            s.v = s.w;
            s.fv = s.fw;
            s.w = u;
            s.fw = fu;
        }
        return;
    }
    // Not worse (ties move the best point): the old best point becomes an end.
    if (u < 0.0) {
        s.b = 0.0;
        s.direction = 1;
    } else {
        s.a = 0.0;
    }
    s.v = s.w;
    s.fv = s.fw;
    s.w = 0.0;
    s.fw = s.fx;
    s.xabs += u;
    s.fx = fu;
    s.a -= u;
    s.b -= u;
    s.v -= u;
    s.w -= u;
    s.smax -= u;
    // A better point outside the bracket (possible only for a function with several
    // minima) would leave an end on the wrong side: keep a <= 0 <= b.
    s.a = std::min(s.a, 0.0);
    s.b = std::max(s.b, 0.0);
    s.tol = e1 * std::fabs(s.xabs) + e2;
}

// Brent's test: the best point is within 2 tol of the middle of a bracket that is
// itself short enough, |m| <= 2 tol - (b - a)/2, written as tol - (b - a)/4 >= |m|/2.
bool converged(const Search& s)
{
    const double m = 0.5 * (s.a + s.b);
    return s.tol - 0.25 * (s.b - s.a) >= 0.5 * std::fabs(m);
}

// The next step from the best point.
double next_step(Search& s, double e1)
{
    const double m = 0.5 * (s.a + s.b);
    const double tol = s.tol;
    const double e_before_last = s.e;
    s.e = s.d;

    // Parabola through (0, fx), (w, fw), (v, fv): its minimum is at p/q.
    const double r0 = -s.w * (s.fx - s.fv);
    double q = -s.v * (s.fx - s.fw);
    double p = -s.v * q + s.w * r0;
    q = 2.0 * (q - r0);
    if (q > 0.0) p = -p;
    q = std::fabs(q);

    // The parabola is trusted when its step is less than half the step before last
    // (so that steps shrink at least geometrically), its minimum lies strictly inside
    // the bracket, and the best value lies strictly below the reference value: the
    // larger of the first two values plus e2, later the value at the last worse point
    // that became the lower end. The last condition rejects parabolas fitted to values
    // that do not fall below what has been seen at the lower end, such as those of a
    // flat function. A NaN or infinite value fails one of the comparisons.
    double step;
    if (std::fabs(p) < std::fabs(0.5 * q * e_before_last) && s.a * q < p && p < s.b * q &&
        s.fx < s.fref) {
        step = p / q;
        const double u = step;
        if ((u - s.a) * 0.5 < tol || (s.b - u) * 0.5 < tol) step = m <= 0.0 ? -tol : tol;
    } else {
        s.e = m <= 0.0 ? s.a : s.b;
        // Once the best point sits at the step bound and the bound has been pulled back
        // behind the lower end (the best point is B itself and a worse point lies to
        // its left), an expansion step would leave the bracket: the minimum is
        // bracketed by [a, B + tol(B)], and the search goes on as with a positive flag.
        if (s.direction <= 0 && s.smax <= s.a) s.direction = 1;
        if (s.direction > 0) {
            // Step into the side q of the bracket, by less the larger the other side p:
            // r = |p|/|q|; at r = 1 the middle of the side q, as r grows towards
            // 5/110 of it, as r falls towards 0 like sqrt(r).
            double qq = s.b, pp = s.a;
            if (std::fabs(s.b) <= tol || (s.w > 0.0 && tol < std::fabs(s.a))) std::swap(qq, pp);
            const double r = -pp / qq;
            step = r >= 1.0 ? 5.0 * qq * (1.0 / r + 0.1) / 11.0 : 0.5 * qq * std::sqrt(r);
        } else {
            step = std::min(-4.0 * s.a, s.smax);
        }
    }
    // The step bound is the farthest position to the right that may be evaluated: B at
    // first, pulled back by tol each time a step reaches it. Once the best point has
    // reached it, the bound lies at or behind the best point and no step may go right;
    // clamping every step to the bound would then walk the search leftwards, out of the
    // bracket, by about tol per call, so a step to the right becomes a step of tol to
    // the left, which closes the bracket around a minimum at B.
    if (step >= s.smax) {
        if (s.smax > 0.0) {
            step = s.smax;
            s.smax = (s.smax - tol) / (1.0 + e1);
        } else if (step > 0.0) {
            step = -tol;
        }
    }
    if (!(std::fabs(step) >= tol)) step = step > 0.0 ? tol : -tol;
    s.d = step;
    return step;
}

template <class F>
int minimize(Zor_Context& ctx, double& e1, double& e2, double& a_io, double& b_io,
             Zor_Integer& maxcal, double& x_out, double& f_out, F&& f, const Zor_Comm* comm,
             Message& msg)
{
    e1 = replaced_tolerance(e1);
    e2 = replaced_tolerance(e2);
    const double A = a_io, B = b_io;
    if (maxcal < 3) return msg.fail(maxcal_small, 1001, maxcal);
    if (A + e2 >= B) return msg.fail(bad_interval, 1002, A, e2, B);
    if (!interval_finite(A, B)) return msg.fail(bad_interval, 1003, A, B);
    if (!tolerance_finite(A, B, e1, e2)) return msg.fail(bad_interval, 1004, e1, e2);

    const Zor_Integer limit = maxcal;
    Zor_Integer calls = 0;
    auto eval = [&](double t) {
        const double v = f(t);
        ++calls;
        if (comm != nullptr && comm->flag < 0) ctx.stop = 1;
        return v;
    };
    auto finish = [&](const Search& s) {
        x_out = s.xabs;
        f_out = s.fx;
        a_io = s.xabs + s.a;
        b_io = s.xabs + s.b;
        maxcal = calls;
    };

    // Start-up: x1 = A + 0.4 L and x2 = B - 0.4 L, the better one (x1 on a tie) the
    // best point, the other the second point w, the bracket the caller's interval
    // (widened on the right by tol(B) when x2 is the best point).
    const double L = B - A;
    const double x1 = A + 2.0 * (0.2 * L);
    const double f1 = eval(x1);
    if (ctx.stop) {
        x_out = x1;
        f_out = f1;
        maxcal = calls;
        return msg.fail(user_stop, 1006, static_cast<int>(comm->flag));
    }
    const double x2 = B - 0.4 * L;
    const double f2 = eval(x2);
    Search s;
    if (worse(f1, f2)) {
        s.xabs = x2;
        s.fx = f2;
        s.a = -0.2 * L;
        s.b = 0.4 * L + (e1 * std::fabs(B) + e2);
        s.w = -0.2 * L;
        s.fw = f1;
        s.d = 0.2 * L;
        s.direction = -1;
    } else {
        s.xabs = x1;
        s.fx = f1;
        s.a = -0.4 * L;
        s.b = 0.2 * L;
        s.w = 0.2 * L;
        s.fw = f2;
        s.d = -0.2 * L;
        s.direction = 1;
    }
    s.v = 0.0;
    s.fv = s.fx;
    s.smax = 0.4 * L;
    s.e = 0.6 * L;
    s.fref = (worse(f1, f2) ? f1 : f2) + e2;
    s.tol = e1 * std::fabs(s.xabs) + e2;
    if (ctx.stop) {
        finish(s);
        return msg.fail(user_stop, 1006, static_cast<int>(comm->flag));
    }

    // One evaluation per pass, at most limit - 2 passes.
    double u = s.d;
    for (;;) {
        const double fu = eval(s.xabs + u);
        take_point(s, u, fu, e1, e2);
        if (ctx.stop) {
            finish(s);
            return msg.fail(user_stop, 1006, static_cast<int>(comm->flag));
        }
        if (converged(s)) break;
        if (calls >= limit) {
            finish(s);
            return msg.fail(limit_reached, 1005, limit);
        }
        u = next_step(s, e1);
    }
    finish(s);
    return 0;
}

}  // namespace

}  // namespace zor::optimization

extern "C" ZOR_API void E04ABFT(Zor_Context* ctx, E04AB_Adapter fh, Zor_UserFn funct, double* e1,
                                double* e2, double* a, double* b, Zor_Integer* maxcal, double* x,
                                double* f, Zor_Integer iuser[], double ruser[], Zor_Comm* comm,
                                char msgbuf[200], Zor_Integer* ierr) noexcept
{
    zor::Message msg(msgbuf);
    if (fh == nullptr || funct == nullptr) {
        *ierr = zor::unexpected_error;
        return;
    }
    auto fx = [&](double t) {
        double v = 0.0;
        fh(funct, &t, &v, iuser, ruser, comm);
        return v;
    };
    *ierr = zor::guarded([&] {
        return zor::optimization::minimize(*ctx, *e1, *e2, *a, *b, *maxcal, *x, *f, fx, comm, msg);
    });
}
