// sorting/m01.hpp — the pieces the M01 kernels share: argument checks, the sort of a
// real section with its NaN rule, keys that turn ranking into sorting distinct pairs,
// a stable merge sort for comparisons the library cannot trust, and permutations.
#pragma once

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>
#include <vector>

#include "frame/frame.hpp"
#include "sorting/m01_messages.hpp"
#include "sorting/quicksort.hpp"

namespace zor::sorting {

// ---------------------------------------------------------------------------------
// Checks. Each returns 0 or the error number, with the message written.

// ORDER: 'A', 'a', 'D' or 'd' (the first character of the argument). Sets descending.
inline int check_order(Message& msg, const char* order, std::size_t order_len, bool& descending)
{
    const char c = order_len > 0 ? order[0] : '\0';
    if (c == 'A' || c == 'a' || c == 'D' || c == 'd') {
        descending = c == 'D' || c == 'd';
        return 0;
    }
    // Quoted as it is when printable, otherwise as '?', so that no byte can disturb
    // the message; an argument of length 0 is quoted as ''.
    char shown[1] = {static_cast<unsigned char>(c) >= 0x20 && static_cast<unsigned char>(c) < 0x7f ? c : '?'};
    return msg.fail(2, msg_order, std::string_view(shown, order_len > 0 ? 1 : 0));
}

// M2 >= 1, M1 >= 1, M1 <= M2: the section checks of the chapter, in this order.
inline int check_section(Message& msg, Zor_Integer m1, Zor_Integer m2)
{
    if (m2 < 1) return msg.fail(1, msg_m2_ge_1, m2);
    if (m1 < 1) return msg.fail(1, msg_m1_ge_1, m1);
    if (m1 > m2) return msg.fail(1, msg_m1_le_m2, m1, m2);
    return 0;
}

// The checks of a string section on columns l1..l2, shared with M01DCF.
inline int check_strings(Message& msg, std::int64_t len, Zor_Integer m1, Zor_Integer m2, Zor_Integer l1,
                  Zor_Integer l2, const char* order, std::size_t order_len, bool& descending)
{
    if (len > 255) return msg.fail(1, msg_len_le_255, static_cast<long long>(len));
    if (int e = check_order(msg, order, order_len, descending)) return e;
    if (int e = check_section(msg, m1, m2)) return e;
    if (l2 < 1) return msg.fail(1, msg_l2_ge_1, l2);
    if (l1 < 1) return msg.fail(1, msg_l1_ge_1, l1);
    if (l1 > l2) return msg.fail(1, msg_l1_le_l2, l1, l2);
    if (l2 > len) return msg.fail(1, msg_l2_le_len, l2, static_cast<long long>(len));
    return 0;
}

inline std::size_t section_length(Zor_Integer m1, Zor_Integer m2)
{
    return static_cast<std::size_t>(static_cast<std::int64_t>(m2) - m1 + 1);
}

// ---------------------------------------------------------------------------------
// Sorting a real section (M01CAF).

// Sorts rv, the section whose first element is at position origin (counted from 1).
// NaNs are first gathered after the numbers (which keep their order), in a pass that
// runs only when there is a NaN; the numbers are then sorted by the chapter's
// quicksort, so that a section without NaN goes through exactly its comparisons and
// moves. Descending is the ascending sort reversed: NaNs then come first.
inline SortReport sort_reals(std::span<double> rv, bool descending, std::int64_t origin)
{
    // The test is a branch-free reduction (x != x only for a NaN), which compilers
    // vectorise; the gathering pass runs only when a NaN is present.
    bool any_nan = false;
    for (const double x : rv) any_nan |= x != x;
    std::size_t w = rv.size();
    if (any_nan) {
        w = 0;
        for (std::size_t k = 0; k < rv.size(); ++k) {
            if (std::isnan(rv[k])) continue;
            if (w != k) std::swap(rv[w], rv[k]);
            ++w;
        }
    }
    const SortReport r =
        quicksort(rv.first(w), [](double a, double b) { return a < b; }, origin);
    if (descending) reverse(rv);
    return r;
}

// ---------------------------------------------------------------------------------
// Ranking. A key maps each value to an unsigned integer whose order is the ranking
// order, so that reals with NaNs and signed zeros compare as one total order.

// Reals: -0 and +0 rank equal; every NaN ranks above +infinity, NaNs equal.
inline std::uint64_t real_key(double x)
{
    if (std::isnan(x)) return UINT64_MAX;
    const std::uint64_t b = std::bit_cast<std::uint64_t>(x == 0.0 ? 0.0 : x);
    return (b >> 63) ? ~b : b | (std::uint64_t{1} << 63);
}

inline std::uint32_t int_key(Zor_Integer x)
{
    return static_cast<std::uint32_t>(x) ^ 0x80000000u;
}

// Stable merge sort of a under before: ties keep their order. A natural merge sort:
// the input is cut into its ascending runs (strictly descending runs are reversed,
// which keeps ties in order since a strictly descending run has none), runs shorter
// than 16 are extended by straight insertion, and neighbouring runs are merged pass by
// pass through a buffer of the same size. Sorted, reversed and organ-pipe inputs thus
// cost a few passes; random input costs log2(n / 16) passes. (The merge branches on
// each comparison: with the keys read through offsets, as in ranking, that measured
// faster than a branch-free merge, which puts both loads on the critical path.)
// Every index read lies within the array whatever before answers, so the sort also
// serves comparisons the library cannot trust (M01DZF).
template <class T, class Before>
void merge_sort(std::span<T> a, Before&& before, std::vector<T>& buf)
{
    const std::size_t n = a.size();
    if (n < 2) return;
    constexpr std::size_t min_run = 16;
    std::vector<std::size_t> bounds;   // run starts, then n
    for (std::size_t s = 0; s < n;) {
        std::size_t e = s + 1;
        if (e < n && before(a[e], a[s])) {
            while (e < n && before(a[e], a[e - 1])) ++e;
            std::reverse(a.begin() + static_cast<std::ptrdiff_t>(s), a.begin() + static_cast<std::ptrdiff_t>(e));
        } else {
            while (e < n && !before(a[e], a[e - 1])) ++e;
        }
        const std::size_t stop = std::min(n, std::max(e, s + min_run));
        for (std::size_t k = e; k < stop; ++k) {
            if (!before(a[k], a[k - 1])) continue;
            T x = a[k];
            std::size_t m = k;
            do {
                a[m] = a[m - 1];
                --m;
            } while (m > s && before(x, a[m - 1]));
            a[m] = x;
        }
        bounds.push_back(s);
        s = stop;
    }
    bounds.push_back(n);
    if (bounds.size() == 2) return;
    buf.resize(n);
    T* from = a.data();
    T* to = buf.data();
    // Each pass halves the number of runs: at most ceil(log2 n) passes.
    while (bounds.size() > 2) {
        std::size_t kept = 0;
        for (std::size_t r = 0; r + 1 < bounds.size(); r += 2) {
            const std::size_t s = bounds[r];
            const std::size_t mid = bounds[r + 1];
            const std::size_t e = r + 2 < bounds.size() ? bounds[r + 2] : mid;
            bounds[kept++] = s;
            std::size_t i = s, j = mid, o = s;
            if (mid < e && before(from[mid], from[mid - 1])) {
                while (i < mid && j < e) to[o++] = before(from[j], from[i]) ? from[j++] : from[i++];
            }
            std::copy(from + i, from + mid, to + o);
            o += mid - i;
            std::copy(from + j, from + e, to + o);
        }
        bounds[kept++] = n;
        bounds.resize(kept);
        std::swap(from, to);
    }
    if (from != a.data()) std::copy(from, from + n, a.data());
}

// Turns an order (irank[r] = the offset of the item of rank r) into ranks from m1,
// in place, through buf.
inline void order_to_ranks(Zor_Integer* irank, std::size_t n, Zor_Integer m1, std::vector<Zor_Integer>& buf)
{
    buf.assign(irank, irank + n);
    for (std::size_t r = 0; r < n; ++r)
        irank[buf[r]] = static_cast<Zor_Integer>(m1 + static_cast<std::int64_t>(r));
}

// Stable ranking of the n items at offsets 0..n-1 under before, into irank[0..n-1]
// (ranks from m1). The caller's IRANK holds the offsets while they are sorted, so the
// only scratch space is one buffer of n integers.
template <class Before>
void rank_offsets(std::size_t n, Zor_Integer m1, Zor_Integer* irank, Before&& before)
{
    for (std::size_t i = 0; i < n; ++i) irank[i] = static_cast<Zor_Integer>(i);
    std::vector<Zor_Integer> buf;
    merge_sort(std::span<Zor_Integer>(irank, n), before, buf);
    order_to_ranks(irank, n, m1, buf);
}

// Stable ranking of n items by a three-way comparison of their offsets.
template <class Compare>
void rank_by(std::size_t n, Zor_Integer m1, Zor_Integer* irank, Compare&& compare)
{
    rank_offsets(n, m1, irank, [&](Zor_Integer a, Zor_Integer b) { return compare(a, b) < 0; });
}

// ---------------------------------------------------------------------------------
// Permutations of m1..m2 held in p[0..n-1].

class Bitmap {
public:
    explicit Bitmap(std::size_t n) : words_((n + 63) / 64, 0) {}
    bool test(std::size_t i) const { return (words_[i / 64] >> (i % 64)) & 1u; }
    void set(std::size_t i) { words_[i / 64] |= std::uint64_t{1} << (i % 64); }

private:
    std::vector<std::uint64_t> words_;
};

// Returns the offset of the first entry that is out of range or repeats an earlier
// one, or n when p is a permutation of m1..m2.
inline std::size_t first_non_permutation(const Zor_Integer* p, std::size_t n, Zor_Integer m1)
{
    Bitmap seen(n);
    for (std::size_t i = 0; i < n; ++i) {
        const std::int64_t v = static_cast<std::int64_t>(p[i]) - m1;
        if (v < 0 || static_cast<std::uint64_t>(v) >= n || seen.test(static_cast<std::size_t>(v))) return i;
        seen.set(static_cast<std::size_t>(v));
    }
    return n;
}

// The permutation message: values the position counted from 0, the value, and the
// position counted from 1 (m1 + offset).
inline int fail_permutation(Message& msg, int code, const Zor_Integer* p, std::size_t at, Zor_Integer m1)
{
    const long long pos1 = static_cast<long long>(m1) + static_cast<long long>(at);
    return msg.fail(2, code, pos1 - 1, p[at], pos1);
}

// Moves element i of a (records of size bytes) to position rank[i] - m1, in place,
// following the cycles of the permutation (each record is written once).
inline void scatter_records(char* a, std::size_t size, const Zor_Integer* rank, std::size_t n,
                            Zor_Integer m1)
{
    Bitmap done(n);
    char hold[256], next[256];
    for (std::size_t s = 0; s < n; ++s) {
        if (done.test(s)) continue;
        std::memcpy(hold, a + s * size, size);
        std::size_t j = static_cast<std::size_t>(rank[s] - m1);
        done.set(s);
        while (j != s) {   // at most n steps: each visits a new position of the cycle
            std::memcpy(next, a + j * size, size);
            std::memcpy(a + j * size, hold, size);
            std::memcpy(hold, next, size);
            done.set(j);
            j = static_cast<std::size_t>(rank[j] - m1);
        }
        std::memcpy(a + s * size, hold, size);
    }
}

}  // namespace zor::sorting
