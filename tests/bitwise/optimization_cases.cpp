// tests/bitwise/optimization_cases.cpp — the minimization chapter: E04ABF, E04ABA,
// E04BBF and e04abc/e04bbc on a few functions (the minimum, its value, the final
// interval, the number of calls), the limit on calls, an argument error with its
// records, and the trajectory of every point evaluated. The user functions use only +,
// -, * and /, so that the program's own arithmetic is the same on every platform and
// any difference comes from the library.
#include "bitwise.hpp"
#include "zor.h"

namespace {

// Every point the routine evaluates, printed as it is asked for.
const bitwise::Out* trace = nullptr;

void quartic(const double* x, double* f)   // (x^2 - 2)^2 + x/10: minimum near -1.42
{
    const double s = *x * *x - 2.0;
    *f = s * s + *x / 10.0;
    if (trace) trace->real("at", *x);
}

void rational(const double* x, double* f, Zor_Integer iuser[], double ruser[])
{
    // x + r/x on (0, inf): minimum at sqrt(r), r = ruser[0]
    ++iuser[0];
    *f = *x + ruser[0] / *x;
}

void quartic_d(const double* x, double* f, double* g)   // the quartic with its derivative
{
    const double s = *x * *x - 2.0;
    *f = s * s + *x / 10.0;
    *g = 4.0 * *x * s + 0.1;
    if (trace) trace->real("at", *x);
}

void c_quartic(double x, double* f, Zor_Comm* comm)
{
    ++comm->iuser[0];
    const double s = x * x - 2.0;
    *f = s * s + x / 10.0;
}

void c_quartic_d(double x, double* f, double* g, Zor_Comm* comm)
{
    ++comm->iuser[0];
    const double s = x * x - 2.0;
    *f = s * s + x / 10.0;
    *g = 4.0 * x * s + 0.1;
}

void results(const bitwise::Out& out, double a, double b, double x, double f, Zor_Integer calls,
             Zor_Integer ifail)
{
    out.real("a", a);
    out.real("b", b);
    out.real("x", x);
    out.real("f", f);
    out.integer("calls", calls);
    out.integer("ifail", ifail);
}

}  // namespace

ZOR_BITWISE_CASE(e04abf_quartic_trajectory)
{
    double e1 = 0.0, e2 = 0.0, a = -3.0, b = 1.0, x = 0.0, f = 0.0;
    Zor_Integer maxcal = 60, ifail = 1;
    trace = &out;
    E04ABF(quartic, &e1, &e2, &a, &b, &maxcal, &x, &f, &ifail);
    trace = nullptr;
    out.real("e1", e1);
    out.real("e2", e2);
    results(out, a, b, x, f, maxcal, ifail);
}

ZOR_BITWISE_CASE(e04abf_limit_and_argument_error)
{
    double e1 = 1e-12, e2 = 1e-12, a = -3.0, b = 1.0, x = 0.0, f = 0.0;
    Zor_Integer maxcal = 5, ifail = -1;
    out.flush();
    E04ABF(quartic, &e1, &e2, &a, &b, &maxcal, &x, &f, &ifail);
    results(out, a, b, x, f, maxcal, ifail);
    double e1b = 0.0, e2b = 0.5, ab = 0.0, bb = 0.25;
    maxcal = 10;
    ifail = -1;
    out.flush();
    E04ABF(quartic, &e1b, &e2b, &ab, &bb, &maxcal, &x, &f, &ifail);
    out.integer("ifail", ifail);
}

ZOR_BITWISE_CASE(e04aba_rational)
{
    for (double r : {2.0, 1e-6, 1e6}) {
        double e1 = 1e-10, e2 = 1e-14, a = 1e-4, b = 1e4, x = 0.0, f = 0.0;
        Zor_Integer maxcal = 200, ifail = 1, iuser[1] = {0};
        double ruser[1] = {r};
        E04ABA(rational, &e1, &e2, &a, &b, &maxcal, &x, &f, iuser, ruser, &ifail);
        results(out, a, b, x, f, maxcal, ifail);
        out.integer("evaluations", iuser[0]);
    }
}

ZOR_BITWISE_CASE(e04bbf_quartic_trajectory)
{
    double e1 = 0.0, e2 = 0.0, a = -3.0, b = 1.0, x = 0.0, f = 0.0, g = 0.0;
    Zor_Integer maxcal = 60, ifail = 1;
    trace = &out;
    E04BBF(quartic_d, &e1, &e2, &a, &b, &maxcal, &x, &f, &g, &ifail);
    trace = nullptr;
    results(out, a, b, x, f, maxcal, ifail);
    out.real("g", g);
}

ZOR_BITWISE_CASE(e04abc_e04bbc_fail_records)
{
    Zor_Integer iuser[1] = {0};
    Zor_Comm comm{nullptr, iuser, nullptr, 0};
    double e1 = 1e-9, e2 = 1e-12, a = 0.0, b = 3.0, x = 0.0, f = 0.0, g = 0.0;
    Zor_Integer max_fun = 100;
    Zor_Fail fail{};
    fail.print = Zor_FALSE;
    e04abc(c_quartic, &e1, &e2, &a, &b, &max_fun, &x, &f, &comm, &fail);
    results(out, a, b, x, f, max_fun, fail.code);
    out.integer("evaluations", iuser[0]);
    a = 0.0;
    b = 3.0;
    max_fun = 3;
    e04bbc(c_quartic_d, &e1, &e2, &a, &b, &max_fun, &x, &f, &g, &comm, &fail);
    results(out, a, b, x, f, max_fun, fail.code);
    out.real("g", g);
    out.text("message", fail.message);
}
