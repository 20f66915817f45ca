// bench/minimize.cpp — E04ABF and E04BBF (through E04ABA and E04BBA) on the smooth unimodal
// problems of optimization/test/e04_problems.hpp beside GSL's Brent minimizer
// (gsl_min_fminimizer_brent), Boost.Math's brent_find_minima and SciPy's fminbound:
// function calls and position error per problem (printed once, before the timings) and
// time per problem.
//
// Matched accuracy: every method is asked for the same tolerance,
// tol(x) = 2^-26*|x| + 2^-28, with Brent's stopping rule |x - m| <= 2 tol - (b - a)/2:
// E04ABF/E04BBF with E1 = 2^-26, E2 = 2^-28; Boost with bits = 27 (its tolerance
// 2^(1-bits)*|x| + 2^(1-bits)/4); SciPy with xtol = 3*2^-28 (its tol sqrt(eps)*|x| +
// xtol/3). GSL stops on the interval width instead: |b - a| < 2^-26 + 2^-24*min(|a|,|b|),
// four times the tolerance, the width Brent's rule leaves. GSL needs a starting point
// below both ends: the first of a + 0.382 L, a + 0.618 L, a + 0.5 L that is, every call
// to find it counted.
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>

#include "optimization/test/e04_problems.hpp"
#include "zor.h"
#ifdef ZOR_HAVE_GSL
#include <gsl/gsl_errno.h>
#include <gsl/gsl_min.h>
#endif
#ifdef ZOR_HAVE_BOOST
#include <boost/math/tools/minima.hpp>
#endif

using zor::optimization::testing_util::Problem;
using zor::optimization::testing_util::problems;

namespace {

constexpr double rel_tol = 0x1p-26, abs_tol = 0x1p-28;
constexpr int nproblems = static_cast<int>(std::size(problems));

// SciPy 1.10.1 fminbound function calls and |x - xmin| at the matched tolerance.
// Produced by: /usr/bin/python3 tools/fminbound_counts.py
struct FminboundCount {
    const char* name;
    int calls;
    double error;
};
constexpr FminboundCount fminbound_counts[] = {
    {"(x-2.385)^2+1", 6, 0.000e+00},
    {"cos x", 8, 4.967e-09},
    {"exp(x)-2x", 11, 2.079e-10},
    {"sin(x)/x", 12, 2.756e-10},
    {"x log x", 9, 1.290e-09},
    {"x^4-3x+1", 12, 3.190e-09},
    {"2/x+3x", 14, 1.026e-09},
    {"exp(-x)+x^2", 10, 2.673e-11},
    {"-exp(-x)sin(3x)", 11, 4.765e-10},
    {"cosh(x-1234.5)", 9, 3.628e-07},
};
static_assert(std::size(fminbound_counts) == std::size(problems));

struct Outcome {
    int calls = 0;
    double x = NAN;
};

// iuser[0]: the problem, iuser[1]: the calls.
void value(const double* xc, double* fc, Zor_Integer iuser[], double[])
{
    ++iuser[1];
    *fc = problems[iuser[0]].f(*xc);
}
void value_and_slope(const double* xc, double* fc, double* gc, Zor_Integer iuser[], double[])
{
    ++iuser[1];
    *fc = problems[iuser[0]].f(*xc);
    *gc = problems[iuser[0]].g(*xc);
}

Outcome run_e04aba(int k)
{
    const Problem& p = problems[k];
    double e1 = rel_tol, e2 = abs_tol, a = p.a, b = p.b, x = 0, f = 0;
    Zor_Integer maxcal = 1000, ifail = 1, iuser[2] = {k, 0};
    E04ABA(value, &e1, &e2, &a, &b, &maxcal, &x, &f, iuser, nullptr, &ifail);
    return {static_cast<int>(iuser[1]), x};
}

Outcome run_e04bba(int k)
{
    const Problem& p = problems[k];
    double e1 = rel_tol, e2 = abs_tol, a = p.a, b = p.b, x = 0, f = 0, g = 0;
    Zor_Integer maxcal = 1000, ifail = 1, iuser[2] = {k, 0};
    E04BBA(value_and_slope, &e1, &e2, &a, &b, &maxcal, &x, &f, &g, iuser, nullptr, &ifail);
    return {static_cast<int>(iuser[1]), x};
}

#ifdef ZOR_HAVE_GSL
struct GslData {
    int k;
    int calls;
};
double gsl_value(double x, void* params)
{
    auto* d = static_cast<GslData*>(params);
    ++d->calls;
    return problems[d->k].f(x);
}

Outcome run_gsl(int k)
{
    const Problem& p = problems[k];
    GslData data{k, 0};
    gsl_function fn{gsl_value, &data};
    const double L = p.b - p.a;
    const double fa = gsl_value(p.a, &data), fb = gsl_value(p.b, &data);
    double guess = NAN, fguess = NAN;
    for (double t : {0.381966, 0.618034, 0.5}) {
        const double x = p.a + t * L, fx = gsl_value(x, &data);
        if (fx < fa && fx < fb) {
            guess = x;
            fguess = fx;
            break;
        }
    }
    if (std::isnan(guess)) return {data.calls, NAN};
    gsl_min_fminimizer* s = gsl_min_fminimizer_alloc(gsl_min_fminimizer_brent);
    gsl_min_fminimizer_set_with_values(s, &fn, guess, fguess, p.a, fa, p.b, fb);
    for (int iter = 0; iter < 1000; ++iter) {
        gsl_min_fminimizer_iterate(s);
        const double lo = gsl_min_fminimizer_x_lower(s), hi = gsl_min_fminimizer_x_upper(s);
        if (gsl_min_test_interval(lo, hi, 4.0 * abs_tol, 4.0 * rel_tol) == GSL_SUCCESS) break;
    }
    const double x = gsl_min_fminimizer_x_minimum(s);
    gsl_min_fminimizer_free(s);
    return {data.calls, x};
}
#endif

#ifdef ZOR_HAVE_BOOST
Outcome run_boost(int k)
{
    const Problem& p = problems[k];
    int calls = 0;
    auto f = [&](double x) {
        ++calls;
        return p.f(x);
    };
    boost::uintmax_t max_iter = 1000;
    const auto r = boost::math::tools::brent_find_minima(f, p.a, p.b, 27, max_iter);
    return {calls, r.first};
}
#endif

void print_calls_table()
{
    std::printf("Function calls (|x - xmin|) at tol(x) = 2^-26|x| + 2^-28\n");
    std::printf("%-16s %16s %16s %16s %16s %16s\n", "problem", "E04ABF", "E04BBF", "GSL brent",
                "Boost brent", "SciPy fminbound");
    int tot[5] = {0, 0, 0, 0, 0};
    for (int k = 0; k < nproblems; ++k) {
        const Problem& p = problems[k];
        Outcome o[4] = {run_e04aba(k), run_e04bba(k), {}, {}};
#ifdef ZOR_HAVE_GSL
        o[2] = run_gsl(k);
#endif
#ifdef ZOR_HAVE_BOOST
        o[3] = run_boost(k);
#endif
        std::printf("%-16s", p.name);
        for (int m = 0; m < 4; ++m) {
            std::printf(" %4d (%8.1e)", o[m].calls, std::fabs(o[m].x - p.xmin));
            tot[m] += o[m].calls;
        }
        std::printf(" %4d (%8.1e)\n", fminbound_counts[k].calls, fminbound_counts[k].error);
        tot[4] += fminbound_counts[k].calls;
    }
    std::printf("%-16s %16d %16d %16d %16d %16d\n", "total", tot[0], tot[1], tot[2], tot[3],
                tot[4]);
    if (tot[2] > 0 && tot[3] > 0)
        std::printf("calls E04ABF/GSL %.2f, E04ABF/Boost %.2f, E04ABF/SciPy %.2f, "
                    "E04BBF/E04ABF %.2f, E04BBF/SciPy %.2f\n\n",
                    double(tot[0]) / tot[2], double(tot[0]) / tot[3], double(tot[0]) / tot[4],
                    double(tot[1]) / tot[0], double(tot[1]) / tot[4]);
}

template <Outcome (*Run)(int)>
void BM_minimize(benchmark::State& st)
{
    const int k = static_cast<int>(st.range(0));
    st.SetLabel(problems[k].name);
    Outcome o;
    for (auto _ : st) {
        o = Run(k);
        benchmark::DoNotOptimize(o);
    }
    st.counters["calls"] = o.calls;
}

}  // namespace

BENCHMARK(BM_minimize<run_e04aba>)->Name("E04ABF")->DenseRange(0, nproblems - 1);
BENCHMARK(BM_minimize<run_e04bba>)->Name("E04BBF")->DenseRange(0, nproblems - 1);
#ifdef ZOR_HAVE_GSL
BENCHMARK(BM_minimize<run_gsl>)->Name("GSL_brent")->DenseRange(0, nproblems - 1);
#endif
#ifdef ZOR_HAVE_BOOST
BENCHMARK(BM_minimize<run_boost>)->Name("Boost_brent_find_minima")->DenseRange(0, nproblems - 1);
#endif

int main(int argc, char** argv)
{
    print_calls_table();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
