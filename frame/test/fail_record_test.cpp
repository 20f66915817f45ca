// frame/test/fail_record_test.cpp — the c interface's fail record: what is stored,
// printed and handed to the handler, the error/warning rule, the record-less exit, and
// the c exit's mapping of a kernel's outcome onto a message table.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "frame/frame.hpp"
#include "frame_test_util.hpp"
#include "tests/portable.hpp"

namespace {

using zor::test::fields;
using zor::test::raw_buffer;
using zor::test::stderr_text;

struct HandlerCall {
    std::string message;
    int code;
    std::string routine;
};
std::vector<HandlerCall> handler_calls;

void record_handler(const char* message, int code, const char* routine)
{
    handler_calls.push_back({message, code, routine});
}

Zor_Fail make_record(bool print, bool handler)
{
    Zor_Fail f{};
    f.code = -12345;
    f.errnum = -12345;
    f.print = print ? Zor_TRUE : Zor_FALSE;
    f.handler = handler ? record_handler : nullptr;
    std::strcpy(f.message, "stale");
    handler_calls.clear();
    return f;
}

TEST(CReport, PrintFalseStoresWithoutPrinting)
{
    Zor_Fail f = make_record(false, false);
    const std::string err = stderr_text(
        [&] { zor::c_report("NE_INT:\n  On entry, n = 0.", NE_INT, "x00aac", &f); });
    EXPECT_EQ(err, "");
    EXPECT_EQ(f.code, NE_INT);
    EXPECT_STREQ(f.message, "NE_INT:\n  On entry, n = 0.");
}

TEST(CReport, PrintTrueWritesOneErrorTextAndContinues)
{
    Zor_Fail f = make_record(true, false);
    const std::string err = stderr_text(
        [&] { zor::c_report("NE_INT:\n  On entry, n = 0.", NE_INT, "x00aac", &f); });
    EXPECT_EQ(err, "Error detected by ZOR routine x00aac:\nNE_INT:\n  On entry, n = 0.\n");
    EXPECT_EQ(f.code, NE_INT);
    EXPECT_STREQ(f.message, "NE_INT:\n  On entry, n = 0.");
}

TEST(CReport, WarningCodesPrintAWarning)
{
    Zor_Fail f = make_record(true, false);
    const std::string err = stderr_text(
        [&] { zor::c_report("NW_INT:\n  Something to note.", NW_INT, "x00aac", &f); });
    EXPECT_EQ(err, "Warning from ZOR routine x00aac:\nNW_INT:\n  Something to note.\n");
    EXPECT_EQ(f.code, NW_INT);
}

// The kind is the letter after the first N among the first five characters, or the
// sixth character when there is no N there; E means error, anything else warning.
TEST(CReport, ErrorOrWarningByTheNSearchRule)
{
    struct Case { const char* message; bool error; };
    const Case cases[] = {
        {"NE_X:", true}, {"NW_X:", false}, {"xNE", true}, {"xxxxNE", true},
        {"xxxxxNE", false},   // N only at the sixth position: the sixth character is N
        {"xxxxxE", true},     // no N: the sixth character decides
        {"xxxxxW", false}, {"NNE", false}, {"", false}, {"N", false}, {"abc", false},
        {"ne_lower", false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.message);
        Zor_Fail f = make_record(true, false);
        const std::string err = stderr_text([&] { zor::c_report(c.message, 3, "x00aac", &f); });
        const std::string head = c.error ? "Error detected" : "Warning from";
        EXPECT_EQ(err.substr(0, head.size()), head);
    }
}

TEST(CReport, HandlerCalledOnFailureAndOnSuccess)
{
    Zor_Fail f = make_record(false, true);
    zor::c_report("NE_INT:\n  n = 0.", NE_INT, "x00aac", &f);
    zor::c_report(nullptr, NE_NOERROR, "x00aac", &f);
    ASSERT_EQ(handler_calls.size(), 2u);
    EXPECT_EQ(handler_calls[0].message, "NE_INT:\n  n = 0.");
    EXPECT_EQ(handler_calls[0].code, NE_INT);
    EXPECT_EQ(handler_calls[0].routine, "x00aac");
    EXPECT_EQ(handler_calls[1].message, "NE_NOERROR:\n  No error.");
    EXPECT_EQ(handler_calls[1].code, 0);
    EXPECT_EQ(f.code, 0);
    EXPECT_STREQ(f.message, "NE_NOERROR:\n  No error.");
}

TEST(CReport, SuccessIsNeverPrinted)
{
    Zor_Fail f = make_record(true, false);
    EXPECT_EQ(stderr_text([&] { zor::c_report(nullptr, 0, "x00aac", &f); }), "");
    EXPECT_EQ(stderr_text([&] { zor::c_report(nullptr, 0, "x00aac", nullptr); }), "");
}

TEST(CReport, NullMessageTakesTheDefault)
{
    Zor_Fail f = make_record(false, false);
    zor::c_report(nullptr, NE_INTERNAL_ERROR, "x00aac", &f);
    EXPECT_STREQ(f.message,
                 "NE_INTERNAL_ERROR:\n  An internal error has occurred in this function.\n"
                 "  Check the function call and any array sizes. If the call is correct\n"
                 "  then please consult ZOR for assistance.");
}

TEST(CReport, MessageIsCutAt511Characters)
{
    std::string m = "NE_INT:\n  ";
    while (m.size() < 700) m += "0123456789";
    Zor_Fail f = make_record(false, true);
    zor::c_report(m.c_str(), NE_INT, "x00aac", &f);
    EXPECT_EQ(std::strlen(f.message), 511u);
    EXPECT_EQ(std::string(f.message), m.substr(0, 511));
    ASSERT_EQ(handler_calls.size(), 1u);
    EXPECT_EQ(handler_calls[0].message, m);   // the handler sees the whole message
}

TEST(CReport, DefaultMessagesOfTheFixedCodes)
{
    EXPECT_STREQ(zor::default_message(0), "NE_NOERROR:\n  No error.");
    EXPECT_STREQ(zor::default_message(1),
                 "NE_CODE_NOT_SET:\n  Error code has not been set by the last function called.");
    EXPECT_STREQ(zor::default_message(3), "NE_TOO_MANY:\n  Too many iterations (%d).");
    EXPECT_STREQ(zor::default_message(70),
                 "NE_BAD_PARAM:\n  On entry, parameter %s had an illegal value.");
    EXPECT_STREQ(zor::default_message(73), "NE_ALLOC_FAIL:\n  Memory allocation failed.");
    EXPECT_STREQ(zor::default_message(100), "NE_REAL:\n  On entry, %s = %g.\n  Constraint: %s.");
    // Outside the table: the internal error's text.
    EXPECT_STREQ(zor::default_message(-1), zor::default_message(NE_INTERNAL_ERROR));
    EXPECT_STREQ(zor::default_message(ZOR_ERROR_CODE_COUNT),
                 zor::default_message(NE_INTERNAL_ERROR));
}

TEST(CBegin, ClearsCodeAndErrnumOnly)
{
    Zor_Fail f = make_record(true, true);
    zor::c_begin(&f);
    EXPECT_EQ(f.code, 0);
    EXPECT_EQ(f.errnum, 0);
    EXPECT_EQ(f.print, Zor_TRUE);
    EXPECT_EQ(f.handler, record_handler);
    zor::c_begin(nullptr);   // no record: nothing to do
}

TEST(CBadParam, ReportsCode70WithTheArgumentName)
{
    Zor_Fail f = make_record(false, false);
    EXPECT_EQ(zor::c_bad_param(&f, "x00aac", "x"), NE_BAD_PARAM);
    EXPECT_EQ(f.code, NE_BAD_PARAM);
    EXPECT_STREQ(f.message, "NE_BAD_PARAM:\n  On entry, parameter x had an illegal value.");
}

// ---------------------------------------------------------------------------------
// c_exit: a kernel's outcome through a routine's table.

constexpr zor::CMessage x00aac_messages[] = {
    {1001, NE_REAL, "NE_REAL:\n  On entry, eps = %s.\n  Constraint: eps > 0.0."},
    {1002, NE_REAL_2, "NE_REAL_2:\n  On entry, a = %s and b = %s.\n  Constraint: a != b."},
    {1003, NW_INT, "NW_INT:\n  %s%% done."},
};

TEST(CExit, MapsEachOutcome)
{
    struct Case { int error; std::string buffer; int code; int errnum; const char* message; };
    char k1002[zor::msgbuf_len];
    zor::Message(k1002).fail(1, 1002, 2.5, -0.0);
    const Case cases[] = {
        {0, "", 0, 0, "NE_NOERROR:\n  No error."},
        {1, std::string(k1002, sizeof k1002), NE_REAL_2, 1,
         "NE_REAL_2:\n  On entry, a = 2.5 and b = -0.0.\n  Constraint: a != b."},
        {1, fields({"1", "1001", "1", "  1e-300   "}), NE_REAL, 1,
         "NE_REAL:\n  On entry, eps = 1e-300.\n  Constraint: eps > 0.0."},
        {4, fields({"4", "1003", "1", "50"}), NW_INT, 4, "NW_INT:\n  50% done."},
        {1, fields({"1", "1009", "0"}), NE_INTERNAL_ERROR, 1, nullptr},     // unknown code
        {1, fields({"1", "1002", "1", "2.5"}), NE_INTERNAL_ERROR, 1, nullptr},  // one value short
        {2, fields({"2", "1001", "2", "a"}), NE_INTERNAL_ERROR, 2, nullptr},   // count mismatch
        {-999, "", NE_ALLOC_FAIL, -999, "NE_ALLOC_FAIL:\n  Dynamic memory allocation failed."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.buffer);
        const auto buf = raw_buffer(c.buffer);
        Zor_Fail f = make_record(false, true);
        zor::c_begin(&f);
        zor::c_exit(&f, c.error, buf.data(), "x00aac", x00aac_messages);
        EXPECT_EQ(f.code, c.code);
        EXPECT_EQ(f.errnum, c.errnum);
        const char* want = c.message ? c.message : zor::default_message(NE_INTERNAL_ERROR);
        EXPECT_STREQ(f.message, want);
        ASSERT_EQ(handler_calls.size(), 1u);
        EXPECT_EQ(handler_calls[0].routine, "x00aac");
    }
}

TEST(CExit, NoRecordAndSuccessIsSilent)
{
    EXPECT_EQ(stderr_text([] { zor::c_exit(nullptr, 0, "", "x00aac", x00aac_messages); }), "");
}

TEST(CExit, LongFormattedMessageIsCutAt511)
{
    // A long format and a long value: the message is cut, never overrun.
    static const std::string format = "NE_INT:\n  " + std::string(480, 'f') + " %s";
    const zor::CMessage table[] = {{1001, NE_INT, format.c_str()}};
    const std::string v(60, 'v');
    const auto buf = raw_buffer(fields({"1", "1001", "1", v}));
    Zor_Fail f = make_record(false, false);
    zor::c_exit(&f, 1, buf.data(), "x00aac", table);
    EXPECT_EQ(f.code, NE_INT);
    EXPECT_EQ(std::string(f.message), (format.substr(0, format.size() - 2) + v).substr(0, 511));
}

// ---------------------------------------------------------------------------------
// No record: a failure prints and ends the process with status 1.

TEST(CReportDeathTest, NoRecordFailurePrintsAndEndsWithStatusOne)
{
    EXPECT_EXIT(zor::c_report("NE_INT:\n  On entry, n = 0.", NE_INT, "x00aac", nullptr),
                testing::ExitedWithCode(1),
                "^Error detected by ZOR routine x00aac:\nNE_INT:\n  On entry, n = 0\\.\n"
                "\\.\\.\\.ZOR Function Terminated\n$");
}

TEST(CReportDeathTest, NoRecordWarningAlsoEndsTheProcess)
{
    EXPECT_EXIT(zor::c_report("NW_INT:\n  Note.", NW_INT, "x00aac", nullptr),
                testing::ExitedWithCode(1),
                "^Warning from ZOR routine x00aac:\nNW_INT:\n  Note\\.\n"
                "\\.\\.\\.ZOR Function Terminated\n$");
}

// Standard output and standard error in one file: the caller's buffered line first.
void printf_then_fail(const std::string& path)
{
    if (!zor::test::redirect_stdout_and_stderr(path)) std::exit(2);
    std::printf("the caller's line\n");
    zor::c_report("NE_INT:\n  n = 0.", NE_INT, "x00aac", nullptr);
}

TEST(CReportDeathTest, MessageFollowsTheCallersOwnOutput)
{
    const std::string path = testing::TempDir() + "zor_c_report_order.txt";
    EXPECT_EXIT(printf_then_fail(path), testing::ExitedWithCode(1), "");
    std::ifstream in(path);
    std::stringstream got;
    got << in.rdbuf();
    EXPECT_EQ(got.str(), "the caller's line\nError detected by ZOR routine x00aac:\nNE_INT:\n"
                         "  n = 0.\n...ZOR Function Terminated\n");
    std::remove(path.c_str());
}

TEST(CExitDeathTest, NoRecordKernelFailureEndsWithStatusOne)
{
    const auto buf = raw_buffer(fields({"1", "1001", "1", "0.0"}));
    EXPECT_EXIT(zor::c_exit(nullptr, 1, buf.data(), "x00aac", x00aac_messages),
                testing::ExitedWithCode(1),
                "On entry, eps = 0\\.0\\.\n  Constraint: eps > 0\\.0\\.\n"
                "\\.\\.\\.ZOR Function Terminated\n$");
}

}  // namespace
