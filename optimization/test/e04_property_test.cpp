// optimization/test/e04_property_test.cpp — E04ABF and E04BBF on many random problems
// (smooth, kinked, with many minima, undefined or infinite on part of the interval,
// intervals from 1e-3 to 1e3 long, tolerances from 1 down to 1e-14, small MAXCAL): the
// results always satisfy what the routines promise.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "zor.h"

namespace {

struct Shape {
    int kind;
    double c1, c2, c3, c4;
    double f(double x) const
    {
        switch (kind) {
        case 0: return c1 * (x - c2) * (x - c2) + c3 * std::sin(c4 * x);
        case 1: return std::fabs(x - c2);
        case 2: return std::exp(c1 * x) + c3 * x;
        case 3: return x < c2 ? NAN : (x - c2 - c3) * (x - c2 - c3);
        case 4: return x > c2 ? INFINITY : -x;
        default: return std::sin(c4 * x);
        }
    }
    double g(double x) const
    {
        switch (kind) {
        case 0: return 2.0 * c1 * (x - c2) + c3 * c4 * std::cos(c4 * x);
        case 1: return x > c2 ? 1.0 : -1.0;
        case 2: return c1 * std::exp(c1 * x) + c3;
        case 3: return x < c2 ? NAN : 2.0 * (x - c2 - c3);
        case 4: return x > c2 ? NAN : -1.0;
        default: return c4 * std::cos(c4 * x);
        }
    }
};

// Passed to the user function as RUSER (cast back there): the shape, the lowest and
// highest points evaluated, and the calls.
struct Data {
    Shape shape;
    double lo, hi;
    int calls;
};

void value(const double* xc, double* fc, Zor_Integer[], double ruser[])
{
    auto* d = reinterpret_cast<Data*>(ruser);
    d->lo = std::fmin(d->lo, *xc);
    d->hi = std::fmax(d->hi, *xc);
    ++d->calls;
    *fc = d->shape.f(*xc);
}

void value_and_slope(const double* xc, double* fc, double* gc, Zor_Integer iuser[], double ruser[])
{
    value(xc, fc, iuser, ruser);
    *gc = reinterpret_cast<Data*>(ruser)->shape.g(*xc);
}

TEST(E04ABFandE04BBF, RandomProblemsKeepTheirPromises)
{
    std::mt19937_64 gen(20261122);
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    for (int t = 0; t < 20000; ++t) {
        const Shape shape{t % 6, std::fabs(u(gen)) * 10 + 0.01, u(gen) * 5, u(gen) * 2, u(gen) * 20};
        const double A = u(gen) * 10, B = A + std::fabs(u(gen)) * std::pow(10.0, 3.0 * u(gen));
        const double e = std::pow(10.0, -14.0 * std::fabs(u(gen)));
        const Zor_Integer maxcal = t % 7 == 0 ? 2 + t % 5 : 200;
        for (int routine = 0; routine < 2; ++routine) {
            alignas(double) Data data{shape, INFINITY, -INFINITY, 0};
            double* ruser = reinterpret_cast<double*>(&data);
            double e1 = e, e2 = 0.5 * e, a = A, b = B, x = NAN, f = NAN, g = NAN;
            Zor_Integer m = maxcal, ifail = 1;
            if (routine == 0)
                E04ABA(value, &e1, &e2, &a, &b, &m, &x, &f, nullptr, ruser, &ifail);
            else
                E04BBA(value_and_slope, &e1, &e2, &a, &b, &m, &x, &f, &g, nullptr, ruser, &ifail);
            if (ifail == 1) {
                ASSERT_EQ(data.calls, 0);
                continue;
            }
            SCOPED_TRACE(testing::Message() << "t = " << t << ", routine " << routine);
            ASSERT_TRUE(ifail == 0 || ifail == 2) << ifail;
            ASSERT_EQ(m, data.calls);
            ASSERT_LE(m, maxcal);
            ASSERT_LE(a, x);
            ASSERT_LE(x, b);
            const double slack = 1e-15 * (std::fabs(A) + std::fabs(B));   // relative positions
            const double tolB = e1 * std::fabs(B) + e2;
            ASSERT_GE(a, A - slack);
            ASSERT_LE(b, B + tolB * (1 + 1e-6) + slack);
            ASSERT_GE(data.lo, A - slack);
            ASSERT_LE(data.hi, B + tolB * (1 + 1e-6) + slack);
            const double fx = shape.f(x);
            ASSERT_TRUE(f == fx || (std::isnan(f) && std::isnan(fx)));
        }
    }
}

}  // namespace
