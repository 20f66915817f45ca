// bench/zeros.cpp — C05AZF and C05AYF on the Alefeld-Potra-Shi test problems beside
// GSL's Brent solver (gsl_root_fsolver_brent), Boost.Math's toms748_solve and SciPy's
// brentq: function evaluations per problem (printed once, before the timings) and time
// per problem family. Every solver stops at a bracket of width 2e-12 (SciPy: xtol 2e-12
// and its default rtol of 4 machine epsilons, so that it stops once the bracket is
// narrower than 2e-12 + 4 eps |x|, a shade looser than ZOR's IR = 2 test) and every
// evaluation counts, the two ends included (SciPy's function_calls counts them too;
// neither brentq nor ZOR evaluates a point after the bracket has met its test).
//
// Measured with the Alefeld-Potra-Shi step, Chandrupatla's test, a third interpolation
// point carried 1% beyond the zero in place of the double-length secant step, and the
// Illinois step across flat stretches (zeros/c05az_step.cpp), evaluations in all 154
// problems: C05AZF 2116, C05AYF 2112, GSL Brent 2723, Boost toms748 2635, SciPy brentq
// 2662 (C05AZF / brentq = 0.795); at tolx 1e-15, IR = 0: 2146 against brentq's 2696.
// By family (C05AZF / brentq): 4: 194/226, 14: 600/680, 15: 580/1009 ahead;
// 9, 10, 11: 61/56, 54/50, 52/43 behind; the others at most one behind.
// For comparison, on the same problems with the same stopping test and counting:
// Chandrupatla's method as published (Adv. Eng. Software 28 (1997) 145-149) 2593; the ITP method (Oliveira and
// Takahashi, ACM TOMS 47 (2020) 5) with regula falsi, n0 = 1, k2 = 2, k1 = 0.2/(b-a),
// 3817 (at best 3514 over k1 from 0.05 to 0.5, k2 from 1.5 to 2.5, n0 from 0 to 2).

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <map>
#include <string>

#include "zeros/test/aps_problems.hpp"
#include "zor.h"
#ifdef ZOR_HAVE_GSL
#include <gsl/gsl_errno.h>
#include <gsl/gsl_roots.h>
#endif
#ifdef ZOR_HAVE_BOOST
#include <boost/math/tools/toms748_solve.hpp>
#endif

namespace aps = zor::zeros::aps;

namespace {

constexpr double width = 2e-12;

// SciPy 1.10.1 brentq function calls: {id, at xtol 2e-12, at xtol 1e-15}.
// Produced by: /usr/bin/python3 tools/brentq_counts.py
struct BrentqCount {
    const char* id;
    int at_2e12, at_1e15;
};
constexpr BrentqCount brentq_counts[] = {
    {"aps.01.00", 9, 9},
    {"aps.02.00", 15, 15},
    {"aps.02.01", 9, 11},
    {"aps.02.02", 15, 15},
    {"aps.02.03", 13, 13},
    {"aps.02.04", 13, 13},
    {"aps.02.05", 12, 13},
    {"aps.02.06", 12, 12},
    {"aps.02.07", 12, 12},
    {"aps.02.08", 12, 12},
    {"aps.02.09", 11, 12},
    {"aps.03.00", 17, 17},
    {"aps.03.01", 19, 19},
    {"aps.03.02", 20, 20},
    {"aps.04.00", 15, 15},
    {"aps.04.01", 17, 17},
    {"aps.04.02", 17, 18},
    {"aps.04.03", 17, 17},
    {"aps.04.04", 18, 18},
    {"aps.04.05", 15, 15},
    {"aps.04.06", 15, 15},
    {"aps.04.07", 15, 15},
    {"aps.04.08", 16, 16},
    {"aps.04.09", 17, 17},
    {"aps.04.10", 15, 15},
    {"aps.04.11", 16, 16},
    {"aps.04.12", 16, 16},
    {"aps.04.13", 17, 17},
    {"aps.05.00", 9, 9},
    {"aps.06.00", 8, 8},
    {"aps.06.01", 10, 10},
    {"aps.06.02", 9, 9},
    {"aps.06.03", 10, 10},
    {"aps.06.04", 10, 10},
    {"aps.06.05", 13, 13},
    {"aps.06.06", 13, 13},
    {"aps.06.07", 14, 15},
    {"aps.06.08", 14, 14},
    {"aps.06.09", 14, 15},
    {"aps.07.00", 9, 10},
    {"aps.07.01", 9, 9},
    {"aps.07.02", 8, 8},
    {"aps.08.00", 3, 3},
    {"aps.08.01", 9, 9},
    {"aps.08.02", 10, 11},
    {"aps.08.03", 11, 12},
    {"aps.08.04", 13, 13},
    {"aps.09.00", 10, 10},
    {"aps.09.01", 11, 11},
    {"aps.09.02", 8, 8},
    {"aps.09.03", 7, 8},
    {"aps.09.04", 7, 7},
    {"aps.09.05", 7, 7},
    {"aps.09.06", 6, 7},
    {"aps.10.00", 8, 9},
    {"aps.10.01", 9, 9},
    {"aps.10.02", 9, 10},
    {"aps.10.03", 12, 12},
    {"aps.10.04", 12, 13},
    {"aps.11.00", 4, 4},
    {"aps.11.01", 12, 12},
    {"aps.11.02", 13, 13},
    {"aps.11.03", 14, 14},
    {"aps.12.00", 6, 6},
    {"aps.12.01", 10, 11},
    {"aps.12.02", 11, 11},
    {"aps.12.03", 11, 11},
    {"aps.12.04", 11, 11},
    {"aps.12.05", 11, 11},
    {"aps.12.06", 11, 11},
    {"aps.12.07", 11, 11},
    {"aps.12.08", 10, 10},
    {"aps.12.09", 10, 10},
    {"aps.12.10", 10, 10},
    {"aps.12.11", 11, 11},
    {"aps.12.12", 11, 11},
    {"aps.12.13", 11, 11},
    {"aps.12.14", 10, 10},
    {"aps.12.15", 10, 10},
    {"aps.12.16", 10, 10},
    {"aps.12.17", 10, 10},
    {"aps.12.18", 10, 10},
    {"aps.13.00", 18, 18},
    {"aps.14.00", 17, 17},
    {"aps.14.01", 17, 17},
    {"aps.14.02", 17, 17},
    {"aps.14.03", 17, 17},
    {"aps.14.04", 17, 17},
    {"aps.14.05", 17, 17},
    {"aps.14.06", 17, 17},
    {"aps.14.07", 17, 17},
    {"aps.14.08", 17, 17},
    {"aps.14.09", 17, 17},
    {"aps.14.10", 17, 17},
    {"aps.14.11", 17, 17},
    {"aps.14.12", 17, 17},
    {"aps.14.13", 17, 17},
    {"aps.14.14", 17, 17},
    {"aps.14.15", 17, 17},
    {"aps.14.16", 17, 17},
    {"aps.14.17", 17, 17},
    {"aps.14.18", 17, 17},
    {"aps.14.19", 17, 17},
    {"aps.14.20", 17, 17},
    {"aps.14.21", 17, 17},
    {"aps.14.22", 17, 17},
    {"aps.14.23", 17, 17},
    {"aps.14.24", 17, 17},
    {"aps.14.25", 17, 17},
    {"aps.14.26", 17, 17},
    {"aps.14.27", 17, 17},
    {"aps.14.28", 17, 17},
    {"aps.14.29", 17, 17},
    {"aps.14.30", 17, 17},
    {"aps.14.31", 17, 17},
    {"aps.14.32", 17, 17},
    {"aps.14.33", 17, 17},
    {"aps.14.34", 17, 17},
    {"aps.14.35", 17, 17},
    {"aps.14.36", 17, 17},
    {"aps.14.37", 17, 17},
    {"aps.14.38", 17, 17},
    {"aps.14.39", 17, 17},
    {"aps.15.00", 32, 32},
    {"aps.15.01", 32, 32},
    {"aps.15.02", 32, 32},
    {"aps.15.03", 32, 32},
    {"aps.15.04", 31, 32},
    {"aps.15.05", 31, 32},
    {"aps.15.06", 31, 32},
    {"aps.15.07", 31, 32},
    {"aps.15.08", 31, 32},
    {"aps.15.09", 31, 31},
    {"aps.15.10", 30, 31},
    {"aps.15.11", 31, 31},
    {"aps.15.12", 31, 32},
    {"aps.15.13", 31, 32},
    {"aps.15.14", 31, 32},
    {"aps.15.15", 32, 32},
    {"aps.15.16", 32, 32},
    {"aps.15.17", 32, 32},
    {"aps.15.18", 32, 32},
    {"aps.15.19", 32, 33},
    {"aps.15.20", 32, 32},
    {"aps.15.21", 33, 33},
    {"aps.15.22", 34, 35},
    {"aps.15.23", 35, 36},
    {"aps.15.24", 33, 34},
    {"aps.15.25", 35, 36},
    {"aps.15.26", 36, 37},
    {"aps.15.27", 36, 37},
    {"aps.15.28", 36, 37},
    {"aps.15.29", 36, 36},
    {"aps.15.30", 35, 36},
};
// totals printed by the script: 2662 (xtol 2e-12), 2696 (xtol 1e-15)

// The zero by C05AZF (by default the absolute error test, IR = 2, at the common width);
// returns the evaluations.
int zor_c05azf(const aps::Problem& p, double& x, double tolx = width, Zor_Integer ir = 2)
{
    double y = p.hi, fx = 0.0, c[ZOR_C05AZ_CLEN];
    Zor_Integer ind = 1, ifail = 1;
    int n = 0;
    x = p.lo;
    for (int calls = 0; calls < 100000; ++calls) {
        C05AZF(&x, &y, &fx, &tolx, &ir, c, &ind, &ifail);
        if (ind == 0) break;
        fx = aps::f(p, x);
        ++n;
    }
    return n;
}

// The zero by C05AYF (mixed error test: width <= eps * max(1, |x|)).
double c05ayf_f(const double* x, Zor_Integer iuser[], double ruser[])
{
    ++iuser[0];
    return aps::f(aps::problems[static_cast<int>(ruser[0])], *x);
}
int zor_c05ayf(int k, double& x)
{
    const aps::Problem& p = aps::problems[k];
    double eps = width, eta = 0.0, ruser[1] = {static_cast<double>(k)};
    Zor_Integer iuser[1] = {0}, ifail = 1;
    C05AYF(&p.lo, &p.hi, &eps, &eta, c05ayf_f, &x, iuser, ruser, &ifail);
    return iuser[0];
}

#ifdef ZOR_HAVE_GSL
struct GslData {
    const aps::Problem* p;
    int n;
};
double gsl_f(double x, void* v)
{
    auto* d = static_cast<GslData*>(v);
    ++d->n;
    return aps::f(*d->p, x);
}
int gsl_brent(const aps::Problem& p, double& x, gsl_root_fsolver* s)
{
    GslData d{&p, 0};
    gsl_function F{gsl_f, &d};
    gsl_root_fsolver_set(s, &F, p.lo, p.hi);
    for (int i = 0; i < 1000; ++i) {
        if (gsl_root_fsolver_iterate(s) != GSL_SUCCESS) break;
        x = gsl_root_fsolver_root(s);
        if (gsl_root_test_interval(gsl_root_fsolver_x_lower(s), gsl_root_fsolver_x_upper(s),
                                   width, 0.0) == GSL_SUCCESS)
            break;
    }
    return d.n;
}
#endif

#ifdef ZOR_HAVE_BOOST
int boost_toms748(const aps::Problem& p, double& x)
{
    int n = 0;
    auto f = [&](double t) {
        ++n;
        return aps::f(p, t);
    };
    boost::uintmax_t iterations = 1000;
    auto tol = [](double a, double b) { return std::fabs(b - a) <= width; };
    const auto r = boost::math::tools::toms748_solve(f, p.lo, p.hi, tol, iterations);
    x = 0.5 * (r.first + r.second);
    return n;
}
#endif

// Runs every problem of a family once per iteration.
template <class Solve>
void family_loop(benchmark::State& st, Solve solve)
{
    const int family = static_cast<int>(st.range(0));
    int evals = 0, problems = 0;
    for (auto _ : st) {
        evals = 0;
        problems = 0;
        for (int k = 0; k < static_cast<int>(std::size(aps::problems)); ++k) {
            if (aps::problems[k].family != family) continue;
            double x = 0;
            evals += solve(k, x);
            ++problems;
            benchmark::DoNotOptimize(x);
        }
    }
    st.counters["evals"] = evals;
    st.counters["problems"] = problems;
}

void BM_C05AZF(benchmark::State& st)
{
    family_loop(st, [](int k, double& x) { return zor_c05azf(aps::problems[k], x); });
}
BENCHMARK(BM_C05AZF)->DenseRange(1, 15);

void BM_C05AYF(benchmark::State& st)
{
    family_loop(st, [](int k, double& x) { return zor_c05ayf(k, x); });
}
BENCHMARK(BM_C05AYF)->DenseRange(1, 15);

#ifdef ZOR_HAVE_GSL
void BM_gsl_brent(benchmark::State& st)
{
    gsl_set_error_handler_off();
    gsl_root_fsolver* s = gsl_root_fsolver_alloc(gsl_root_fsolver_brent);
    family_loop(st, [&](int k, double& x) { return gsl_brent(aps::problems[k], x, s); });
    gsl_root_fsolver_free(s);
}
BENCHMARK(BM_gsl_brent)->DenseRange(1, 15);
#endif

#ifdef ZOR_HAVE_BOOST
void BM_boost_toms748(benchmark::State& st)
{
    family_loop(st, [](int k, double& x) { return boost_toms748(aps::problems[k], x); });
}
BENCHMARK(BM_boost_toms748)->DenseRange(1, 15);
#endif

// The evaluation table: per problem, and totals with ratios ZOR / peer.
void print_evaluations()
{
#ifdef ZOR_HAVE_GSL
    gsl_set_error_handler_off();
    gsl_root_fsolver* s = gsl_root_fsolver_alloc(gsl_root_fsolver_brent);
#endif
    long tz = 0, ty = 0, tg = 0, tb = 0, tq = 0, tz15 = 0, tq15 = 0;
    std::printf("%-10s %7s %7s %7s %7s %7s\n", "problem", "C05AZF", "C05AYF", "gsl", "boost",
                "brentq");
    for (int k = 0; k < static_cast<int>(std::size(aps::problems)); ++k) {
        const aps::Problem& p = aps::problems[k];
        double x = 0;
        const int z = zor_c05azf(p, x), y = zor_c05ayf(k, x);
        int g = -1, b = -1;
#ifdef ZOR_HAVE_GSL
        g = gsl_brent(p, x, s);
#endif
#ifdef ZOR_HAVE_BOOST
        b = boost_toms748(p, x);
#endif
        int q = -1;
        for (const BrentqCount& c : brentq_counts)
            if (std::strcmp(c.id, p.id) == 0) q = c.at_2e12, tq15 += c.at_1e15;
        // Tighter: mixed test with tolx 1e-15 beside brentq's xtol 1e-15 + rtol |x|.
        tz15 += zor_c05azf(p, x, 1e-15, 0);
        std::printf("%-10s %7d %7d %7d %7d %7d\n", p.id, z, y, g, b, q);
        tz += z, ty += y, tg += g, tb += b, tq += q;
    }
    std::printf("%-10s %7ld %7ld %7ld %7ld %7ld\n", "total", tz, ty, tg, tb, tq);
    std::printf("evaluations, C05AZF / peer: gsl brent %.3f, boost toms748 %.3f, scipy brentq %.3f\n",
                double(tz) / tg, double(tz) / tb, double(tz) / tq);
    std::printf("at tolx 1e-15 (IR = 0) against brentq at xtol 1e-15: %ld / %ld = %.3f\n", tz15,
                tq15, double(tz15) / tq15);
#ifdef ZOR_HAVE_GSL
    gsl_root_fsolver_free(s);
#endif
}

}  // namespace

int main(int argc, char** argv)
{
    print_evaluations();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
