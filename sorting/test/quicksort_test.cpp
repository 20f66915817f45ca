// sorting/test/quicksort_test.cpp — the sorting engine of M01CAF and its siblings:
// bit-for-bit agreement with a separate, plain transcription of the method, the work
// bound (never reached by ordinary inputs, always by McIlroy's adversary), and the
// properties of the result (ordered, a permutation of the input, NaN placement).
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <random>
#include <string>
#include <tuple>
#include <vector>

#include "sorting/m01.hpp"
#include "sorting/quicksort.hpp"
#include "zor_m01.h"

namespace {

using zor::sorting::quicksort;
using zor::sorting::SortReport;

// ---------------------------------------------------------------------------------
// The method as its description states it, written without regard to speed:
// positions counted from 1 (rv[0] unused), "a > b" as gt(a, b), a growing stack.
// Returns the number of randomised sections, so that tests can show they ran.
template <class V, class Gt>
int reference_sort(V& rv, std::int64_t m1, std::int64_t m2, char order, Gt gt)
{
    using T = std::remove_reference_t<decltype(rv[m1])>;
    int randomised = 0;
    std::int64_t x = 15223, y = 17795, z = 28707;
    auto draw = [&] {
        x = 171 * (x % 177) - 2 * (x / 177);
        if (x < 0) x += 30269;
        y = 172 * (y % 176) - 35 * (y / 176);
        if (y < 0) y += 30307;
        z = 170 * (z % 178) - 63 * (z / 178);
        if (z < 0) z += 30323;
        return std::fmod(x / 30269.0 + y / 30307.0 + z / 30323.0, 1.0);
    };
    if (m2 - m1 >= 15) {
        std::vector<std::tuple<std::int64_t, std::int64_t, bool>> stack;
        std::int64_t lo = m1, hi = m2;
        bool mark = false;
        for (;;) {
            if (mark) {
                ++randomised;
                const double u = draw();
                const std::int64_t k = static_cast<std::int64_t>(lo + u * (hi - lo));
                std::swap(rv[lo], rv[k]);
                std::swap(rv[hi + lo - k], rv[hi]);
            }
            const std::int64_t mid = (lo + hi) / 2;
            if (gt(rv[lo], rv[hi])) std::swap(rv[lo], rv[hi]);
            if (gt(rv[lo], rv[mid]))
                std::swap(rv[lo], rv[mid]);
            else if (gt(rv[mid], rv[hi]))
                std::swap(rv[mid], rv[hi]);
            const T p = rv[mid];
            std::int64_t i = lo + 1, j = hi - 1;
            for (;;) {
                while (gt(p, rv[i])) ++i;
                while (gt(rv[j], p)) --j;
                if (i < j) {
                    std::swap(rv[i], rv[j]);
                    ++i;
                    --j;
                } else {
                    break;
                }
            }
            const std::int64_t nl = i - lo, nr = hi - j;
            bool go_on = false;
            if (nr <= nl) {
                if (nl > 15) {
                    const bool mark_left = 5 * nr + 25 < nl;
                    if (nr > 15) {
                        stack.emplace_back(lo, i - 1, mark_left);
                        lo = j + 1;
                        mark = false;
                    } else {
                        hi = i - 1;
                        mark = mark_left;
                    }
                    go_on = true;
                }
            } else if (nr > 15) {
                const bool mark_right = 5 * nl + 25 < nr;
                if (nl > 15) {
                    stack.emplace_back(j + 1, hi, mark_right);
                    hi = i - 1;
                    mark = false;
                } else {
                    lo = j + 1;
                    mark = mark_right;
                }
                go_on = true;
            }
            if (go_on) continue;
            if (stack.empty()) break;
            std::tie(lo, hi, mark) = stack.back();
            stack.pop_back();
        }
    }
    for (std::int64_t k = m1 + 1; k <= m2; ++k) {
        if (!gt(rv[k - 1], rv[k])) continue;
        const T v = rv[k];
        std::int64_t m = k - 1;
        while (m >= m1 && gt(rv[m], v)) {
            rv[m + 1] = rv[m];
            --m;
        }
        rv[m + 1] = v;
    }
    if (order == 'D' || order == 'd')
        for (std::int64_t i = m1, j = m2; i < j; ++i, --j) std::swap(rv[i], rv[j]);
    return randomised;
}

// ---------------------------------------------------------------------------------
// Input families. Values are small integers so that keys repeat; a zero is given a
// random sign, so that equal keys are distinguishable.

enum class Shape { random, few_keys, sorted, reversed, organ_pipe, sawtooth, all_equal, sorted_tail };

std::vector<double> make_input(Shape shape, std::size_t n, std::mt19937_64& rng, bool signed_zeros = true)
{
    std::vector<double> v(n);
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    for (std::size_t i = 0; i < n; ++i) {
        double x = 0;
        switch (shape) {
        case Shape::random: x = u(rng); break;
        case Shape::few_keys: x = static_cast<double>(static_cast<int>(rng() % 7) - 3); break;
        case Shape::sorted: x = static_cast<double>(i / 3); break;
        case Shape::reversed: x = static_cast<double>(n - i); break;
        case Shape::organ_pipe: x = static_cast<double>(std::min(i, n - 1 - i)); break;
        case Shape::sawtooth: x = static_cast<double>(i % (1 + n / 10)); break;
        case Shape::all_equal: x = 0.0; break;
        case Shape::sorted_tail: x = i + 20 < n ? static_cast<double>(i) : u(rng) * n; break;
        }
        if (x == 0.0 && signed_zeros && (rng() & 1)) x = -0.0;
        v[i] = x;
    }
    return v;
}

const Shape all_shapes[] = {Shape::random,     Shape::few_keys, Shape::sorted,    Shape::reversed,
                            Shape::organ_pipe, Shape::sawtooth, Shape::all_equal, Shape::sorted_tail};

bool same_bits(const std::vector<double>& a, const std::vector<double>& b)
{
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(double)) == 0;
}

// ---------------------------------------------------------------------------------

TEST(M01CAF, SignedZerosEndWhereTheMethodPutsThemBitForBit)
{
    std::mt19937_64 rng(20261122);
    const std::size_t sizes[] = {1, 2, 15, 16, 17, 31, 40, 41, 64, 100, 257, 1000, 4096, 20000};
    int randomised = 0, cases = 0;
    for (Shape shape : all_shapes)
        for (std::size_t n : sizes)
            for (char order : {'A', 'd'}) {
                // The section 5..n+4 of a vector of n + 9: the rest must stay untouched.
                const std::vector<double> body = make_input(shape, n, rng);
                std::vector<double> got(n + 9, 7.25);
                std::copy(body.begin(), body.end(), got.begin() + 4);
                std::vector<double> want(n + 10, 7.25);   // from 1: want[1] is got[0]
                std::copy(body.begin(), body.end(), want.begin() + 5);
                randomised += reference_sort(want, 5, static_cast<std::int64_t>(n) + 4, order,
                                             [](double a, double b) { return a > b; });
                want.erase(want.begin());
                const Zor_Integer m1 = 5, m2 = static_cast<Zor_Integer>(n) + 4;
                Zor_Integer ifail = 1;
                M01CAF(got.data(), &m1, &m2, &order, &ifail, 1);
                ASSERT_EQ(ifail, 0);
                EXPECT_TRUE(same_bits(got, want)) << "shape " << static_cast<int>(shape) << ", n = " << n
                                                  << ", order " << order;
                ++cases;
            }
    // The corpus reaches the randomised branch, so the generator is compared too.
    EXPECT_GT(randomised, 50) << cases << " cases";
}

TEST(M01CAF, CInterfaceGivesTheSameBits)
{
    std::mt19937_64 rng(7);
    for (Shape shape : all_shapes) {
        std::vector<double> a = make_input(shape, 3001, rng), b = a;
        Zor_Integer ifail = 1;
        const Zor_Integer m1 = 1, m2 = 3001;
        M01CAF(a.data(), &m1, &m2, "D", &ifail, 1);
        Zor_Fail fail{};
        m01cac(b.data(), 1, 3001, 'd', &fail);
        EXPECT_EQ(fail.code, 0);
        EXPECT_TRUE(same_bits(a, b));
    }
}

TEST(M01CAF, PositionsNearTheIntegerLimitSortAsTheMethodSays)
{
    // A section ending at M2 = 2^31 - 1, reached through a shifted base. The positions
    // enter the method through the randomised pivot k = int(lo + u (hi - lo)), which
    // the reference computes from the same positions.
    struct Shifted {
        std::vector<double>& v;
        std::int64_t base;
        double& operator[](std::int64_t i) { return v[static_cast<std::size_t>(i - base)]; }
    };
    std::mt19937_64 rng(99);
    for (Shape shape : {Shape::organ_pipe, Shape::sorted_tail, Shape::few_keys}) {
        const std::vector<double> body = make_input(shape, 2999, rng);
        const std::int64_t m1 = 2147483647 - 2998, m2 = 2147483647;
        std::vector<double> want = body;
        Shifted view{want, m1};
        const int randomised = reference_sort(view, m1, m2, 'A', [](double a, double b) { return a > b; });
        std::vector<double> got = body;
        const Zor_Integer zm1 = static_cast<Zor_Integer>(m1), zm2 = static_cast<Zor_Integer>(m2);
        Zor_Integer ifail = 1;
        M01CAF(got.data() - (m1 - 1), &zm1, &zm2, "A", &ifail, 1);
        ASSERT_EQ(ifail, 0);
        EXPECT_TRUE(same_bits(got, want)) << "shape " << static_cast<int>(shape) << ", " << randomised
                                          << " randomised sections";
    }
}

// ---------------------------------------------------------------------------------
// The work bound.

struct WorkStats {
    double worst_ratio = 0;   // work / (n log2 n), n >= 64
    std::size_t worst_n = 0;
    int worst_shape = -1;
    double worst_share = 0;   // work / work_limit(n), every n
    std::size_t share_n = 0;
};

TEST(QuicksortWorkBound, OrdinaryInputsOfEverySizeNeverReachIt)
{
    std::mt19937_64 rng(1);
    WorkStats s;
    std::vector<std::size_t> sizes;
    for (std::size_t n = 2; n <= 2500; ++n) sizes.push_back(n);
    for (std::size_t n : {4096u, 10000u, 65536u, 100000u, 1000000u}) sizes.push_back(n);
    for (std::size_t n : sizes)
        for (Shape shape : all_shapes) {
            if (n > 2500 && shape == Shape::sorted_tail) continue;
            std::vector<double> v = make_input(shape, n, rng, false);
            const SortReport r = zor::sorting::sort_reals(v, false, 1);
            ASSERT_FALSE(r.fallback) << "shape " << static_cast<int>(shape) << ", n = " << n;
            ASSERT_TRUE(std::is_sorted(v.begin(), v.end()));
            const double ratio = r.work / (n * std::log2(static_cast<double>(n)));
            if (n >= 64 && ratio > s.worst_ratio) {
                s.worst_ratio = ratio;
                s.worst_n = n;
                s.worst_shape = static_cast<int>(shape);
            }
            const double share = static_cast<double>(r.work) / zor::sorting::work_limit(n);
            if (share > s.worst_share) {
                s.worst_share = share;
                s.share_n = n;
            }
        }
    // The bound allows 2 n ceil(log2 n); the margin is reported.
    std::printf("worst ordinary work: %.2f n log2 n (n = %zu, shape %d); %.2f of the limit (n = %zu)\n",
                s.worst_ratio, s.worst_n, s.worst_shape, s.worst_share, s.share_n);
    EXPECT_LT(s.worst_share, 0.75);
}

// McIlroy's adversary: values are decided ("frozen") only as the sort compares them,
// always so that the pivot candidate comes out smallest. Run against the sort, it
// yields an input on which the same sort does the quadratic work it was steered into.
std::vector<double> adversary(std::size_t n, bool bounded)
{
    const std::int64_t gas = static_cast<std::int64_t>(n);
    std::vector<std::int64_t> val(n, gas);
    std::int64_t nsolid = 0, candidate = -1;
    std::vector<std::uint32_t> ids(n);
    for (std::size_t i = 0; i < n; ++i) ids[i] = static_cast<std::uint32_t>(i);
    auto before = [&](std::uint32_t x, std::uint32_t y) {
        if (val[x] == gas && val[y] == gas) {
            if (static_cast<std::int64_t>(x) == candidate)
                val[x] = nsolid++;
            else
                val[y] = nsolid++;
        }
        if (val[x] == gas)
            candidate = x;
        else if (val[y] == gas)
            candidate = y;
        return val[x] < val[y];
    };
    quicksort(std::span<std::uint32_t>(ids), before, 1, bounded);
    return std::vector<double>(val.begin(), val.end());
}

TEST(QuicksortWorkBound, McIlroysAdversaryReachesItAndHeapsortFinishes)
{
    for (std::size_t n : {2000u, 20000u}) {
        // Against the bare method the adversary is quadratic...
        std::vector<double> v = adversary(n, false);
        std::vector<double> w = v;
        const SortReport bare = quicksort(std::span<double>(w), [](double a, double b) { return a < b; }, 1, false);
        EXPECT_GT(bare.work, n * n / 8) << "n = " << n;
        // ...and the bound stops it at the limit.
        const SortReport r = zor::sorting::sort_reals(v, false, 1);
        EXPECT_TRUE(r.fallback);
        EXPECT_LE(r.work, zor::sorting::work_limit(n));
        EXPECT_TRUE(std::is_sorted(v.begin(), v.end()));
        EXPECT_TRUE(std::is_sorted(w.begin(), w.end()));
    }
    // The adversary generated against the bounded sort forces the fallback too.
    std::vector<double> v = adversary(100000, true);
    const SortReport r = zor::sorting::sort_reals(v, false, 1);
    EXPECT_TRUE(r.fallback);
    EXPECT_TRUE(std::is_sorted(v.begin(), v.end()));
}

TEST(QuicksortWorkBound, BelowTheLimitTheMovesAreTheMethodsOwn)
{
    // An adversarial input small enough to stay under the limit sorts exactly as the
    // transcription does.
    std::vector<double> v = adversary(40, false);
    for (double& x : v) x = x == 0 ? -0.0 : x;
    std::vector<double> want(v.size() + 1);
    std::copy(v.begin(), v.end(), want.begin() + 1);
    reference_sort(want, 1, static_cast<std::int64_t>(v.size()), 'A', [](double a, double b) { return a > b; });
    want.erase(want.begin());
    const SortReport r = zor::sorting::sort_reals(v, false, 1);
    EXPECT_FALSE(r.fallback);
    EXPECT_TRUE(same_bits(v, want));
}

TEST(Heapsort, SortsEveryShape)
{
    std::mt19937_64 rng(3);
    for (Shape shape : all_shapes)
        for (std::size_t n : {0u, 1u, 2u, 3u, 10u, 1001u}) {
            std::vector<double> v = make_input(shape, n, rng, false);
            std::vector<double> w = v;
            auto less = [](double a, double b) { return a < b; };
            zor::sorting::heapsort(v.data(), static_cast<std::ptrdiff_t>(n), less);
            std::sort(w.begin(), w.end());
            EXPECT_EQ(v, w);
        }
}

// ---------------------------------------------------------------------------------
// Properties and NaN.

TEST(M01CAF, ResultIsOrderedAndAPermutationOfTheInput)
{
    std::mt19937_64 rng(5);
    for (Shape shape : all_shapes)
        for (std::size_t n : {16u, 999u, 50000u}) {
            std::vector<double> v = make_input(shape, n, rng);
            std::vector<std::uint64_t> bits_in(n), bits_out(n);
            for (std::size_t i = 0; i < n; ++i) bits_in[i] = std::bit_cast<std::uint64_t>(v[i]);
            const Zor_Integer m1 = 1, m2 = static_cast<Zor_Integer>(n);
            Zor_Integer ifail = 1;
            M01CAF(v.data(), &m1, &m2, "a", &ifail, 1);
            for (std::size_t i = 0; i < n; ++i) bits_out[i] = std::bit_cast<std::uint64_t>(v[i]);
            EXPECT_TRUE(std::is_sorted(v.begin(), v.end()));
            std::sort(bits_in.begin(), bits_in.end());
            std::sort(bits_out.begin(), bits_out.end());
            EXPECT_EQ(bits_in, bits_out);
        }
}

TEST(M01CAF, NaNsGoAfterTheNumbersAscendingAndBeforeThemDescending)
{
    std::mt19937_64 rng(11);
    for (std::size_t n : {5u, 40u, 3000u})
        for (char order : {'A', 'D'}) {
            std::vector<double> v = make_input(Shape::random, n, rng);
            std::size_t nans = 0;
            for (std::size_t i = 0; i < n; i += 3, ++nans) v[i] = (i & 1) ? NAN : -NAN;
            const Zor_Integer m1 = 1, m2 = static_cast<Zor_Integer>(n);
            Zor_Integer ifail = 1;
            M01CAF(v.data(), &m1, &m2, &order, &ifail, 1);
            ASSERT_EQ(ifail, 0);
            const std::size_t first_nan = order == 'A' ? n - nans : 0;
            for (std::size_t i = 0; i < n; ++i)
                EXPECT_EQ(std::isnan(v[i]), i >= first_nan && i < first_nan + nans) << i;
            if (order == 'A')
                EXPECT_TRUE(std::is_sorted(v.begin(), v.begin() + static_cast<std::ptrdiff_t>(n - nans)));
            else
                EXPECT_TRUE(std::is_sorted(v.rbegin(), v.rbegin() + static_cast<std::ptrdiff_t>(n - nans)));
        }
}

TEST(M01CCF, StringsWithEqualKeysEndWhereTheMethodPutsThem)
{
    // Keys in columns 2..3 repeat; column 1 tells the strings apart.
    std::mt19937_64 rng(17);
    for (std::size_t n : {15u, 16u, 200u, 5000u})
        for (char order : {'a', 'D'}) {
            std::vector<std::string> s(n);
            for (std::size_t i = 0; i < n; ++i)
                s[i] = std::string(1, static_cast<char>('A' + rng() % 26)) + static_cast<char>('0' + rng() % 3) +
                       static_cast<char>('0' + (i % 40 < 20 ? i % 40 : 40 - i % 40) % 10) + "xy";
            std::vector<std::string> want(n + 1);
            std::copy(s.begin(), s.end(), want.begin() + 1);
            reference_sort(want, 1, static_cast<std::int64_t>(n), order, [](const std::string& a, const std::string& b) {
                return a.compare(1, 2, b, 1, 2) > 0;
            });
            std::string packed;
            for (const std::string& t : s) packed += t;
            const Zor_Integer m1 = 1, m2 = static_cast<Zor_Integer>(n), l1 = 2, l2 = 3;
            Zor_Integer ifail = 1;
            M01CCF(packed.data(), &m1, &m2, &l1, &l2, &order, &ifail, 5, 1);
            ASSERT_EQ(ifail, 0);
            for (std::size_t i = 0; i < n; ++i) ASSERT_EQ(packed.substr(5 * i, 5), want[i + 1]) << i;
        }
}

}  // namespace
