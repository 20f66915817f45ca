// optimization/test/e04ab_test.cpp — E04ABF, E04ABA and e04abc: the start-up points, the
// replaced tolerances, the order of the argument checks, the records and c messages of
// every exit, the outputs after the call limit, bad function values, the stop request,
// hard failures, and minima against closed forms.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include "e04_problems.hpp"
#include "frame/frame.hpp"
#include "tests/error_unit_capture.hpp"
#include "zor.h"

using zor::optimization::testing_util::problems;
using zor::test::ErrorUnitCapture;
using zor::test::soft_tail;

namespace {

constexpr double sqrt_eps = 1.0536712127723509e-8;

// A function chosen by iuser[0], every point it is called at recorded in ruser[1...]
// (ruser[0] holds the count); at most 200 points are recorded.
double shape(int kind, double x)
{
    switch (kind) {
    case 0: return (x - 9.0) * (x - 9.0);          // minimum on the right of [0, 10]
    case 1: return (x - 1.0) * (x - 1.0);          // minimum on the left
    case 2: return 4.25;                            // constant: every comparison a tie
    case 3: return -x;                              // minimum at the upper end
    case 4: return x;                               // minimum at the lower end
    case 5: return x < 0.5 ? NAN : (x - 0.7) * (x - 0.7);   // undefined on the left
    case 6: return NAN;
    case 7: return x < 0.55 ? INFINITY : (x - 0.7) * (x - 0.7);
    case 8: return std::sin(50.0 * x) + (x - 0.5) * (x - 0.5);   // many minima
    case 9: return std::cosh(x - 1.2345);
    default: return 0.0;
    }
}

void recording(const double* xc, double* fc, Zor_Integer iuser[], double ruser[])
{
    const int n = static_cast<int>(ruser[0]);
    if (n < 200) ruser[1 + n] = *xc;
    ruser[0] = n + 1;
    *fc = shape(iuser[0], *xc);
}

struct Call {
    double e1 = 0, e2 = 0, a = 0, b = 0, x = -777.0, f = -777.0;
    Zor_Integer maxcal = 0, ifail = 0;
    std::vector<double> points{};
};

Call call_e04aba(int kind, double a, double b, Zor_Integer maxcal = 100, double e1 = 0.0,
                 double e2 = 0.0, Zor_Integer ifail = 1)
{
    Call c;
    c.e1 = e1;
    c.e2 = e2;
    c.a = a;
    c.b = b;
    c.maxcal = maxcal;
    c.ifail = ifail;
    Zor_Integer iuser[1] = {kind};
    std::vector<double> ruser(201, 0.0);
    E04ABA(recording, &c.e1, &c.e2, &c.a, &c.b, &c.maxcal, &c.x, &c.f, iuser, ruser.data(),
           &c.ifail);
    c.points.assign(ruser.begin() + 1, ruser.begin() + 1 + std::min(200, int(ruser[0])));
    return c;
}

TEST(E04ABA, StartUpEvaluatesThreePointsAsDocumented)
{
    const double A = 0.3125, B = 9.6875, L = B - A;
    const double x1 = A + 2.0 * (0.2 * L), x2 = B - 0.4 * L;
    struct Case {
        int kind;
        double third;
        const char* why;
    };
    const Case cases[] = {
        {0, x2 + 0.2 * L, "f(x1) > f(x2): x2 is best, one step of 0.2 L further right"},
        {1, x1 - 0.2 * L, "f(x1) < f(x2): x1 is best, one step of 0.2 L further left"},
        {2, x1 - 0.2 * L, "a tie continues from x1"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        const Call got = call_e04aba(c.kind, A, B);
        ASSERT_GE(got.points.size(), 3u);
        EXPECT_EQ(got.points[0], x1);
        EXPECT_EQ(got.points[1], x2);
        EXPECT_EQ(got.points[2], c.third);
        EXPECT_EQ(got.maxcal, static_cast<Zor_Integer>(got.points.size()));
    }
}

// Points worked out by hand from the documented rules, on straight lines (where every
// parabola is rejected, q = 0) over [0, 10] with E1 = E2 = 1e-9.
TEST(E04ABA, TrajectoryFollowsTheDocumentedRules)
{
    // f = -x: x2 = 6 is best; the third point one step of 2 further; then expansion
    // min(-4a, s_max) = s_max = 2 reaches B = 10 and s_max shrinks to (2 - tol)/(1 + E1),
    // so that the next step (s_max shifted by -2, about -tol(10)) goes back by about tol,
    // finds a worse point and closes the bracket [10 - tol, 10 + tol(10)].
    Call got = call_e04aba(3, 0.0, 10.0, 100, 1e-9, 1e-9);
    EXPECT_EQ(got.ifail, 0);
    ASSERT_EQ(got.points.size(), 5u);
    EXPECT_EQ(got.points[0], 4.0);
    EXPECT_EQ(got.points[1], 6.0);
    EXPECT_EQ(got.points[2], 8.0);
    EXPECT_EQ(got.points[3], 10.0);
    const double tol10 = 1e-9 * 10.0 + 1e-9;
    EXPECT_NEAR(got.points[4], 10.0 - tol10, 0.1 * tol10);
    EXPECT_EQ(got.x, 10.0);
    EXPECT_EQ(got.a, got.points[4]);
    EXPECT_NEAR(got.b, 10.0 + tol10, 1e-14);

    // f = x: x1 = 4 is best, the third point at 2; then the fall-back step with the
    // ends exchanged (w > 0) and r = 1 halves the distance to A each time.
    got = call_e04aba(4, 0.0, 10.0, 100, 1e-9, 1e-9);
    EXPECT_EQ(got.ifail, 0);
    ASSERT_GE(got.points.size(), 9u);
    EXPECT_EQ(got.points[0], 4.0);
    EXPECT_EQ(got.points[1], 6.0);
    EXPECT_EQ(got.points[2], 2.0);
    for (int k = 3; k < 9; ++k) EXPECT_NEAR(got.points[k], std::ldexp(1.0, 3 - k), 1e-15);
    EXPECT_GE(got.a, 0.0);
}

TEST(E04ABA, CallerSeesReplacedTolerances)
{
    struct Case {
        double e1, e2, want1, want2;
    };
    const double eps = 0x1p-53;
    const Case cases[] = {
        {0.0, 0.0, sqrt_eps, sqrt_eps},
        {-1.0, 1e-17, sqrt_eps, sqrt_eps},
        {eps, std::nextafter(eps, 0.0), eps, sqrt_eps},   // eps itself is kept
        {NAN, 2.5e-6, sqrt_eps, 2.5e-6},
        {1e-3, 0.0, 1e-3, sqrt_eps},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.e1);
        const Call ok = call_e04aba(1, 0.0, 4.0, 100, c.e1, c.e2);
        EXPECT_EQ(ok.ifail, 0);
        EXPECT_EQ(ok.e1, c.want1);
        EXPECT_EQ(ok.e2, c.want2);
        // Replaced before the checks: also after an argument error.
        const Call bad = call_e04aba(1, 0.0, 4.0, 2, c.e1, c.e2);
        EXPECT_EQ(bad.ifail, 1);
        EXPECT_EQ(bad.e1, c.want1);
        EXPECT_EQ(bad.e2, c.want2);
    }
}

TEST(E04ABA, ChecksArgumentsInDocumentedOrder)
{
    struct Case {
        double a, b, e2;
        Zor_Integer maxcal;
        const char* first_record;
    };
    const double inf = INFINITY;
    const Case cases[] = {
        {0, 1, 0, 2, " ** On entry, maxcal = 2."},
        {1, 1, 0, 2, " ** On entry, maxcal = 2."},   // MAXCAL before the interval
        {0, 1, 0, -2147483647 - 1, " ** On entry, maxcal = -2147483648."},
        {1, 1, 0, 3, " ** On entry, a = 1.0, e2 = 1.0536712127723509e-08 and"},
        {0, 1, 1.0, 3, " ** On entry, a = 0.0, e2 = 1.0 and"},
        {0, 1, inf, 3, " ** On entry, a = 0.0, e2 = inf and"},
        {2, 1, 0, 3, " ** On entry, a = 2.0, e2 = 1.0536712127723509e-08 and"},
        {NAN, 1, 0, 3, " ** On entry, a = nan and b = 1.0."},
        {-inf, 1, 0, 3, " ** On entry, a = -inf and b = 1.0."},
        {0, inf, 0, 3, " ** On entry, a = 0.0 and b = inf."},
        {-1e308, 1e308, 0, 3, " ** On entry, a = -1e+308 and b = 1e+308."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.first_record);
        ErrorUnitCapture cap;
        const Call got = call_e04aba(1, c.a, c.b, c.maxcal, 0.0, c.e2, -1);
        EXPECT_EQ(got.ifail, 1);
        EXPECT_TRUE(got.points.empty());   // nothing evaluated
        EXPECT_EQ(got.maxcal, c.maxcal);   // outputs untouched
        EXPECT_EQ(got.x, -777.0);
        const std::string text = cap.text();
        EXPECT_EQ(text.substr(0, std::strlen(c.first_record) + 1), std::string(c.first_record) + "\n");
    }
}

TEST(E04ABF, RecordsOfEveryExit)
{
    struct Case {
        double e1, e2, a, b;
        Zor_Integer maxcal;
        int ifail;
        const char* records;
    };
    const Case cases[] = {
        {0, 0, 0, 1, 2, 1, " ** On entry, maxcal = 2.\n ** Constraint: maxcal >= 3.\n"},
        {0, 0.5, 1.5, 2, 3, 1,
         " ** On entry, a = 1.5, e2 = 0.5 and\n ** b = 2.0.\n ** Constraint: a+e2 < b.\n"},
        {0, 0, -INFINITY, 2, 3, 1,
         " ** On entry, a = -inf and b = 2.0.\n ** Constraint: a, b and b-a must be finite.\n"},
        {1e300, 0, 1, 2, 3, 1,
         " ** On entry, e1 = 1e+300 and e2 = 1.0536712127723509e-08.\n"
         " ** Constraint: e1*|x|+e2 must be finite for x near [a,b].\n"},
        {0, 0, 0, 3, 4, 2,
         " ** The maximum number of function calls, 4, have been\n"
         " ** performed. This may have happened simply because maxcal was set\n"
         " ** too small for the particular problem, or may be due to a mistake in the\n"
         " ** user-supplied function funct. If no mistake can be found in funct,\n"
         " ** restart e04abf (preferably with the values of a and b\n"
         " ** given on exit from the previous call to e04abf).\n"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.records);
        ErrorUnitCapture cap;
        double e1 = c.e1, e2 = c.e2, a = c.a, b = c.b, x = 0, f = 0;
        Zor_Integer maxcal = c.maxcal, ifail = -1;
        E04ABF([](const double* xc, double* fc) { *fc = std::cos(*xc); }, &e1, &e2, &a, &b,
               &maxcal, &x, &f, &ifail);
        EXPECT_EQ(ifail, c.ifail);
        EXPECT_EQ(cap.text(), std::string(c.records) + soft_tail("e04abf", c.ifail));
    }
}

TEST(E04ABA, LimitRecordsNameTheRoutine)
{
    ErrorUnitCapture cap;
    const Call got = call_e04aba(8, 0.0, 1.0, 3, 0.0, 0.0, -1);
    EXPECT_EQ(got.ifail, 2);
    const std::string text = cap.text();
    EXPECT_NE(text.find(" ** restart e04aba (preferably"), std::string::npos) << text;
    EXPECT_NE(text.find("previous call to e04aba).\n"), std::string::npos) << text;
}

TEST(E04ABA, LimitReachedLeavesUsableResults)
{
    for (Zor_Integer maxcal : {3, 4, 5, 7}) {
        SCOPED_TRACE(maxcal);
        const Call got = call_e04aba(9, 0.0, 10.0, maxcal, 1e-12, 1e-12);
        EXPECT_EQ(got.ifail, 2);
        EXPECT_EQ(got.maxcal, maxcal);
        ASSERT_EQ(got.points.size(), static_cast<std::size_t>(maxcal));
        // X is the best point seen, F its value, and [A, B] contains it.
        double best = got.points[0];
        for (double p : got.points)
            if (shape(9, p) < shape(9, best)) best = p;
        EXPECT_EQ(got.x, best);
        EXPECT_EQ(got.f, shape(9, best));
        EXPECT_LE(got.a, got.x);
        EXPECT_GE(got.b, got.x);
        EXPECT_LT(got.b - got.a, 10.0);
        // Restarting from the interval returned finishes the job.
        const Call again = call_e04aba(9, got.a, got.b, 100);
        EXPECT_EQ(again.ifail, 0);
        EXPECT_NEAR(again.x, 1.2345, 1e-7);
    }
}

TEST(E04ABA, MinimaAgainstClosedForms)
{
    int total = 0;
    for (Zor_Integer k = 0; k < Zor_Integer(std::size(problems)); ++k) {
        const auto& p = problems[k];
        SCOPED_TRACE(p.name);
        double e1 = 1e-7, e2 = 1e-7, a = p.a, b = p.b, x = 0, f = 0;
        Zor_Integer maxcal = 100, ifail = 1, iuser[1] = {k};
        E04ABA([](const double* xc, double* fc, Zor_Integer iuser[], double[]) {
                   *fc = problems[iuser[0]].f(*xc);
               },
               &e1, &e2, &a, &b, &maxcal, &x, &f, iuser, nullptr, &ifail);
        EXPECT_EQ(ifail, 0);
        const double tol = e1 * std::fabs(p.xmin) + e2;
        EXPECT_LE(std::fabs(x - p.xmin), 3.0 * tol);
        EXPECT_EQ(f, p.f(x));
        EXPECT_LE(a, x);
        EXPECT_GE(b, x);
        EXPECT_LE(b - a, 4.0 * tol + 1e-12 * std::fabs(x));
        total += maxcal;
    }
    // Brent's fminbound needs about 12 calls a problem at this accuracy.
    EXPECT_LE(total, 15 * static_cast<int>(std::size(problems)));
}

TEST(E04ABA, EndsOfTheIntervalAreTreatedAsDocumented)
{
    // Minimum at B: the final interval may reach tol(B) beyond B, never further.
    Call got = call_e04aba(3, 0.0, 1.0);
    EXPECT_EQ(got.ifail, 0);
    EXPECT_NEAR(got.x, 1.0, 3.0 * 2.0 * sqrt_eps);
    EXPECT_LE(got.b, 1.0 + (sqrt_eps * 1.0 + sqrt_eps));
    // Minimum at B far from the start-up points, where tol(B) is much smaller than tol
    // at the third point: once the best point is B, the search closes the bracket from
    // the left instead of creeping away from B by tol per call.
    got = call_e04aba(3, -1000.0, 0.001, 5000);
    EXPECT_EQ(got.ifail, 0);
    EXPECT_LT(got.maxcal, 15);
    EXPECT_NEAR(got.x, 0.001, 3.0 * (sqrt_eps * 0.001 + sqrt_eps));
    EXPECT_LE(got.a, got.x);
    EXPECT_GE(got.b, got.x);
    // Minimum at A: the lower end is never widened.
    got = call_e04aba(4, 0.0, 1.0);
    EXPECT_EQ(got.ifail, 0);
    EXPECT_GE(got.a, 0.0);
    EXPECT_NEAR(got.x, 0.0, 3.0 * sqrt_eps);
    for (double p : got.points) EXPECT_GE(p, 0.0);
}

TEST(E04ABA, BadFunctionValuesEndInADefinedWay)
{
    struct Case {
        int kind;
        double xmin;   // NaN: any point
        const char* why;
    };
    const Case cases[] = {
        {5, 0.7, "NaN on the left part: NaN counts as worse than any number"},
        {6, NAN, "NaN everywhere"},
        {7, 0.7, "+inf on the left part"},
        {8, NAN, "many local minima: one of them"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        const Call got = call_e04aba(c.kind, 0.0, 1.0, 200);
        EXPECT_TRUE(got.ifail == 0 || got.ifail == 2) << got.ifail;
        EXPECT_LE(got.maxcal, 200);
        EXPECT_LE(got.a, got.x);
        EXPECT_GE(got.b, got.x);
        if (!std::isnan(c.xmin)) {
            EXPECT_EQ(got.ifail, 0);
            EXPECT_NEAR(got.x, c.xmin, 1e-7);
        }
    }
}

TEST(E04ABF, NullFunctIsAnUnexpectedError)
{
    ErrorUnitCapture cap;
    double e1 = 0, e2 = 0, a = 0, b = 1, x = 0, f = 0;
    Zor_Integer maxcal = 10, ifail = -1;
    E04ABF(nullptr, &e1, &e2, &a, &b, &maxcal, &x, &f, &ifail);
    EXPECT_EQ(ifail, -99);
    EXPECT_EQ(cap.text().substr(0, 22), " ** Unexpected error (");
}

TEST(E04ABA, HugeMaxcalIsOnlyALimit)
{
    const Call got = call_e04aba(1, -3.0, 4.0, 2147483647);
    EXPECT_EQ(got.ifail, 0);
    EXPECT_LT(got.maxcal, 30);
}

TEST(E04ABA, ConcurrentCallsGiveTheSameResults)
{
    const Call ref = call_e04aba(8, 0.0, 1.0);
    std::vector<Call> got(4);
    std::vector<std::thread> threads;
    for (auto& g : got) threads.emplace_back([&g] { g = call_e04aba(8, 0.0, 1.0); });
    for (auto& t : threads) t.join();
    for (const auto& g : got) {
        EXPECT_EQ(g.x, ref.x);
        EXPECT_EQ(g.points, ref.points);
    }
}

TEST(E04ABFDeathTest, IfailZeroStopsTheProgram)
{
    EXPECT_EXIT(call_e04aba(1, 0.0, 1.0, 2, 0.0, 0.0, 0),
                testing::ExitedWithCode(zor::hard_stop_status), "");
}

// ---------------------------------------------------------------------------------
// e04abc

struct CData {
    int kind;
    int calls;
    int stop_at;   // sets comm->flag = -3 at this call (0: never)
};

void c_funct(double xc, double* fc, Zor_Comm* comm)
{
    auto* d = static_cast<CData*>(comm->p);
    if (++d->calls == d->stop_at) comm->flag = -3;
    *fc = shape(d->kind, xc);
}

struct CCall {
    double e1 = 0, e2 = 0, a = 0, b = 0, x = -777.0, f = -777.0;
    Zor_Integer max_fun = 0;
    Zor_Fail fail{};
    int calls = 0;
};

CCall call_e04abc(int kind, double a, double b, Zor_Integer max_fun, double e2 = 0.0,
                  int stop_at = 0)
{
    CCall c;
    c.e2 = e2;
    c.a = a;
    c.b = b;
    c.max_fun = max_fun;
    CData data{kind, 0, stop_at};
    Zor_Comm comm{&data, nullptr, nullptr, 0};
    c.fail.code = 12345;
    e04abc(c_funct, &c.e1, &c.e2, &c.a, &c.b, &c.max_fun, &c.x, &c.f, &comm, &c.fail);
    c.calls = data.calls;
    return c;
}

TEST(e04abc, CodesAndMessagesOfEveryExit)
{
    struct Case {
        double a, b, e2;
        Zor_Integer max_fun;
        int code, errnum;
        const char* message;
    };
    const Case cases[] = {
        {0, 4, 0, 100, NE_NOERROR, 0, "NE_NOERROR:\n  No error."},
        {1, 1, 0, 2, NE_INT_ARG_LT, 1,
         "NE_INT_ARG_LT:\n  On entry, max_fun = 2.\n  Constraint: max_fun >= 3."},
        {1, 1.25, 0.5, 3, NE_2_REAL_ARG_GE, 1,
         "NE_2_REAL_ARG_GE:\n  On entry, a = 1.0, e2 = 0.5 and b = 1.25.\n  Constraint: a + e2 "
         "< b."},
        {NAN, 1, 0, 3, NE_REAL_2, 1,
         "NE_REAL_2:\n  On entry, a = nan and b = 1.0.\n  Constraint: a, b and b - a must be "
         "finite."},
        {0, 3, 0, 4, NW_MAX_FUN, 2,
         "NW_MAX_FUN:\n  The maximum number of function calls, 4, have been performed.\n  This "
         "may have happened simply because max_fun was set too small for the\n  particular "
         "problem, or may be due to a mistake in the user-supplied function\n  funct. If no "
         "mistake can be found in funct, restart e04abc (preferably\n  with the values of a and "
         "b given on exit from the previous call to e04abc)."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.message);
        const CCall got = call_e04abc(8, c.a, c.b, c.max_fun, c.e2);
        EXPECT_EQ(got.fail.code, c.code);
        EXPECT_EQ(got.fail.errnum, c.errnum);
        EXPECT_STREQ(got.fail.message, c.message);
    }
}

TEST(e04abc, StopRequestReturnsTheBestPointSoFar)
{
    for (int stop_at : {1, 2, 3, 6}) {
        SCOPED_TRACE(stop_at);
        const CCall got = call_e04abc(1, 0.0, 10.0, 100, 0.0, stop_at);
        EXPECT_EQ(got.fail.code, NE_USER_STOP);
        EXPECT_EQ(got.fail.errnum, 3);
        EXPECT_STREQ(got.fail.message, "NE_USER_STOP:\n  User requested termination, comm->flag = -3.");
        EXPECT_EQ(got.calls, stop_at);
        EXPECT_EQ(got.max_fun, stop_at);
        EXPECT_EQ(got.f, shape(1, got.x));
    }
}

TEST(e04abc, NullPointersAreBadParameters)
{
    double e1 = 0, e2 = 0, a = 0, b = 1, x = 0, f = 0;
    Zor_Integer n = 100;
    struct Case {
        bool funct;
        double *e1, *e2, *a, *b;
        Zor_Integer* n;
        double *x, *f;
        const char* name;
    };
    const Case cases[] = {
        {false, &e1, &e2, &a, &b, &n, &x, &f, "funct"},
        {true, nullptr, &e2, &a, &b, &n, &x, &f, "e1"},
        {true, &e1, nullptr, &a, &b, &n, &x, &f, "e2"},
        {true, &e1, &e2, nullptr, &b, &n, &x, &f, "a"},
        {true, &e1, &e2, &a, nullptr, &n, &x, &f, "b"},
        {true, &e1, &e2, &a, &b, nullptr, &x, &f, "max_fun"},
        {true, &e1, &e2, &a, &b, &n, nullptr, &f, "x"},
        {true, nullptr, &e2, &a, &b, &n, nullptr, nullptr, "e1"},
        {true, &e1, &e2, &a, &b, &n, &x, nullptr, "f"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Zor_Fail fail{};
        e04abc(c.funct ? c_funct : nullptr, c.e1, c.e2, c.a, c.b, c.n, c.x, c.f, nullptr, &fail);
        EXPECT_EQ(fail.code, NE_BAD_PARAM);
        EXPECT_EQ(std::string(fail.message),
                  std::string("NE_BAD_PARAM:\n  On entry, parameter ") + c.name +
                      " had an illegal value.");
    }
    // A null comm is allowed: the function receives it.
    Zor_Fail fail{};
    e1 = e2 = 0;
    e04abc([](double xc, double* fc, Zor_Comm* comm) { *fc = comm == nullptr ? xc * xc : NAN; },
           &e1, &e2, &a, &b, &n, &x, &f, nullptr, &fail);
    EXPECT_EQ(fail.code, NE_NOERROR);
    EXPECT_NEAR(x, 0.0, 3 * sqrt_eps);
}

void call_e04abc_without_record()
{
    double e1 = 0, e2 = 0, a = 1, b = 1, x = 0, f = 0;
    Zor_Integer n = 10;
    e04abc(c_funct, &e1, &e2, &a, &b, &n, &x, &f, nullptr, nullptr);
}

TEST(e04abcDeathTest, NoFailRecordEndsWithStatusOne)
{
    EXPECT_EXIT(call_e04abc_without_record(), testing::ExitedWithCode(1),
                "ZOR Function Terminated");
}

}  // namespace
