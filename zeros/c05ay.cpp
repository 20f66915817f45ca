// zeros/c05ay.cpp — kernel of C05AYF and c05ayc: checks the arguments, evaluates f at
// the ends, then drives the bracketing step of C05AZF (c05az_step.cpp) with the mixed
// error test and TOLX = EPS, evaluating f where the step asks.
#include <cmath>

#include "c05az_step.hpp"
#include "frame/frame.hpp"
#include "zor_c05.h"

namespace zor::zeros {

namespace {

// Strict <: with eta = 0 (or a NaN or negative eta) only an exact zero is accepted; a
// NaN value is never accepted and the search goes on.
bool accepted(double v, double eta) { return std::fabs(v) < eta || v == 0.0; }

// Error 4, message code 1007: the user function asked to stop (comm->flag < 0).
constexpr int user_stop = 4;

template <class F>
int find_zero(Zor_Context& ctx, double a, double b, double eps, double eta, F&& f, double& x,
              const Zor_Comm* comm, Message& msg)
{
    if (!(eps > 0.0)) return msg.fail(1, 1001, eps);   // a NaN eps fails too
    if (a == b) return msg.fail(1, 1002, a, b);
    if (!(std::isfinite(a) && std::isfinite(b))) return msg.fail(1, 1006, a, b);

    // Evaluates f at t into x's place; true when the caller's function asked to stop,
    // which the context record remembers for the rest of the call.
    double v = 0.0;
    auto eval = [&](double t) {
        x = t;
        v = f(t);
        if (comm != nullptr && comm->flag < 0) ctx.stop = 1;
        return ctx.stop != 0;
    };
    // The stop flag may also have been raised by a direct caller of the kernel entry,
    // with no communication record: the value reported is then 0.
    auto stopped = [&] {
        return msg.fail(user_stop, 1007, comm != nullptr ? static_cast<int>(comm->flag) : 0);
    };

    if (eval(a)) return stopped();
    const double fa = v;
    if (accepted(fa, eta)) return 0;
    if (eval(b)) return stopped();
    const double fb = v;
    if (accepted(fb, eta)) return 0;
    if ((0.0 < fa) == (0.0 < fb)) {
        x = a;
        return msg.fail(1, 1003, fa, fb);
    }

    BracketState s;
    StepStatus st = begin(s, a, fa, b, fb, eps, ErrorTest::mixed);
    // Bounded: the step finishes within 4 * 2100 + 8 evaluations (c05az_step.cpp).
    while (st == StepStatus::evaluate) {
        if (eval(s.c)) return stopped();
        if (accepted(v, eta)) return 0;
        st = advance(s, v, eps, ErrorTest::mixed);
    }
    x = s.u;
    switch (st) {
    case StepStatus::pole: return msg.fail(3, 1005);
    case StepStatus::too_small: return msg.fail(2, 1004, eps);
    default: return 0;
    }
}

}  // namespace

}  // namespace zor::zeros

extern "C" ZOR_API void C05AYFT(Zor_Context* ctx, const double* a, const double* b,
                                const double* eps, const double* eta, C05AYF_Adapter fh,
                                Zor_UserFn f, double* x, Zor_Integer iuser[], double ruser[],
                                Zor_Comm* comm, char msgbuf[200], Zor_Integer* ierr) noexcept
{
    zor::Message msg(msgbuf);
    auto fx = [&](double t) {
        double v = 0.0;
        fh(f, &t, &v, iuser, ruser, comm);
        return v;
    };
    *ierr = zor::guarded(
        [&] { return zor::zeros::find_zero(*ctx, *a, *b, *eps, *eta, fx, *x, comm, msg); });
}
