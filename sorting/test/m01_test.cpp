// sorting/test/m01_test.cpp — the M01 routines through their interfaces: checks in the
// documented order, the F records and c messages word for word, stable ranks against
// std::stable_sort, rearranging, searching against the standard library's bisection,
// permutations, and bad input of every kind.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <functional>
#include <numeric>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "frame/frame.hpp"
#include "tests/portable.hpp"
#include "zor_m01.h"
#include "zor_x04.h"

namespace {

// (error, message code) read back from a kernel's message buffer.
struct Outcome {
    int err;
    int code;
};

Outcome outcome(Zor_Integer err, const char* msgbuf)
{
    if (err == 0) return {0, 0};
    char fields[12][80];
    Zor_Integer code = 0, status = 0;
    P01ABTN(msgbuf, &code, fields, &status);
    return {err, status == 0 ? code : -status};
}

// Everything an F routine prints to the error unit during call(), line by line.
std::vector<std::string> f_output(const std::function<void()>& call)
{
    const std::string file = zor::test::temp_file("m01_test");
    const char* path = file.c_str();
    Zor_Integer unit = 71, mode = 1, ifail = 1, get = 0, set = 1, old = 0;
    X04ACF(&unit, path, &mode, &ifail, file.size());
    X04AAF(&get, &old);
    X04AAF(&set, &unit);
    call();
    X04AAF(&set, &old);
    X04ADF(&unit, &ifail);
    std::ifstream in(path);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    std::remove(path);
    return lines;
}

std::vector<std::string> with_exit(std::vector<std::string> records, const char* routine, int ifail)
{
    char line[100];
    std::snprintf(line, sizeof line, " ** ABNORMAL EXIT from ZOR Library routine %s: IFAIL =%6d", routine, ifail);
    records.push_back(line);
    records.push_back(" ** ZOR soft failure - control returned");
    return records;
}

// ---------------------------------------------------------------------------------
// Checks in the documented order.

const Zor_Integer bounds[] = {INT_MIN, -1, 0, 1, 3, 8, INT_MAX};

TEST(M01CAFT, ChecksBoundsBeforeOrderInEveryCombination)
{
    for (Zor_Integer m1 : bounds)
        for (Zor_Integer m2 : bounds)
            for (char order : {'A', 'x'}) {
                int want = 0;
                if (m2 < 1) want = 1001;
                else if (m1 < 1) want = 1002;
                else if (m1 > m2) want = 1003;
                else if (order == 'x') want = 1004;
                if (want == 0 && m2 > 8) continue;   // a valid section larger than the array
                std::vector<double> rv(8, 1.5);
                rv[0] = 3;
                const std::vector<double> before = rv;
                Zor_Context ctx;
                Y90HAAN(&ctx);
                char msgbuf[200];
                Zor_Integer ierr = -7;
                M01CAFT(&ctx, rv.data(), &m1, &m2, &order, msgbuf, &ierr, 1);
                const Outcome got = outcome(ierr, msgbuf);
                SCOPED_TRACE(testing::Message() << "m1 = " << m1 << ", m2 = " << m2 << ", order " << order);
                EXPECT_EQ(got.code, want);
                EXPECT_EQ(got.err, want == 0 ? 0 : want == 1004 ? 2 : 1);
                if (want != 0) {
                    EXPECT_EQ(rv, before);
                }
            }
}

TEST(M01Siblings, CheckTheListedConstraintsInTheListedOrder)
{
    // One call per case; the first failing check names the message code.
    struct Case {
        const char* why;
        std::function<Outcome()> call;
        int code;
    };
    double rv[8] = {};
    Zor_Integer iv[8] = {}, irank[8] = {}, idx[4] = {};
    char ch[8 * 300] = {};
    char msgbuf[200];
    Zor_Context ctx;
    Y90HAAN(&ctx);
    Zor_Integer ierr = 0;
    auto cb = [&](Zor_Integer m1, Zor_Integer m2, char order) {
        M01CBFT(&ctx, iv, &m1, &m2, &order, msgbuf, &ierr, 1);
        return outcome(ierr, msgbuf);
    };
    auto cc = [&](std::size_t len, Zor_Integer m1, Zor_Integer m2, Zor_Integer l1, Zor_Integer l2, char order) {
        M01CCFT(&ctx, ch, &m1, &m2, &l1, &l2, &order, msgbuf, &ierr, len, 1);
        return outcome(ierr, msgbuf);
    };
    auto dc = [&](std::size_t len, Zor_Integer m1, Zor_Integer m2, Zor_Integer l1, Zor_Integer l2, char order) {
        M01DCFT(&ctx, ch, &m1, &m2, &l1, &l2, &order, irank, msgbuf, &ierr, len, 1);
        return outcome(ierr, msgbuf);
    };
    auto de = [&](Zor_Integer ldm, Zor_Integer m1, Zor_Integer m2, Zor_Integer n1, Zor_Integer n2, char order) {
        M01DEFT(&ctx, rv, &ldm, &m1, &m2, &n1, &n2, &order, irank, msgbuf, &ierr, 1);
        return outcome(ierr, msgbuf);
    };
    auto dk = [&](Zor_Integer ldm, Zor_Integer m1, Zor_Integer m2, Zor_Integer n1, Zor_Integer n2, char order) {
        M01DKFT(&ctx, iv, &ldm, &m1, &m2, &n1, &n2, &order, irank, msgbuf, &ierr, 1);
        return outcome(ierr, msgbuf);
    };
    auto na = [&](Zor_Integer m1, Zor_Integer m2) {
        Zor_Integer index = -5;
        const double item = 0;
        M01NAFT(&ctx, rv, &m1, &m2, &item, &index, msgbuf, &ierr);
        return outcome(ierr, msgbuf);
    };
    auto nc = [&](Zor_Integer m1, Zor_Integer m2) {
        Zor_Integer index = -5;
        M01NCFT(&ctx, ch, &m1, &m2, "ab", &index, msgbuf, &ierr, 4, 2);
        return outcome(ierr, msgbuf);
    };
    auto nd = [&](Zor_Integer n, Zor_Integer m1, Zor_Integer m2, Zor_Integer m, Zor_Integer mode) {
        M01NDFT(&ctx, rv, &n, &m1, &m2, rv, &m, &mode, idx, msgbuf, &ierr);
        return outcome(ierr, msgbuf);
    };
    const Case cases[] = {
        {"M01CBF: order before m2", [&] { return cb(1, 0, 'q'); }, 1004},
        {"M01CBF: m2 before m1", [&] { return cb(0, 0, 'a'); }, 1001},
        {"M01CBF: m1 > m2", [&] { return cb(5, 4, 'd'); }, 1003},
        {"M01CCF: len before order", [&] { return cc(256, 1, 2, 1, 1, 'q'); }, 1009},
        {"M01CCF: order before bounds", [&] { return cc(255, 0, 0, 1, 1, 'q'); }, 1004},
        {"M01CCF: m1 > m2 before l2", [&] { return cc(8, 2, 1, 0, 0, 'A'); }, 1003},
        {"M01CCF: l2 before l1", [&] { return cc(8, 1, 2, 0, 0, 'A'); }, 1010},
        {"M01CCF: l1 >= 1", [&] { return cc(8, 1, 2, 0, 3, 'A'); }, 1011},
        {"M01CCF: l1 <= l2", [&] { return cc(8, 1, 2, 4, 3, 'A'); }, 1012},
        {"M01CCF: l2 <= len", [&] { return cc(8, 1, 2, 4, 9, 'A'); }, 1013},
        {"M01CCF: zero-length strings", [&] { return cc(0, 1, 2, 1, 1, 'A'); }, 1013},
        {"M01DCF: len before order", [&] { return dc(300, 1, 2, 1, 1, 'A'); }, 1009},
        {"M01DCF: l2 <= len", [&] { return dc(8, 1, 2, 1, 9, 'd'); }, 1013},
        {"M01DEF: order first", [&] { return de(0, 0, 0, 0, 0, '?'); }, 1004},
        {"M01DEF: m2", [&] { return de(4, 1, 0, 1, 1, 'A'); }, 1001},
        {"M01DEF: m1", [&] { return de(4, 0, 1, 1, 1, 'A'); }, 1002},
        {"M01DEF: no m1 <= m2 check; n2 next", [&] { return de(4, 3, 2, 1, 0, 'A'); }, 1005},
        {"M01DEF: m1 > m2 is an empty set of rows", [&] { return de(4, 3, 2, 1, 1, 'A'); }, 0},
        {"M01DEF: n1", [&] { return de(4, 1, 2, 0, 1, 'A'); }, 1006},
        {"M01DEF: n1 <= n2", [&] { return de(4, 1, 2, 2, 1, 'A'); }, 1007},
        {"M01DEF: m2 <= ldm", [&] { return de(1, 1, 2, 1, 2, 'A'); }, 1008},
        {"M01DKF: m1 <= m2 before n2", [&] { return dk(4, 3, 2, 0, 0, 'A'); }, 1003},
        {"M01DKF: m2 <= ldm last", [&] { return dk(0, 1, 1, 1, 1, 'A'); }, 1008},
        {"M01NAF: m1 <= m2 before m1 >= 1", [&] { return na(0, -1); }, 1003},
        {"M01NAF: m1 >= 1", [&] { return na(0, 1); }, 1002},
        {"M01NAF: no m2 >= 1 check beyond m1 <= m2", [&] { return na(-3, -1); }, 1002},
        {"M01NCF: m2 >= m1 first", [&] { return nc(2, 1); }, 1015},
        {"M01NCF: m1 >= 1", [&] { return nc(0, 1); }, 1002},
        {"M01NDF: m first", [&] { return nd(1, 0, 0, 0, 9); }, 1016},
        {"M01NDF: n >= 2", [&] { return nd(1, 0, 0, 1, 9); }, 1017},
        {"M01NDF: m2 <= n", [&] { return nd(4, 1, 5, 1, 9); }, 1018},
        {"M01NDF: m1 <= m2", [&] { return nd(4, 3, 2, 1, 9); }, 1018},
        {"M01NDF: m1 >= 1", [&] { return nd(4, 0, 2, 1, 9); }, 1002},
        {"M01NDF: mode last", [&] { return nd(4, 1, 2, 1, 5); }, 1019},
        {"M01NDF: mode -1", [&] { return nd(4, 1, 2, 1, -1); }, 1019},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        EXPECT_EQ(c.call().code, c.code);
    }
}

TEST(M01CAFT, OrderIsAcceptedInFourLettersOnlyWhateverTheByte)
{
    for (int b = 0; b < 256; ++b) {
        const char order = static_cast<char>(b);
        double rv[3] = {2, 1, 3};
        Zor_Integer m1 = 1, m2 = 3;
        Zor_Context ctx;
        Y90HAAN(&ctx);
        char msgbuf[200];
        Zor_Integer ierr = 0;
        M01CAFT(&ctx, rv, &m1, &m2, &order, msgbuf, &ierr, 1);
        const bool legal = std::strchr("AaDd", b) != nullptr && b != 0;
        EXPECT_EQ(ierr, legal ? 0 : 2) << "byte " << b;
        if (!legal) {
            char fields[12][80];
            Zor_Integer code = 0, status = 0;
            P01ABTN(msgbuf, &code, fields, &status);
            ASSERT_EQ(status, 0);
            const unsigned char shown = static_cast<unsigned char>(fields[3][0]);
            EXPECT_TRUE(shown >= 0x20 && shown < 0x7f) << "byte " << b;
        }
    }
    // An ORDER of length 0 is illegal and quoted as ''.
    double rv[2] = {2, 1};
    Zor_Integer m1 = 1, m2 = 2, ifail = -1;
    const auto got = f_output([&] { M01CAF(rv, &m1, &m2, "A", &ifail, 0); });
    EXPECT_EQ(ifail, 2);
    ASSERT_FALSE(got.empty());
    EXPECT_EQ(got[0], " ** On entry, order has an illegal value: order = ''.");
}

// ---------------------------------------------------------------------------------
// F records, line by line.

TEST(M01FRecords, AreWordedAsDocumented)
{
    double rv[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    Zor_Integer iv[8] = {1, 2, 3, 4, 5, 6, 7, 8}, irank[8] = {1, 2, 2, 4}, idx[2];
    char ch[4 * 300] = {};
    struct Case {
        const char* routine;
        std::function<Zor_Integer()> call;   // returns IFAIL, called with IFAIL = -1 on entry
        int ifail;
        std::vector<std::string> records;
    };
    const Case cases[] = {
        {"m01caf", [&] { Zor_Integer a = 0, b = 0, f = -1; M01CAF(rv, &a, &b, "A", &f, 1); return f; }, 1,
         {" ** On entry, m2 = 0.", " ** Constraint: m2 >= 1."}},
        {"m01caf", [&] { Zor_Integer a = -4, b = 2, f = -1; M01CAF(rv, &a, &b, "A", &f, 1); return f; }, 1,
         {" ** On entry, m1 = -4.", " ** Constraint: m1 >= 1."}},
        {"m01caf", [&] { Zor_Integer a = 3, b = 2, f = -1; M01CAF(rv, &a, &b, "A", &f, 1); return f; }, 1,
         {" ** On entry, m1 = 3 and m2 = 2.", " ** Constraint: m1 <= m2."}},
        {"m01caf", [&] { Zor_Integer a = 1, b = 2, f = -1; M01CAF(rv, &a, &b, "b", &f, 1); return f; }, 2,
         {" ** On entry, order has an illegal value: order = 'b'."}},
        {"m01cbf", [&] { Zor_Integer a = 1, b = 2, f = -1; M01CBF(iv, &a, &b, "\x01", &f, 1); return f; }, 2,
         {" ** On entry, order has an illegal value: order = '?'."}},
        {"m01ccf", [&] { Zor_Integer a = 1, b = 2, l1 = 1, l2 = 1, f = -1;
                         M01CCF(ch, &a, &b, &l1, &l2, "A", &f, 256, 1); return f; }, 1,
         {" ** On entry, len(ch(1)) = 256.", " ** Constraint: len(ch(1)) <= 255."}},
        {"m01ccf", [&] { Zor_Integer a = 1, b = 2, l1 = 0, l2 = 0, f = -1;
                         M01CCF(ch, &a, &b, &l1, &l2, "A", &f, 8, 1); return f; }, 1,
         {" ** On entry, l2 = 0.", " ** Constraint: l2 >= 1."}},
        {"m01dcf", [&] { Zor_Integer a = 1, b = 2, l1 = 0, l2 = 3, f = -1;
                         M01DCF(ch, &a, &b, &l1, &l2, "A", irank, &f, 8, 1); return f; }, 1,
         {" ** On entry, l1 = 0.", " ** Constraint: l1 >= 1."}},
        {"m01dcf", [&] { Zor_Integer a = 1, b = 2, l1 = 4, l2 = 3, f = -1;
                         M01DCF(ch, &a, &b, &l1, &l2, "A", irank, &f, 8, 1); return f; }, 1,
         {" ** On entry, l1 = 4 and l2 = 3.", " ** Constraint: l1 <= l2."}},
        {"m01dcf", [&] { Zor_Integer a = 1, b = 2, l1 = 4, l2 = 9, f = -1;
                         M01DCF(ch, &a, &b, &l1, &l2, "A", irank, &f, 8, 1); return f; }, 1,
         {" ** On entry, l2 = 9 and len(ch(1)) = 8.", " ** Constraint: l2 <= len(ch(1))."}},
        {"m01daf", [&] { Zor_Integer a = 1, b = 0, f = -1; M01DAF(rv, &a, &b, "a", irank, &f, 1); return f; }, 1,
         {" ** On entry, m2 = 0.", " ** Constraint: m2 >= 1."}},
        {"m01dbf", [&] { Zor_Integer a = 1, b = 0, f = -1; M01DBF(iv, &a, &b, "Z", irank, &f, 1); return f; }, 2,
         {" ** On entry, order has an illegal value: order = 'Z'."}},
        {"m01def", [&] { Zor_Integer ld = 4, a = 1, b = 2, c = 1, d = 0, f = -1;
                         M01DEF(rv, &ld, &a, &b, &c, &d, "A", irank, &f, 1); return f; }, 1,
         {" ** On entry, n2 = 0.", " ** Constraint: n2 >= 1."}},
        {"m01dff", [&] { Zor_Integer ld = 4, a = 1, b = 2, c = -2, d = 1, f = -1;
                         M01DFF(iv, &ld, &a, &b, &c, &d, "A", irank, &f, 1); return f; }, 1,
         {" ** On entry, n1 = -2.", " ** Constraint: n1 >= 1."}},
        {"m01djf", [&] { Zor_Integer ld = 4, a = 1, b = 2, c = 3, d = 1, f = -1;
                         M01DJF(rv, &ld, &a, &b, &c, &d, "A", irank, &f, 1); return f; }, 1,
         {" ** On entry, n1 = 3 and n2 = 1.", " ** Constraint: n1 <= n2."}},
        {"m01dkf", [&] { Zor_Integer ld = 1, a = 1, b = 2, c = 1, d = 1, f = -1;
                         M01DKF(iv, &ld, &a, &b, &c, &d, "A", irank, &f, 1); return f; }, 1,
         {" ** On entry, m2 = 2 and ldm = 1.", " ** Constraint: m2 <= ldm."}},
        {"m01dzf", [&] { Zor_Integer a = 2, b = 1, f = -1;
                         M01DZF(nullptr, &a, &b, irank, nullptr, nullptr, &f); return f; }, 1,
         {" ** On entry, m1 = 2 and m2 = 1.", " ** Constraint: m1 <= m2."}},
        {"m01eaf", [&] { Zor_Integer a = 1, b = 4, f = -1; M01EAF(rv, &a, &b, irank, &f); return f; }, 2,
         {" ** On entry, irank(3) = 2.", " ** Constraint: irank(m1:m2) holds a permutation of m1, ..., m2."}},
        {"m01ebf", [&] { Zor_Integer a = 0, b = 4, f = -1; M01EBF(iv, &a, &b, irank, &f); return f; }, 1,
         {" ** On entry, m1 = 0.", " ** Constraint: m1 >= 1."}},
        {"m01ecf", [&] { Zor_Integer a = 1, b = 4, f = -1; M01ECF(ch, &a, &b, irank, &f, 1000); return f; }, 1,
         {" ** On entry, len(ch(1)) = 1000.", " ** Constraint: len(ch(1)) <= 255."}},
        {"m01edf", [&] { Zor_Integer a = 2, b = 3, f = -1; M01EDF(rv, &a, &b, irank, &f); return f; }, 2,
         {" ** On entry, irank(3) = 2.", " ** Constraint: irank(m1:m2) holds a permutation of m1, ..., m2."}},
        {"m01naf", [&] { Zor_Integer a = 5, b = 4, f = -1; const double x = 0; M01NAF(rv, &a, &b, &x, &f); return f; }, 1,
         {" ** On entry, m1 = 5 and m2 = 4.", " ** Constraint: m1 <= m2."}},
        {"m01nbf", [&] { Zor_Integer a = -1, b = 4, f = -1, x = 0; M01NBF(iv, &a, &b, &x, &f); return f; }, 1,
         {" ** On entry, m1 = -1.", " ** Constraint: m1 >= 1."}},
        {"m01ncf", [&] { Zor_Integer a = 5, b = 4, f = -1; M01NCF(ch, &a, &b, "x", &f, 2, 1); return f; }, 1,
         {" ** On entry, m1 = 5 and m2 = 4.", " ** Constraint: m2 >= m1."}},
        {"m01ndf", [&] { Zor_Integer n = 8, a = 1, b = 2, m = 0, mode = 0, f = -1;
                         M01NDF(rv, &n, &a, &b, rv, &m, &mode, idx, &f); return f; }, 1,
         {" ** On entry, m = 0.", " ** Constraint: m >= 1."}},
        {"m01ndf", [&] { Zor_Integer n = 1, a = 1, b = 2, m = 1, mode = 0, f = -1;
                         M01NDF(rv, &n, &a, &b, rv, &m, &mode, idx, &f); return f; }, 1,
         {" ** On entry, n = 1.", " ** Constraint: n >= 2."}},
        {"m01ndf", [&] { Zor_Integer n = 8, a = 1, b = 9, m = 1, mode = 0, f = -1;
                         M01NDF(rv, &n, &a, &b, rv, &m, &mode, idx, &f); return f; }, 1,
         {" ** On entry, m1 = 1, m2 = 9 and n = 8.", " ** Constraint: m1 <= m2 <= n."}},
        {"m01ndf", [&] { Zor_Integer n = 8, a = 1, b = 2, m = 1, mode = 5, f = -1;
                         M01NDF(rv, &n, &a, &b, rv, &m, &mode, idx, &f); return f; }, 2,
         {" ** On entry, mode = 5.", " ** Constraint: mode = 0, 1, 2, 3 or 4."}},
        {"m01zaf", [&] { Zor_Integer a = 1, b = 4, f = -1; M01ZAF(irank, &a, &b, &f); return f; }, 2,
         {" ** On entry, iperm(3) = 2.", " ** Constraint: iperm(m1:m2) holds a permutation of m1, ..., m2."}},
        {"m01zbf", [&] { Zor_Integer a = 2, b = 4, f = -1; M01ZBF(irank, &a, &b, &f); return f; }, 2,
         {" ** On entry, iperm(3) = 2.", " ** Constraint: iperm(m1:m2) holds a permutation of m1, ..., m2."}},
        {"m01zcf", [&] { Zor_Integer a = 1, b = -4, f = -1; M01ZCF(irank, &a, &b, idx, &f); return f; }, 1,
         {" ** On entry, m2 = -4.", " ** Constraint: m2 >= 1."}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.routine);
        Zor_Integer ifail = 0;
        const std::vector<std::string> got = f_output([&] { ifail = c.call(); });
        EXPECT_EQ(ifail, c.ifail);
        EXPECT_EQ(got, with_exit(c.records, c.routine, c.ifail));
        for (const std::string& line : got) EXPECT_LE(line.size(), 80u);
    }
}

TEST(M01FRecords, QuietOnSuccessWhateverIfail)
{
    for (Zor_Integer entry : {0, -1, 1, 5}) {
        double rv[3] = {3, 1, 2};
        Zor_Integer m1 = 1, m2 = 3, ifail = entry;
        const auto got = f_output([&] { M01CAF(rv, &m1, &m2, "d", &ifail, 1); });
        EXPECT_TRUE(got.empty());
        EXPECT_EQ(ifail, 0);
        EXPECT_EQ(rv[0], 3);
        EXPECT_EQ(rv[2], 1);
    }
}

// ---------------------------------------------------------------------------------
// c messages, word for word.

TEST(M01CMessages, AreWordedAsDocumented)
{
    double rv[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    Zor_Integer iv[8] = {}, irank[4] = {1, 2, 2, 4}, idx[2];
    char ch[16] = {};
    struct Case {
        const char* why;
        std::function<void(Zor_Fail*)> call;
        int code;
        const char* message;
    };
    const Case cases[] = {
        {"m01cac m2", [&](Zor_Fail* f) { m01cac(rv, 0, 0, 'A', f); }, NE_INT,
         "NE_INT:\n  On entry, m2 = 0.\n  Constraint: m2 >= 1."},
        {"m01cac m1 <= m2", [&](Zor_Fail* f) { m01cac(rv, 7, 6, 'A', f); }, NE_INT_2,
         "NE_INT_2:\n  On entry, m1 = 7 and m2 = 6.\n  Constraint: m1 <= m2."},
        {"m01cbc order", [&](Zor_Fail* f) { m01cbc(iv, 1, 2, 'c', f); }, NE_BAD_PARAM,
         "NE_BAD_PARAM:\n  On entry, order has an illegal value: order = 'c'."},
        {"m01cac null", [&](Zor_Fail* f) { m01cac(nullptr, 1, 2, 'A', f); }, NE_BAD_PARAM,
         "NE_BAD_PARAM:\n  On entry, parameter rv had an illegal value."},
        {"m01ccc lenc", [&](Zor_Fail* f) { m01ccc(ch, 256, 1, 2, 1, 1, 'A', f); }, NE_INT,
         "NE_INT:\n  On entry, lenc = 256.\n  Constraint: lenc <= 255."},
        {"m01ccc negative lenc", [&](Zor_Fail* f) { m01ccc(ch, -1, 1, 2, 1, 1, 'A', f); }, NE_INT_2,
         "NE_INT_2:\n  On entry, l2 = 1 and lenc = -1.\n  Constraint: l2 <= lenc."},
        {"m01dcc l1 <= l2", [&](Zor_Fail* f) { m01dcc(ch, 4, 1, 2, 3, 2, 'A', irank, f); }, NE_INT_2,
         "NE_INT_2:\n  On entry, l1 = 3 and l2 = 2.\n  Constraint: l1 <= l2."},
        {"m01dec ldm", [&](Zor_Fail* f) { m01dec(rv, 2, 1, 3, 1, 1, 'A', irank, f); }, NE_INT_2,
         "NE_INT_2:\n  On entry, m2 = 3 and ldm = 2.\n  Constraint: m2 <= ldm."},
        {"m01dfc n2", [&](Zor_Fail* f) { m01dfc(iv, 2, 1, 2, 1, 0, 'A', irank, f); }, NE_INT,
         "NE_INT:\n  On entry, n2 = 0.\n  Constraint: n2 >= 1."},
        {"m01djc n1 <= n2", [&](Zor_Fail* f) { m01djc(rv, 2, 1, 2, 2, 1, 'A', irank, f); }, NE_INT_2,
         "NE_INT_2:\n  On entry, n1 = 2 and n2 = 1.\n  Constraint: n1 <= n2."},
        {"m01dkc n1", [&](Zor_Fail* f) { m01dkc(iv, 2, 1, 2, 0, 1, 'A', irank, f); }, NE_INT,
         "NE_INT:\n  On entry, n1 = 0.\n  Constraint: n1 >= 1."},
        {"m01dzc null compar", [&](Zor_Fail* f) { m01dzc(nullptr, 1, 2, irank, nullptr, f); }, NE_BAD_PARAM,
         "NE_BAD_PARAM:\n  On entry, parameter compar had an illegal value."},
        {"m01eac not a permutation", [&](Zor_Fail* f) { m01eac(rv, 1, 4, irank, f); }, NE_INTARR,
         "NE_INTARR:\n  On entry, irank[2] = 2.\n  Constraint: irank[m1-1..m2-1] holds a permutation of m1, ..., m2."},
        {"m01ecc negative lenc", [&](Zor_Fail* f) { m01ecc(ch, -2, 1, 2, irank, f); }, NE_BAD_PARAM,
         "NE_BAD_PARAM:\n  On entry, parameter lenc had an illegal value."},
        {"m01ecc null irank before negative lenc", [&](Zor_Fail* f) { m01ecc(ch, -2, 1, 2, nullptr, f); },
         NE_BAD_PARAM, "NE_BAD_PARAM:\n  On entry, parameter irank had an illegal value."},
        {"m01ncc null item before negative lenc", [&](Zor_Fail* f) { m01ncc(ch, -1, 1, 2, nullptr, f); },
         NE_BAD_PARAM, "NE_BAD_PARAM:\n  On entry, parameter item had an illegal value."},
        {"m01ncc negative lenc", [&](Zor_Fail* f) { m01ncc(ch, -1, 1, 2, "ab", f); }, NE_BAD_PARAM,
         "NE_BAD_PARAM:\n  On entry, parameter lenc had an illegal value."},
        {"m01nac m1 >= 1", [&](Zor_Fail* f) { m01nac(rv, 0, 2, 1.0, f); }, NE_INT,
         "NE_INT:\n  On entry, m1 = 0.\n  Constraint: m1 >= 1."},
        {"m01ncc m2 >= m1", [&](Zor_Fail* f) { m01ncc(ch, 2, 3, 2, "ab", f); }, NE_INT_2,
         "NE_INT_2:\n  On entry, m1 = 3 and m2 = 2.\n  Constraint: m2 >= m1."},
        {"m01ndc m1 <= m2 <= n", [&](Zor_Fail* f) { m01ndc(rv, 8, 2, 9, rv, 1, 0, idx, f); }, NE_INT_3,
         "NE_INT_3:\n  On entry, m1 = 2, m2 = 9 and n = 8.\n  Constraint: m1 <= m2 <= n."},
        {"m01zcc not a permutation", [&](Zor_Fail* f) { m01zcc(irank, 1, 4, idx, f); }, NE_INTARR,
         "NE_INTARR:\n  On entry, iperm[2] = 2.\n  Constraint: iperm[m1-1..m2-1] holds a permutation of m1, ..., m2."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.why);
        Zor_Fail fail{};
        c.call(&fail);
        EXPECT_EQ(fail.code, c.code);
        EXPECT_STREQ(fail.message, c.message);
    }
}

// ---------------------------------------------------------------------------------
// Ranking: stable, in either direction, against std::stable_sort.

template <class Less>
std::vector<Zor_Integer> oracle_ranks(std::size_t n, Zor_Integer m1, Less less)
{
    std::vector<std::size_t> idx(n);
    std::iota(idx.begin(), idx.end(), 0);
    std::stable_sort(idx.begin(), idx.end(), less);
    std::vector<Zor_Integer> r(n);
    for (std::size_t k = 0; k < n; ++k) r[idx[k]] = m1 + static_cast<Zor_Integer>(k);
    return r;
}

TEST(M01DAF, RanksAreStableInBothDirectionsWithNaNsAndSignedZeros)
{
    std::mt19937_64 rng(23);
    // Scattered keys take the quicksort path, keys in long runs the merge path.
    for (std::size_t n : {1u, 2u, 17u, 1000u, 40000u})
        for (char order : {'A', 'd'})
            for (bool runs : {false, true}) {
            std::vector<double> x(n);
            for (std::size_t i = 0; i < n; ++i) {
                const int k = static_cast<int>(rng() % 9);
                x[i] = k == 0 ? NAN : k == 1 ? -0.0 : k == 2 ? 0.0 : static_cast<double>(k % 4) - 1.5;
                if (runs && k != 0) x[i] = std::floor(std::min(i, n - i) / 7.0) - (k == 1 ? 0.0 : 0.0);
            }
            const bool desc = order == 'd';
            // NaN above every number, equal to NaN; -0 equal to +0.
            auto key = [&](std::size_t i) { return std::isnan(x[i]) ? INFINITY : x[i]; };
            auto nan_rank = [&](std::size_t i) { return std::isnan(x[i]) ? 1 : 0; };
            const auto want = oracle_ranks(n, 3, [&](std::size_t a, std::size_t b) {
                if (nan_rank(a) != nan_rank(b)) return desc ? nan_rank(a) > nan_rank(b) : nan_rank(a) < nan_rank(b);
                return desc ? key(a) > key(b) : key(a) < key(b);
            });
            std::vector<Zor_Integer> irank(n + 2, -9);
            const Zor_Integer m1 = 3, m2 = static_cast<Zor_Integer>(n) + 2;
            std::vector<double> padded(2, 99.0);
            padded.insert(padded.end(), x.begin(), x.end());
            Zor_Integer ifail = 1;
            M01DAF(padded.data(), &m1, &m2, &order, irank.data(), &ifail, 1);
            ASSERT_EQ(ifail, 0);
            EXPECT_EQ(irank[0], -9);
            EXPECT_EQ(irank[1], -9);
            EXPECT_EQ(std::vector<Zor_Integer>(irank.begin() + 2, irank.end()), want) << "n = " << n;
            }
}

TEST(M01Ranking, IntegersStringsRowsColumnsAndCallbackAgreeWithStableSort)
{
    std::mt19937_64 rng(31);
    const std::size_t n = 10000;  // above the size from which keys move with their offsets
    std::vector<Zor_Integer> iv(n), organ(n);
    for (auto& v : iv) v = static_cast<Zor_Integer>(rng() % 50) - 25 + (rng() % 97 == 0 ? INT_MIN + 30 : 0);
    for (std::size_t i = 0; i < n; ++i) organ[i] = static_cast<Zor_Integer>(std::min(i, n - 1 - i) / 3);
    for (char order : {'a', 'D'}) {
        const bool desc = order == 'D';
        std::vector<Zor_Integer> irank(n);
        const Zor_Integer m1 = 1, m2 = static_cast<Zor_Integer>(n);
        Zor_Integer ifail = 1;
        for (const auto* v : {&iv, &organ}) {
            M01DBF(v->data(), &m1, &m2, &order, irank.data(), &ifail, 1);
            EXPECT_EQ(irank, oracle_ranks(n, 1, [&](std::size_t a, std::size_t b) {
                          return desc ? (*v)[a] > (*v)[b] : (*v)[a] < (*v)[b];
                      }));
        }

        // Strings of 6, ranked on columns 2..4 (unsigned bytes).
        std::string ch(6 * n, ' ');
        for (char& c : ch) c = static_cast<char>("ab\xe9Z "[rng() % 5]);
        const Zor_Integer l1 = 2, l2 = 4;
        M01DCF(ch.data(), &m1, &m2, &l1, &l2, &order, irank.data(), &ifail, 6, 1);
        EXPECT_EQ(irank, oracle_ranks(n, 1, [&](std::size_t a, std::size_t b) {
                      const int c = std::memcmp(&ch[6 * a + 1], &ch[6 * b + 1], 3);
                      return desc ? c > 0 : c < 0;
                  }));

        // A 3000 x 4 matrix, rows ranked on columns 2..3; columns of its transpose.
        const Zor_Integer ldm = static_cast<Zor_Integer>(n) + 1, n1 = 2, n2 = 3;
        std::vector<double> rm(static_cast<std::size_t>(ldm) * 4);
        std::vector<Zor_Integer> im(rm.size());
        for (std::size_t i = 0; i < rm.size(); ++i) {
            rm[i] = static_cast<double>(rng() % 4) - 1.5;
            im[i] = static_cast<Zor_Integer>(rng() % 3);
        }
        auto row_less = [&](const auto& a, std::size_t r, std::size_t s) {
            for (std::size_t j = 1; j <= 2; ++j) {
                const auto x = a[j * ldm + r], y = a[j * ldm + s];
                if (x != y) return desc ? x > y : x < y;
            }
            return false;
        };
        M01DEF(rm.data(), &ldm, &m1, &m2, &n1, &n2, &order, irank.data(), &ifail, 1);
        EXPECT_EQ(irank, oracle_ranks(n, 1, [&](std::size_t a, std::size_t b) { return row_less(rm, a, b); }));
        M01DFF(im.data(), &ldm, &m1, &m2, &n1, &n2, &order, irank.data(), &ifail, 1);
        EXPECT_EQ(irank, oracle_ranks(n, 1, [&](std::size_t a, std::size_t b) { return row_less(im, a, b); }));

        // Columns: a 3 x 3000 matrix (ldm 4), ranked on rows 2..3.
        const Zor_Integer ld2 = 4, r1 = 2, r2 = 3, c1 = 1, c2 = static_cast<Zor_Integer>(n);
        auto col_less = [&](const auto& a, std::size_t c, std::size_t d) {
            for (std::size_t i = 1; i <= 2; ++i) {
                const auto x = a[c * 4 + i], y = a[d * 4 + i];
                if (x != y) return desc ? x > y : x < y;
            }
            return false;
        };
        M01DJF(rm.data(), &ld2, &r1, &r2, &c1, &c2, &order, irank.data(), &ifail, 1);
        EXPECT_EQ(irank, oracle_ranks(n, 1, [&](std::size_t a, std::size_t b) { return col_less(rm, a, b); }));
        M01DKF(im.data(), &ld2, &r1, &r2, &c1, &c2, &order, irank.data(), &ifail, 1);
        EXPECT_EQ(irank, oracle_ranks(n, 1, [&](std::size_t a, std::size_t b) { return col_less(im, a, b); }));
    }
}

Zor_Integer by_ruser(const Zor_Integer* i, const Zor_Integer* j, Zor_Integer iuser[], double ruser[])
{
    ++iuser[0];
    return ruser[*i - 1] < ruser[*j - 1];
}

Zor_Boolean coin(Zor_Integer, Zor_Integer, Zor_Comm* comm)
{
    auto* rng = static_cast<std::mt19937*>(comm->p);
    return static_cast<Zor_Boolean>((*rng)() & 1);
}

TEST(M01DZF, RanksThroughTheCallerAndSurvivesAnInconsistentComparison)
{
    std::mt19937_64 rng(41);
    const std::size_t n = 2500;
    std::vector<double> w(n);
    for (double& v : w) v = static_cast<double>(rng() % 20);
    std::vector<Zor_Integer> irank(n);
    Zor_Integer calls = 0, ifail = 1;
    const Zor_Integer m1 = 1, m2 = static_cast<Zor_Integer>(n);
    M01DZF(by_ruser, &m1, &m2, irank.data(), &calls, w.data(), &ifail);
    EXPECT_EQ(ifail, 0);
    EXPECT_GT(calls, 0);
    EXPECT_EQ(irank, oracle_ranks(n, 1, [&](std::size_t a, std::size_t b) { return w[a] < w[b]; }));

    // Random answers: some ranking, a permutation of 1..n, no fault.
    std::mt19937 coin_rng(5);
    Zor_Comm comm{&coin_rng, nullptr, nullptr, 0};
    Zor_Fail fail{};
    m01dzc(coin, 1, m2, irank.data(), &comm, &fail);
    EXPECT_EQ(fail.code, 0);
    std::vector<Zor_Integer> sorted = irank;
    std::sort(sorted.begin(), sorted.end());
    for (std::size_t i = 0; i < n; ++i) ASSERT_EQ(sorted[i], static_cast<Zor_Integer>(i + 1));
}

// ---------------------------------------------------------------------------------
// Rearranging and permutations.

TEST(M01EAF, RanksRearrangeIntoSortedOrderAndBadRanksLeaveTheVectorAlone)
{
    std::mt19937_64 rng(43);
    const std::size_t n = 5000;
    std::vector<double> rv(n);
    for (double& v : rv) v = static_cast<double>(rng() % 1000) / 7;
    std::vector<Zor_Integer> irank(n);
    Zor_Integer ifail = 1;
    const Zor_Integer m1 = 1, m2 = static_cast<Zor_Integer>(n);
    M01DAF(rv.data(), &m1, &m2, "A", irank.data(), &ifail, 1);
    std::vector<double> want = rv;
    std::stable_sort(want.begin(), want.end());
    std::vector<double> cv(2 * n);
    for (std::size_t i = 0; i < n; ++i) cv[2 * i] = rv[i], cv[2 * i + 1] = -rv[i];
    std::vector<Zor_Integer> iv(n);
    for (std::size_t i = 0; i < n; ++i) iv[i] = static_cast<Zor_Integer>(rv[i] * 7);
    std::string ch(n * 3, ' ');
    for (std::size_t i = 0; i < n; ++i) {
        char digits[16];
        std::snprintf(digits, sizeof digits, "%03u", static_cast<unsigned>(std::abs(rv[i] * 7)) % 1000u);
        ch.replace(3 * i, 3, digits, 3);
    }
    M01EAF(rv.data(), &m1, &m2, irank.data(), &ifail);
    EXPECT_EQ(rv, want);
    M01EDF(cv.data(), &m1, &m2, irank.data(), &ifail);
    for (std::size_t i = 0; i < n; ++i) ASSERT_TRUE(cv[2 * i] == want[i] && cv[2 * i + 1] == -want[i]);
    M01EBF(iv.data(), &m1, &m2, irank.data(), &ifail);
    EXPECT_TRUE(std::is_sorted(iv.begin(), iv.end()));
    M01ECF(ch.data(), &m1, &m2, irank.data(), &ifail, 3);
    for (std::size_t i = 0; i < n; ++i) ASSERT_EQ(std::stoi(ch.substr(3 * i, 3)), iv[i] % 1000);

    // Out of range, repeated, negative, huge: error 2, nothing moved.
    for (Zor_Integer bad : {0, 2, -1, INT_MAX, INT_MIN, static_cast<Zor_Integer>(n) + 1}) {
        std::vector<Zor_Integer> r(n);
        std::iota(r.begin(), r.end(), 1);
        std::reverse(r.begin(), r.end());
        r[n / 2] = bad;
        const std::vector<double> before = rv;
        ifail = 1;
        M01EAF(rv.data(), &m1, &m2, r.data(), &ifail);
        EXPECT_EQ(ifail, 2) << bad;
        EXPECT_EQ(rv, before);
    }
}

TEST(M01ZAF, InverseCyclesAndCheckOfRandomPermutations)
{
    std::mt19937_64 rng(47);
    for (std::size_t n : {1u, 2u, 7u, 1000u}) {
        const Zor_Integer m1 = 4, m2 = static_cast<Zor_Integer>(n) + 3;
        std::vector<Zor_Integer> p(n + 3, -77);
        std::iota(p.begin() + 3, p.end(), m1);
        std::shuffle(p.begin() + 3, p.end(), rng);
        Zor_Integer ifail = 1;
        M01ZBF(p.data(), &m1, &m2, &ifail);
        EXPECT_EQ(ifail, 0);
        std::vector<Zor_Integer> q = p;
        M01ZAF(q.data(), &m1, &m2, &ifail);
        ASSERT_EQ(ifail, 0);
        for (std::size_t i = 3; i < n + 3; ++i) ASSERT_EQ(q[p[i] - 1], static_cast<Zor_Integer>(i + 1));
        EXPECT_EQ(q[0], -77);
        // Cycles: follow each from its negated leader; leaders increase; every
        // element appears once.
        std::vector<Zor_Integer> c(n + 3, -77);
        M01ZCF(p.data(), &m1, &m2, c.data(), &ifail);
        ASSERT_EQ(ifail, 0);
        EXPECT_EQ(c[2], -77);
        Zor_Integer last_leader = 0;
        std::size_t k = 3;
        while (k < n + 3) {
            ASSERT_LT(c[k], 0);
            const Zor_Integer leader = -c[k];
            EXPECT_GT(leader, last_leader);
            last_leader = leader;
            Zor_Integer cur = leader;
            ++k;
            while (k < n + 3 && c[k] > 0) {
                ASSERT_EQ(c[k], p[cur - 1]);
                cur = c[k];
                EXPECT_GT(cur, leader);
                ++k;
            }
            EXPECT_EQ(p[cur - 1], leader);
        }
    }
    // A non-permutation: error 2, IPERM untouched.
    std::vector<Zor_Integer> p = {2, 3, 3, 1};
    const std::vector<Zor_Integer> before = p;
    const Zor_Integer m1 = 1, m2 = 4;
    Zor_Integer ifail = 1, icycl[4];
    M01ZAF(p.data(), &m1, &m2, &ifail);
    EXPECT_EQ(ifail, 2);
    EXPECT_EQ(p, before);
    M01ZCF(p.data(), &m1, &m2, icycl, &ifail);
    EXPECT_EQ(ifail, 2);
}

// ---------------------------------------------------------------------------------
// Searching.

TEST(M01NAF, AgreesWithUpperBoundOnSectionsAndNaN)
{
    std::vector<double> v = {-3, -1, -1, 0, 2, 2, 2, 5, 8, 13};
    std::vector<Zor_Integer> iv(v.begin(), v.end());
    for (Zor_Integer m1 = 1; m1 <= 10; ++m1)
        for (Zor_Integer m2 = m1; m2 <= 10; ++m2)
            for (double item : {-4.0, -3.0, -1.0, 0.5, 2.0, 7.0, 13.0, 20.0}) {
                const auto first = v.begin() + (m1 - 1), last = v.begin() + m2;
                const auto ub = std::upper_bound(first, last, item);
                const Zor_Integer want = ub == first ? 0 : static_cast<Zor_Integer>(ub - v.begin());
                Zor_Integer ifail = 1;
                EXPECT_EQ(M01NAF(v.data(), &m1, &m2, &item, &ifail), want);
                const Zor_Integer ii = static_cast<Zor_Integer>(std::floor(item));
                const auto ubi = std::upper_bound(iv.begin() + (m1 - 1), iv.begin() + m2, ii);
                const Zor_Integer wanti = ubi == iv.begin() + (m1 - 1) ? 0 : static_cast<Zor_Integer>(ubi - iv.begin());
                EXPECT_EQ(M01NBF(iv.data(), &m1, &m2, &ii, &ifail), wanti);
            }
    const double nan = NAN;
    const Zor_Integer m1 = 1, m2 = 10;
    Zor_Integer ifail = 1;
    EXPECT_EQ(M01NAF(v.data(), &m1, &m2, &nan, &ifail), 0);
    // A huge section near the integer limit: bisection arithmetic does not overflow.
    const Zor_Integer h1 = INT_MAX - 9, h2 = INT_MAX;
    const double item = 6.0;
    EXPECT_EQ(M01NAF(v.data() - (h1 - 1), &h1, &h2, &item, &ifail), h1 + 7);
}

TEST(M01NCF, ComparesAsFortranDoesWithBlankPadding)
{
    const char valid[] = "ant  bee  bee  cat  dog  ";   // 5 strings of 5
    const Zor_Integer m1 = 1, m2 = 5;
    struct Case {
        const char* item;
        Zor_Integer want;
    };
    const Case cases[] = {{"a", 0}, {"ant", 1}, {"ant   ", 1}, {"bee", 3}, {"bee\x01", 1}, {"beetle", 3},
                          {"c", 3}, {"zz", 5}, {"", 0}};
    for (const Case& c : cases) {
        Zor_Integer ifail = 1;
        EXPECT_EQ(M01NCF(valid, &m1, &m2, c.item, &ifail, 5, std::strlen(c.item)), c.want) << c.item;
        Zor_Fail fail{};
        EXPECT_EQ(m01ncc(valid, 5, 1, 5, c.item, &fail), c.want) << c.item;
    }
}

TEST(M01NDF, EveryModeAgreesWithALinearScan)
{
    std::mt19937_64 rng(53);
    std::vector<double> a(40);
    for (double& v : a) v = static_cast<double>(rng() % 15);
    std::sort(a.begin(), a.end());
    std::vector<double> x;
    for (int k = -2; k <= 32; ++k) x.push_back(k / 2.0);
    x.push_back(NAN);
    const Zor_Integer n = 40, m = static_cast<Zor_Integer>(x.size());
    std::vector<Zor_Integer> idx(x.size());
    for (Zor_Integer m1 : {1, 5, 40})
        for (Zor_Integer m2 : {m1, m1 + 1, 40}) {
            if (m2 > 40) continue;
            for (Zor_Integer mode = 0; mode <= 4; ++mode) {
                Zor_Integer ifail = 1;
                M01NDF(a.data(), &n, &m1, &m2, x.data(), &m, &mode, idx.data(), &ifail);
                ASSERT_EQ(ifail, 0);
                for (std::size_t k = 0; k < x.size(); ++k) {
                    const double xk = x[k];
                    Zor_Integer want = 0;
                    auto A = [&](Zor_Integer i) { return a[i - 1]; };
                    if (mode == 0) {
                        for (Zor_Integer i = m2; i >= m1; --i) if (A(i) == xk) want = i;
                    } else if (mode == 1) {
                        for (Zor_Integer i = m1; i <= m2; ++i) if (A(i) <= xk) want = i;
                    } else if (mode == 2) {
                        for (Zor_Integer i = m2; i >= m1; --i) if (A(i) >= xk) want = i;
                    } else if (mode == 3) {
                        want = m1;
                        for (Zor_Integer i = m1; i <= std::max(m1, m2 - 1); ++i) if (A(i) <= xk) want = i;
                    } else {
                        want = m1;
                        for (Zor_Integer i = m1 + 1; i <= m2; ++i)
                            if (std::fabs(A(i) - xk) < std::fabs(A(want) - xk)) want = i;
                    }
                    EXPECT_EQ(idx[k], want) << "mode " << mode << ", m1 " << m1 << ", m2 " << m2 << ", x " << xk;
                }
            }
        }
}

// ---------------------------------------------------------------------------------
// Sorting siblings and bad input.

TEST(M01CBF, SortsIntegersIncludingTheExtremes)
{
    std::mt19937_64 rng(59);
    for (std::size_t n : {1u, 16u, 20000u})
        for (char order : {'a', 'D'}) {
            std::vector<Zor_Integer> v(n);
            for (auto& x : v) x = static_cast<Zor_Integer>(rng());
            v[0] = INT_MIN;
            if (n > 1) v[n - 1] = INT_MAX;
            std::vector<Zor_Integer> want = v;
            std::sort(want.begin(), want.end());
            if (order == 'D') std::reverse(want.begin(), want.end());
            const Zor_Integer m1 = 1, m2 = static_cast<Zor_Integer>(n);
            Zor_Integer ifail = 1;
            M01CBF(v.data(), &m1, &m2, &order, &ifail, 1);
            EXPECT_EQ(v, want);
        }
}

TEST(M01CCF, SortsOnlyTheNamedColumnsAndHandlesFullLengthStrings)
{
    std::mt19937_64 rng(61);
    const std::size_t n = 500, len = 255;
    std::string ch(n * len, ' ');
    for (char& c : ch) c = static_cast<char>(rng() % 256);
    const std::string before = ch;
    const Zor_Integer m1 = 1, m2 = static_cast<Zor_Integer>(n), l1 = 250, l2 = 255;
    Zor_Integer ifail = 1;
    M01CCF(ch.data(), &m1, &m2, &l1, &l2, "A", &ifail, len, 1);
    ASSERT_EQ(ifail, 0);
    std::vector<std::string> got, want;
    for (std::size_t i = 0; i < n; ++i) {
        got.push_back(ch.substr(i * len, len));
        want.push_back(before.substr(i * len, len));
    }
    for (std::size_t i = 1; i < n; ++i)
        ASSERT_LE(std::memcmp(&got[i - 1][249], &got[i][249], 6), 0);
    std::sort(got.begin(), got.end());
    std::sort(want.begin(), want.end());
    EXPECT_EQ(got, want);   // whole strings moved, none changed
}

TEST(M01CAF, MEqualsM2AndTheSmallestSections)
{
    double rv[3] = {NAN, 2, 1};
    const Zor_Integer one = 1, two = 2, three = 3;
    Zor_Integer ifail = 1;
    M01CAF(rv, &two, &two, "A", &ifail, 1);
    EXPECT_EQ(ifail, 0);
    EXPECT_EQ(rv[1], 2);
    M01CAF(rv, &two, &three, "a", &ifail, 1);
    EXPECT_EQ(rv[1], 1);
    EXPECT_EQ(rv[2], 2);
    M01CAF(rv, &one, &three, "D", &ifail, 1);
    EXPECT_TRUE(std::isnan(rv[0]));
    EXPECT_EQ(rv[1], 2);
}

void hard_failure()
{
    double rv[1] = {0};
    Zor_Integer m1 = 0, m2 = 0, ifail = 0;
    M01CAF(rv, &m1, &m2, "A", &ifail, 1);
}

void no_record()
{
    double rv[1] = {0};
    m01cac(rv, 1, 1, 'Q', nullptr);
}

TEST(M01CAFDeathTest, IfailZeroStopsTheProgram)
{
    EXPECT_EXIT(hard_failure(), testing::ExitedWithCode(zor::hard_stop_status), "");
}

TEST(m01cacDeathTest, NoFailRecordEndsWithStatusOne)
{
    EXPECT_EXIT(no_record(), testing::ExitedWithCode(1), "ZOR Function Terminated");
}

}  // namespace
