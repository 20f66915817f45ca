// frame/test/fail_codes_test.cpp — the table of c-interface error codes: every default
// message is named after its code, keeps the record's shape, is safe to hand to printf
// and fits the fail record once formatted.
#include <gtest/gtest.h>

#include <climits>
#include <cstdio>
#include <cstring>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "frame.hpp"
#include "zor_errors.h"

namespace {

struct Named {
    int number;
    const char* name;
};

// The names as the compiler knows them: each one must be the enumerator of the public
// header with the same number (a renamed or renumbered code fails to compile here).
#define ZOR_FAIL_CODE(number, name, message) static_assert(name == number, #name);
#include "fail_codes.def"
#undef ZOR_FAIL_CODE

constexpr Named names[] = {
#define ZOR_FAIL_CODE(number, name, message) {number, #name},
#include "fail_codes.def"
#undef ZOR_FAIL_CODE
};
static_assert(std::size(names) == ZOR_ERROR_CODE_COUNT);

std::vector<std::string> lines_of(std::string_view m)
{
    std::vector<std::string> out;
    std::size_t start = 0;
    for (;;) {
        const std::size_t nl = m.find('\n', start);
        out.emplace_back(m.substr(start, nl == std::string_view::npos ? m.npos : nl - start));
        if (nl == std::string_view::npos) return out;
        start = nl + 1;
    }
}

// The message with every directive replaced by a long but plausible value; empty when a
// directive outside %s %d %g %e %f %ld %% is found.
std::string formatted_long(std::string_view m, bool& ok)
{
    std::string out;
    ok = true;
    for (std::size_t i = 0; i < m.size(); ++i) {
        if (m[i] != '%') {
            out += m[i];
            continue;
        }
        const std::string_view rest = m.substr(i + 1);
        if (rest.starts_with("ld")) {
            out += "-9223372036854775807";
            ++i;
        } else if (!rest.empty()) {
            switch (rest[0]) {
            case 's': out += "a_rather_long_argument_name[12]"; break;  // 31 characters
            case 'd': out += "-2147483648"; break;
            case 'g': out += "-1.23457e-308"; break;
            case 'e': out += "-1.234568e-308"; break;
            case 'f': out += "-123456789.123457"; break;
            case '%': out += "%"; break;
            default: ok = false; return {};
            }
        } else {
            ok = false;
            return {};
        }
        ++i;
    }
    return out;
}

TEST(FailCodes, NumbersRunFromZeroInOrder)
{
    for (int i = 0; i < ZOR_ERROR_CODE_COUNT; ++i) EXPECT_EQ(names[i].number, i);
    EXPECT_EQ(ZOR_ERROR_CODE_COUNT, 745);
    EXPECT_STREQ(names[NE_RESERVED_716].name, "NE_RESERVED_716");
}

TEST(FailCodes, NamesAreUniqueAndClassified)
{
    std::set<std::string> seen;
    for (const Named& n : names) {
        const std::string_view s(n.name);
        EXPECT_TRUE(seen.insert(n.name).second) << n.name;
        EXPECT_TRUE(s.starts_with("NE_") || s.starts_with("NW_")) << n.name;
    }
}

TEST(FailCodes, EveryMessageBeginsWithItsName)
{
    for (const Named& n : names) {
        const std::string m = zor::default_message(n.number);
        EXPECT_TRUE(m.starts_with(std::string(n.name) + ":\n  ")) << n.number << ": " << m;
    }
}

// The printing step of the reporting routine tells errors from warnings by the letter
// after the first N: it must agree with the name.
TEST(FailCodes, KindLetterAgreesWithName)
{
    for (const Named& n : names) {
        const char* m = zor::default_message(n.number);
        ASSERT_GE(std::strlen(m), 3u);
        EXPECT_EQ(m[0], 'N') << n.name;
        EXPECT_EQ(m[1], n.name[1]) << n.name;
        EXPECT_EQ(m[2], '_') << n.name;
    }
}

TEST(FailCodes, LinesAreIndentedAndTidy)
{
    for (const Named& n : names) {
        const std::vector<std::string> lines = lines_of(zor::default_message(n.number));
        ASSERT_GE(lines.size(), 2u) << n.name;
        EXPECT_EQ(lines[0], std::string(n.name) + ":");
        for (std::size_t i = 1; i < lines.size(); ++i) {
            const std::string& l = lines[i];
            EXPECT_TRUE(l.starts_with("  ") && l.size() > 2 && l[2] != ' ')
                << n.name << " line " << i << ": \"" << l << '"';
            EXPECT_NE(l.back(), ' ') << n.name << " line " << i;
            EXPECT_LE(l.size(), 80u) << n.name << " line " << i;
        }
        const std::string& last = lines.back();
        EXPECT_TRUE(last.ends_with(".") || last.ends_with(")")) << n.name << ": " << last;
    }
}

TEST(FailCodes, NoPlaceholdersAndCNotEqual)
{
    for (const Named& n : names) {
        const std::string_view m = zor::default_message(n.number);
        EXPECT_EQ(m.find("TODO"), m.npos) << n.name;
        EXPECT_EQ(m.find("/="), m.npos) << n.name << ": the c interface writes !=";
        EXPECT_EQ(m.find('\t'), m.npos) << n.name;
        EXPECT_EQ(m.find("  \n"), m.npos) << n.name;
    }
}

TEST(FailCodes, DirectivesAreSafeAndFormattedMessagesFit)
{
    for (const Named& n : names) {
        bool ok = false;
        const std::string f = formatted_long(zor::default_message(n.number), ok);
        EXPECT_TRUE(ok) << n.name << ": only %s %d %g %e %f %ld %% may appear";
        EXPECT_LE(f.size(), 400u) << n.name << " formats to " << f.size() << " characters";
    }
}

TEST(FailCodes, FormatsWithMatchingArguments)
{
    char out[512];
    std::snprintf(out, sizeof out, zor::default_message(NE_INT_ARG_LT), "n", 1, "n", 0);
    EXPECT_STREQ(out, "NE_INT_ARG_LT:\n  On entry, n must not be less than 1: n = 0.");
    std::snprintf(out, sizeof out, zor::default_message(NE_REAL_2), "a", 1.0, "b", 1.0,
                  "a != b");
    EXPECT_STREQ(out, "NE_REAL_2:\n  On entry, a = 1, b = 1.\n  Constraint: a != b.");
    std::snprintf(out, sizeof out, zor::default_message(NE_TOO_MANY), 50);
    EXPECT_STREQ(out, "NE_TOO_MANY:\n  Too many iterations (50).");
}

struct Quoted {
    int code;
    const char* message;
};

TEST(FailCodes, QuotedMessagesAreExact)
{
    const Quoted table[] = {
        {0, "NE_NOERROR:\n  No error."},
        {1, "NE_CODE_NOT_SET:\n  Error code has not been set by the last function called."},
        {3, "NE_TOO_MANY:\n  Too many iterations (%d)."},
        {70, "NE_BAD_PARAM:\n  On entry, parameter %s had an illegal value."},
        {73, "NE_ALLOC_FAIL:\n  Memory allocation failed."},
        {74, "NE_INTERNAL_ERROR:\n  An internal error has occurred in this function.\n"
             "  Check the function call and any array sizes. If the call is correct\n"
             "  then please consult ZOR for assistance."},
        {100, "NE_REAL:\n  On entry, %s = %g.\n  Constraint: %s."},
        {101, "NE_REAL_2:\n  On entry, %s = %g, %s = %g.\n  Constraint: %s."},
        {139, "NE_FUNC_END_VAL:\n  On entry, f(%s) and f(%s) have the same sign, with f(%s) "
              "!= 0.0."},
        {140, "NE_PROBABLE_POLE:\n  Indicates that the function values in the interval %s "
              "might\n  contain a pole rather than a zero. Reducing xtol may help\n  in "
              "distinguishing between a pole and a zero."},
        {555, "NE_TOO_SMALL:\n  On entry, the value of %s is too small."},
    };
    for (const Quoted& q : table) EXPECT_STREQ(zor::default_message(q.code), q.message) << q.code;
}

TEST(FailCodes, OutOfRangeCodesGiveTheInternalError)
{
    const char* internal = zor::default_message(NE_INTERNAL_ERROR);
    for (int code : {-1, ZOR_ERROR_CODE_COUNT, 745, 1000, INT_MIN, INT_MAX})
        EXPECT_EQ(zor::default_message(code), internal) << code;
    EXPECT_NE(zor::default_message(744), internal);
    EXPECT_NE(zor::default_message(0), internal);
}

TEST(FailCodes, ReservedCodeSaysSo)
{
    const std::string_view m = zor::default_message(NE_RESERVED_716);
    EXPECT_TRUE(m.starts_with("NE_RESERVED_716:\n  "));
    EXPECT_NE(m.find("reserved"), m.npos);
}

}  // namespace
