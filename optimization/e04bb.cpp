// optimization/e04bb.cpp — kernel of E04BBF, E04BBA and e04bbc: minimum of a function of
// one variable in [a, b] from function values and first derivatives.
//
// The bracket is held relative to the best point as in E04ABF (e04ab.cpp), with the
// same tolerance tol(x) = e1*|x| + e2, the same stopping test and the same step bound
// and minimum step. The step is a safeguarded cubic: the minimizer of the cubic Hermite
// interpolant through the best point and the last other point (values and slopes;
// Davidon 1959, in the form of Nocedal and Wright, "Numerical Optimization", 2nd ed.
// 2006, eq. 3.59), falling back to the secant step on the derivative when the cubic
// has no minimizer, and to bisection of the side of the bracket into which the
// derivative points when either step leaves that side or does not shrink fast enough.
// The safeguards follow Brent's derivative variant of his minimizer ("Algorithms for
// Minimization without Derivatives", Prentice-Hall 1973, ch. 5, sec. 8): the step must
// be less than half the step before last, and the bracket is cut by the sign of the
// derivative at every new best point (Hager, "A derivative-based bracketing scheme for
// univariate minimization and the conjugate gradient method", Comput. Math. Appl. 18
// (1989) 779-795, uses the same rule).
#include <algorithm>
#include <cmath>

#include "e04_common.hpp"
#include "frame/frame.hpp"
#include "zor_e04.h"

namespace zor::optimization {

namespace {

// Kernel error numbers.
constexpr int bad_argument = 1;   // messages 1001 to 1004
constexpr int limit_reached = 2;  // message 1005
constexpr int user_stop = 3;      // message 1006

// Positions relative to the best point x (absolute xabs): the bracket a <= 0 <= b, the
// last other point w with value and slope, the last step d, the step before last e,
// and the step bound smax (the farthest the next step may go to the right).
struct Search {
    double xabs, fx, gx;
    double a, b;
    double w, fw, gw;
    double d, e, smax;
    double tol;
};

// The minimum of a unimodal function lies on the side of x into which -f'(x) points;
// at a point where f' = 0 it is x itself.
void cut_by_slope(Search& s)
{
    if (s.gx > 0.0) {
        s.b = 0.0;
    } else if (s.gx < 0.0) {
        s.a = 0.0;
    } else if (s.gx == 0.0) {
        s.a = 0.0;
        s.b = 0.0;
    }
}

void take_point(Search& s, double u, double fu, double gu, double e1, double e2)
{
    if (worse(fu, s.fx)) {
        if (u >= 0.0)
            s.b = u;
        else
            s.a = u;
        s.w = u;
        s.fw = fu;
        s.gw = gu;
        return;
    }
    // Not worse (ties move the best point): the old best point becomes an end and the
    // other point of the next cubic.
    if (u < 0.0)
        s.b = 0.0;
    else
        s.a = 0.0;
    s.w = -u;
    s.fw = s.fx;
    s.gw = s.gx;
    s.xabs += u;
    s.fx = fu;
    s.gx = gu;
    s.a -= u;
    s.b -= u;
    s.smax -= u;
    // A better point outside the bracket (possible only for a function with several
    // minima) would leave an end on the wrong side: keep a <= 0 <= b.
    s.a = std::min(s.a, 0.0);
    s.b = std::max(s.b, 0.0);
    s.tol = e1 * std::fabs(s.xabs) + e2;
    cut_by_slope(s);
}

bool converged(const Search& s)
{
    const double m = 0.5 * (s.a + s.b);
    return s.tol - 0.25 * (s.b - s.a) >= 0.5 * std::fabs(m);
}

// Minimizer of the cubic through (0, fx, gx) and (w, fw, gw) or, when the cubic has
// none, the zero of the secant of the derivative; NaN when neither exists.
double cubic_step(const Search& s)
{
    if (s.w == 0.0) return NAN;
    const double d1 = s.gx + s.gw + 3.0 * (s.fx - s.fw) / s.w;
    const double disc = d1 * d1 - s.gx * s.gw;
    if (disc >= 0.0) {
        const double d2 = std::copysign(std::sqrt(disc), s.w);
        return s.w - s.w * (s.gw + d2 - d1) / (s.gw - s.gx + 2.0 * d2);
    }
    if (s.gx * s.gw < 0.0) return s.w * s.gx / (s.gx - s.gw);
    return NAN;
}

double next_step(Search& s, double e1)
{
    const double m = 0.5 * (s.a + s.b);
    const double tol = s.tol;
    const double e_before_last = s.e;
    s.e = s.d;
    // The side to search: where -f'(x) points; without a usable slope, the larger side.
    const double side = s.gx < 0.0 ? 1.0 : s.gx > 0.0 ? -1.0 : (m <= 0.0 ? -1.0 : 1.0);
    const double end = side > 0.0 ? s.b : s.a;

    double step = cubic_step(s);
    if (step * side > 0.0 && s.a < step && step < s.b &&
        std::fabs(step) < std::fabs(0.5 * e_before_last)) {
        if ((step - s.a) * 0.5 < tol || (s.b - step) * 0.5 < tol) step = side * tol;
    } else {
        s.e = end;
        step = 0.5 * end;
    }
    // The step bound of E04ABF (e04ab.cpp): no step goes right of B, pulled back by tol
    // each time it is reached; at the bound the step goes tol to the left.
    if (step >= s.smax) {
        if (s.smax > 0.0) {
            step = s.smax;
            s.smax = (s.smax - tol) / (1.0 + e1);
        } else if (step > 0.0) {
            step = -tol;
        }
    }
    if (!(std::fabs(step) >= tol)) step = step > 0.0 ? tol : step < 0.0 ? -tol : side * tol;
    s.d = step;
    return step;
}

template <class F>
int minimize(Zor_Context& ctx, double& e1, double& e2, double& a_io, double& b_io,
             Zor_Integer& maxcal, double& x_out, double& f_out, double& g_out, F&& f,
             const Zor_Comm* comm, Message& msg)
{
    e1 = replaced_tolerance(e1);
    e2 = replaced_tolerance(e2);
    const double A = a_io, B = b_io;
    if (A + e2 >= B) return msg.fail(bad_argument, 1001, A + e2, B);
    if (maxcal < 2) return msg.fail(bad_argument, 1002, maxcal);
    if (!interval_finite(A, B)) return msg.fail(bad_argument, 1003, A, B);
    if (!tolerance_finite(A, B, e1, e2)) return msg.fail(bad_argument, 1004, e1, e2);

    const Zor_Integer limit = maxcal;
    Zor_Integer calls = 0;
    double fu = 0.0, gu = 0.0;
    auto eval = [&](double t) {
        f(t, fu, gu);
        ++calls;
        if (comm != nullptr && comm->flag < 0) ctx.stop = 1;
    };
    Search s;
    auto finish = [&] {
        x_out = s.xabs;
        f_out = s.fx;
        g_out = s.gx;
        a_io = s.xabs + s.a;
        b_io = s.xabs + s.b;
        maxcal = calls;
    };
    auto stopped = [&] {
        finish();
        return msg.fail(user_stop, 1006, static_cast<int>(comm->flag));
    };

    // Start-up: the midpoint, then half-way to the end that its slope points to; the
    // upper end is widened by tol(B) as in E04ABF.
    const double h = (B - A) * 0.5;
    s.xabs = A + h;
    eval(s.xabs);
    s.fx = fu;
    s.gx = gu;
    double u;
    if (s.gx > 0.0) {
        s.a = -h;
        s.b = 0.0;
        u = -h * 0.5;
    } else {
        s.a = 0.0;
        s.b = std::fabs(B) * e1 + h + e2;
        u = h * 0.5;
    }
    s.w = 0.0;
    s.fw = s.fx;
    s.gw = s.gx;
    s.d = u;
    s.e = 2.0 * h;
    s.smax = h;
    s.tol = e1 * std::fabs(s.xabs) + e2;
    if (ctx.stop) return stopped();

    // One evaluation per pass, at most limit - 1 passes.
    for (;;) {
        eval(s.xabs + u);
        take_point(s, u, fu, gu, e1, e2);
        if (ctx.stop) return stopped();
        if (converged(s)) break;
        if (calls >= limit) {
            finish();
            return msg.fail(limit_reached, 1005, limit);
        }
        u = next_step(s, e1);
    }
    finish();
    return 0;
}

}  // namespace

}  // namespace zor::optimization

extern "C" ZOR_API void E04BBFT(Zor_Context* ctx, E04BB_Adapter fh, Zor_UserFn funct, double* e1,
                                double* e2, double* a, double* b, Zor_Integer* maxcal, double* x,
                                double* f, double* g, Zor_Integer iuser[], double ruser[],
                                Zor_Comm* comm, char msgbuf[200], Zor_Integer* ierr) noexcept
{
    zor::Message msg(msgbuf);
    if (fh == nullptr || funct == nullptr) {
        *ierr = zor::unexpected_error;
        return;
    }
    auto fg = [&](double t, double& fv, double& gv) {
        fv = 0.0;
        gv = 0.0;
        fh(funct, &t, &fv, &gv, iuser, ruser, comm);
    };
    *ierr = zor::guarded([&] {
        return zor::optimization::minimize(*ctx, *e1, *e2, *a, *b, *maxcal, *x, *f, *g, fg, comm,
                                           msg);
    });
}
