// frame/test/error_exit_test.cpp — the F interface's error exit: IFAIL on entry under
// both conventions, the exact lines printed, the unexpected-error and allocation
// records, hard stops in child processes, and the splitting of the message buffer.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "frame/frame.hpp"
#include "frame_test_util.hpp"

namespace {

using zor::test::fields;
using zor::test::raw_buffer;
using zor::test::stdout_lines;
using Lines = std::vector<std::string>;

// The records of an imaginary routine x00aaf.
constexpr zor::FRecord x00aaf_records[] = {
    {1, 1001, {" ** On entry, n = %1.", " ** Constraint: n >= 1."}},
    {1, 1002, {" ** On entry, a = %1 and b = %2.", " ** Constraint: a /= b."}},
    {2, 1003, {" ** The third value is %3."}},
    {3, 1004, {" ** Eighty characters and more: %1"}},
};

const std::string abnormal_1 = " ** ABNORMAL EXIT from ZOR Library routine x00aaf: IFAIL =     1";
const std::string soft_line = " ** ZOR soft failure - control returned";
const std::string hard_line = " ** ZOR hard failure - execution terminated";

struct Outcome {
    Zor_Integer ifail;
    Lines lines;
};

Outcome run_exit(Zor_Integer ifail, int error, const char* msgbuf,
                 zor::Convention convention = zor::Convention::current)
{
    Outcome o{ifail, {}};
    o.lines = stdout_lines(
        [&] { zor::f_exit(&o.ifail, error, msgbuf, "x00aaf", x00aaf_records, convention); });
    return o;
}

// A kernel's buffer for error 1, code 1002, a = 2.5, b = 2.5.
std::string kernel_buffer_1002()
{
    char buf[zor::msgbuf_len];
    zor::Message msg(buf);
    EXPECT_EQ(msg.fail(1, 1002, 2.5, 2.5), 1);
    return std::string(buf, sizeof buf);
}

const Lines printed_1002 = {" ** On entry, a = 2.5 and b = 2.5.", " ** Constraint: a /= b.",
                            abnormal_1, soft_line};

TEST(P01ABZU, IfailOnEntrySelectsPrintingAndStoresTheError)
{
    struct Case { Zor_Integer ifail; bool printed; const char* why; };
    const Case cases[] = {
        {-1, true, "-1: soft, printed"},
        {1, false, "1: soft, quiet"},
        {5, false, "any other value: soft, quiet"},
        {-5, false, "a negative value other than -1 is quiet"},
        {INT_MAX, false, "the largest integer is quiet"},
        {INT_MIN, false, "the smallest integer is quiet"},
    };
    const std::string buf = kernel_buffer_1002();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        const Outcome o = run_exit(c.ifail, 1, buf.c_str());
        EXPECT_EQ(o.ifail, 1);
        EXPECT_EQ(o.lines, c.printed ? printed_1002 : Lines{});
    }
}

TEST(P01ABZU, ErrorZeroPrintsNothingWhateverIfail)
{
    const std::string buf = kernel_buffer_1002();   // ignored on success
    for (Zor_Integer ifail : {0, -1, 1, 5, -99}) {
        SCOPED_TRACE(ifail);
        const Outcome o = run_exit(ifail, 0, buf.c_str());
        EXPECT_EQ(o.ifail, 0);
        EXPECT_TRUE(o.lines.empty());
    }
}

// A successful call parses nothing: the exits never look at the buffer on success.
TEST(FExit, SuccessNeverReadsTheBuffer)
{
    Zor_Integer ifail = -1;
    zor::f_exit(&ifail, 0, nullptr, "x00aaf", x00aaf_records);
    EXPECT_EQ(ifail, 0);
    Zor_Fail fail{};
    zor::c_exit(&fail, 0, nullptr, "x00aac", {});
    EXPECT_EQ(fail.code, 0);
    zor::c_exit(&fail, -999, nullptr, "x00aac", {});
    EXPECT_EQ(fail.code, NE_ALLOC_FAIL);
    ifail = 1;
    zor::f_exit(&ifail, -999, nullptr, "x00aaf", x00aaf_records);
    EXPECT_EQ(ifail, -999);
}

// The older digit convention: a = tens digit, b = units digit of |IFAIL|.
TEST(P01ABYU, DigitConventionSoftCases)
{
    struct Case { Zor_Integer ifail; bool printed; };
    const Case cases[] = {
        {11, true}, {-11, true}, {1, false}, {-1, false}, {21, true}, {111, true},
        {101, false}, {5, false}, {99, true}, {-91, true},
    };
    const std::string buf = kernel_buffer_1002();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.ifail);
        const Outcome o = run_exit(c.ifail, 1, buf.c_str(), zor::Convention::digits);
        EXPECT_EQ(o.ifail, 1);
        EXPECT_EQ(o.lines, c.printed ? printed_1002 : Lines{});
    }
}

TEST(P01ABYU, DigitConventionErrorZeroPrintsNothing)
{
    for (Zor_Integer ifail : {0, 10, 11, 1}) {
        const Outcome o = run_exit(ifail, 0, "", zor::Convention::digits);
        EXPECT_EQ(o.ifail, 0);
        EXPECT_TRUE(o.lines.empty());
    }
}

TEST(P01ABZU, RecordsArePaddedTo80AndPrintedTrimmed)
{
    // Records passed straight to the exit, blank-padded as a Fortran caller has them.
    char records[2][80];
    std::memset(records, ' ', sizeof records);
    std::memcpy(records[0], " ** First.", 10);
    std::memcpy(records[1], " ** Second, then blanks", 23);
    Zor_Integer ifail = -1, error = 7, nrec = 2;
    const Lines got = stdout_lines(
        [&] { P01ABZU(&ifail, &error, "x00abf", &nrec, records[0], 6, 80); });
    EXPECT_EQ(got, (Lines{" ** First.", " ** Second, then blanks",
                          " ** ABNORMAL EXIT from ZOR Library routine x00abf: IFAIL =     7",
                          soft_line}));
    EXPECT_EQ(ifail, 7);
}

TEST(P01ABZU, AbnormalExitLineRightJustifiesIfailInSixColumns)
{
    struct Case { Zor_Integer error; const char* tail; };
    const Case cases[] = {
        {1, "IFAIL =     1"}, {-99, "IFAIL =   -99"}, {-999, "IFAIL =  -999"},
        {123456, "IFAIL =123456"}, {-123456, "IFAIL =-123456"},
    };
    for (const Case& c : cases) {
        Zor_Integer ifail = -1, nrec = 0;
        const Lines got = stdout_lines(
            [&] { P01ABZU(&ifail, &c.error, "c05ayf", &nrec, nullptr, 6, 80); });
        ASSERT_EQ(got.size(), 2u);
        EXPECT_EQ(got[0], std::string(" ** ABNORMAL EXIT from ZOR Library routine c05ayf: ") + c.tail);
        EXPECT_EQ(ifail, c.error);
    }
}

TEST(FExit, WordsTheRecordsOfTheDocumentedPair)
{
    char buf[zor::msgbuf_len];
    zor::Message msg(buf);
    msg.fail(1, 1001, -3);
    const Outcome o = run_exit(-1, 1, buf);
    EXPECT_EQ(o.lines, (Lines{" ** On entry, n = -3.", " ** Constraint: n >= 1.", abnormal_1,
                              soft_line}));
}

TEST(FExit, ValueTextsAreInsertedWithoutTrailingBlanks)
{
    // A buffer written by hand, values padded with blanks as a Fortran kernel may leave them.
    const auto buf = raw_buffer(fields({"1", "1002", "2", "  0.5   ", "7.25    "}));
    const Outcome o = run_exit(-1, 1, buf.data());
    ASSERT_GE(o.lines.size(), 1u);
    EXPECT_EQ(o.lines[0], " ** On entry, a = 0.5 and b = 7.25.");
}

TEST(FExit, WordedRecordIsCutAt80Characters)
{
    char buf[zor::msgbuf_len];
    zor::Message msg(buf);
    msg.fail(3, 1004, std::string(79, 'x').c_str());
    const Outcome o = run_exit(-1, 3, buf);
    ASSERT_EQ(o.lines.size(), 3u);
    EXPECT_EQ(o.lines[0].size(), 80u);
    EXPECT_EQ(o.lines[0], (" ** Eighty characters and more: " + std::string(48, 'x')));
    EXPECT_EQ(o.ifail, 3);
}

// Every path to -99, and the exact unexpected-error line with %5d fields.
TEST(FExit, UndocumentedOrMalformedOutcomesBecomeMinus99)
{
    struct Case { int error; std::string buffer; const char* line; const char* why; };
    char ok[zor::msgbuf_len];
    zor::Message(ok).fail(1, 1001, 4);
    const Case cases[] = {
        {2, fields({"2", "1001", "1", "4"}), " ** Unexpected error (    2, 1001)",
         "an undocumented pair"},
        {1, fields({"1", "1009", "0"}), " ** Unexpected error (    1, 1009)", "an unknown code"},
        {2, fields({"2", "1003", "2", "a", "b"}), " ** Unexpected error (    2, 1003)",
         "a record names a third value that the buffer does not carry"},
        {1, fields({"1", "1001", "2", "4"}), " ** Unexpected error (    1, 1001)",
         "the count disagrees with the fields: the code read is kept"},
        {1, "1\x01" "1001\x01" "1\x01" "4\x01", " ** Unexpected error (    1,    0)",
         "no leading separator"},
        {1, fields({"1", "x1001", "1", "4"}), " ** Unexpected error (    1,    0)",
         "a code that is not an integer"},
        {-98, fields({"-98", "1001", "1", "4"}), " ** Unexpected error (  -98, 1001)",
         "the guard's error number"},
        {77777, fields({"77777", "1001", "1", "4"}), " ** Unexpected error (77777, 1001)",
         "a five-digit error fills its field"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        const auto buf = raw_buffer(c.buffer);
        const Outcome o = run_exit(-1, c.error, buf.data());
        EXPECT_EQ(o.ifail, -99);
        EXPECT_EQ(o.lines, (Lines{c.line,
                                  " ** ABNORMAL EXIT from ZOR Library routine x00aaf: IFAIL =   -99",
                                  soft_line}));
    }
    // A well-formed buffer whose field 1 disagrees with the kernel's error number is not
    // this error's buffer.
    const Outcome o = run_exit(1, 2, ok);
    EXPECT_EQ(o.ifail, -99);
}

TEST(FExit, AllocationFailureHasItsOwnRecord)
{
    const auto buf = raw_buffer("garbage");
    const Outcome o = run_exit(-1, -999, buf.data());
    EXPECT_EQ(o.ifail, -999);
    EXPECT_EQ(o.lines, (Lines{" ** Dynamic memory allocation failed.",
                              " ** ABNORMAL EXIT from ZOR Library routine x00aaf: IFAIL =  -999",
                              soft_line}));
}

TEST(FExit, QuietFailureStillSetsIfail)
{
    const auto buf = raw_buffer("garbage");
    EXPECT_EQ(run_exit(1, -999, buf.data()).ifail, -999);
    EXPECT_EQ(run_exit(1, 1, buf.data()).ifail, -99);
    EXPECT_TRUE(run_exit(1, 1, buf.data()).lines.empty());
}

TEST(Guarded, ExceptionsBecomeErrorNumbers)
{
    EXPECT_EQ(zor::guarded([]() -> int { throw std::bad_alloc(); }), -999);
    EXPECT_EQ(zor::guarded([]() -> int { throw std::runtime_error("x"); }), zor::unexpected_error);
    EXPECT_EQ(zor::guarded([]() -> int { throw 42; }), zor::unexpected_error);
    EXPECT_EQ(zor::guarded([] { return 3; }), 3);
    // The guard's number is documented by no routine, so the exit reports -99.
    char buf[zor::msgbuf_len];
    zor::Message(buf).clear();
    EXPECT_EQ(run_exit(1, zor::unexpected_error, buf).ifail, -99);
}

// ---------------------------------------------------------------------------------
// Message buffer written by kernels.

TEST(Message, ValueTextsNeverBreakTheLayout)
{
    char buf[zor::msgbuf_len];
    zor::Message msg(buf);
    msg.fail(1, 1002, "a\x01" "b", std::string_view("c\0d", 3));
    Zor_Integer code = 0, status = 0;
    char f[12][80];
    P01ABTN(buf, &code, f, &status);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(code, 1002);
    EXPECT_EQ(std::string(f[3], 3), "a?b");
    EXPECT_EQ(std::string(f[4], 3), "c?d");
}

TEST(Message, RealsReadBackExactly)
{
    struct Case { double v; const char* text; };
    const Case cases[] = {
        {1.0, "1.0"}, {-0.0, "-0.0"}, {0.1, "0.1"}, {1e-8, "1e-08"}, {2.5e300, "2.5e+300"},
        {NAN, "nan"}, {INFINITY, "inf"}, {-INFINITY, "-inf"}, {0x1p-1074, "5e-324"},
        {1.7976931348623157e308, "1.7976931348623157e+308"},
    };
    for (const Case& c : cases) {
        const zor::ValueText t = zor::value_text(c.v);
        EXPECT_EQ(std::string(t.text, t.len), c.text);
    }
    const zor::ValueText i = zor::value_text(static_cast<long long>(INT_MIN));
    EXPECT_EQ(std::string(i.text, i.len), "-2147483648");
}

TEST(Message, FieldsThatDoNotFitAreDroppedWhole)
{
    // Three 80-character values cannot fit in 200 characters: the third is dropped, so
    // the count disagrees and the exit reports an unexpected error, not a cut value.
    const std::string v(80, 'v');
    char buf[zor::msgbuf_len];
    zor::Message(buf).fail(1, 1002, v.c_str(), v.c_str(), v.c_str());
    Zor_Integer code = 0, status = 0;
    char f[12][80];
    P01ABTN(buf, &code, f, &status);
    EXPECT_EQ(status, -1001);
    EXPECT_EQ(code, 1002);
    EXPECT_EQ(run_exit(1, 1, buf).ifail, -99);
}

// ---------------------------------------------------------------------------------
// P01ABTN: every kind of malformed buffer gets its status, within the 200 characters.

struct Split {
    Zor_Integer code, status;
    std::vector<std::string> fields;   // trimmed, as many as were non-blank or in range
};

Split split(const char* buf)
{
    Split s{-7, -7, {}};
    char f[12][80];
    std::memset(f, '#', sizeof f);
    P01ABTN(buf, &s.code, f, &s.status);
    for (auto& field : f) {
        std::size_t n = 80;
        while (n > 0 && field[n - 1] == ' ') --n;
        s.fields.emplace_back(field, n);
    }
    return s;
}

TEST(P01ABTN, SplitsAWellFormedBuffer)
{
    const auto buf = raw_buffer(fields({" 1", "1002", "2", "   2.5", "x y"}));
    const Split s = split(buf.data());
    EXPECT_EQ(s.status, 0);
    EXPECT_EQ(s.code, 1002);
    EXPECT_EQ(s.fields[0], "1");
    EXPECT_EQ(s.fields[3], "2.5");   // left-justified
    EXPECT_EQ(s.fields[4], "x y");
    for (int i = 5; i < 12; ++i) EXPECT_EQ(s.fields[i], "") << "field " << i << " blank";
}

TEST(P01ABTN, MalformedBuffersGetTheirStatus)
{
    struct Case { std::string bytes; Zor_Integer status, code; const char* why; };
    const std::string sep(1, zor::field_sep);
    std::string nul_inside = fields({"1", "1001", "1", "4"});
    nul_inside.insert(3, 1, '\0');   // "1" "\0" inside field 2's neighbourhood
    std::string trailing_nuls = fields({"1", "1001", "1", "4"}) + std::string(20, '\0');
    const Case cases[] = {
        {"1" + sep + "1001" + sep + "0" + sep, -1000, 0, "no leading separator"},
        {sep + "1" + sep + "1001" + sep + "0", -1000, 0, "no trailing separator"},
        {"", -1000, 0, "all blanks"},
        {sep, -1000, 0, "only one separator"},
        {sep + sep, -1000, 0, "one empty field: fewer than 3 fields"},
        {fields({"1", "1001"}), -1000, 0, "two fields"},
        {fields({"1.5", "1001", "0"}), -1000, 0, "error number not an integer"},
        {fields({"1", "10x1", "0"}), -1000, 0, "code not an integer"},
        {fields({"1", "1001", "n"}), -1000, 1001, "count not an integer: code read"},
        {fields({"1", "1001", ""}), -1000, 1001, "empty count"},
        {fields({"1", "99999999999", "0"}), -1000, 0, "code outside 32 bits"},
        {fields({"1", "1001", "1"}), -1001, 1001, "count 1, no value"},
        {fields({"1", "1001", "-1"}), -1001, 1001, "negative count"},
        {fields({"1", "1001", "0", "extra"}), -1001, 1001, "more fields than counted"},
        {fields({"1", "1001", "10", "a", "b", "c", "d", "e", "f", "g", "h", "i", "j"}), -1001,
         1001, "13 fields: only 12 are kept"},
        {fields({"1", "1001", "9", "a", "b", "c", "d", "e", "f", "g", "h", "i"}), 0, 1001,
         "exactly 12 fields"},
        {nul_inside, -1000, 0, "an embedded NUL spoils an integer field"},
        {trailing_nuls, 0, 1001, "trailing NULs are trimmed like blanks"},
        {fields({"+1", "-1001", "0"}), 0, -1001, "signs are accepted"},
        {fields({"1", "1001", "0"}) + "   " + sep, -1001, 1001, "a blank field after the last"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        const auto buf = raw_buffer(c.bytes);
        const Split s = split(buf.data());
        EXPECT_EQ(s.status, c.status);
        EXPECT_EQ(s.code, c.code);
    }
}

TEST(P01ABTN, OverlongFieldsAreCutAt80)
{
    // 150 characters in one value field: the field table keeps 80, nothing overflows.
    const std::string longv(150, 'z');
    const auto buf = raw_buffer(fields({"1", "1001", "1", longv}));
    const Split s = split(buf.data());
    EXPECT_EQ(s.status, 0);
    EXPECT_EQ(s.fields[3], std::string(80, 'z'));
}

TEST(P01ABTN, FieldIsCutToItsSlotBeforeItIsLeftJustified)
{
    const auto buf = raw_buffer(fields({"1", "1001", "1", "  " + std::string(78, 'a') + "bcd"}));
    const Split s = split(buf.data());
    EXPECT_EQ(s.status, 0);
    EXPECT_EQ(s.fields[3], std::string(78, 'a'));
}

TEST(P01ABTN, IntegersWithLeadingZerosAreRead)
{
    const auto buf = raw_buffer(fields({"000000000001", "0000000001001", "-00", " 0 "}));
    const Split s = split(buf.data());
    EXPECT_EQ(s.code, 1001);
    EXPECT_EQ(s.status, -1001) << "count 0 read, one value present";
}

TEST(P01ABTN, AFullBufferWithoutBlanksIsReadToItsEnd)
{
    // 200 significant characters, the last the separator: the trimmed length is 200.
    std::string b = fields({"1", "1001", "1"});
    b += std::string(zor::msgbuf_len - b.size() - 1, 'q');
    b += zor::field_sep;
    ASSERT_EQ(b.size(), zor::msgbuf_len);
    const Split s = split(b.data());
    EXPECT_EQ(s.status, 0);
    EXPECT_EQ(s.fields[3], std::string(80, 'q'));
}

// Both exits turn every malformed buffer into their defined unexpected-error report.
TEST(P01ABTN, MalformedBuffersEndInTheDefinedExits)
{
    const std::string sep(1, zor::field_sep);
    const std::string bad[] = {"", sep, "1" + sep, sep + "1" + sep + "1001" + sep,
                               fields({"1", "1001", "3", "a"}), std::string(200, '\0'),
                               std::string(200, zor::field_sep)};
    constexpr zor::CMessage msgs[] = {{1001, NE_INT, "NE_INT:\n  n = %s."}};
    for (const std::string& b : bad) {
        const auto buf = raw_buffer(b);
        EXPECT_EQ(run_exit(1, 1, buf.data()).ifail, -99);
        Zor_Fail fail{};
        zor::c_exit(&fail, 1, buf.data(), "x00aac", msgs);
        EXPECT_EQ(fail.code, NE_INTERNAL_ERROR);
        EXPECT_EQ(fail.errnum, 1);
    }
}

// ---------------------------------------------------------------------------------
// Hard failures end the process: status zor::hard_stop_status, after printing.

void hard_failure_on_stderr(Zor_Integer ifail, zor::Convention convention)
{
    zor::test::set_error_unit(0);
    const std::string buf = kernel_buffer_1002();
    zor::f_exit(&ifail, 1, buf.c_str(), "x00aaf", x00aaf_records, convention);
    std::fprintf(stderr, "returned to the caller\n");
    std::exit(99);
}

TEST(FExitDeathTest, IfailZeroPrintsThenStops)
{
    EXPECT_EXIT(hard_failure_on_stderr(0, zor::Convention::current),
                testing::ExitedWithCode(zor::hard_stop_status),
                "^ \\*\\* On entry, a = 2\\.5 and b = 2\\.5\\.\n"
                " \\*\\* Constraint: a /= b\\.\n"
                " \\*\\* ABNORMAL EXIT from ZOR Library routine x00aaf: IFAIL =     1\n"
                " \\*\\* ZOR hard failure - execution terminated\n$");
}

TEST(FExitDeathTest, DigitConventionZeroAndTenStop)
{
    for (Zor_Integer ifail : {0, 10, -10, 110}) {
        SCOPED_TRACE(ifail);
        EXPECT_EXIT(hard_failure_on_stderr(ifail, zor::Convention::digits),
                    testing::ExitedWithCode(zor::hard_stop_status),
                    "IFAIL =     1\n \\*\\* ZOR hard failure - execution terminated\n$");
    }
}

// C stdio, fully buffered and never flushed by the caller, then a hard stop.
void c_output_then_stop(const std::string& path)
{
    std::FILE* f = std::fopen(path.c_str(), "w");
    std::setvbuf(f, nullptr, _IOFBF, 1 << 16);
    std::fputs("written by C before the stop\n", f);
    Zor_Integer ifail = 0;
    zor::f_exit(&ifail, -999, "", "x00aaf", x00aaf_records);
}

std::string first_line(const std::string& path)
{
    std::ifstream in(path);
    std::string line;
    std::getline(in, line);
    return line;
}

TEST(FExitDeathTest, OutputWrittenBeforeTheStopIsFlushed)
{
    const std::string path = testing::TempDir() + "zor_flush_before_stop.txt";
    std::remove(path.c_str());
    EXPECT_EXIT(c_output_then_stop(path), testing::ExitedWithCode(zor::hard_stop_status), "");
    EXPECT_EQ(first_line(path), "written by C before the stop");
    std::remove(path.c_str());
}

extern "C" void zor_test_fortran_write(Zor_Integer unit, const char* text, Zor_Integer n);

// A WRITE of the program's own to a file unit, left in the Fortran runtime's buffer.
void fortran_output_then_stop(const std::string& path)
{
    const Zor_Integer unit = 57;
    const Zor_Integer mode = 1;
    Zor_Integer ifail = 0;
    X04ACF(&unit, path.c_str(), &mode, &ifail, path.size());
    if (ifail != 0) std::exit(98);
    zor_test_fortran_write(unit, "written by Fortran before the stop", 34);
    ifail = 0;
    zor::f_exit(&ifail, -999, "", "x00aaf", x00aaf_records);
}

TEST(FExitDeathTest, FortranUnitsAreFlushedBeforeTheStop)
{
    const std::string path = testing::TempDir() + "zor_fortran_flush_before_stop.txt";
    std::remove(path.c_str());
    EXPECT_EXIT(fortran_output_then_stop(path), testing::ExitedWithCode(zor::hard_stop_status), "");
    EXPECT_EQ(first_line(path), "written by Fortran before the stop");
    std::remove(path.c_str());
}

}  // namespace
