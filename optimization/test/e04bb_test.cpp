// optimization/test/e04bb_test.cpp — E04BBF, E04BBA and e04bbc: the start-up points, the
// replaced tolerances, the order of the argument checks, the records and c messages of
// every exit, the outputs after the call limit, minima against closed forms, the
// saving in calls over E04ABF, bad values, the stop request and hard failures.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <string>
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

// f and f' chosen by iuser[0]; every point recorded in ruser[1...], the count in ruser[0].
void shape(int kind, double x, double& f, double& g)
{
    switch (kind) {
    case 0: f = (x - 9.0) * (x - 9.0); g = 2.0 * (x - 9.0); return;
    case 1: f = (x - 1.0) * (x - 1.0); g = 2.0 * (x - 1.0); return;
    case 2: f = 4.25; g = 0.0; return;
    case 3: f = std::cosh(x - 1.2345); g = std::sinh(x - 1.2345); return;
    case 4: f = x; g = 1.0; return;
    case 5: f = -x; g = -1.0; return;
    case 6: f = NAN; g = NAN; return;
    case 7:   // undefined on the left part
        f = x < 0.55 ? NAN : std::cosh(x - 0.7);
        g = x < 0.55 ? NAN : std::sinh(x - 0.7);
        return;
    case 8:   // a derivative that contradicts the values
        f = (x - 0.3) * (x - 0.3);
        g = 1.0;
        return;
    case 9: f = std::pow(x - 0.3, 4.0); g = 4.0 * std::pow(x - 0.3, 3.0); return;
    default: f = g = 0.0;
    }
}

void recording(const double* xc, double* fc, double* gc, Zor_Integer iuser[], double ruser[])
{
    const int n = static_cast<int>(ruser[0]);
    if (n < 200) ruser[1 + n] = *xc;
    ruser[0] = n + 1;
    shape(iuser[0], *xc, *fc, *gc);
}

struct Call {
    double e1 = 0, e2 = 0, a = 0, b = 0, x = -777.0, f = -777.0, g = -777.0;
    Zor_Integer maxcal = 0, ifail = 0;
    std::vector<double> points{};
};

Call call_e04bba(int kind, double a, double b, Zor_Integer maxcal = 100, double e1 = 0.0,
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
    E04BBA(recording, &c.e1, &c.e2, &c.a, &c.b, &c.maxcal, &c.x, &c.f, &c.g, iuser, ruser.data(),
           &c.ifail);
    c.points.assign(ruser.begin() + 1, ruser.begin() + 1 + std::min(200, int(ruser[0])));
    return c;
}

TEST(E04BBA, StartUpEvaluatesTwoPointsAsDocumented)
{
    const double A = 0.3125, B = 9.6875, h = (B - A) * 0.5, x = A + h;
    struct Case {
        int kind;
        double second;
        const char* why;
    };
    const Case cases[] = {
        {1, x - h / 2, "f'(x) > 0: half-way to the left"},
        {0, x + h / 2, "f'(x) < 0: half-way to the right"},
        {2, x + h / 2, "f'(x) = 0 goes right"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        const Call got = call_e04bba(c.kind, A, B);
        ASSERT_GE(got.points.size(), 2u);
        EXPECT_EQ(got.points[0], x);
        EXPECT_EQ(got.points[1], c.second);
        EXPECT_EQ(got.maxcal, static_cast<Zor_Integer>(got.points.size()));
    }
}

TEST(E04BBA, CallerSeesReplacedTolerances)
{
    const Call ok = call_e04bba(1, 0.0, 4.0, 100, 0.0, -3.0);
    EXPECT_EQ(ok.e1, sqrt_eps);
    EXPECT_EQ(ok.e2, sqrt_eps);
    const Call bad = call_e04bba(1, 0.0, 4.0, 1, NAN, 1e-3);
    EXPECT_EQ(bad.ifail, 1);
    EXPECT_EQ(bad.e1, sqrt_eps);
    EXPECT_EQ(bad.e2, 1e-3);
}

TEST(E04BBA, ChecksArgumentsInDocumentedOrder)
{
    struct Case {
        double a, b, e2;
        Zor_Integer maxcal;
        const char* first_record;
    };
    const Case cases[] = {
        {1, 1, 0, 1, " ** On entry, a+e2 = 1.0000000105367122 and"},   // interval first
        {0, 1, 1.0, 1, " ** On entry, a+e2 = 1.0 and"},
        {0, 1, 0, 1, " ** On entry, maxcal = 1."},
        {0, 1, 0, -5, " ** On entry, maxcal = -5."},
        {0, NAN, 0, 2, " ** On entry, a = 0.0 and b = nan."},
        {-1e308, 1e308, 0, 2, " ** On entry, a = -1e+308 and b = 1e+308."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.first_record);
        ErrorUnitCapture cap;
        const Call got = call_e04bba(1, c.a, c.b, c.maxcal, 0.0, c.e2, -1);
        EXPECT_EQ(got.ifail, 1);
        EXPECT_TRUE(got.points.empty());
        EXPECT_EQ(got.maxcal, c.maxcal);
        EXPECT_EQ(got.x, -777.0);
        const std::string text = cap.text();
        EXPECT_EQ(text.substr(0, std::strlen(c.first_record) + 1), std::string(c.first_record) + "\n");
    }
}

TEST(E04BBF, RecordsOfEveryExit)
{
    struct Case {
        double e1, e2, a, b;
        Zor_Integer maxcal;
        int ifail;
        const char* records;
    };
    const Case cases[] = {
        {0, 0.5, 1.5, 2, 1, 1,
         " ** On entry, a+e2 = 2.0 and\n ** b = 2.0.\n ** Constraint: a+e2 < b.\n"},
        {0, 0, 0, 1, 1, 1, " ** On entry, maxcal = 1.\n ** Constraint: maxcal >= 2.\n"},
        {0, 0, 0, INFINITY, 2, 1,
         " ** On entry, a = 0.0 and b = inf.\n ** Constraint: a, b and b-a must be finite.\n"},
        {1e300, 0, 1, 2, 3, 1,
         " ** On entry, e1 = 1e+300 and e2 = 1.0536712127723509e-08.\n"
         " ** Constraint: e1*|x|+e2 must be finite for x near [a,b].\n"},
        {0, 0, 0, 3, 3, 2,
         " ** The maximum number of function calls, 3, have been\n"
         " ** performed. This may have happened simply because maxcal was set\n"
         " ** too small for the particular problem, or may be due to a mistake in the\n"
         " ** user-supplied function funct. If no mistake can be found in funct,\n"
         " ** restart e04bbf (preferably with the values of a and b\n"
         " ** given on exit from the previous call to e04bbf).\n"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.records);
        ErrorUnitCapture cap;
        double e1 = c.e1, e2 = c.e2, a = c.a, b = c.b, x = 0, f = 0, g = 0;
        Zor_Integer maxcal = c.maxcal, ifail = -1;
        E04BBF(
            [](const double* xc, double* fc, double* gc) {
                *fc = std::cosh(*xc - 1.2345);
                *gc = std::sinh(*xc - 1.2345);
            },
            &e1, &e2, &a, &b, &maxcal, &x, &f, &g, &ifail);
        EXPECT_EQ(ifail, c.ifail);
        EXPECT_EQ(cap.text(), std::string(c.records) + soft_tail("e04bbf", c.ifail));
    }
}

TEST(E04BBA, LimitReachedLeavesUsableResults)
{
    for (Zor_Integer maxcal : {2, 3, 4}) {
        SCOPED_TRACE(maxcal);
        const Call got = call_e04bba(3, 0.0, 10.0, maxcal, 1e-14, 1e-14);
        EXPECT_EQ(got.ifail, 2);
        EXPECT_EQ(got.maxcal, maxcal);
        ASSERT_EQ(got.points.size(), static_cast<std::size_t>(maxcal));
        double best = got.points[0], fb, gb, fp, gp;
        for (double p : got.points) {
            shape(3, p, fp, gp);
            shape(3, best, fb, gb);
            if (fp < fb) best = p;
        }
        shape(3, best, fb, gb);
        EXPECT_EQ(got.x, best);
        EXPECT_EQ(got.f, fb);
        EXPECT_EQ(got.g, gb);
        EXPECT_LE(got.a, got.x);
        EXPECT_GE(got.b, got.x);
        const Call again = call_e04bba(3, got.a, got.b, 100);
        EXPECT_EQ(again.ifail, 0);
        EXPECT_NEAR(again.x, 1.2345, 1e-7);
    }
}

// The same problems as E04ABF's; the derivative must pay: clearly fewer calls in all.
TEST(E04BBA, MinimaAgainstClosedFormsInFewerCallsThanE04ABF)
{
    int calls_bb = 0, calls_ab = 0;
    for (Zor_Integer k = 0; k < Zor_Integer(std::size(problems)); ++k) {
        const auto& p = problems[k];
        SCOPED_TRACE(p.name);
        double e1 = 1e-7, e2 = 1e-7, a = p.a, b = p.b, x = 0, f = 0, g = 0;
        Zor_Integer maxcal = 100, ifail = 1, iuser[1] = {k};
        E04BBA(
            [](const double* xc, double* fc, double* gc, Zor_Integer iuser[], double[]) {
                *fc = problems[iuser[0]].f(*xc);
                *gc = problems[iuser[0]].g(*xc);
            },
            &e1, &e2, &a, &b, &maxcal, &x, &f, &g, iuser, nullptr, &ifail);
        EXPECT_EQ(ifail, 0);
        const double tol = e1 * std::fabs(p.xmin) + e2;
        EXPECT_LE(std::fabs(x - p.xmin), 3.0 * tol);
        EXPECT_EQ(f, p.f(x));
        EXPECT_EQ(g, p.g(x));
        EXPECT_LE(a, x);
        EXPECT_GE(b, x);
        calls_bb += maxcal;

        double e1a = 1e-7, e2a = 1e-7, aa = p.a, ba = p.b;
        maxcal = 100;
        E04ABA([](const double* xc, double* fc, Zor_Integer iuser[],
                  double[]) { *fc = problems[iuser[0]].f(*xc); },
               &e1a, &e2a, &aa, &ba, &maxcal, &x, &f, iuser, nullptr, &ifail);
        calls_ab += maxcal;
    }
    EXPECT_LE(calls_bb * 3, calls_ab * 2) << calls_bb << " against " << calls_ab;
}

TEST(E04BBA, EndsAndBadValuesEndInADefinedWay)
{
    struct Case {
        int kind;
        double xmin;   // NaN: any point
        const char* why;
    };
    const Case cases[] = {
        {4, 0.0, "minimum at A"},
        {5, 1.0, "minimum at B"},
        {7, 0.7, "NaN on the left part"},
        {6, NAN, "NaN everywhere"},
        {8, NAN, "a derivative that contradicts the values"},
        {9, 0.3, "a fourth-order minimum"},
        {2, NAN, "constant"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        const Call got = call_e04bba(c.kind, 0.0, 1.0, 200);
        EXPECT_TRUE(got.ifail == 0 || got.ifail == 2) << got.ifail;
        EXPECT_LE(got.maxcal, 200);
        EXPECT_LE(got.a, got.x);
        EXPECT_GE(got.b, got.x);
        EXPECT_GE(got.a, 0.0);
        EXPECT_LE(got.b, 1.0 + 2.0 * sqrt_eps);
        if (!std::isnan(c.xmin)) {
            EXPECT_EQ(got.ifail, 0);
            EXPECT_NEAR(got.x, c.xmin, c.kind == 9 ? 1e-3 : 1e-7);
        }
    }
}

TEST(E04BBA, MinimumAtAFarUpperEnd)
{
    const Call got = call_e04bba(5, -1000.0, 0.001, 5000);
    EXPECT_EQ(got.ifail, 0);
    EXPECT_LT(got.maxcal, 45);   // the derivative says nothing but "go right": bisection
    EXPECT_NEAR(got.x, 0.001, 3.0 * (sqrt_eps * 0.001 + sqrt_eps));
    EXPECT_LE(got.a, got.x);
    EXPECT_GE(got.b, got.x);
}

TEST(E04BBFDeathTest, IfailZeroStopsTheProgram)
{
    EXPECT_EXIT(call_e04bba(1, 1.0, 1.0, 5, 0.0, 0.0, 0),
                testing::ExitedWithCode(zor::hard_stop_status), "");
}

// ---------------------------------------------------------------------------------
// e04bbc

struct CData {
    int kind;
    int calls;
    int stop_at;
};

void c_funct(double xc, double* fc, double* gc, Zor_Comm* comm)
{
    auto* d = static_cast<CData*>(comm->p);
    if (++d->calls == d->stop_at) comm->flag = -2;
    shape(d->kind, xc, *fc, *gc);
}

struct CCall {
    double e1 = 0, e2 = 0, a = 0, b = 0, x = -777.0, f = -777.0, g = -777.0;
    Zor_Integer max_fun = 0;
    Zor_Fail fail{};
    int calls = 0;
};

CCall call_e04bbc(int kind, double a, double b, Zor_Integer max_fun, double e2 = 0.0,
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
    e04bbc(c_funct, &c.e1, &c.e2, &c.a, &c.b, &c.max_fun, &c.x, &c.f, &c.g, &comm, &c.fail);
    c.calls = data.calls;
    return c;
}

TEST(e04bbc, CodesAndMessagesOfEveryExit)
{
    struct Case {
        double a, b, e2;
        Zor_Integer max_fun;
        int code, errnum;
        const char* message;
    };
    const Case cases[] = {
        {0, 4, 0, 100, NE_NOERROR, 0, "NE_NOERROR:\n  No error."},
        {1, 1.25, 0.5, 1, NE_2_REAL_ARG_GE, 1,
         "NE_2_REAL_ARG_GE:\n  On entry, a + e2 = 1.5 and b = 1.25.\n  Constraint: a + e2 < b."},
        {0, 1, 0, 1, NE_INT_ARG_LT, 1,
         "NE_INT_ARG_LT:\n  On entry, max_fun = 1.\n  Constraint: max_fun >= 2."},
        {0, 3, 0, 2, NW_MAX_FUN, 2,
         "NW_MAX_FUN:\n  The maximum number of function calls, 2, have been performed.\n  This "
         "may have happened simply because max_fun was set too small for the\n  particular "
         "problem, or may be due to a mistake in the user-supplied function\n  funct. If no "
         "mistake can be found in funct, restart e04bbc (preferably\n  with the values of a and "
         "b given on exit from the previous call to e04bbc)."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.message);
        const CCall got = call_e04bbc(3, c.a, c.b, c.max_fun, c.e2);
        EXPECT_EQ(got.fail.code, c.code);
        EXPECT_EQ(got.fail.errnum, c.errnum);
        EXPECT_STREQ(got.fail.message, c.message);
    }
}

TEST(e04bbc, StopRequestReturnsTheBestPointSoFar)
{
    for (int stop_at : {1, 2, 4}) {
        SCOPED_TRACE(stop_at);
        const CCall got = call_e04bbc(3, 0.0, 10.0, 100, 0.0, stop_at);
        EXPECT_EQ(got.fail.code, NE_USER_STOP);
        EXPECT_EQ(got.fail.errnum, 3);
        EXPECT_STREQ(got.fail.message, "NE_USER_STOP:\n  User requested termination, comm->flag = -2.");
        EXPECT_EQ(got.calls, stop_at);
        EXPECT_EQ(got.max_fun, stop_at);
        double f, g;
        shape(3, got.x, f, g);
        EXPECT_EQ(got.f, f);
        EXPECT_EQ(got.g, g);
    }
}

TEST(e04bbc, NullPointersAreBadParameters)
{
    double e1 = 0, e2 = 0, a = 0, b = 1, x = 0, f = 0, g = 0;
    Zor_Integer n = 100;
    const char* names[] = {"funct", "e1", "e2", "a", "b", "max_fun", "x", "f", "g"};
    for (int k = 0; k < 9; ++k) {
        SCOPED_TRACE(names[k]);
        Zor_Fail fail{};
        e04bbc(k == 0 ? nullptr : c_funct, k == 1 ? nullptr : &e1, k == 2 ? nullptr : &e2,
               k == 3 ? nullptr : &a, k == 4 ? nullptr : &b, k == 5 ? nullptr : &n,
               k == 6 ? nullptr : &x, k == 7 ? nullptr : &f, k == 8 ? nullptr : &g, nullptr,
               &fail);
        EXPECT_EQ(fail.code, NE_BAD_PARAM);
        EXPECT_EQ(std::string(fail.message),
                  std::string("NE_BAD_PARAM:\n  On entry, parameter ") + names[k] +
                      " had an illegal value.");
    }
}

void call_e04bbc_without_record()
{
    double e1 = 0, e2 = 0, a = 0, b = 3, x = 0, f = 0, g = 0;
    Zor_Integer n = 2;   // too few calls: the warning ends the process too
    CData data{3, 0, 0};
    Zor_Comm comm{&data, nullptr, nullptr, 0};
    e04bbc(c_funct, &e1, &e2, &a, &b, &n, &x, &f, &g, &comm, nullptr);
}

TEST(e04bbcDeathTest, NoFailRecordEndsWithStatusOne)
{
    EXPECT_EXIT(call_e04bbc_without_record(), testing::ExitedWithCode(1),
                "Warning from ZOR routine e04bbc:\\sNW_MAX_FUN:\\s+The maximum number of "
                "function calls, 2, have been performed\\.");
}

}  // namespace
