// tests/bitwise/zeros_cases.cpp — the zeros chapter: C05AYF and c05ayc on a few
// functions (zeros, evaluation counts, a pole, argument errors with their messages) and
// the whole sequence of points C05AZF and c05azc ask for, with the state array at the end.
// The user functions use only +, -, * and /, so that the program's own arithmetic is the
// same on every platform and any difference comes from the library.
#include <limits>

#include "bitwise.hpp"
#include "zor.h"

namespace {

// F interface user functions; iuser[0] counts the evaluations.
double cubic(const double* x, Zor_Integer iuser[], double[])   // x^3 - 2x - 5 (Wallis)
{
    ++iuser[0];
    return (*x * *x - 2.0) * *x - 5.0;
}

double flat(const double* x, Zor_Integer iuser[], double ruser[])   // (x - r)^5, r = ruser[0]
{
    ++iuser[0];
    const double d = *x - ruser[0];
    return d * d * d * d * d;
}

double pole(const double* x, Zor_Integer iuser[], double[])   // 1/(x - 0.3)
{
    ++iuser[0];
    return 1.0 / (*x - 0.3);
}

double kink(const double* x, Zor_Integer iuser[], double[])   // a steep rational step
{
    ++iuser[0];
    const double t = *x - 0.7182818;
    return t / (1e-6 + (t < 0 ? -t : t));
}

void c05ayf_case(const bitwise::Out& out, const char* label, double a, double b, double eps,
                 double eta, C05AYF_F f, double r, Zor_Integer ifail_in)
{
    Zor_Integer iuser[1] = {0};
    double ruser[1] = {r};
    double x = -1.0;
    Zor_Integer ifail = ifail_in;
    out.text("function", label);
    out.flush();
    C05AYF(&a, &b, &eps, &eta, f, &x, iuser, ruser, &ifail);
    out.real("x", x);
    out.integer("evaluations", iuser[0]);
    out.integer("ifail", ifail);
}

// c interface user functions; comm->iuser[0] counts the evaluations.
double c_cubic(double x, Zor_Comm* comm)
{
    if (comm != nullptr) ++comm->iuser[0];
    return (x * x - 2.0) * x - 5.0;
}

double c_square(double x, Zor_Comm*) { return x * x - 2.0; }
double c_pole(double x, Zor_Comm*) { return 1.0 / (x - 0.3); }

// Every point C05AZF asks for, then its outcome and state array.
template <class Step>
void c05az_sequence(const bitwise::Out& out, double x, double y, double (*f)(double, Zor_Comm*),
                    Step step)
{
    double c[ZOR_C05AZ_CLEN];
    for (double& v : c) v = 0.0;
    Zor_Integer ind = 1;
    double fx = 0.0;
    int calls = 0;
    while (calls < 200) {
        const long long code = step(&x, &y, fx, c, &ind);
        ++calls;
        out.integer("ind", ind);
        out.real("x", x);
        out.real("y", y);
        if (ind == 0) {
            out.integer("code", code);
            break;
        }
        fx = f(x, nullptr);
    }
    for (double v : c) out.real("c", v);
}

}  // namespace

ZOR_BITWISE_CASE(c05ayf_functions)
{
    c05ayf_case(out, "x^3 - 2x - 5 on [2, 3]", 2.0, 3.0, 1e-12, 0.0, cubic, 0.0, 1);
    c05ayf_case(out, "x^3 - 2x - 5 on [3, 2], eps 1e-5", 3.0, 2.0, 1e-5, 0.0, cubic, 0.0, 1);
    c05ayf_case(out, "x^3 - 2x - 5, eta 1e-3", 2.0, 3.0, 1e-12, 1e-3, cubic, 0.0, 1);
    c05ayf_case(out, "(x - 0.6180339887)^5 on [-1.25, 2.375]", -1.25, 2.375, 1e-10, 0.0, flat,
                0.6180339887, 1);
    c05ayf_case(out, "(x - 1e-300)^5 on [-1, 1]", -1.0, 1.0, 1e-15, 0.0, flat, 1e-300, 1);
    c05ayf_case(out, "steep step on [0, 2.5]", 0.0, 2.5, 1e-14, 0.0, kink, 0.0, 1);
    c05ayf_case(out, "eps too small for the arithmetic", 2.0, 3.0, 0x1p-60, 0.0, cubic, 0.0, -1);
}

ZOR_BITWISE_CASE(c05ayf_failures)
{
    // Printed with IFAIL = -1: the records carry the values as the library words them.
    c05ayf_case(out, "pole 1/(x - 0.3) on [0, 1]", 0.0, 1.0, 1e-10, 0.0, pole, 0.0, -1);
    c05ayf_case(out, "eps = 0", 0.0, 1.0, 0.0, 0.0, cubic, 0.0, -1);
    c05ayf_case(out, "eps = -2.5e-300", 0.0, 1.0, -2.5e-300, 0.0, cubic, 0.0, -1);
    c05ayf_case(out, "a = b = 0.1", 0.1, 0.1, 1e-8, 0.0, cubic, 0.0, -1);
    c05ayf_case(out, "no sign change on [0, 1]", 0.0, 1.0, 1e-8, 0.0, cubic, 0.0, -1);
    c05ayf_case(out, "a infinite", -std::numeric_limits<double>::infinity(), 3.0, 1e-8, 0.0, cubic, 0.0, -1);
    c05ayf_case(out, "b NaN", 2.0, std::numeric_limits<double>::quiet_NaN(), 1e-8, 0.0, cubic, 0.0, -1);
    c05ayf_case(out, "silent with IFAIL = 1", 0.0, 1.0, 1e-8, 0.0, cubic, 0.0, 1);
}

ZOR_BITWISE_CASE(c05ayc_messages)
{
    Zor_Integer iuser[1] = {0};
    Zor_Comm comm{};
    comm.iuser = iuser;
    struct Case {
        const char* label;
        double a, b, eps, eta;
        C05AYC_F f;
    };
    const Case cases[] = {
        {"x^3 - 2x - 5 on [2, 3]", 2.0, 3.0, 1e-13, 0.0, c_cubic},
        {"x^2 - 2 on [0, 2]", 0.0, 2.0, 1e-15, 0.0, c_square},
        {"pole", 0.0, 1.0, 1e-10, 0.0, c_pole},
        {"eps = -0.0", 0.0, 2.0, -0.0, 0.0, c_square},
        {"a = b", 1.25, 1.25, 1e-8, 0.0, c_square},
        {"no sign change", 2.0, 3.0, 1e-8, 0.0, c_square},
    };
    for (const Case& c : cases) {
        iuser[0] = 0;
        Zor_Fail fail{};
        fail.print = Zor_FALSE;
        double x = -1.0;
        c05ayc(c.a, c.b, c.eps, c.eta, c.f, &x, &comm, &fail);
        out.text("function", c.label);
        out.real("x", x);
        out.integer("code", fail.code);
        out.integer("errnum", fail.errnum);
        out.text("message", fail.message);
    }
    out.integer("evaluations of the last", iuser[0]);
}

ZOR_BITWISE_CASE(c05azf_points)
{
    const Zor_Integer ir[] = {0, 1, 2};
    for (Zor_Integer r : ir) {
        out.integer("ir", r);
        c05az_sequence(out, 0.0, 2.0, c_square,
                       [&](double* x, double* y, double fx, double c[], Zor_Integer* ind) {
                           const double tolx = 1e-12;
                           Zor_Integer ifail = 1;
                           C05AZF(x, y, &fx, &tolx, &r, c, ind, &ifail);
                           return static_cast<long long>(ifail);
                       });
    }
    out.text("function", "pole 1/(x - 0.3) on [0, 1], IFAIL = -1");
    c05az_sequence(out, 0.0, 1.0, c_pole,
                   [&](double* x, double* y, double fx, double c[], Zor_Integer* ind) {
                       const double tolx = 1e-10;
                       const Zor_Integer r = 2;
                       Zor_Integer ifail = -1;
                       out.flush();
                       C05AZF(x, y, &fx, &tolx, &r, c, ind, &ifail);
                       return static_cast<long long>(ifail);
                   });
}

ZOR_BITWISE_CASE(c05azc_points)
{
    Zor_Fail fail{};
    c05az_sequence(out, 2.0, 3.0, c_cubic,
                   [&](double* x, double* y, double fx, double c[], Zor_Integer* ind) {
                       c05azc(x, y, fx, 1e-13, 0, c, ind, &fail);
                       return static_cast<long long>(fail.code);
                   });
    out.text("message", fail.message);
    c05az_sequence(out, 0.0, 1.0, c_pole,
                   [&](double* x, double* y, double fx, double c[], Zor_Integer* ind) {
                       c05azc(x, y, fx, 1e-10, 2, c, ind, &fail);
                       return static_cast<long long>(fail.code);
                   });
    out.text("message", fail.message);
    // A bad tolerance on the first call.
    double x = 0.0, y = 1.0, c[ZOR_C05AZ_CLEN] = {};
    Zor_Integer ind = 1;
    c05azc(&x, &y, 0.0, -1.5, 0, c, &ind, &fail);
    out.integer("ind", ind);
    out.integer("code", fail.code);
    out.text("message", fail.message);
}
