// tests/concurrency_test.cpp — the frame from several threads at once: unit get/set,
// machine constants, quiet error exits, c exits into per-thread records, and records
// written to one shared file. Run under ThreadSanitizer by "make check-tsan" (label
// "concurrency"); each thread checks that it saw only its own results.
#include <gtest/gtest.h>

#include <atomic>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "frame/frame.hpp"
#include "zor.h"

namespace {

constexpr int nthreads = 4;
constexpr int rounds = 400;

// Starts all threads together and joins them; each returns its count of faults.
template <class Body>
int run_threads(Body body)
{
    std::atomic<int> ready{0};
    std::atomic<int> faults{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < nthreads; ++t)
        threads.emplace_back([&, t] {
            ready.fetch_add(1);
            while (ready.load() < nthreads) std::this_thread::yield();
            faults.fetch_add(body(t));
        });
    for (std::thread& th : threads) th.join();
    return faults.load();
}

constexpr zor::FRecord x00aaf_records[] = {
    {1, 1001, {" ** On entry, n = %1.", " ** Constraint: n >= 1."}},
};
constexpr zor::CMessage x00aac_messages[] = {
    {1001, NE_INT, "NE_INT:\n  On entry, n = %s.\n  Constraint: n >= 1."},
};

thread_local int handler_calls = 0;
void count_handler(const char*, int, const char*) { ++handler_calls; }

TEST(Concurrency, UnitsConstantsAndExitsFromManyThreads)
{
    const Zor_Integer get = 0, set = 1;
    Zor_Integer saved_err = 6, saved_adv = 6;
    X04AAF(&get, &saved_err);
    X04ABF(&get, &saved_adv);
    // Units that the threads set: every get must return one of them (never a torn value).
    const std::set<Zor_Integer> units = {6, 1000, 2000, 3000, 4000};

    const int faults = run_threads([&](int t) {
        int bad = 0;
        for (int i = 0; i < rounds; ++i) {
            // Units: set and get, error and advisory.
            Zor_Integer unit = 1000 * (t + 1);
            X04AAF(&set, &unit);
            X04ABF(&set, &unit);
            Zor_Integer got_err = -1, got_adv = -1;
            X04AAF(&get, &got_err);
            X04ABF(&get, &got_adv);
            bad += !units.count(got_err) + !units.count(got_adv);

            // Machine constants.
            bad += X02AJF() != 0x1p-53;
            bad += X02AMF() != 0x1.0000000000001p-1022;
            bad += X02BKF() != -1021;

            // F routines failing quietly (IFAIL = 1): X04ACF with a bad mode, then an
            // imaginary routine whose value text is the thread's own.
            const Zor_Integer nout = 70 + t;
            const Zor_Integer mode = 3 + t;
            Zor_Integer ifail = 1;
            X04ACF(&nout, "unused", &mode, &ifail, 6);
            bad += ifail != 2;
            char buf[zor::msgbuf_len];
            zor::Message msg(buf);
            const int err = msg.fail(1, 1001, -t - 1000 * i);
            Zor_Integer ifail2 = 1;
            zor::f_exit(&ifail2, err, buf, "x00aaf", x00aaf_records);
            bad += ifail2 != 1;
            Zor_Integer ifail3 = 7;
            zor::f_exit(&ifail3, 2, buf, "x00aaf", x00aaf_records);   // undocumented: -99
            bad += ifail3 != -99;

            // The c exit into a record of this thread's own.
            Zor_Fail fail{};
            fail.handler = count_handler;
            zor::c_begin(&fail);
            zor::c_exit(&fail, err, buf, "x00aac", x00aac_messages);
            const std::string want = "NE_INT:\n  On entry, n = " + std::to_string(-t - 1000 * i) +
                                     ".\n  Constraint: n >= 1.";
            bad += fail.code != NE_INT || fail.errnum != 1 || want != fail.message;
            zor::c_exit(&fail, 0, buf, "x00aac", x00aac_messages);
            bad += fail.code != 0;

            // A record to a silenced unit: no output, no failure.
            const Zor_Integer silent = -1;
            X04BAF(&silent, "nothing", 7);
        }
        bad += handler_calls != 2 * rounds;
        return bad;
    });
    EXPECT_EQ(faults, 0);
    X04AAF(&set, &saved_err);
    X04ABF(&set, &saved_adv);
}

TEST(Concurrency, RecordsFromManyThreadsStayWhole)
{
    const std::string path = testing::TempDir() + "zor_concurrent_records.txt";
    const Zor_Integer unit = 63, mode = 1;
    Zor_Integer ifail = 0;
    X04ACF(&unit, path.c_str(), &mode, &ifail, path.size());
    ASSERT_EQ(ifail, 0);
    const int faults = run_threads([&](int t) {
        int bad = 0;
        for (int i = 0; i < rounds / 4; ++i) {
            char rec[80];
            std::memset(rec, ' ', sizeof rec);
            const int n = std::snprintf(rec, sizeof rec, "thread %d record %d", t, i);
            rec[n] = ' ';
            Zor_Context ctx;
            Y90HAAN(&ctx);
            Zor_Integer status = -1;
            X04BAZN(&ctx, &unit, rec, &status, sizeof rec);
            bad += status != 0;
        }
        return bad;
    });
    EXPECT_EQ(faults, 0);
    X04ADF(&unit, &ifail);
    ASSERT_EQ(ifail, 0);
    // Lines may interleave between threads, but each record is whole and appears once.
    std::ifstream in(path);
    std::set<std::string> seen;
    std::string line;
    while (std::getline(in, line)) EXPECT_TRUE(seen.insert(line).second) << line;
    EXPECT_EQ(seen.size(), static_cast<std::size_t>(nthreads * (rounds / 4)));
    for (int t = 0; t < nthreads; ++t)
        EXPECT_TRUE(seen.count("thread " + std::to_string(t) + " record 0"));
    std::remove(path.c_str());
}

}  // namespace
