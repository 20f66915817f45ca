// frame/test/table_checks.hpp — checks of a routine's message tables against the exits,
// for every chapter's tests:
//
//     TEST(C05AYF, RecordsTable) { zor::test::check_f_records("c05ayf", c05ayf_records); }
//     TEST(c05ayc, MessagesTable) { zor::test::check_c_messages("c05ayc", c05ayc_messages); }
//     TEST(C05AYFDeathTest, HardFailure) { zor::test::check_f_hard_stop("c05ayf", c05ayf_records); }
//
// F records: every line starts " ** ", fits 80 columns, says "/=" (never "!="), names
// only values %1 ... %9; keys are unique and no routine claims the shared errors 0, -99
// and -999; each pair is worded through the exit with IFAIL -1 (records, abnormal-exit
// line, soft-failure line), is silent with IFAIL 1, and an unlisted pair becomes -99.
// c messages: each starts with the name of its code and a colon, further lines indented
// by two blanks, says "!=" (never "/="), uses only "%s" and "%%"; message codes are
// unique; each is formatted through the c exit with its values in order.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <set>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "frame/frame.hpp"
#include "frame_test_util.hpp"
#include "tests/portable.hpp"

namespace zor::test {

namespace detail {

// Value texts v1 ... vn, distinct so that a value inserted in the wrong place shows.
inline std::string value_name(int k) { return "v" + std::to_string(k); }

inline std::string buffer_with_values(int error, int code, int n)
{
    const std::string e = std::to_string(error), c = std::to_string(code), count = std::to_string(n);
    std::vector<std::string> values;
    for (int k = 1; k <= n; ++k) values.push_back(value_name(k));
    std::string s(1, field_sep);
    for (const std::string& x : {e, c, count}) s += x + field_sep;
    for (const std::string& v : values) s += v + field_sep;
    s.resize(msgbuf_len, ' ');
    return s;
}

inline std::string abnormal_line(const char* routine, int ifail)
{
    char line[100];
    std::snprintf(line, sizeof line, " ** ABNORMAL EXIT from ZOR Library routine %s: IFAIL =%6d",
                  routine, ifail);
    return line;
}

// Highest %k a line names, or -1 for a malformed placeholder ("%0", "%x").
inline int max_placeholder(const std::string& line)
{
    int k = 0;
    for (std::size_t i = 0; i + 1 < line.size(); ++i)
        if (line[i] == '%') {
            if (line[i + 1] < '1' || line[i + 1] > '9') return -1;
            k = std::max(k, line[i + 1] - '0');
        }
    return k;
}

inline std::string substitute(std::string line)
{
    for (std::size_t i = 0; (i = line.find('%', i)) != std::string::npos;) {
        const std::string v = value_name(line[i + 1] - '0');
        line.replace(i, 2, v);
        i += v.size();
    }
    while (!line.empty() && line.back() == ' ') line.pop_back();
    return line.substr(0, 80);
}

}  // namespace detail

inline void check_f_records(const char* routine, std::span<const FRecord> table)
{
    ASSERT_FALSE(table.empty());
    std::set<std::pair<int, int>> keys;
    for (const FRecord& r : table) {
        SCOPED_TRACE(std::string(routine) + " error " + std::to_string(r.error) + ", code " +
                     std::to_string(r.code));
        EXPECT_TRUE(keys.insert({r.error, r.code}).second) << "duplicate key";
        EXPECT_TRUE(r.error != 0 && r.error != -99 && r.error != -999) << "a shared error number";
        std::vector<std::string> want;
        int nvalues = 0;
        bool ended = false;
        for (const char* l : r.lines) {
            if (l == nullptr) {
                ended = true;
                continue;
            }
            EXPECT_FALSE(ended) << "a line after the end of the record list";
            const std::string line = l;
            EXPECT_EQ(line.rfind(" ** ", 0), 0u) << line;
            EXPECT_LE(line.size(), 80u) << line;
            EXPECT_EQ(line.find("!="), std::string::npos) << "F records say /=: " << line;
            const int k = detail::max_placeholder(line);
            EXPECT_GE(k, 0) << "placeholders are %1 ... %9: " << line;
            nvalues = std::max(nvalues, k);
            want.push_back(detail::substitute(line));
        }
        EXPECT_FALSE(want.empty()) << "no records";

        // Worded through the exit, printed with IFAIL -1.
        const std::string buf = detail::buffer_with_values(r.error, r.code, nvalues);
        Zor_Integer ifail = -1;
        const std::vector<std::string> got = stdout_lines(
            [&] { f_exit(&ifail, r.error, buf.data(), routine, table); });
        want.push_back(detail::abnormal_line(routine, r.error));
        want.push_back(" ** ZOR soft failure - control returned");
        EXPECT_EQ(ifail, r.error);
        EXPECT_EQ(got, want);

        // Silent with IFAIL 1.
        ifail = 1;
        const std::vector<std::string> quiet = stdout_lines(
            [&] { f_exit(&ifail, r.error, buf.data(), routine, table); });
        EXPECT_EQ(ifail, r.error);
        EXPECT_TRUE(quiet.empty());
    }

    // A pair that the routine does not list.
    int code = 9999;
    while (keys.count({table[0].error, code})) ++code;
    const std::string buf = detail::buffer_with_values(table[0].error, code, 0);
    Zor_Integer ifail = -1;
    const std::vector<std::string> got = stdout_lines(
        [&] { f_exit(&ifail, table[0].error, buf.data(), routine, table); });
    char line[80];
    std::snprintf(line, sizeof line, " ** Unexpected error (%5d,%5d)", table[0].error, code);
    EXPECT_EQ(ifail, -99);
    EXPECT_EQ(got, (std::vector<std::string>{line, detail::abnormal_line(routine, -99),
                                             " ** ZOR soft failure - control returned"}));
}

// With IFAIL 0 the first record of the table stops the program after printing (on the
// standard error stream here, so that the death test sees it).
inline void check_f_hard_stop(const char* routine, std::span<const FRecord> table)
{
    ASSERT_FALSE(table.empty());
    const FRecord& r = table[0];
    int nvalues = 0;
    for (const char* l : r.lines)
        if (l != nullptr) nvalues = std::max(nvalues, detail::max_placeholder(l));
    const std::string buf = detail::buffer_with_values(r.error, r.code, nvalues);
    std::string want;
    for (const char* l : r.lines)
        if (l != nullptr) want += detail::substitute(l) + "\n";
    want += detail::abnormal_line(routine, r.error) + "\n";
    want += " ** ZOR hard failure - execution terminated\n";
    EXPECT_EXIT(
        {
            set_error_unit(0);
            Zor_Integer ifail = 0;
            f_exit(&ifail, r.error, buf.data(), routine, table);
            std::exit(99);   // not reached
        },
        testing::ExitedWithCode(hard_stop_status), "^" + regex_quote(want) + "$");
}

inline void check_c_messages(const char* routine, std::span<const CMessage> table)
{
    ASSERT_FALSE(table.empty());
    std::set<int> codes;
    for (const CMessage& m : table) {
        SCOPED_TRACE(std::string(routine) + " message code " + std::to_string(m.msgcode));
        EXPECT_TRUE(codes.insert(m.msgcode).second) << "duplicate message code";
        ASSERT_TRUE(m.code > 0 && m.code < ZOR_ERROR_CODE_COUNT) << m.code;
        const std::string format = m.format, dflt = default_message(m.code);
        const std::string name = dflt.substr(0, dflt.find(':'));
        EXPECT_EQ(format.rfind(name + ":\n", 0), 0u)
            << "a message starts with its code's name " << name << ": " << format;
        EXPECT_TRUE(name.rfind("NE_", 0) == 0 || name.rfind("NW_", 0) == 0) << name;
        EXPECT_EQ(format.find("/="), std::string::npos) << "c messages say !=: " << format;
        std::string want;
        int nvalues = 0;
        for (std::size_t i = 0; i < format.size(); ++i) {
            if (format[i] == '\n') {
                EXPECT_EQ(format.compare(i + 1, 2, "  "), 0) << "lines are indented by two blanks";
            }
            if (format[i] == '%') {
                const char next = i + 1 < format.size() ? format[i + 1] : '\0';
                EXPECT_TRUE(next == 's' || next == '%') << "only %s and %%: " << format;
                want += next == 's'   ? detail::value_name(++nvalues)
                        : next == '%' ? std::string("%")
                                      : std::string("%") + next;
                ++i;
            } else {
                want += format[i];
            }
        }
        EXPECT_LE(want.size(), 511u);

        const std::string buf = detail::buffer_with_values(1, m.msgcode, nvalues);
        Zor_Fail fail{};
        c_begin(&fail);
        const std::string err = stderr_text([&] { c_exit(&fail, 1, buf.data(), routine, table); });
        EXPECT_EQ(err, "");
        EXPECT_EQ(fail.code, m.code);
        EXPECT_EQ(fail.errnum, 1);
        EXPECT_EQ(std::string(fail.message), want);
    }
}

}  // namespace zor::test
