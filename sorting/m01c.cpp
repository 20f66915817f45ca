// sorting/m01c.cpp — sorting in place: M01CAF (reals), M01CBF (integers) and M01CCF
// (character strings on columns L1..L2), their kernels and c twins. All three run the
// chapter's quicksort (quicksort.hpp); descending order is the ascending sort reversed.
#include <cstring>
#include <vector>

#include "sorting/m01.hpp"
#include "zor_m01.h"

namespace zor::sorting {
namespace {

// M01CAF: bounds, then ORDER.
int m01ca(double* rv, Zor_Integer m1, Zor_Integer m2, const char* order, std::size_t order_len,
          Message& msg)
{
    if (int e = check_section(msg, m1, m2)) return e;
    bool descending = false;
    if (int e = check_order(msg, order, order_len, descending)) return e;
    sort_reals({rv + (m1 - 1), section_length(m1, m2)}, descending, m1);
    return 0;
}

// M01CBF: ORDER, then bounds.
int m01cb(Zor_Integer* iv, Zor_Integer m1, Zor_Integer m2, const char* order, std::size_t order_len,
          Message& msg)
{
    bool descending = false;
    if (int e = check_order(msg, order, order_len, descending)) return e;
    if (int e = check_section(msg, m1, m2)) return e;
    const std::span<Zor_Integer> a(iv + (m1 - 1), section_length(m1, m2));
    quicksort(a, [](Zor_Integer x, Zor_Integer y) { return x < y; }, m1);
    if (descending) reverse(a);
    return 0;
}

// M01CCF. The quicksort runs on the offsets of the strings, comparing the strings
// they name: its decisions depend on comparisons alone, so the order it leaves is the
// one it would leave moving the strings themselves. The strings are then moved once,
// each to its place, along the cycles of that order.
int m01cc(char* ch, std::int64_t len, Zor_Integer m1, Zor_Integer m2, Zor_Integer l1, Zor_Integer l2,
          const char* order, std::size_t order_len, Message& msg)
{
    bool descending = false;
    if (int e = check_strings(msg, len, m1, m2, l1, l2, order, order_len, descending)) return e;
    const std::size_t n = section_length(m1, m2);
    const std::size_t size = static_cast<std::size_t>(len);
    char* const base = ch + static_cast<std::size_t>(m1 - 1) * size;
    const char* const key = base + (l1 - 1);
    const std::size_t klen = static_cast<std::size_t>(l2 - l1 + 1);
    std::vector<std::uint32_t> idx(n);
    for (std::size_t i = 0; i < n; ++i) idx[i] = static_cast<std::uint32_t>(i);
    quicksort(std::span<std::uint32_t>(idx),
              [&](std::uint32_t a, std::uint32_t b) {
                  return std::memcmp(key + a * size, key + b * size, klen) < 0;
              },
              m1);
    if (descending) reverse(std::span<std::uint32_t>(idx));
    std::vector<Zor_Integer> rank(n);
    for (std::size_t r = 0; r < n; ++r) rank[idx[r]] = static_cast<Zor_Integer>(r);
    scatter_records(base, size, rank.data(), n, 0);
    return 0;
}

}  // namespace
}  // namespace zor::sorting

using namespace zor::sorting;

// ---- M01CAF ------------------------------------------------------------------------

extern "C" ZOR_API void M01CAFT(Zor_Context*, double rv[], const Zor_Integer* m1, const Zor_Integer* m2,
                                const char* order, char msgbuf[200], Zor_Integer* ierr,
                                std::size_t order_len) noexcept
{
    zor::Message msg(msgbuf);
    *ierr = zor::guarded([&] { return m01ca(rv, *m1, *m2, order, order_len, msg); });
}

extern "C" ZOR_API void M01CAF(double rv[], const Zor_Integer* m1, const Zor_Integer* m2,
                               const char* order, Zor_Integer* ifail, std::size_t order_len) noexcept
{
    zor::f_call(ifail, "m01caf", m01caf_records,
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    M01CAFT(ctx, rv, m1, m2, order, msgbuf, ierr, order_len);
                });
}
ZOR_F_ALIAS(m01caf_, M01CAF);

extern "C" ZOR_API void m01cac(double rv[], Zor_Integer m1, Zor_Integer m2, char order,
                               Zor_Fail* fail) noexcept
{
    zor::c_call(fail, "m01cac", m01cac_messages, {{rv, "rv"}},
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    M01CAFT(ctx, rv, &m1, &m2, &order, msgbuf, ierr, 1);
                });
}

// ---- M01CBF ------------------------------------------------------------------------

extern "C" ZOR_API void M01CBFT(Zor_Context*, Zor_Integer iv[], const Zor_Integer* m1,
                                const Zor_Integer* m2, const char* order, char msgbuf[200],
                                Zor_Integer* ierr, std::size_t order_len) noexcept
{
    zor::Message msg(msgbuf);
    *ierr = zor::guarded([&] { return m01cb(iv, *m1, *m2, order, order_len, msg); });
}

extern "C" ZOR_API void M01CBF(Zor_Integer iv[], const Zor_Integer* m1, const Zor_Integer* m2,
                               const char* order, Zor_Integer* ifail, std::size_t order_len) noexcept
{
    zor::f_call(ifail, "m01cbf", m01cbf_records,
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    M01CBFT(ctx, iv, m1, m2, order, msgbuf, ierr, order_len);
                });
}
ZOR_F_ALIAS(m01cbf_, M01CBF);

extern "C" ZOR_API void m01cbc(Zor_Integer iv[], Zor_Integer m1, Zor_Integer m2, char order,
                               Zor_Fail* fail) noexcept
{
    zor::c_call(fail, "m01cbc", m01cbc_messages, {{iv, "iv"}},
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    M01CBFT(ctx, iv, &m1, &m2, &order, msgbuf, ierr, 1);
                });
}

// ---- M01CCF ------------------------------------------------------------------------

extern "C" ZOR_API void M01CCFT(Zor_Context*, char ch[], const Zor_Integer* m1, const Zor_Integer* m2,
                                const Zor_Integer* l1, const Zor_Integer* l2, const char* order,
                                char msgbuf[200], Zor_Integer* ierr, std::size_t ch_len,
                                std::size_t order_len) noexcept
{
    // A negative lenc of the c interface arrives as a huge size_t and converts back.
    zor::Message msg(msgbuf);
    *ierr = zor::guarded([&] {
        return m01cc(ch, static_cast<std::int64_t>(ch_len), *m1, *m2, *l1, *l2, order, order_len, msg);
    });
}

extern "C" ZOR_API void M01CCF(char ch[], const Zor_Integer* m1, const Zor_Integer* m2,
                               const Zor_Integer* l1, const Zor_Integer* l2, const char* order,
                               Zor_Integer* ifail, std::size_t ch_len, std::size_t order_len) noexcept
{
    zor::f_call(ifail, "m01ccf", m01ccf_records,
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    M01CCFT(ctx, ch, m1, m2, l1, l2, order, msgbuf, ierr, ch_len, order_len);
                });
}
ZOR_F_ALIAS(m01ccf_, M01CCF);

extern "C" ZOR_API void m01ccc(char ch[], Zor_Integer lenc, Zor_Integer m1, Zor_Integer m2,
                               Zor_Integer l1, Zor_Integer l2, char order, Zor_Fail* fail) noexcept
{
    zor::c_call(fail, "m01ccc", m01ccc_messages, {{ch, "ch"}},
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    M01CCFT(ctx, ch, &m1, &m2, &l1, &l2, &order, msgbuf, ierr,
                            static_cast<std::size_t>(lenc), 1);
                });
}
