// sorting/m01n.cpp — searching sorted vectors by bisection: M01NAF (reals), M01NBF
// (integers), M01NCF (character strings) and M01NDF (several items, five kinds of
// search), their kernels and c twins.
//
// M01NAF, M01NBF, M01NCF return the position of the last element of VALID(M1:M2) that
// is not greater than ITEM, or 0 when ITEM is smaller than VALID(M1). VALID(M1:M2)
// must be in ascending order; if it is not, the result is some position in M1..M2 or
// 0, found in at most 32 steps. A NaN ITEM is not greater than or equal to anything
// and gives 0.
#include <algorithm>
#include <cstring>

#include "sorting/m01.hpp"
#include "zor_m01.h"

namespace zor::sorting {
namespace {

// Number of leading elements of 0..n-1 for which pred holds, assuming it holds on a
// prefix: about log2(n) + 1 evaluations, every one within 0..n-1.
template <class Pred>
std::size_t count_prefix(std::size_t n, Pred&& pred)
{
    std::size_t lo = 0, hi = n;
    while (lo < hi) {
        const std::size_t mid = lo + (hi - lo) / 2;
        if (pred(mid))
            lo = mid + 1;
        else
            hi = mid;
    }
    return lo;
}

Zor_Integer position(Zor_Integer m1, std::size_t count)
{
    return count == 0 ? 0 : static_cast<Zor_Integer>(m1 + static_cast<std::int64_t>(count) - 1);
}

// M1 <= M2, then M1 >= 1 (NAF, NBF); M2 >= M1, then M1 >= 1 (NCF).
int check_search(Message& msg, Zor_Integer m1, Zor_Integer m2, int order_code)
{
    if (m1 > m2) return msg.fail(1, order_code, m1, m2);
    if (m1 < 1) return msg.fail(1, msg_m1_ge_1, m1);
    return 0;
}

template <class T>
int search(const T* valid, Zor_Integer m1, Zor_Integer m2, T item, Zor_Integer& index, Message& msg)
{
    index = 0;
    if (int e = check_search(msg, m1, m2, msg_m1_le_m2)) return e;
    const T* v = valid + (m1 - 1);
    index = position(m1, count_prefix(section_length(m1, m2), [&](std::size_t i) { return v[i] <= item; }));
    return 0;
}

// Fixed-length strings compared as Fortran compares them: byte by byte as unsigned
// characters, the shorter one padded with blanks.
int compare_padded(const char* a, std::size_t la, const char* b, std::size_t lb)
{
    const std::size_t n = std::min(la, lb);
    if (int c = std::memcmp(a, b, n)) return c;
    for (std::size_t i = n; i < la; ++i)
        if (a[i] != ' ') return static_cast<unsigned char>(a[i]) < ' ' ? -1 : 1;
    for (std::size_t i = n; i < lb; ++i)
        if (b[i] != ' ') return ' ' < static_cast<unsigned char>(b[i]) ? -1 : 1;
    return 0;
}

int m01nc(const char* valid, std::size_t len, Zor_Integer m1, Zor_Integer m2, const char* item,
          std::size_t item_len, Zor_Integer& index, Message& msg)
{
    index = 0;
    if (int e = check_search(msg, m1, m2, msg_m2_ge_m1)) return e;
    const char* v = valid + static_cast<std::size_t>(m1 - 1) * len;
    index = position(m1, count_prefix(section_length(m1, m2), [&](std::size_t i) {
                         return compare_padded(v + i * len, len, item, item_len) <= 0;
                     }));
    return 0;
}

// M01NDF. For each x(k), k = 1..m, idx(k) receives, for the sorted a(m1:m2):
//   mode 0: the first i with a(i) = x(k), or 0;
//   mode 1: the last i with a(i) <= x(k), or 0;
//   mode 2: the first i with a(i) >= x(k), or 0;
//   mode 3: the interval i, m1 <= i <= max(m1, m2 - 1), with a(i) <= x(k) < a(i+1),
//           the end intervals taking the points beyond them (for piecewise evaluation);
//   mode 4: the i nearest to x(k), the lowest such i on a tie (m1 for a NaN x(k)).
int m01nd(const double* a, Zor_Integer n, Zor_Integer m1, Zor_Integer m2, const double* x, Zor_Integer m,
          Zor_Integer mode, Zor_Integer* idx, Message& msg)
{
    if (m < 1) return msg.fail(1, msg_m_ge_1, m);
    if (n < 2) return msg.fail(1, msg_n_ge_2, n);
    if (m1 > m2 || m2 > n) return msg.fail(1, msg_m1_m2_n, m1, m2, n);
    if (m1 < 1) return msg.fail(1, msg_m1_ge_1, m1);
    if (mode < 0 || mode > 4) return msg.fail(2, msg_mode, mode);
    const double* v = a + (m1 - 1);
    const std::size_t len = section_length(m1, m2);
    auto at = [&](std::size_t i) { return static_cast<Zor_Integer>(m1 + static_cast<std::int64_t>(i)); };
    for (Zor_Integer k = 0; k < m; ++k) {
        const double xk = x[k];
        const std::size_t le = count_prefix(len, [&](std::size_t i) { return v[i] <= xk; });
        const std::size_t lt = count_prefix(len, [&](std::size_t i) { return v[i] < xk; });
        Zor_Integer r = 0;
        switch (mode) {
        case 0: r = lt < len && v[lt] == xk ? at(lt) : 0; break;
        case 1: r = le > 0 ? at(le - 1) : 0; break;
        case 2: r = lt < len && v[lt] >= xk ? at(lt) : 0; break;
        case 3: r = at(std::min(le > 0 ? le - 1 : 0, len > 1 ? len - 2 : 0)); break;
        default: {
            // The lower neighbour is the first element equal to v[le - 1].
            if (le == 0) {
                r = at(0);
                break;
            }
            const double below = v[le - 1];
            const std::size_t first = count_prefix(le, [&](std::size_t i) { return v[i] < below; });
            r = le == len || (xk - below) <= (v[le] - xk) ? at(first) : at(le);
            break;
        }
        }
        idx[k] = r;
    }
    return 0;
}

}  // namespace
}  // namespace zor::sorting

using namespace zor::sorting;

// ---- M01NAF, M01NBF ----------------------------------------------------------------

#define ZOR_M01_SEARCH(UPPER, lower_f, lower_c, Elem)                                                   \
    extern "C" ZOR_API void UPPER##T(Zor_Context*, const Elem valid[], const Zor_Integer* m1,           \
                                     const Zor_Integer* m2, const Elem* item, Zor_Integer* index,       \
                                     char msgbuf[200], Zor_Integer* ierr) noexcept                   \
    {                                                                                                \
        zor::Message msg(msgbuf);                                                                    \
        *ierr = zor::guarded([&] { return search(valid, *m1, *m2, *item, *index, msg); });           \
    }                                                                                                \
    extern "C" ZOR_API Zor_Integer UPPER(const Elem valid[], const Zor_Integer* m1,                     \
                                         const Zor_Integer* m2, const Elem* item,                       \
                                         Zor_Integer* ifail) noexcept                                \
    {                                                                                                \
        Zor_Integer index = 0;                                                                       \
        zor::f_call(ifail, #lower_f, lower_f##_records,                                              \
                    [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {                         \
                        UPPER##T(ctx, valid, m1, m2, item, &index, msgbuf, ierr);                    \
                    });                                                                              \
        return index;                                                                                \
    }                                                                                                \
    ZOR_F_ALIAS(lower_f##_, UPPER);                                                                  \
    extern "C" ZOR_API Zor_Integer lower_c(const Elem valid[], Zor_Integer m1, Zor_Integer m2, Elem item,  \
                                           Zor_Fail* fail) noexcept                                  \
    {                                                                                                \
        Zor_Integer index = 0;                                                                       \
        zor::c_call(fail, #lower_c, lower_c##_messages, {{valid, "valid"}},                          \
                    [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {                         \
                        UPPER##T(ctx, valid, &m1, &m2, &item, &index, msgbuf, ierr);                 \
                    });                                                                              \
        return index;                                                                                \
    }

ZOR_M01_SEARCH(M01NAF, m01naf, m01nac, double)
ZOR_M01_SEARCH(M01NBF, m01nbf, m01nbc, Zor_Integer)

// ---- M01NCF ------------------------------------------------------------------------

extern "C" ZOR_API void M01NCFT(Zor_Context*, const char valid[], const Zor_Integer* m1,
                                const Zor_Integer* m2, const char* item, Zor_Integer* index,
                                char msgbuf[200], Zor_Integer* ierr, std::size_t valid_len,
                                std::size_t item_len) noexcept
{
    zor::Message msg(msgbuf);
    *ierr = zor::guarded([&] { return m01nc(valid, valid_len, *m1, *m2, item, item_len, *index, msg); });
}

extern "C" ZOR_API Zor_Integer M01NCF(const char valid[], const Zor_Integer* m1, const Zor_Integer* m2,
                                      const char* item, Zor_Integer* ifail, std::size_t valid_len,
                                      std::size_t item_len) noexcept
{
    Zor_Integer index = 0;
    zor::f_call(ifail, "m01ncf", m01ncf_records,
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    M01NCFT(ctx, valid, m1, m2, item, &index, msgbuf, ierr, valid_len, item_len);
                });
    return index;
}
ZOR_F_ALIAS(m01ncf_, M01NCF);

extern "C" ZOR_API Zor_Integer m01ncc(const char valid[], Zor_Integer lenc, Zor_Integer m1, Zor_Integer m2,
                                      const char* item, Zor_Fail* fail) noexcept
{
    // As c_call, with the length checked after the pointers.
    zor::c_begin(fail);
    if (!zor::c_require(fail, "m01ncc", {{valid, "valid"}, {item, "item"}})) return 0;
    if (lenc < 0) return zor::c_bad_param(fail, "m01ncc", "lenc"), 0;
    Zor_Integer index = 0;
    zor::run_kernel(
        [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
            M01NCFT(ctx, valid, &m1, &m2, item, &index, msgbuf, ierr,
                    static_cast<std::size_t>(lenc), std::strlen(item));
        },
        [&](Zor_Integer ierr, const char* msgbuf) {
            zor::c_exit(fail, ierr, msgbuf, "m01ncc", m01ncc_messages);
        });
    return index;
}

// ---- M01NDF ------------------------------------------------------------------------

extern "C" ZOR_API void M01NDFT(Zor_Context*, const double a[], const Zor_Integer* n, const Zor_Integer* m1,
                                const Zor_Integer* m2, const double x[], const Zor_Integer* m,
                                const Zor_Integer* mode, Zor_Integer idx[], char msgbuf[200],
                                Zor_Integer* ierr) noexcept
{
    zor::Message msg(msgbuf);
    *ierr = zor::guarded([&] { return m01nd(a, *n, *m1, *m2, x, *m, *mode, idx, msg); });
}

extern "C" ZOR_API void M01NDF(const double a[], const Zor_Integer* n, const Zor_Integer* m1,
                               const Zor_Integer* m2, const double x[], const Zor_Integer* m,
                               const Zor_Integer* mode, Zor_Integer idx[], Zor_Integer* ifail) noexcept
{
    zor::f_call(ifail, "m01ndf", m01ndf_records,
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    M01NDFT(ctx, a, n, m1, m2, x, m, mode, idx, msgbuf, ierr);
                });
}
ZOR_F_ALIAS(m01ndf_, M01NDF);

extern "C" ZOR_API void m01ndc(const double a[], Zor_Integer n, Zor_Integer m1, Zor_Integer m2,
                               const double x[], Zor_Integer m, Zor_Integer mode, Zor_Integer idx[],
                               Zor_Fail* fail) noexcept
{
    zor::c_call(fail, "m01ndc", m01ndc_messages, {{a, "a"}, {x, "x"}, {idx, "idx"}},
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    M01NDFT(ctx, a, &n, &m1, &m2, x, &m, &mode, idx, msgbuf, ierr);
                });
}
