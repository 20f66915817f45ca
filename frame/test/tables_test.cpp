// frame/test/tables_test.cpp — the frame's own message tables through the exits, and the
// table checks themselves: each fault they exist to catch is caught.
#include <gtest/gtest.h>
#include <gtest/gtest-spi.h>

#include "frame/x04_messages.hpp"
#include "table_checks.hpp"

namespace {

// Runs a check and tells whether one of the failures it reported contains the text.
template <class Check>
bool reports(Check&& check, const std::string& text)
{
    testing::TestPartResultArray results;
    {
        testing::ScopedFakeTestPartResultReporter reporter(
            testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &results);
        check();
    }
    for (int i = 0; i < results.size(); ++i)
        if (std::string(results.GetTestPartResult(i).message()).find(text) != std::string::npos)
            return true;
    return false;
}

TEST(X04ACF, RecordsTable) { zor::test::check_f_records("x04acf", zor::frame::x04acf_records); }
TEST(X04ADF, RecordsTable) { zor::test::check_f_records("x04adf", zor::frame::x04adf_records); }

TEST(X04ACFDeathTest, HardFailureStops)
{
    zor::test::check_f_hard_stop("x04acf", zor::frame::x04acf_records);
}

constexpr zor::FRecord c_wording[] = {{1, 1001, {" ** On entry, a = %1.", " ** Constraint: a != b."}}};
constexpr zor::FRecord too_long[] = {{1, 1001, {" ** " "0123456789012345678901234567890123456789"
                                                "0123456789012345678901234567890123456789"}}};
constexpr zor::FRecord no_stars[] = {{1, 1001, {"On entry, a = %1."}}};
constexpr zor::FRecord shared_error[] = {{-99, 1001, {" ** Something."}}};
constexpr zor::FRecord duplicate[] = {{1, 1001, {" ** One."}}, {1, 1001, {" ** Two."}}};
constexpr zor::FRecord bad_placeholder[] = {{1, 1001, {" ** n = %0."}}};

TEST(TableChecks, CatchFaultyFRecords)
{
    EXPECT_TRUE(reports([] { zor::test::check_f_records("x00aaf", c_wording); }, "F records say /="));
    EXPECT_TRUE(reports([] { zor::test::check_f_records("x00aaf", too_long); }, "80u"));
    EXPECT_TRUE(reports([] { zor::test::check_f_records("x00aaf", no_stars); }, "On entry"));
    EXPECT_TRUE(reports([] { zor::test::check_f_records("x00aaf", shared_error); }, "shared error"));
    EXPECT_TRUE(reports([] { zor::test::check_f_records("x00aaf", duplicate); }, "duplicate key"));
    EXPECT_TRUE(reports([] { zor::test::check_f_records("x00aaf", bad_placeholder); }, "placeholders"));
}

constexpr zor::CMessage good_c[] = {
    {1001, NE_REAL_2, "NE_REAL_2:\n  On entry, a = %s and b = %s.\n  Constraint: a != b."},
    {1002, NE_INTERNAL_ERROR, "NE_INTERNAL_ERROR:\n  100%% odd."},
};
constexpr zor::CMessage f_wording[] = {{1001, NE_REAL_2, "NE_REAL_2:\n  Constraint: a /= b."}};
constexpr zor::CMessage wrong_name[] = {{1001, NE_REAL, "NE_REAL_2:\n  a = %s."}};
constexpr zor::CMessage not_indented[] = {{1001, NE_REAL, "NE_REAL:\n  a = %s.\nConstraint."}};
constexpr zor::CMessage printf_format[] = {{1001, NE_REAL, "NE_REAL:\n  a = %g."}};

TEST(TableChecks, AcceptGoodAndCatchFaultyCMessages)
{
    EXPECT_FALSE(reports([] { zor::test::check_c_messages("x00aac", good_c); }, ""));
    EXPECT_TRUE(reports([] { zor::test::check_c_messages("x00aac", f_wording); }, "c messages say !="));
    EXPECT_TRUE(reports([] { zor::test::check_c_messages("x00aac", wrong_name); }, "its code's name"));
    EXPECT_TRUE(reports([] { zor::test::check_c_messages("x00aac", not_indented); }, "two blanks"));
    EXPECT_TRUE(reports([] { zor::test::check_c_messages("x00aac", printf_format); }, "only %s"));
}

}  // namespace
