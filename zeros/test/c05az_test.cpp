// zeros/test/c05az_test.cpp — C05AZF and c05azc: the reverse-communication protocol, the
// argument checks, the records and c messages, and a C array altered between calls.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <string>
#include <vector>

#include "aps_problems.hpp"
#include "c05az_step.hpp"
#include "frame/frame.hpp"
#include "tests/error_unit_capture.hpp"
#include "zor.h"

using zor::test::ErrorUnitCapture;
using zor::test::soft_tail;

namespace {

struct RcRun {
    double x = 0, y = 0;
    Zor_Integer ifail = 1, ind = 0;
    std::vector<Zor_Integer> inds;   // IND after every call
    int calls = 0;
    bool ifail_untouched = true;     // IFAIL kept its entry value on every return with IND != 0
};

// Drives C05AZF on f from [x, y] until IND = 0 (at most 20000 calls).
template <class F>
RcRun solve(F f, double x, double y, double tolx, Zor_Integer ir, Zor_Integer start = 1)
{
    RcRun r;
    r.x = x;
    r.y = y;
    double c[ZOR_C05AZ_CLEN] = {};
    double fx = start == -1 ? f(x) : 0.0;
    r.ind = start;
    while (r.calls < 20000) {
        r.ifail = 77;
        C05AZF(&r.x, &r.y, &fx, &tolx, &ir, c, &r.ind, &r.ifail);
        ++r.calls;
        r.inds.push_back(r.ind);
        if (r.ind == 0) break;
        if (r.ifail != 77) r.ifail_untouched = false;
        fx = f(r.x);
    }
    return r;
}

double cubic(double x) { return (x - 0.7) * (x * x + 1.0); }

TEST(C05AZF, ProtocolAsksForBothEndsThenTrialPoints)
{
    const RcRun r = solve(cubic, 2.0, -1.0, 1e-12, 2);
    ASSERT_GE(r.inds.size(), 3u);
    EXPECT_EQ(r.inds[0], 2);
    EXPECT_EQ(r.inds[1], 3);
    for (std::size_t i = 2; i + 1 < r.inds.size(); ++i) EXPECT_EQ(r.inds[i], 4);
    EXPECT_EQ(r.inds.back(), 0);
    EXPECT_EQ(r.ifail, 0);
    EXPECT_TRUE(r.ifail_untouched);
    EXPECT_LE(std::fabs(r.x - 0.7), 1e-12);
    EXPECT_LE(std::fabs(r.x - r.y), 1e-12);
    EXPECT_LT((r.x - 0.7) * (r.y - 0.7), 1e-300);   // 0.7 between x and y
}

TEST(C05AZF, StartWithMinusOneSavesAnEvaluation)
{
    const RcRun one = solve(cubic, 2.0, -1.0, 1e-12, 2, 1);
    const RcRun minus = solve(cubic, 2.0, -1.0, 1e-12, 2, -1);
    EXPECT_EQ(minus.inds[0], 3);
    EXPECT_EQ(minus.calls + 1, one.calls);
    EXPECT_EQ(minus.x, one.x);
}

TEST(C05AZF, ErrorTestsOfTheThreeModes)
{
    // Zero of x - 1000.25: IR = 2 absolute, 1 relative, 0 mixed (relative here).
    auto f = [](double x) { return x - 1000.25; };
    struct Case {
        Zor_Integer ir;
        double tolx, bound;
    };
    const Case cases[] = {{2, 1e-6, 1e-6}, {1, 1e-9, 1e-9 * 1000.25}, {0, 1e-9, 1e-9 * 1000.25}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.ir);
        const RcRun r = solve(f, 0.0, 3000.0, c.tolx, c.ir);
        EXPECT_EQ(r.ifail, 0);
        EXPECT_LE(std::fabs(r.x - 1000.25), c.bound);
    }
}

TEST(C05AZF, ArgumentChecksAndTheirRecords)
{
    struct Case {
        double x, y, tolx;
        Zor_Integer ir, ind;
        int ifail;
        const char* records;
    };
    const Case cases[] = {
        {0, 1, 1e-8, 0, 0, 2, " ** On entry, ind = 0.\n ** Constraint: ind = -1, 1, 2, 3 or 4.\n"},
        {0, 1, -1.0, 7, 5, 2, " ** On entry, ind = 5.\n ** Constraint: ind = -1, 1, 2, 3 or 4.\n"},
        {0, 1, 0.0, 7, 1, 3, " ** On entry, tolx = 0.0.\n ** Constraint: tolx > 0.0.\n"},
        {0, 1, NAN, 0, 1, 3, " ** On entry, tolx = nan.\n ** Constraint: tolx > 0.0.\n"},
        {0, 1, 1e-8, 3, 1, 3, " ** On entry, ir = 3.\n ** Constraint: ir = 0, 1 or 2.\n"},
        {0, INFINITY, 1e-8, 0, 1, 3,
         " ** On entry, x = 0.0 and y = inf.\n ** Constraint: x and y must be finite.\n"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.records);
        ErrorUnitCapture cap;
        double x = c.x, y = c.y, fx = 0, tolx = c.tolx, cc[ZOR_C05AZ_CLEN] = {};
        Zor_Integer ir = c.ir, ind = c.ind, ifail = -1;
        C05AZF(&x, &y, &fx, &tolx, &ir, cc, &ind, &ifail);
        EXPECT_EQ(ifail, c.ifail);
        EXPECT_EQ(ind, 0);
        EXPECT_EQ(cap.text(), std::string(c.records) + soft_tail("c05azf", c.ifail));
    }
}

TEST(C05AZF, SameSignRecords)
{
    ErrorUnitCapture cap;
    double x = 2, y = 3, fx = 0, tolx = 1e-8, c[ZOR_C05AZ_CLEN];
    Zor_Integer ir = 0, ind = 1, ifail = -1;
    C05AZF(&x, &y, &fx, &tolx, &ir, c, &ind, &ifail);
    fx = 1.5;   // f(2)
    C05AZF(&x, &y, &fx, &tolx, &ir, c, &ind, &ifail);
    EXPECT_EQ(ind, 3);
    EXPECT_EQ(x, 3.0);
    fx = 2.5;   // f(3)
    C05AZF(&x, &y, &fx, &tolx, &ir, c, &ind, &ifail);
    EXPECT_EQ(ind, 0);
    EXPECT_EQ(ifail, 1);
    EXPECT_EQ(x, 2.0);
    EXPECT_EQ(y, 3.0);
    EXPECT_EQ(cap.text(),
              " ** On entry, f(x) and f(y) have the same sign with neither equalling 0.0:\n"
              " ** f(x) = 1.5 and f(y) = 2.5\n" + soft_tail("c05azf", 1));
}

TEST(C05AZF, PoleAndTooSmallTolerance)
{
    {
        ErrorUnitCapture cap;
        const RcRun r = solve([](double x) { return 1.0 / (x - 0.3); }, 0.0, 1.0, 1e-10, 2);
        EXPECT_EQ(r.ifail, 4);
        EXPECT_NEAR(r.x, 0.3, 1e-10);
        EXPECT_EQ(cap.text(), "");   // IFAIL = 77 on entry: quiet
    }
    ErrorUnitCapture cap;
    double x = 0, y = 2, fx = 0, tolx = 1e-20, c[ZOR_C05AZ_CLEN];
    Zor_Integer ir = 1, ind = 1, ifail = -1, calls = 0;
    while (ind != 0 && calls++ < 20000) {
        C05AZF(&x, &y, &fx, &tolx, &ir, c, &ind, &ifail);
        fx = x * x - 2.0;
    }
    EXPECT_EQ(ifail, 5);
    EXPECT_LE(std::fabs(x - 1.4142135623730951), 4.5e-16);   // adjacent doubles
    EXPECT_EQ(cap.text(),
              " ** The tolerance tolx has been set too small for the problem\n"
              " ** being solved. However, the values x and y returned may well\n"
              " ** be good approximations to the zero.\n"
              " ** tolx = 1e-20\n" + soft_tail("c05azf", 5));
}

// The state packed into C between calls carries the whole step (the flat-stretch count
// included): C05AZF asks for exactly the points that the step chooses when it runs
// uninterrupted, on every Alefeld-Potra-Shi problem.
TEST(C05AZF, PackedStateResumesTheStepExactly)
{
    namespace zz = zor::zeros;
    for (const auto& p : zz::aps::problems) {
        SCOPED_TRACE(p.id);
        const double tolx = 2e-12;
        std::vector<double> direct;
        zz::BracketState s;
        zz::StepStatus st = zz::begin(s, p.lo, zz::aps::f(p, p.lo), p.hi, zz::aps::f(p, p.hi),
                                      tolx, zz::ErrorTest::absolute);
        while (st == zz::StepStatus::evaluate && direct.size() < 1000) {
            direct.push_back(s.c);
            st = zz::advance(s, zz::aps::f(p, s.c), tolx, zz::ErrorTest::absolute);
        }
        std::vector<double> asked;
        const RcRun r = solve([&](double x) { asked.push_back(x); return zz::aps::f(p, x); },
                              p.lo, p.hi, tolx, 2);
        ASSERT_EQ(r.ind, 0);
        ASSERT_GE(asked.size(), 2u);
        EXPECT_EQ(std::vector<double>(asked.begin() + 2, asked.end()), direct);
        EXPECT_EQ(r.x, s.u);
    }
}

TEST(C05AZF, AlteredStateIsDetected)
{
    // Each case changes one thing between two calls in the middle of a search.
    struct Case {
        int what;
        const char* why;
    };
    const Case cases[] = {{0, "check value"}, {1, "a bracket end in c"}, {2, "the checksum"},
                          {3, "x"}, {4, "y"}, {5, "ind 4 -> 3"}, {6, "c all zero"},
                          {7, "c all NaN"}};
    for (const Case& k : cases) {
        SCOPED_TRACE(k.why);
        double x = 0, y = 2, fx = 0, tolx = 1e-12, c[ZOR_C05AZ_CLEN];
        Zor_Integer ir = 2, ind = 1, ifail = 1;
        for (int i = 0; i < 5; ++i) {   // into the trial points
            C05AZF(&x, &y, &fx, &tolx, &ir, c, &ind, &ifail);
            fx = x * x - 2.0;
        }
        ASSERT_EQ(ind, 4);
        switch (k.what) {
        case 0: c[0] += 1; break;
        case 1: c[4] = -1e300; break;
        case 2: c[ZOR_C05AZ_CLEN - 1] = 0; break;
        case 3: x = std::nextafter(x, 10.0); break;
        case 4: y += 1; break;
        case 5: ind = 3; break;
        case 6: std::memset(c, 0, sizeof c); break;
        case 7: for (double& v : c) v = NAN; break;
        }
        ErrorUnitCapture cap;
        ifail = -1;
        C05AZF(&x, &y, &fx, &tolx, &ir, c, &ind, &ifail);
        EXPECT_EQ(ifail, 2);
        EXPECT_EQ(ind, 0);
        char first[100];
        std::snprintf(first, sizeof first,
                      " ** On entry, ind = %d does not continue a search: c, x or y has been\n",
                      k.what == 5 ? 3 : 4);
        EXPECT_EQ(cap.text(), std::string(first) +
                                  " ** altered since the previous return, or c was not set by "
                                  "c05azf.\n" + soft_tail("c05azf", 2));
    }
}

TEST(C05AZF, FinishedSearchCannotBeContinued)
{
    double x = 0, y = 2, fx = 0, tolx = 1e-12, c[ZOR_C05AZ_CLEN];
    Zor_Integer ir = 2, ind = 1, ifail = 1, last_ind = 1;
    for (int calls = 0; calls < 1000 && ind != 0; ++calls) {
        last_ind = ind;
        C05AZF(&x, &y, &fx, &tolx, &ir, c, &ind, &ifail);
        fx = x * x - 2.0;
    }
    ASSERT_EQ(ifail, 0);
    ind = last_ind == 1 ? 4 : last_ind;   // as if the caller missed IND = 0
    ifail = 1;
    C05AZF(&x, &y, &fx, &tolx, &ir, c, &ind, &ifail);
    EXPECT_EQ(ifail, 2);
    EXPECT_EQ(ind, 0);
}

TEST(C05AZF, ExactZeroEndsWithYEqualToX)
{
    const RcRun r = solve([](double x) { return x - 0.5; }, 0.0, 1.0, 1e-3, 2);
    EXPECT_EQ(r.ifail, 0);
    EXPECT_EQ(r.x, 0.5);   // the secant hits it exactly
    EXPECT_EQ(r.y, 0.5);
    const RcRun at_end = solve([](double x) { return x - 1.0; }, 1.0, 3.0, 1e-3, 2);
    EXPECT_EQ(at_end.calls, 1 + 1);   // f(x) = 0 at the first end
    EXPECT_EQ(at_end.x, 1.0);
}

// ---------------------------------------------------------------------------------
// c05azc

TEST(c05azc, SameProtocolAndMappedCodes)
{
    double x = 2.0, y = -1.0, c[ZOR_C05AZ_CLEN];
    Zor_Integer ind = 1;
    Zor_Fail fail{};
    fail.code = 999;
    int calls = 0;
    double fx = 0.0;
    while (calls++ < 1000) {
        c05azc(&x, &y, fx, 1e-12, 2, c, &ind, &fail);
        if (ind == 0) break;
        EXPECT_EQ(fail.code, 999);   // untouched while asking
        fx = cubic(x);
    }
    EXPECT_EQ(fail.code, 0);
    EXPECT_LE(std::fabs(x - 0.7), 1e-12);

    struct Case {
        double tolx;
        Zor_Integer ir, ind;
        int code, errnum;
        const char* message;
    };
    const Case cases[] = {
        {1e-8, 0, 9, NE_INT, 2, "NE_INT:\n  On entry, ind = 9.\n  Constraint: ind = -1, 1, 2, 3 or 4."},
        {-2.0, 0, 1, NE_REAL, 3, "NE_REAL:\n  On entry, tolx = -2.0.\n  Constraint: tolx > 0.0."},
        {1e-8, -1, 1, NE_INT, 3, "NE_INT:\n  On entry, ir = -1.\n  Constraint: ir = 0, 1 or 2."},
        {1e-8, 0, 4, NE_STATE_CORRUPT, 2,
         "NE_STATE_CORRUPT:\n  On entry, ind = 4 does not continue a search: c, x or y has been\n"
         "  altered since the previous return, or c was not set by c05azc."},
    };
    for (const Case& k : cases) {
        SCOPED_TRACE(k.message);
        double xx = 0, yy = 1, cc[ZOR_C05AZ_CLEN] = {};
        Zor_Integer ind2 = k.ind;
        c05azc(&xx, &yy, 0.0, k.tolx, k.ir, cc, &ind2, &fail);
        EXPECT_EQ(fail.code, k.code);
        EXPECT_EQ(fail.errnum, k.errnum);
        EXPECT_STREQ(fail.message, k.message);
    }
}

TEST(c05azc, NullPointers)
{
    double x = 0, y = 1, c[ZOR_C05AZ_CLEN];
    Zor_Integer ind = 1;
    Zor_Fail fail{};
    c05azc(&x, nullptr, 0.0, 1e-8, 0, c, &ind, &fail);
    EXPECT_EQ(fail.code, NE_BAD_PARAM);
    EXPECT_STREQ(fail.message, "NE_BAD_PARAM:\n  On entry, parameter y had an illegal value.");
    EXPECT_EQ(ind, 0);
    c05azc(&x, &y, 0.0, 1e-8, 0, nullptr, &ind, &fail);
    EXPECT_STREQ(fail.message, "NE_BAD_PARAM:\n  On entry, parameter c had an illegal value.");
}

TEST(c05azcDeathTest, NoFailRecordEndsWithStatusOne)
{
    double x = 0, y = 1, c[ZOR_C05AZ_CLEN];
    Zor_Integer ind = 7;
    EXPECT_EXIT(c05azc(&x, &y, 0.0, 1e-8, 0, c, &ind, nullptr), testing::ExitedWithCode(1),
                "ZOR Function Terminated");
}

TEST(C05AZFDeathTest, IfailZeroStopsTheProgram)
{
    double x = 0, y = 1, fx = 0, tolx = 1e-8, c[ZOR_C05AZ_CLEN];
    Zor_Integer ir = 0, ind = 7, ifail = 0;
    EXPECT_EXIT(C05AZF(&x, &y, &fx, &tolx, &ir, c, &ind, &ifail),
                testing::ExitedWithCode(zor::hard_stop_status), "");
}

}  // namespace
