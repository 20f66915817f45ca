// bench/frame.cpp — the cost of a successful call through the frame: context record,
// kernel, exit. Neither path allocates; the counter "allocs" proves it per call.
#include <benchmark/benchmark.h>

#include <atomic>
#include <cstdlib>
#include <new>

#include "frame/frame.hpp"
#include "zor.h"

static std::atomic<long> allocations{0};
void* operator new(std::size_t n)
{
    allocations.fetch_add(1, std::memory_order_relaxed);
    if (void* p = std::malloc(n ? n : 1)) return p;
    throw std::bad_alloc();
}
void operator delete(void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }

static void BM_X02AJF(benchmark::State& st)
{
    for (auto _ : st) benchmark::DoNotOptimize(X02AJF());
}
BENCHMARK(BM_X02AJF);

static void BM_X04AAF_get(benchmark::State& st)
{
    const Zor_Integer iflag = 0;
    Zor_Integer nerr = 0;
    for (auto _ : st) {
        X04AAF(&iflag, &nerr);
        benchmark::DoNotOptimize(nerr);
    }
}
BENCHMARK(BM_X04AAF_get);

// The shape of every F routine: context, kernel (here: check one argument and return),
// exit with error 0.
static void BM_FRoutineSuccess(benchmark::State& st)
{
    static constexpr zor::FRecord records[] = {{1, 1001, {" ** On entry, n = %1.", " ** Constraint: n >= 1."}}};
    const long before = allocations.load();
    Zor_Integer n = 5, ifail = -1;
    for (auto _ : st) {
        Zor_Context ctx;
        Y90HAAN(&ctx);
        char msgbuf[zor::msgbuf_len];
        zor::Message msg(msgbuf);
        const int ierr = n >= 1 ? 0 : msg.fail(1, 1001, n);
        zor::f_exit(&ifail, ierr, msgbuf, "x00aaf", records);
        benchmark::DoNotOptimize(ifail);
    }
    st.counters["allocs"] = benchmark::Counter(static_cast<double>(allocations.load() - before),
                                               benchmark::Counter::kAvgIterations);
}
BENCHMARK(BM_FRoutineSuccess);

// The c interface's success path: begin, kernel, exit with error 0 into a record.
static void BM_CRoutineSuccess(benchmark::State& st)
{
    static constexpr zor::CMessage messages[] = {{1001, NE_INT, "NE_INT:\n  On entry, n = %s.\n  Constraint: n >= 1."}};
    const long before = allocations.load();
    Zor_Fail fail{};
    Zor_Integer n = 5;
    for (auto _ : st) {
        zor::c_begin(&fail);
        char msgbuf[zor::msgbuf_len];
        zor::Message msg(msgbuf);
        const int ierr = n >= 1 ? 0 : msg.fail(1, 1001, n);
        zor::c_exit(&fail, ierr, msgbuf, "x00aac", messages);
        benchmark::DoNotOptimize(fail.code);
    }
    st.counters["allocs"] = benchmark::Counter(static_cast<double>(allocations.load() - before),
                                               benchmark::Counter::kAvgIterations);
}
BENCHMARK(BM_CRoutineSuccess);

BENCHMARK_MAIN();
