// zeros/c05az.cpp — kernel of C05AZF and c05azc: one reverse-communication call of the
// bracketing step (c05az_step.cpp), its state read from and written to the caller's C.
//
// IND on entry: 1 starts a search over [X, Y] with no value known; -1 starts one with
// FX = f(X) already supplied; 2, 3 and 4 hand back FX = f(X) for the X that the last
// return asked for. IND on return: 2 wants f at the first end (X as given), 3 wants f at
// the second end (X and Y exchanged, so that X is the original Y), 4 wants f at the
// trial point X inside the bracket (Y is then the better end of the current bracket),
// 0 means finished: X is the answer and Y the other end of the final bracket (Y = X
// after an exact zero), and IFAIL reports the outcome.
#include <cmath>

#include "c05az_step.hpp"
#include "frame/frame.hpp"
#include "zor_c05.h"

namespace zor::zeros {

namespace {

bool positive(double v) { return v > 0.0; }

struct Args {
    double& x;
    double& y;
    double fx;
    double tolx;
    Zor_Integer ir;
    double* c;
    Zor_Integer& ind;
};

// Sets the outputs of a return that asks for f(X), and saves the state.
int ask(Args& io, PackedState& p, Stage stage, double x, double y)
{
    p.stage = stage;
    p.x_out = io.x = x;
    p.y_out = io.y = y;
    io.ind = static_cast<Zor_Integer>(stage);
    pack(p, io.c);
    return 0;
}

// Ends the search with X = x, Y = y. C(1) is cleared, so that a further call that
// claims to continue the finished search is refused instead of resuming it.
int done(Args& io, double x, double y)
{
    io.x = x;
    io.y = y;
    io.ind = 0;
    io.c[0] = 0.0;
    return 0;
}

// Passes the step's status on: another point, or the end of the search.
int step_result(Args& io, PackedState& p, StepStatus st, Message& msg)
{
    BracketState& s = p.step;
    if (st == StepStatus::evaluate) {
        // Y: the end of the current bracket with the smaller |f| (never a NaN value).
        const bool b_better =
            std::isnan(s.fa) || (!std::isnan(s.fb) && std::fabs(s.fb) < std::fabs(s.fa));
        return ask(io, p, Stage::want_c, s.c, b_better ? s.b : s.a);
    }
    if (s.fsmall == 0.0) return done(io, s.u, s.u);
    done(io, s.u, s.u == s.a ? s.b : s.a);
    switch (st) {
    case StepStatus::pole: return msg.fail(4, 1005);
    case StepStatus::too_small: return msg.fail(5, 1006, io.tolx);
    default: return 0;
    }
}

int reverse_step(Args io, Message& msg)
{
    const Zor_Integer ind = io.ind;
    if (!(ind == -1 || ind == 1 || ind == 2 || ind == 3 || ind == 4)) {
        io.ind = 0;
        return msg.fail(2, 1002, ind);
    }
    if (!(io.tolx > 0.0)) {   // a NaN tolx fails too
        io.ind = 0;
        return msg.fail(3, 1003, io.tolx);
    }
    if (io.ir < 0 || io.ir > 2) {
        io.ind = 0;
        return msg.fail(3, 1004, io.ir);
    }
    const auto ir = static_cast<ErrorTest>(io.ir);

    PackedState p;
    if (ind == 1 || ind == -1) {
        if (!(std::isfinite(io.x) && std::isfinite(io.y))) {
            io.ind = 0;
            return msg.fail(3, 1008, io.x, io.y);
        }
        if (ind == 1) return ask(io, p, Stage::want_x, io.x, io.y);
    } else {
        // A continuation: C must be intact and X, Y as the last return left them.
        if (!unpack(io.c, p) || static_cast<Zor_Integer>(p.stage) != ind ||
            !(io.x == p.x_out) || !(io.y == p.y_out)) {
            io.ind = 0;
            return msg.fail(2, 1007, ind);
        }
    }

    if (ind == -1 || p.stage == Stage::want_x) {
        if (io.fx == 0.0) return done(io, io.x, io.x);
        p.fx_end = io.fx;
        return ask(io, p, Stage::want_y, io.y, io.x);   // X and Y exchanged
    }
    if (p.stage == Stage::want_y) {
        // X is the second end, Y the first, whose value is saved in fx_end.
        if (io.fx == 0.0) return done(io, io.x, io.x);
        if (positive(p.fx_end) == positive(io.fx)) {
            const double x0 = io.y, y0 = io.x, fx0 = p.fx_end, fy0 = io.fx;
            done(io, x0, y0);
            return msg.fail(1, 1001, fx0, fy0);
        }
        const StepStatus st = begin(p.step, io.y, p.fx_end, io.x, io.fx, io.tolx, ir);
        return step_result(io, p, st, msg);
    }
    const StepStatus st = advance(p.step, io.fx, io.tolx, ir);
    return step_result(io, p, st, msg);
}

}  // namespace

}  // namespace zor::zeros

extern "C" ZOR_API void C05AZFT(Zor_Context*, double* x, double* y, const double* fx,
                                const double* tolx, const Zor_Integer* ir, double c[],
                                Zor_Integer* ind, char msgbuf[200], Zor_Integer* ierr) noexcept
{
    zor::Message msg(msgbuf);
    *ierr = zor::guarded([&] {
        return zor::zeros::reverse_step({*x, *y, *fx, *tolx, *ir, c, *ind}, msg);
    });
}
