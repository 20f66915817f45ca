// zeros/test/c05ay_test.cpp — C05AYF and c05ayc: the order of the argument checks, the
// exact records and c messages of every exit, the acceptance test, the stop request,
// hard failures, and zeros against independent values.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include "c05ay_messages.hpp"
#include "tests/error_unit_capture.hpp"
#include "zor.h"

using zor::test::ErrorUnitCapture;
using zor::test::soft_tail;

namespace {

// f(x) = x^2 - ruser[0], counting evaluations in iuser[0] and keeping the last x.
double square_minus(const double* x, Zor_Integer iuser[], double ruser[])
{
    ++iuser[0];
    ruser[1] = *x;
    return *x * *x - ruser[0];
}

struct FCall {
    double x = -7.0;
    Zor_Integer ifail = 1;
    Zor_Integer evaluations = 0;
};

FCall call_c05ayf(double a, double b, double eps, double eta, double r, Zor_Integer ifail = 1)
{
    FCall out;
    Zor_Integer iuser[1] = {0};
    double ruser[2] = {r, 0.0};
    out.ifail = ifail;
    C05AYF(&a, &b, &eps, &eta, square_minus, &out.x, iuser, ruser, &out.ifail);
    out.evaluations = iuser[0];
    return out;
}

TEST(C05AYF, ChecksArgumentsInDocumentedOrder)
{
    struct Case {
        double a, b, eps, r;
        int ifail, evaluations;
        const char* why;
    };
    const double inf = INFINITY, nan = NAN;
    const Case cases[] = {
        {0, 1, 0.0, 2, 1, 0, "eps = 0"},
        {1, 1, 0.0, 2, 1, 0, "eps is checked before a = b"},
        {0, 1, nan, 2, 1, 0, "a NaN eps fails eps > 0"},
        {0, 1, -1e-3, 2, 1, 0, "negative eps"},
        {1, 1, 1e-8, 2, 1, 0, "a = b, f never called"},
        {inf, inf, 1e-8, 2, 1, 0, "a = b = inf is reported as a = b"},
        {0, inf, 1e-8, 2, 1, 0, "infinite b"},
        {nan, 1, 1e-8, 2, 1, 0, "NaN a"},
        {2, 3, 1e-8, 2, 1, 2, "no sign change on [2, 3]: both ends evaluated"},
        {0, 2, 1e-8, 2, 0, -1, "a zero at sqrt(2)"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        const FCall got = call_c05ayf(c.a, c.b, c.eps, 0.0, c.r);
        EXPECT_EQ(got.ifail, c.ifail);
        if (c.evaluations >= 0) {
            EXPECT_EQ(got.evaluations, c.evaluations);
        }
    }
}

TEST(C05AYF, AcceptanceTestComesBeforeEveryStep)
{
    // f(a) = 0: x = a at once, f(b) never evaluated.
    FCall got = call_c05ayf(2.0, 5.0, 1e-8, 0.0, 4.0);
    EXPECT_EQ(got.ifail, 0);
    EXPECT_EQ(got.x, 2.0);
    EXPECT_EQ(got.evaluations, 1);
    // eta larger than |f(a)| = 3.9: x = a after one evaluation.
    got = call_c05ayf(0.1, 5.0, 1e-8, 4.0, 4.0);
    EXPECT_EQ(got.x, 0.1);
    EXPECT_EQ(got.evaluations, 1);
    // f(b) = 0 with f(a) of either sign: x = b after two.
    got = call_c05ayf(7.0, 2.0, 1e-8, 0.0, 4.0);
    EXPECT_EQ(got.x, 2.0);
    EXPECT_EQ(got.evaluations, 2);
    // eta = 1e-3: the first point with |x^2 - 2| < 1e-3 ends the search.
    got = call_c05ayf(0.0, 2.0, 1e-12, 1e-3, 2.0);
    EXPECT_EQ(got.ifail, 0);
    EXPECT_LT(std::fabs(got.x * got.x - 2.0), 1e-3);
    EXPECT_GT(std::fabs(got.x - std::sqrt(2.0)), 1e-12);   // it stopped early
}

// Zeros from mpmath (30 digits, rounded to double): sqrt(2) and sqrt(7654321).
TEST(C05AYF, ZerosWithinEps)
{
    struct Case {
        double a, b, eps, r, zero;
    };
    const Case cases[] = {
        {0.0, 2.0, 1e-5, 2.0, 1.4142135623730951},
        {2.0, 0.0, 1e-10, 2.0, 1.4142135623730951},
        {-3.0, 0.5, 1e-14, 2.0, -1.4142135623730951},
        {0.0, 5000.0, 1e-15, 7654321.0, 2766.644357339772},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.b);
        const FCall got = call_c05ayf(c.a, c.b, c.eps, 0.0, c.r);
        EXPECT_EQ(got.ifail, 0);
        EXPECT_LE(std::fabs(got.x - c.zero), c.eps * std::fmax(1.0, std::fabs(c.zero)));
    }
}

TEST(C05AYF, RecordsOfEveryExit)
{
    struct Case {
        double a, b, eps, r;
        int ifail;
        const char* records;
    };
    const Case cases[] = {
        {0, 1, -1.5, 2, 1,
         " ** On entry, eps = -1.5.\n ** Constraint: eps > 0.0.\n"},
        {1.25, 1.25, 1e-8, 2, 1,
         " ** On entry, a = 1.25 and b = 1.25.\n ** Constraint: a /= b.\n"},
        {2, 3, 1e-8, 2, 1,
         " ** On entry, f(a) and f(b) have the same sign with neither equalling 0.0:\n"
         " ** f(a) = 2.0 and f(b) = 7.0.\n"},
        {0, INFINITY, 1e-8, 2, 1,
         " ** On entry, a = 0.0 and b = inf.\n ** Constraint: a and b must be finite.\n"},
        {0, 2, 1e-20, 2, 2,
         " ** No further improvement in the solution is possible.\n"
         " ** eps is too small: eps = 1e-20.\n"
         " ** The final value of x returned is an accurate approximation to the zero.\n"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.records);
        ErrorUnitCapture cap;
        const FCall got = call_c05ayf(c.a, c.b, c.eps, 0.0, c.r, -1);
        EXPECT_EQ(got.ifail, c.ifail);
        EXPECT_EQ(cap.text(), std::string(c.records) + soft_tail("c05ayf", c.ifail));
    }
}

double pole(const double* x, Zor_Integer[], double[]) { return 1.0 / (*x - 0.3); }

TEST(C05AYF, PoleIsReportedAsIfailThree)
{
    ErrorUnitCapture cap;
    double a = 0.0, b = 1.0, eps = 1e-10, eta = 0.0, x = 0.0;
    Zor_Integer ifail = -1;
    C05AYF(&a, &b, &eps, &eta, pole, &x, nullptr, nullptr, &ifail);
    EXPECT_EQ(ifail, 3);
    EXPECT_NEAR(x, 0.3, 1e-10);
    EXPECT_EQ(cap.text(),
              " ** The function values in the interval [a,b] might contain\n"
              " ** a pole rather than a zero. Reducing eps may help in distinguishing between\n"
              " ** a pole and a zero.\n" +
                  soft_tail("c05ayf", 3));
}

TEST(C05AYF, QuietFailurePrintsNothing)
{
    ErrorUnitCapture cap;
    EXPECT_EQ(call_c05ayf(1, 1, 1e-8, 0.0, 2, 1).ifail, 1);
    EXPECT_EQ(call_c05ayf(1, 1, 1e-8, 0.0, 2, 5).ifail, 1);
    EXPECT_EQ(call_c05ayf(0, 2, 1e-8, 0.0, 2, 0).ifail, 0);   // success: 0 whatever on entry
    EXPECT_EQ(cap.text(), "");
}

TEST(C05AYFDeathTest, IfailZeroStopsTheProgram)
{
    EXPECT_EXIT(call_c05ayf(1, 1, 1e-8, 0.0, 2, 0),
                testing::ExitedWithCode(zor::hard_stop_status), "");
}

// ---------------------------------------------------------------------------------
// c05ayc

struct CData {
    double r;
    int evaluations;
    int stop_after;   // sets comm->flag = -5 at this evaluation (0: never)
};

double c_square_minus(double x, Zor_Comm* comm)
{
    auto* d = static_cast<CData*>(comm->p);
    if (++d->evaluations == d->stop_after) comm->flag = -5;
    return x * x - d->r;
}

struct CCall {
    double x = -7.0;
    Zor_Fail fail{};
    int evaluations = 0;
};

CCall call_c05ayc(double a, double b, double eps, double eta, double r, int stop_after = 0)
{
    CCall out;
    CData data{r, 0, stop_after};
    Zor_Comm comm{&data, nullptr, nullptr, 0};
    out.fail.print = Zor_FALSE;
    out.fail.code = 12345;
    c05ayc(a, b, eps, eta, c_square_minus, &out.x, &comm, &out.fail);
    out.evaluations = data.evaluations;
    return out;
}

TEST(c05ayc, CodesAndMessagesOfEveryExit)
{
    struct Case {
        double a, b, eps, r;
        int code, errnum;
        const char* message;
    };
    const Case cases[] = {
        {0, 2, 1e-8, 2, 0, 0, "NE_NOERROR:\n  No error."},
        {0, 1, 0.0, 2, NE_REAL, 1, "NE_REAL:\n  On entry, eps = 0.0.\n  Constraint: eps > 0.0."},
        {0.5, 0.5, 1e-8, 2, NE_REAL_2, 1,
         "NE_REAL_2:\n  On entry, a = 0.5 and b = 0.5.\n  Constraint: a != b."},
        {2, 3, 1e-8, 2, NE_FUNC_END_VAL, 1,
         "NE_FUNC_END_VAL:\n  On entry, f(a) and f(b) have the same sign with neither "
         "equalling 0.0:\n  f(a) = 2.0 and f(b) = 7.0."},
        {-INFINITY, 1, 1e-8, 2, NE_REAL_2, 1,
         "NE_REAL_2:\n  On entry, a = -inf and b = 1.0.\n  Constraint: a and b must be finite."},
        {0, 2, 1e-20, 2, NE_TOO_SMALL, 2,
         "NE_TOO_SMALL:\n  No further improvement in the solution is possible.\n  eps is too "
         "small: eps = 1e-20.\n  The final value of x returned is an accurate approximation "
         "to the zero."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.message);
        const CCall got = call_c05ayc(c.a, c.b, c.eps, 0.0, c.r);
        EXPECT_EQ(got.fail.code, c.code);
        EXPECT_EQ(got.fail.errnum, c.errnum);
        EXPECT_STREQ(got.fail.message, c.message);
    }
}

TEST(c05ayc, NullPointersAreBadParameters)
{
    Zor_Fail fail{};
    double x = 0.0;
    c05ayc(0, 2, 1e-8, 0, c_square_minus, nullptr, nullptr, &fail);
    EXPECT_EQ(fail.code, NE_BAD_PARAM);
    EXPECT_STREQ(fail.message, "NE_BAD_PARAM:\n  On entry, parameter x had an illegal value.");
    c05ayc(0, 2, 1e-8, 0, nullptr, &x, nullptr, &fail);
    EXPECT_EQ(fail.code, NE_BAD_PARAM);
    EXPECT_STREQ(fail.message, "NE_BAD_PARAM:\n  On entry, parameter f had an illegal value.");
    EXPECT_EQ(fail.errnum, 0);
}

double c_pole(double x, Zor_Comm*) { return std::tan(x); }

TEST(c05ayc, PoleOfTangent)
{
    Zor_Fail fail{};
    double x = 0.0;
    c05ayc(1.0, 2.0, 1e-12, 0.0, c_pole, &x, nullptr, &fail);   // comm may be null
    EXPECT_EQ(fail.code, NE_PROBABLE_POLE);
    EXPECT_EQ(fail.errnum, 3);
    EXPECT_NEAR(x, 1.5707963267948966, 1e-12);
}

TEST(c05ayc, UserFunctionStopsTheSearch)
{
    const CCall got = call_c05ayc(0, 2, 1e-12, 0.0, 2.0, 4);
    EXPECT_EQ(got.evaluations, 4);
    EXPECT_EQ(got.fail.code, NE_USER_STOP);
    EXPECT_EQ(got.fail.errnum, 4);
    EXPECT_STREQ(got.fail.message, "NE_USER_STOP:\n  User requested termination, comm->flag = -5.");
    // A stop at the first evaluation returns x = a.
    const CCall first = call_c05ayc(0.25, 2, 1e-12, 0.0, 2.0, 1);
    EXPECT_EQ(first.x, 0.25);
    EXPECT_EQ(first.fail.code, NE_USER_STOP);
}

double c_nan_left(double x, Zor_Comm*) { return x < 0.5 ? NAN : x - 0.75; }
double c_nan_always(double, Zor_Comm*) { return NAN; }

TEST(c05ayc, NonFiniteFunctionValuesEndInDefinedExits)
{
    Zor_Fail fail{};
    double x = 0.0;
    // NaN counts as "not positive": the sign change at 0.75 is still found.
    c05ayc(0.0, 1.0, 1e-12, 0.0, c_nan_left, &x, nullptr, &fail);
    EXPECT_EQ(fail.code, 0);
    EXPECT_NEAR(x, 0.75, 1e-12);
    // NaN at both ends: the same class, no sign change.
    c05ayc(0.0, 1.0, 1e-12, 0.0, c_nan_always, &x, nullptr, &fail);
    EXPECT_EQ(fail.code, NE_FUNC_END_VAL);
    EXPECT_STREQ(fail.message,
                 "NE_FUNC_END_VAL:\n  On entry, f(a) and f(b) have the same sign with neither "
                 "equalling 0.0:\n  f(a) = nan and f(b) = nan.");
}

TEST(c05ayc, PrintWritesTheMessageAndContinues)
{
    Zor_Fail fail{};
    fail.print = Zor_TRUE;
    double x = 0.0;
    testing::internal::CaptureStderr();
    c05ayc(0.5, 0.5, 1e-8, 0, c_square_minus, &x, nullptr, &fail);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "Error detected by ZOR routine c05ayc:\nNE_REAL_2:\n  On entry, a = 0.5 and b = "
              "0.5.\n  Constraint: a != b.\n");
}

TEST(c05aycDeathTest, NoFailRecordEndsWithStatusOne)
{
    double x = 0.0;
    EXPECT_EXIT(c05ayc(1, 1, 1e-8, 0, c_square_minus, &x, nullptr, nullptr),
                testing::ExitedWithCode(1), "ZOR Function Terminated");
}

TEST(c05aycDeathTest, NullXWithoutFailRecordEndsWithStatusOne)
{
    EXPECT_EXIT(c05ayc(0, 2, 1e-8, 0, c_square_minus, nullptr, nullptr, nullptr),
                testing::ExitedWithCode(1), "parameter x had an illegal value");
}

TEST(c05ayc, SuccessWithoutFailRecordReturns)
{
    double x = 0.0;
    CData data{2.0, 0, 0};
    Zor_Comm comm{&data, nullptr, nullptr, 0};
    c05ayc(0, 2, 1e-10, 0, c_square_minus, &x, &comm, nullptr);
    EXPECT_NEAR(x, 1.4142135623730951, 1e-10);
}

}  // namespace

namespace {

// eta is never an argument error: each value has a defined meaning.
TEST(C05AYF, EtaOfEveryKind)
{
    struct Case {
        double eta;
        bool stops_at_a;
        const char* why;
    };
    const Case cases[] = {
        {INFINITY, true, "an infinite eta accepts any finite f(a)"},
        {NAN, false, "a NaN eta accepts only exact zeros"},
        {-1.0, false, "a negative eta accepts only exact zeros"},
        {0.0, false, "eta = 0 accepts only exact zeros"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        const FCall got = call_c05ayf(0.5, 2.0, 1e-12, c.eta, 2.0);
        EXPECT_EQ(got.ifail, 0);
        if (c.stops_at_a) {
            EXPECT_EQ(got.x, 0.5);
            EXPECT_EQ(got.evaluations, 1);
        } else {
            EXPECT_LE(std::fabs(got.x - 1.4142135623730951), 2e-12);
        }
    }
}

// The largest bracket there is: no overflow in widths, midpoints or interpolants.
double cube_minus(const double* x, Zor_Integer iuser[], double ruser[])
{
    ++iuser[0];
    return std::cbrt(*x) - ruser[0];
}

TEST(C05AYF, WholeRangeOfDoubles)
{
    const double a = -0x1.fffffffffffffp1023, b = -a, eps = 1e-14, eta = 0.0;
    double x = 0.0, ruser[1] = {1.25};
    Zor_Integer iuser[1] = {0}, ifail = 1;
    C05AYF(&a, &b, &eps, &eta, cube_minus, &x, iuser, ruser, &ifail);
    EXPECT_EQ(ifail, 0);
    EXPECT_LE(std::fabs(x - 1.953125), 1e-14 * 1.953125);   // 1.25^3
    EXPECT_LE(iuser[0], 4 * (2 + 2100) + 3);
}

// Re-entrancy: searches in several threads at once give the answers of serial calls.
TEST(c05ayc, ConcurrentCallsAreIndependent)
{
    constexpr int n = 8;
    double serial[n], parallel[n];
    for (int i = 0; i < n; ++i) serial[i] = call_c05ayc(0, 10, 1e-13, 0, 2.0 + i).x;
    std::vector<std::thread> threads;
    for (int i = 0; i < n; ++i)
        threads.emplace_back([&, i] {
            for (int rep = 0; rep < 200; ++rep) parallel[i] = call_c05ayc(0, 10, 1e-13, 0, 2.0 + i).x;
        });
    for (std::thread& t : threads) t.join();
    for (int i = 0; i < n; ++i) EXPECT_EQ(parallel[i], serial[i]);
}

}  // namespace
