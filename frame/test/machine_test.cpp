// frame/test/machine_test.cpp — the X02 machine constants: exact bit patterns, and the
// properties that give them their meaning, checked by arithmetic rather than by the
// literals of frame/machine.hpp.
#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <cstdint>
#include <cstring>

#include "frame/frame.hpp"
#include "frame/machine.hpp"
#include "zor.h"

namespace {

std::uint64_t bits(double v)
{
    std::uint64_t b;
    std::memcpy(&b, &v, sizeof b);
    return b;
}

TEST(X02, RealConstantsHaveTheirBitPatterns)
{
    struct Case { double (*f)(); double (*alias)(); std::uint64_t pattern; const char* name; };
    const Case cases[] = {
        {X02AHF, x02ahf_, 0x4950000000000000u, "maxsc"},
        {X02AJF, x02ajf_, 0x3CA0000000000000u, "eps"},
        {X02AKF, x02akf_, 0x0010000000000000u, "tiny_zor"},
        {X02ALF, x02alf_, 0x7FEFFFFFFFFFFFFFu, "huge_zor"},
        {X02AMF, x02amf_, 0x0010000000000001u, "saferange"},
        {X02ANF, x02anf_, 0x0010000000000001u, "zrange"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(bits(c.f()), c.pattern);
        EXPECT_EQ(bits(c.alias()), c.pattern);
    }
}

TEST(X02, IntegerConstants)
{
    struct Case { Zor_Integer (*f)(); Zor_Integer (*alias)(); Zor_Integer value; const char* name; };
    const Case cases[] = {
        {X02BBF, x02bbf_, 2147483647, "hugeint"}, {X02BEF, x02bef_, 15, "iprec"},
        {X02BHF, x02bhf_, 2, "irad"},             {X02BJF, x02bjf_, 53, "idigs"},
        {X02BKF, x02bkf_, -1021, "minexp"},       {X02BLF, x02blf_, 1024, "maxexp"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(c.f(), c.value);
        EXPECT_EQ(c.alias(), c.value);
    }
}

TEST(X02, KernelEntriesStoreTheSameValues)
{
    Zor_Context ctx;
    Y90HAAN(&ctx);
    double r = 0;
    X02AJFT(&ctx, &r);
    EXPECT_EQ(r, X02AJF());
    X02AMFT(&ctx, &r);
    EXPECT_EQ(r, X02AMF());
    Zor_Integer i = 0;
    X02BLFT(&ctx, &i);
    EXPECT_EQ(i, 1024);
}

TEST(X02, EpsIsTheUnitRoundoff)
{
    ASSERT_EQ(std::fegetround(), FE_TONEAREST);
    volatile double one = 1.0, eps = X02AJF();
    EXPECT_EQ(one + eps, 1.0);           // a tie, rounded to even
    EXPECT_NE(one + 2 * eps, 1.0);       // the spacing of doubles just above 1
    EXPECT_EQ(one + 2 * eps, std::nextafter(1.0, 2.0));
    EXPECT_NE(one - eps, 1.0);           // below 1 the spacing is eps itself
}

TEST(X02, RangeConstants)
{
    const double tiny = X02AKF(), huge = X02ALF();
    EXPECT_TRUE(std::isnormal(tiny));
    EXPECT_FALSE(std::isnormal(std::nextafter(tiny, 0.0)));
    EXPECT_TRUE(std::isfinite(huge));
    EXPECT_TRUE(std::isinf(std::nextafter(huge, INFINITY)));
    EXPECT_EQ(X02AMF(), std::nextafter(tiny, 1.0)) << "saferange is one ulp above tiny";
    EXPECT_EQ(X02ANF(), X02AMF());
    EXPECT_TRUE(std::isfinite(1.0 / X02AMF()));
    EXPECT_EQ(X02AHF(), std::ldexp(1.0, 150));
}

TEST(X02, ExponentRangeOfTheFractionModel)
{
    // A real is 0.d1d2... * 2^e with the significand in [0.5, 1): frexp's model.
    int e = 0;
    std::frexp(X02AKF(), &e);
    EXPECT_EQ(e, X02BKF());
    std::frexp(X02ALF(), &e);
    EXPECT_EQ(e, X02BLF());
    EXPECT_EQ(std::ldexp(1.0, X02BKF() - 1), X02AKF());
    EXPECT_NE(X02BKF(), -1022) << "not the IEEE unbiased exponent";
    EXPECT_NE(X02BLF(), 1023);
}

TEST(X02, DigitsAndBase)
{
    // idigs bits of significand: 2^idigs is the first integer that doubles cannot step by 1.
    const double p = std::ldexp(1.0, X02BJF());
    volatile double q = p + 1.0;
    EXPECT_EQ(q, p);
    volatile double r = p / 2 + 1.0;
    EXPECT_NE(r, p / 2);
    EXPECT_EQ(X02BHF(), 2);
    // iprec decimal digits survive a round trip: floor((idigs - 1) * log10(2)).
    EXPECT_EQ(X02BEF(), static_cast<int>(std::floor((X02BJF() - 1) * std::log10(2.0))));
    EXPECT_EQ(X02BBF(), INT32_MAX);
}

}  // namespace
