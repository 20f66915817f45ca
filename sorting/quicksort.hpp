// sorting/quicksort.hpp — the chapter's one sorting engine: an in-place quicksort
// (Hoare 1962) with the median of three, scans that stop on keys equal to the pivot,
// the smaller part first and the larger deferred on a 40-entry stack, parts of 15
// elements or fewer left to a single straight-insertion pass over the whole section
// (Sedgewick, "Implementing Quicksort programs", CACM 21, 1978), and a randomised
// pivot neighbourhood after a badly unbalanced split, drawn from a Wichmann-Hill
// generator (Applied Statistics AS 183, 1982) restarted from fixed seeds on every call.
//
// One departure from that scheme: the work of a call is bounded. The generator restarts
// from the same seeds, so an adversary that watches the comparisons (McIlroy, "A killer
// adversary for quicksort", Software—Practice and Experience 29, 1999) still drives the
// partitioning to about n^2/4 element visits. When the visits exceed work_limit(n),
// which no ordinary input reaches (sorting/test/quicksort_test.cpp measures the
// margin), the sections still waiting are finished by heapsort (Williams 1964, with
// Floyd's bottom-up sift). Below the limit every comparison and every move is the
// scheme's own.
#pragma once

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>

namespace zor::sorting {

// Parts of this many elements or fewer are never partitioned: the final insertion
// pass orders them, cheaper than further partitioning at this size.
inline constexpr std::ptrdiff_t small_part = 15;

// Deferred sections. The smaller part is always processed first, so the depth stays
// below log2(2^31) = 31 for any section a 32-bit index can describe.
inline constexpr int stack_entries = 40;

// Seeds of the pivot-randomising generator. They restart on every call, so the
// result of a sort depends on its input alone.
constexpr int seed_x = 15223, seed_y = 17795, seed_z = 28707;

// The Wichmann-Hill generator (AS 183) in Schrage's form, which keeps every product
// below 2^15 * 177, far inside 32 bits.
class PivotGenerator {
public:
    double next() noexcept
    {
        x_ = 171 * (x_ % 177) - 2 * (x_ / 177);
        if (x_ < 0) x_ += 30269;
        y_ = 172 * (y_ % 176) - 35 * (y_ / 176);
        if (y_ < 0) y_ += 30307;
        z_ = 170 * (z_ % 178) - 63 * (z_ / 178);
        if (z_ < 0) z_ += 30323;
        const double s = x_ / 30269.0 + y_ / 30307.0 + z_ / 30323.0;
        return s - std::floor(s);   // exact: s < 3
    }

private:
    int x_ = seed_x, y_ = seed_y, z_ = seed_z;
};

// Element visits allowed to the partitioning of n elements before the remaining
// sections are handed to heapsort: 2 n ceil(log2 n). Random, sorted, reversed,
// organ-pipe, sawtooth and all-equal inputs need at most 1.3 n ceil(log2 n), two thirds
// of the limit (organ-pipe inputs come closest, their need growing by about 0.08 per
// decade of n; test/quicksort_test.cpp measures every n up to 2500 and sizes up to 10^6
// and prints the margin). Sections of 15 or fewer are never partitioned, so small n
// need no extra allowance. McIlroy's adversary needs about n^2/4 visits: it reaches the
// limit for n above about 60, and then costs the limit plus one heapsort, less than
// three times the sort of random data of the same size (bench/sorting.cpp).
inline std::uint64_t work_limit(std::size_t n) noexcept
{
    const std::uint64_t m = n;
    const std::uint64_t lg = m > 1 ? std::bit_width(m - 1) : 1;   // ceil(log2 n)
    return 2 * m * lg;
}

// What a sort did: the element visits of its partitioning and whether the work bound
// sent some sections to heapsort. Returned for the tests; the routines ignore it.
struct SortReport {
    std::uint64_t work = 0;
    bool fallback = false;
};

// Heapsort of a[0..n-1] into ascending order under before (a strict weak order).
// Bottom-up: the hole left at the root descends to a leaf along the larger children,
// then the displaced element climbs back, about n log2 n comparisons in all.
template <class T, class Before>
void heapsort(T* a, std::ptrdiff_t n, Before& before)
{
    auto sift = [&](std::ptrdiff_t root, std::ptrdiff_t len) {
        T v = std::move(a[root]);
        std::ptrdiff_t hole = root;
        std::ptrdiff_t child = 2 * hole + 1;
        while (child < len) {
            if (child + 1 < len && before(a[child], a[child + 1])) ++child;
            a[hole] = std::move(a[child]);
            hole = child;
            child = 2 * hole + 1;
        }
        while (hole > root) {
            const std::ptrdiff_t parent = (hole - 1) / 2;
            if (!before(a[parent], v)) break;
            a[hole] = std::move(a[parent]);
            hole = parent;
        }
        a[hole] = std::move(v);
    };
    for (std::ptrdiff_t r = n / 2 - 1; r >= 0; --r) sift(r, n);
    for (std::ptrdiff_t end = n - 1; end > 0; --end) {
        std::swap(a[0], a[end]);
        sift(0, end);
    }
}

// Sorts a into ascending order under before (a strict weak order: before(x, y) means
// x is smaller; "x > y" of the description is before(y, x)). origin is the position,
// counted from 1, of a[0] in the caller's vector: the randomised pivot position is
// computed from those positions, so a section sorts the same wherever it sits.
// bounded = false disables the work bound (the tests' transcription of the bare scheme
// and the adversary generator use it).
template <class T, class Before>
SortReport quicksort(std::span<T> a, Before before, std::int64_t origin = 1, bool bounded = true)
{
    SortReport report;
    const std::ptrdiff_t n = static_cast<std::ptrdiff_t>(a.size());
    if (n < 2) return report;
    T* const v = a.data();
    const std::uint64_t limit = bounded ? work_limit(a.size()) : UINT64_MAX;

    if (n - 1 >= small_part) {
        struct Section {
            std::ptrdiff_t lo, hi;
            bool mark;
        };
        Section stack[stack_entries];
        int top = 0;
        PivotGenerator gen;
        std::ptrdiff_t lo = 0, hi = n - 1;
        bool mark = false;
        // Each pass of this loop partitions lo..hi (more than 15 elements) or, past the
        // work bound, heapsorts it; it ends when no section is left. Every partition
        // leaves at least one element out of both parts, so the loop is finite.
        for (;;) {
            const std::uint64_t len = static_cast<std::uint64_t>(hi - lo + 1);
            if (report.work + len > limit) report.fallback = true;
            if (report.fallback) {
                heapsort(v + lo, hi - lo + 1, before);
            } else {
                report.work += len;
                if (mark) {
                    // k = integer part of lo + u (hi - lo), in the caller's positions.
                    const double u = gen.next();
                    const double lo1 = static_cast<double>(origin + lo);
                    const std::int64_t k1 =
                        static_cast<std::int64_t>(lo1 + u * static_cast<double>(hi - lo));
                    const std::ptrdiff_t k = static_cast<std::ptrdiff_t>(k1 - origin);
                    std::swap(v[lo], v[k]);
                    std::swap(v[hi + lo - k], v[hi]);
                }
                const std::ptrdiff_t mid = lo + (hi - lo) / 2;
                if (before(v[hi], v[lo])) std::swap(v[lo], v[hi]);
                if (before(v[mid], v[lo]))
                    std::swap(v[lo], v[mid]);
                else if (before(v[hi], v[mid]))
                    std::swap(v[mid], v[hi]);
                const T p = v[mid];
                // v[lo] is not above p and v[hi] not below it, and every swap leaves
                // such a pair behind the scans: both stop inside lo..hi.
                std::ptrdiff_t i = lo, j = hi;
                for (;;) {
                    do ++i;
                    while (before(v[i], p));
                    do --j;
                    while (before(p, v[j]));
                    if (i >= j) break;
                    std::swap(v[i], v[j]);
                }
                const std::ptrdiff_t nl = i - lo, nr = hi - j;
                bool next = false;
                if (nr <= nl) {
                    if (nl > small_part) {
                        const bool mark_left = 5 * nr + 25 < nl;
                        if (nr > small_part && top < stack_entries) {
                            stack[top++] = {lo, i - 1, mark_left};
                            lo = j + 1;
                            mark = false;
                        } else if (nr > small_part) {   // unreachable: depth < 32
                            heapsort(v + j + 1, hi - j, before);
                            hi = i - 1;
                            mark = mark_left;
                        } else {
                            hi = i - 1;
                            mark = mark_left;
                        }
                        next = true;
                    }
                } else if (nr > small_part) {
                    const bool mark_right = 5 * nl + 25 < nr;
                    if (nl > small_part && top < stack_entries) {
                        stack[top++] = {j + 1, hi, mark_right};
                        hi = i - 1;
                        mark = false;
                    } else if (nl > small_part) {   // unreachable: depth < 32
                        heapsort(v + lo, i - lo, before);
                        lo = j + 1;
                        mark = mark_right;
                    } else {
                        lo = j + 1;
                        mark = mark_right;
                    }
                    next = true;
                }
                if (next) continue;
            }
            if (top == 0) break;
            --top;
            lo = stack[top].lo;
            hi = stack[top].hi;
            mark = stack[top].mark;
        }
    }

    // Straight insertion over the whole section. After partitioning, the smallest
    // element lies among the first 16, so beyond them the shift needs no bound check.
    const std::ptrdiff_t guarded = std::min<std::ptrdiff_t>(n, small_part + 1);
    for (std::ptrdiff_t k = 1; k < guarded; ++k) {
        if (!before(v[k], v[k - 1])) continue;
        T x = std::move(v[k]);
        std::ptrdiff_t m = k;
        do {
            v[m] = std::move(v[m - 1]);
            --m;
        } while (m > 0 && before(x, v[m - 1]));
        v[m] = std::move(x);
    }
    for (std::ptrdiff_t k = guarded; k < n; ++k) {
        if (!before(v[k], v[k - 1])) continue;
        T x = std::move(v[k]);
        std::ptrdiff_t m = k;
        do {
            v[m] = std::move(v[m - 1]);
            --m;
        } while (before(x, v[m - 1]));
        v[m] = std::move(x);
    }
    return report;
}

// Reverses a in place, swapping pairs from both ends towards the middle.
template <class T>
void reverse(std::span<T> a) noexcept
{
    std::ptrdiff_t i = 0, j = static_cast<std::ptrdiff_t>(a.size()) - 1;
    for (; i < j; ++i, --j) std::swap(a[i], a[j]);
}

}  // namespace zor::sorting
