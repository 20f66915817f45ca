// bench/sorting.cpp — M01CAF against std::sort and GSL's gsl_sort on the same inputs
// (random, sorted, reversed, organ-pipe, all equal, McIlroy's adversary), and M01DAF
// against std::stable_sort of an index vector. Only the sort is timed (manual time,
// the thread's processor time): each iteration first copies the input into the buffer
// outside the timed region.
// Ratios: run with --benchmark_format=json and divide the real times of the same
// input and size (M01CAF / std::sort, M01CAF adversary / M01CAF random, ...).
#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <cstring>
#include <numeric>
#include <random>
#include <vector>

#include "sorting/quicksort.hpp"
#include "zor_m01.h"

#ifdef ZOR_HAVE_GSL
#include <gsl/gsl_sort.h>
#endif

namespace {

enum Input { random_input, sorted_input, reversed_input, organ_pipe_input, all_equal_input, adversary_input };
const char* const input_names[] = {"random", "sorted", "reversed", "organ-pipe", "all-equal", "adversary"};

// McIlroy's adversary ("A killer adversary for quicksort", 1999), played against the
// library's own sort with its work bound: the input it leaves drives the partitioning
// to the bound, after which heapsort finishes.
std::vector<double> adversary(std::size_t n)
{
    const long gas = static_cast<long>(n);
    std::vector<long> val(n, gas);
    long nsolid = 0, candidate = -1;
    std::vector<std::uint32_t> ids(n);
    std::iota(ids.begin(), ids.end(), 0u);
    zor::sorting::quicksort(std::span<std::uint32_t>(ids), [&](std::uint32_t x, std::uint32_t y) {
        if (val[x] == gas && val[y] == gas) {
            if (static_cast<long>(x) == candidate)
                val[x] = nsolid++;
            else
                val[y] = nsolid++;
        }
        if (val[x] == gas)
            candidate = x;
        else if (val[y] == gas)
            candidate = y;
        return val[x] < val[y];
    });
    return std::vector<double>(val.begin(), val.end());
}

const std::vector<double>& input(int kind, std::size_t n)
{
    static std::vector<std::vector<double>> cache[6];
    static std::vector<std::size_t> sizes[6];
    for (std::size_t i = 0; i < sizes[kind].size(); ++i)
        if (sizes[kind][i] == n) return cache[kind][i];
    std::vector<double> v(n);
    std::mt19937_64 rng(42);
    std::uniform_real_distribution<double> u(0.0, 1.0);
    switch (kind) {
    case random_input: for (double& x : v) x = u(rng); break;
    case sorted_input: for (std::size_t i = 0; i < n; ++i) v[i] = static_cast<double>(i); break;
    case reversed_input: for (std::size_t i = 0; i < n; ++i) v[i] = static_cast<double>(n - i); break;
    case organ_pipe_input: for (std::size_t i = 0; i < n; ++i) v[i] = static_cast<double>(std::min(i, n - 1 - i)); break;
    case all_equal_input: std::fill(v.begin(), v.end(), 1.5); break;
    default: v = adversary(n); break;
    }
    sizes[kind].push_back(n);
    cache[kind].push_back(std::move(v));
    return cache[kind].back();
}

// The machine is shared: the time measured is the thread's processor time.
double thread_seconds()
{
    timespec ts;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
    return static_cast<double>(ts.tv_sec) + 1e-9 * static_cast<double>(ts.tv_nsec);
}

template <class Sort>
void run(benchmark::State& st, Sort sort)
{
    const int kind = static_cast<int>(st.range(0));
    const std::size_t n = static_cast<std::size_t>(st.range(1));
    const std::vector<double>& in = input(kind, n);
    std::vector<double> buf(n);
    st.SetLabel(input_names[kind]);
    for (auto _ : st) {
        std::memcpy(buf.data(), in.data(), n * sizeof(double));
        const double t0 = thread_seconds();
        sort(buf.data(), n);
        const double t1 = thread_seconds();
        benchmark::DoNotOptimize(buf.data());
        st.SetIterationTime(t1 - t0);
    }
    if (!std::is_sorted(buf.begin(), buf.end())) st.SkipWithError("not sorted");
}

void BM_M01CAF(benchmark::State& st)
{
    run(st, [](double* v, std::size_t n) {
        const Zor_Integer m1 = 1, m2 = static_cast<Zor_Integer>(n);
        Zor_Integer ifail = 1;
        M01CAF(v, &m1, &m2, "A", &ifail, 1);
    });
}

void BM_std_sort(benchmark::State& st)
{
    run(st, [](double* v, std::size_t n) { std::sort(v, v + n); });
}

#ifdef ZOR_HAVE_GSL
void BM_gsl_sort(benchmark::State& st)
{
    run(st, [](double* v, std::size_t n) { gsl_sort(v, 1, n); });
}
#endif

void inputs(benchmark::internal::Benchmark* b)
{
    for (long n : {1000L, 100000L})
        for (int k = 0; k < 6; ++k) b->Args({k, n});
    for (int k : {random_input, organ_pipe_input, adversary_input}) b->Args({k, 10000000L});
    b->UseManualTime()->Unit(benchmark::kMicrosecond);
}

BENCHMARK(BM_M01CAF)->Apply(inputs);
BENCHMARK(BM_std_sort)->Apply(inputs);
#ifdef ZOR_HAVE_GSL
BENCHMARK(BM_gsl_sort)->Apply(inputs);
#endif

// Ranking: M01DAF against std::stable_sort of the positions by their values.
void rank_inputs(benchmark::internal::Benchmark* b)
{
    for (long n : {1000L, 100000L, 1000000L})
        for (int k : {random_input, organ_pipe_input}) b->Args({k, n});
    b->Unit(benchmark::kMicrosecond);
}

void BM_M01DAF(benchmark::State& st)
{
    const int kind = static_cast<int>(st.range(0));
    const std::size_t n = static_cast<std::size_t>(st.range(1));
    const std::vector<double>& in = input(kind, n);
    std::vector<Zor_Integer> irank(n);
    st.SetLabel(input_names[kind]);
    for (auto _ : st) {
        const Zor_Integer m1 = 1, m2 = static_cast<Zor_Integer>(n);
        Zor_Integer ifail = 1;
        M01DAF(in.data(), &m1, &m2, "A", irank.data(), &ifail, 1);
        benchmark::DoNotOptimize(irank.data());
    }
}

void BM_stable_sort_index(benchmark::State& st)
{
    const int kind = static_cast<int>(st.range(0));
    const std::size_t n = static_cast<std::size_t>(st.range(1));
    const std::vector<double>& in = input(kind, n);
    std::vector<Zor_Integer> idx(n), irank(n);
    st.SetLabel(input_names[kind]);
    for (auto _ : st) {
        std::iota(idx.begin(), idx.end(), 0);
        std::stable_sort(idx.begin(), idx.end(), [&](Zor_Integer a, Zor_Integer b) { return in[a] < in[b]; });
        for (std::size_t r = 0; r < n; ++r) irank[idx[r]] = static_cast<Zor_Integer>(r + 1);
        benchmark::DoNotOptimize(irank.data());
    }
}

BENCHMARK(BM_M01DAF)->Apply(rank_inputs);
BENCHMARK(BM_stable_sort_index)->Apply(rank_inputs);

}  // namespace

BENCHMARK_MAIN();
