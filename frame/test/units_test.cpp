// frame/test/units_test.cpp — the error and advisory units, the record writer, files on
// units (X04ACF, X04ADF), the identification printout and the argument trace.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "frame/frame.hpp"
#include "frame_test_util.hpp"
#include "tests/portable.hpp"
#include "zor.h"

namespace {

using zor::test::stdout_lines;
using zor::test::UnitGuard;
using Lines = std::vector<std::string>;

Zor_Integer get_error_unit()
{
    const Zor_Integer get = 0;
    Zor_Integer n = -12345;
    X04AAF(&get, &n);
    return n;
}

Zor_Integer get_advisory_unit()
{
    const Zor_Integer get = 0;
    Zor_Integer n = -12345;
    X04ABF(&get, &n);
    return n;
}

TEST(X04AAF, BothUnitsStartAtSix)
{
    EXPECT_EQ(get_error_unit(), 6);
    EXPECT_EQ(get_advisory_unit(), 6);
}

TEST(X04AAF, GetAfterSetAndOtherFlagsChangeNothing)
{
    UnitGuard guard;
    struct Case { Zor_Integer iflag, nerr_in, nerr_out, unit_after; };
    const Case cases[] = {
        {1, 17, 17, 17},   // set
        {0, -5, 17, 17},   // get overwrites NERR
        {2, 99, 99, 17},   // any other flag: nothing happens, NERR unchanged
        {-1, 98, 98, 17},
        {1, -1, -1, -1},   // a negative unit can be set (it silences printing)
        {1, 0, 0, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.iflag);
        Zor_Integer nerr = c.nerr_in;
        X04AAF(&c.iflag, &nerr);
        EXPECT_EQ(nerr, c.nerr_out);
        EXPECT_EQ(get_error_unit(), c.unit_after);
    }
}

TEST(X04ABF, AdvisoryUnitIsSeparateFromTheErrorUnit)
{
    UnitGuard guard;
    zor::test::set_advisory_unit(21);
    EXPECT_EQ(get_advisory_unit(), 21);
    EXPECT_EQ(get_error_unit(), 6);
    zor::test::set_error_unit(22);
    EXPECT_EQ(get_advisory_unit(), 21);
    Zor_Integer n = 5;
    const Zor_Integer other = 2;
    X04ABF(&other, &n);
    EXPECT_EQ(n, 5);
    EXPECT_EQ(get_advisory_unit(), 21);
}

TEST(X04AAF, ContextRecordTakesTheUnitsAtTheTimeOfTheCall)
{
    UnitGuard guard;
    zor::test::set_error_unit(31);
    zor::test::set_advisory_unit(32);
    Zor_Context ctx;
    Y90HAAN(&ctx);
    EXPECT_EQ(ctx.nerr, 31);
    EXPECT_EQ(ctx.nadv, 32);
    EXPECT_EQ(ctx.first, 1);
    EXPECT_EQ(ctx.stop, 0);
    EXPECT_EQ(ctx.count, 0);
}

void x04baf(Zor_Integer unit, std::string_view rec)
{
    X04BAF(&unit, rec.data(), rec.size());
}

TEST(X04BAF, RecordsOnStandardOutput)
{
    const Lines got = stdout_lines([] {
        std::printf("from C before\n");   // buffered by C stdio, not yet flushed
        x04baf(6, "first record      ");
        x04baf(6, "        ");            // all blanks: an empty line
        x04baf(6, "");                    // empty: an empty line
        x04baf(6, "  leading blanks kept");
        std::printf("from C after\n");
        x04baf(-1, "never printed");
        x04baf(6, std::string(300, 'w') + "   ");
    });
    EXPECT_EQ(got, (Lines{"from C before", "first record", "", "", "  leading blanks kept",
                          "from C after", std::string(300, 'w')}));
}

std::string temp_path(const char* name) { return testing::TempDir() + name; }

// Read as text: on Windows the Fortran runtime ends its records with CR LF, as text files
// there do, and a text stream reads them as LF.
std::string read_file(const std::string& path)
{
    std::ifstream in(path);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

Zor_Integer x04acf(Zor_Integer unit, const std::string& file, Zor_Integer mode, Zor_Integer ifail = 1)
{
    X04ACF(&unit, file.data(), &mode, &ifail, file.size());
    return ifail;
}

Zor_Integer x04adf(Zor_Integer unit, Zor_Integer ifail = 1)
{
    X04ADF(&unit, &ifail);
    return ifail;
}

TEST(X04ACF, WriteAppendAndReadModes)
{
    const std::string path = temp_path("zor_x04acf_modes.txt");
    std::remove(path.c_str());
    ASSERT_EQ(x04acf(41, path + "   ", 1), 0);   // trailing blanks of the name ignored
    x04baf(41, "one   ");
    x04baf(41, " ");
    EXPECT_EQ(x04adf(41), 0);
    EXPECT_EQ(read_file(path), "one\n\n");

    ASSERT_EQ(x04acf(41, path, 2), 0);           // append
    x04baf(41, "two");
    EXPECT_EQ(x04adf(41), 0);
    EXPECT_EQ(read_file(path), "one\n\ntwo\n");

    ASSERT_EQ(x04acf(41, path, 1), 0);           // write replaces
    x04baf(41, "three");
    EXPECT_EQ(x04adf(41), 0);
    EXPECT_EQ(read_file(path), "three\n");

    // A unit opened for reading: the record writer reports the failed write.
    ASSERT_EQ(x04acf(41, path, 0), 0);
    Zor_Context ctx;
    Y90HAAN(&ctx);
    Zor_Integer status = -1;
    const Zor_Integer unit = 41;
    X04BAZN(&ctx, &unit, "x", &status, 1);
    EXPECT_EQ(status, 1);
    EXPECT_EQ(x04adf(41), 0);
    EXPECT_EQ(read_file(path), "three\n");

    const std::string missing = temp_path("zor_x04acf_missing/none.txt");
    std::remove(path.c_str());
    EXPECT_EQ(x04acf(41, path, 0), 3) << "mode 0 needs an existing file";
    EXPECT_EQ(x04acf(41, missing, 1), 3);
    EXPECT_EQ(x04acf(41, missing, 2), 3);
    EXPECT_EQ(x04acf(41, "    ", 1), 3) << "a blank file name";
}

TEST(X04ACF, ArgumentErrorsInOrderWithTheirRecords)
{
    struct Case { Zor_Integer nout, mode, ifail; Lines records; };
    const std::string path = temp_path("zor_x04acf_errors.txt");
    const Case cases[] = {
        {-1, 7, 1, {" ** On entry, nout = -1.", " ** Constraint: nout >= 0."}},
        {41, 3, 2, {" ** On entry, mode = 3.", " ** Constraint: mode = 0, 1 or 2."}},
        {41, -1, 2, {" ** On entry, mode = -1.", " ** Constraint: mode = 0, 1 or 2."}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.ifail);
        Zor_Integer ifail = 99;
        const Lines got = stdout_lines([&] { ifail = x04acf(c.nout, path, c.mode, -1); });
        EXPECT_EQ(ifail, c.ifail);
        Lines want = c.records;
        char line[80];
        std::snprintf(line, sizeof line,
                      " ** ABNORMAL EXIT from ZOR Library routine x04acf: IFAIL =%6d", c.ifail);
        want.push_back(line);
        want.push_back(" ** ZOR soft failure - control returned");
        EXPECT_EQ(got, want);
    }
    std::remove(path.c_str());
    const Lines got = stdout_lines([&] { EXPECT_EQ(x04acf(41, path, 0, -1), 3); });
    ASSERT_FALSE(got.empty());
    EXPECT_EQ(got[0], " ** Cannot open file " + path + " for reading.");
}

TEST(X04ADF, NegativeUnitIsAnError)
{
    EXPECT_EQ(x04adf(-3), 1);
    const Lines got = stdout_lines([] { x04adf(-3, -1); });
    ASSERT_EQ(got.size(), 4u);
    EXPECT_EQ(got[0], " ** On entry, nout = -3.");
    EXPECT_EQ(got[2], " ** ABNORMAL EXIT from ZOR Library routine x04adf: IFAIL =     1");
    EXPECT_EQ(x04adf(58), 0) << "closing a unit that is not open is no error";
}

TEST(X04AAF, ErrorExitWritesToTheErrorUnit)
{
    UnitGuard guard;
    const std::string path = temp_path("zor_error_unit.txt");
    ASSERT_EQ(x04acf(42, path, 1), 0);
    zor::test::set_error_unit(42);
    const Lines out = stdout_lines([] { EXPECT_EQ(x04acf(-1, "f", 0, -1), 1); });
    EXPECT_TRUE(out.empty());
    zor::test::set_error_unit(-1);   // silenced: nothing printed, no failure
    const Lines none = stdout_lines([] { EXPECT_EQ(x04acf(-1, "f", 0, -1), 1); });
    EXPECT_TRUE(none.empty());
    EXPECT_EQ(x04adf(42), 0);
    EXPECT_EQ(read_file(path),
              " ** On entry, nout = -1.\n ** Constraint: nout >= 0.\n"
              " ** ABNORMAL EXIT from ZOR Library routine x04acf: IFAIL =     1\n"
              " ** ZOR soft failure - control returned\n");
    std::remove(path.c_str());
}

TEST(X04BAZN, NegativeUnitPrintsNothingAndReportsNoFailure)
{
    Zor_Context ctx;
    Y90HAAN(&ctx);
    Zor_Integer status = 7;
    const Zor_Integer unit = -1;
    const Lines got = stdout_lines([&] { X04BAZN(&ctx, &unit, "text", &status, 4); });
    EXPECT_TRUE(got.empty());
    EXPECT_EQ(status, 0);
}

// X04BAFT drives any record writer through the trampoline it is given.
std::vector<std::string> written;
void capture_writer(Zor_Context*, const Zor_Integer* nout, const char* rec, Zor_Integer* status,
                    std::size_t rec_len)
{
    written.push_back(std::to_string(*nout) + ":" + std::string(rec, rec_len));
    *status = 1;
}

TEST(X04BAFT, UsesTheWriterItIsGiven)
{
    written.clear();
    Zor_Context ctx;
    Y90HAAN(&ctx);
    const Zor_Integer unit = 9;
    Zor_Integer status = 0;
    X04BAFT(&ctx, &unit, "abc  ", capture_writer, X04BAF_FH, &status, 5);
    EXPECT_EQ(written, (std::vector<std::string>{"9:abc  "}));
    EXPECT_EQ(status, 1);
}

TEST(A00AAF, IdentificationBlockOnTheAdvisoryUnit)
{
    UnitGuard guard;
    zor::test::set_error_unit(-1);   // the block goes to the advisory unit, not the error unit
    const Lines got = stdout_lines([] { A00AAF(); });
    ASSERT_GE(got.size(), 14u);
    EXPECT_EQ(got.front(), " *** Start of ZOR Library implementation details ***");
    EXPECT_EQ(got.back(), " *** End of ZOR Library implementation details ***");
    // The fixed lines, in this order, among the build's own lines.
    const Lines fixed = {"            Precision: double precision",
                         "  This is a 64-bit library using 32-bit integers.",
                         " Created using:", "     hardware - x86_64", "     op. sys. - Windows 64-bit",
                         " Applicable to:", "     hardware - x86_64",
                         "     op. sys. - Windows 64-bit", " and compatible systems."};
    std::size_t at = 0;
    for (const std::string& l : got) {
        EXPECT_TRUE(l.empty() || l.back() != ' ') << "trailing blanks: " << l;
        if (at < fixed.size() && l == fixed[at]) ++at;
    }
    EXPECT_EQ(at, fixed.size()) << "fixed line missing or out of order: " << fixed[std::min(at, fixed.size() - 1)];

    zor::test::set_advisory_unit(-1);
    EXPECT_TRUE(stdout_lines([] { A00AAF(); }).empty());
}

// ---------------------------------------------------------------------------------
// Argument trace: read once per process, so each case runs in a fresh child process.

void traced_calls()
{
    zor::test::set_advisory_unit(0);   // the trace goes to the advisory unit: stderr here
    const Zor_Integer get = 0;
    Zor_Integer nerr = 0;
    X04AAF(&get, &nerr);
    const Zor_Integer unit = -1;
    X04BAF(&unit, "hello  ", 7);
    for (auto f : {X02AHF, X02AJF, X02AKF, X02ALF, X02AMF, X02ANF}) (void)f();
    for (auto f : {X02BBF, X02BEF, X02BHF, X02BJF, X02BKF, X02BLF}) (void)f();
    std::exit(0);
}

TEST(TraceDeathTest, TraceOnRecordsLabelsHeadingsAndValues)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");   // a fresh process reads ZOR_TRACE anew
    zor::test::set_env("ZOR_TRACE", "1");
    EXPECT_EXIT(traced_calls(), testing::ExitedWithCode(0),
                "^ x04aafv en_data: iflag = 0, nerr = 0\n"
                " x04aafv ex_data: iflag = 0, nerr = 6\n"
                " x04bafv:print_rec en_data: nout = -1, rec = hello  , ierr = 0\n"
                " x04bafv:print_rec ex_data: nout = -1, rec = hello  , ierr = 0\n"
                // The short names and the decimal values of the documented table.
                " x02ahfv ex_data: maxsc = 1\\.42724769270596e\\+45\n"
                " x02ajfv ex_data: eps = 1\\.1102230246251565e-16\n"
                " x02akfv ex_data: tiny_zor = 2\\.2250738585072014e-308\n"
                " x02alfv ex_data: huge_zor = 1\\.7976931348623157e\\+308\n"
                " x02amfv ex_data: saferange = 2\\.225073858507202e-308\n"
                " x02anfv ex_data: zrange = 2\\.225073858507202e-308\n"
                " x02bbfv ex_data: hugeint = 2147483647\n"
                " x02befv ex_data: iprec = 15\n"
                " x02bhfv ex_data: irad = 2\n"
                " x02bjfv ex_data: idigs = 53\n"
                " x02bkfv ex_data: minexp = -1021\n"
                " x02blfv ex_data: maxexp = 1024\n$");
    zor::test::set_env("ZOR_TRACE", "0");
    EXPECT_EXIT(traced_calls(), testing::ExitedWithCode(0), "^$");
    zor::test::unset_env("ZOR_TRACE");
    EXPECT_EXIT(traced_calls(), testing::ExitedWithCode(0), "^$");
}

}  // namespace

namespace {

TEST(X04BAF, VeryLongRecordIsWrittenWhole)
{
    // Longer than any stack: the writer must not copy a record onto it.
    const std::string path = temp_path("zor_long_record.txt");
    ASSERT_EQ(x04acf(43, path, 1), 0);
    const std::string rec = std::string(16 << 20, 'L') + "end   ";
    x04baf(43, rec);
    EXPECT_EQ(x04adf(43), 0);
    const std::string got = read_file(path);
    EXPECT_EQ(got.size(), (16u << 20) + 4);
    EXPECT_EQ(got.substr(got.size() - 5), "Lend\n");
    std::remove(path.c_str());
}

TEST(X04ACF, OverlongFileNameIsRefused)
{
    const std::string name(16 << 20, 'n');   // no stack holds it
    EXPECT_EQ(x04acf(44, name, 1), 3);
}

}  // namespace

namespace {

TEST(P01ZZWN, OneTrimmedLineOnTheErrorUnit)
{
    UnitGuard guard;
    zor::test::set_advisory_unit(-1);   // the advisory unit plays no part
    const char text[] = " ** A line of library code.          ";
    EXPECT_EQ(stdout_lines([&] { P01ZZWN(text, sizeof text - 1); }),
              (Lines{" ** A line of library code."}));
    zor::test::set_error_unit(-1);
    EXPECT_TRUE(stdout_lines([&] { P01ZZWN(text, sizeof text - 1); }).empty());
}

TEST(X04BAZN, StatusZeroForAGoodWriteToAFile)
{
    const std::string path = temp_path("zor_x04bazn_status.txt");
    ASSERT_EQ(x04acf(45, path, 1), 0);
    Zor_Context ctx;
    Y90HAAN(&ctx);
    Zor_Integer status = -1;
    const Zor_Integer unit = 45;
    X04BAZN(&ctx, &unit, "ok  ", &status, 4);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(x04adf(45), 0);
    EXPECT_EQ(read_file(path), "ok\n");
    std::remove(path.c_str());
}

}  // namespace
