// sorting/m01d.cpp — ranking: M01DAF, M01DBF, M01DCF (reals, integers, strings),
// M01DEF, M01DFF (rows of a real or integer matrix), M01DJF, M01DKF (columns),
// M01DZF (any data, through the caller's comparison), their kernels and c twins.
//
// Every ranking is stable: equal keys keep the order of their positions, in either
// direction. IRANK(i) receives the rank of element i, counted from M1: the smallest
// element (the largest for a descending ranking) gets M1, the next M1 + 1, and so on.
#include <cstring>
#include <type_traits>
#include <vector>

#include "sorting/m01.hpp"
#include "zor_m01.h"

namespace zor::sorting {
namespace {

// From this many keys on, the quicksort below moves keys with their offsets; under it
// the keys (8192 doubles, 64 KiB) stay in the cache and the copy costs more than it saves.
constexpr std::size_t keyed_from = 8192;

// Sorts the offsets idx of the keys x stably under less. Data made of long runs
// (sorted, reversed, organ-pipe) go to the natural merge sort, which then costs a few
// passes; other data to the chapter's quicksort, with the offset breaking ties so that
// every key is distinct and the order unique, which reads the keys fewer times than a
// merge does. On large sections the quicksort moves each key together with its
// offset, so that it reads the keys in sequence instead of through the offsets (a
// cache miss a comparison on large random data). Runs are counted as changes of
// direction between neighbours.
template <class T, class Less>
void rank_sort(std::span<Zor_Integer> idx, const T* x, Less less, std::vector<Zor_Integer>& buf)
{
    std::size_t turns = 0;
    int dir = 0;
    for (std::size_t i = 1; i < idx.size(); ++i) {
        const T a = x[idx[i - 1]], b = x[idx[i]];
        const int d = less(a, b) ? 1 : less(b, a) ? -1 : 0;
        if (d != 0 && d != dir) {
            turns += dir != 0;
            dir = d;
        }
    }
    if (turns < idx.size() / 32) {
        merge_sort(idx, [x, less](Zor_Integer a, Zor_Integer b) { return less(x[a], x[b]); }, buf);
    } else if (idx.size() < keyed_from) {
        quicksort(idx, [x, less](Zor_Integer a, Zor_Integer b) {
            return less(x[a], x[b]) || (!less(x[b], x[a]) && a < b);
        });
    } else {
        struct Keyed {
            T key;
            Zor_Integer offset;
        };
        std::vector<Keyed> keyed(idx.size());
        for (std::size_t i = 0; i < idx.size(); ++i) keyed[i] = {x[idx[i]], idx[i]};
        quicksort(std::span<Keyed>(keyed), [less](const Keyed& a, const Keyed& b) {
            return less(a.key, b.key) || (!less(b.key, a.key) && a.offset < b.offset);
        });
        for (std::size_t i = 0; i < idx.size(); ++i) idx[i] = keyed[i].offset;
    }
}

// True for a NaN alone (x != x); integers have none.
template <class T>
bool is_nan(T x)
{
    if constexpr (std::is_floating_point_v<T>)
        return x != x;
    else
        return false;
}

// M01DAF, M01DBF. Reals rank with -0 equal to +0 and every NaN above every number
// (below it, for a descending ranking), NaNs equal among themselves. The NaNs are set
// apart first, in their order, at the end of the order (at its start, descending), so
// that the numbers are sorted with a plain comparison. Integers have no NaN: the
// order starts as the identity and all of it is sorted.
template <class T>
int rank_vector(const T* v, Zor_Integer m1, Zor_Integer m2, const char* order, std::size_t order_len,
                Zor_Integer* irank, Message& msg)
{
    bool descending = false;
    if (int e = check_order(msg, order, order_len, descending)) return e;
    if (int e = check_section(msg, m1, m2)) return e;
    const std::size_t n = section_length(m1, m2);
    const T* x = v + (m1 - 1);
    Zor_Integer* r = irank + (m1 - 1);
    std::size_t nans = 0;
    for (std::size_t i = 0; i < n; ++i) nans += is_nan(x[i]);
    std::size_t at_number = descending ? nans : 0, at_nan = descending ? 0 : n - nans;
    for (std::size_t i = 0; i < n; ++i) r[is_nan(x[i]) ? at_nan++ : at_number++] = static_cast<Zor_Integer>(i);
    const std::span<Zor_Integer> numbers(r + (descending ? nans : 0), n - nans);
    std::vector<Zor_Integer> buf;
    if (descending)
        rank_sort(numbers, x, [](T a, T b) { return b < a; }, buf);
    else
        rank_sort(numbers, x, [](T a, T b) { return a < b; }, buf);
    order_to_ranks(r, n, m1, buf);
    return 0;
}

// M01DCF: strings compared on columns l1..l2, byte by byte as unsigned characters.
int m01dc(const char* ch, std::int64_t len, Zor_Integer m1, Zor_Integer m2, Zor_Integer l1,
          Zor_Integer l2, const char* order, std::size_t order_len, Zor_Integer* irank, Message& msg)
{
    bool descending = false;
    if (int e = check_strings(msg, len, m1, m2, l1, l2, order, order_len, descending)) return e;
    const std::size_t size = static_cast<std::size_t>(len);
    const char* key = ch + static_cast<std::size_t>(m1 - 1) * size + (l1 - 1);
    const std::size_t klen = static_cast<std::size_t>(l2 - l1 + 1);
    const int sign = descending ? -1 : 1;
    rank_by(section_length(m1, m2), m1, irank + (m1 - 1), [&](Zor_Integer a, Zor_Integer b) {
        return sign * std::memcmp(key + static_cast<std::size_t>(a) * size, key + static_cast<std::size_t>(b) * size, klen);
    });
    return 0;
}

inline std::uint64_t key_of(double x) { return real_key(x); }
inline std::uint64_t key_of(Zor_Integer x) { return int_key(x); }

// The matrix checks: ORDER, M2 >= 1, M1 >= 1, [M1 <= M2], N2 >= 1, N1 >= 1, N1 <= N2,
// M2 <= LDM.
int check_matrix(Message& msg, Zor_Integer ldm, Zor_Integer m1, Zor_Integer m2, Zor_Integer n1,
                 Zor_Integer n2, const char* order, std::size_t order_len, bool check_m1_le_m2,
                 bool& descending)
{
    if (int e = check_order(msg, order, order_len, descending)) return e;
    if (m2 < 1) return msg.fail(1, msg_m2_ge_1, m2);
    if (m1 < 1) return msg.fail(1, msg_m1_ge_1, m1);
    if (check_m1_le_m2 && m1 > m2) return msg.fail(1, msg_m1_le_m2, m1, m2);
    if (n2 < 1) return msg.fail(1, msg_n2_ge_1, n2);
    if (n1 < 1) return msg.fail(1, msg_n1_ge_1, n1);
    if (n1 > n2) return msg.fail(1, msg_n1_le_n2, n1, n2);
    if (m2 > ldm) return msg.fail(1, msg_m2_le_ldm, m2, ldm);
    return 0;
}

// Rows m1..m2 ranked by their entries in columns n1..n2, the first column deciding
// first. M01DEF does not require M1 <= M2: an empty set of rows has nothing to rank.
template <class T>
int rank_rows(const T* a, Zor_Integer ldm, Zor_Integer m1, Zor_Integer m2, Zor_Integer n1,
              Zor_Integer n2, const char* order, std::size_t order_len, Zor_Integer* irank,
              bool check_m1_le_m2, Message& msg)
{
    bool descending = false;
    if (int e = check_matrix(msg, ldm, m1, m2, n1, n2, order, order_len, check_m1_le_m2, descending))
        return e;
    if (m1 > m2) return 0;
    const std::size_t ld = static_cast<std::size_t>(ldm);
    const T* first = a + static_cast<std::size_t>(m1 - 1);
    rank_by(section_length(m1, m2), m1, irank + (m1 - 1), [&](Zor_Integer r, Zor_Integer s) {
        for (Zor_Integer j = n1; j <= n2; ++j) {
            const T* col = first + static_cast<std::size_t>(j - 1) * ld;
            const std::uint64_t x = key_of(col[r]), y = key_of(col[s]);
            if (x != y) return (x < y) != descending ? -1 : 1;
        }
        return 0;
    });
    return 0;
}

// Columns n1..n2 ranked by their entries in rows m1..m2, the first row deciding first.
template <class T>
int rank_columns(const T* a, Zor_Integer ldm, Zor_Integer m1, Zor_Integer m2, Zor_Integer n1,
                 Zor_Integer n2, const char* order, std::size_t order_len, Zor_Integer* irank,
                 Message& msg)
{
    bool descending = false;
    if (int e = check_matrix(msg, ldm, m1, m2, n1, n2, order, order_len, true, descending)) return e;
    const std::size_t ld = static_cast<std::size_t>(ldm);
    const T* first = a + static_cast<std::size_t>(n1 - 1) * ld;
    rank_by(section_length(n1, n2), n1, irank + (n1 - 1), [&](Zor_Integer c, Zor_Integer d) {
        const T* x = first + static_cast<std::size_t>(c) * ld;
        const T* y = first + static_cast<std::size_t>(d) * ld;
        for (Zor_Integer i = m1 - 1; i < m2; ++i) {
            const std::uint64_t u = key_of(x[i]), v = key_of(y[i]);
            if (u != v) return (u < v) != descending ? -1 : 1;
        }
        return 0;
    });
    return 0;
}

// M01DZF: a stable merge sort, which stays within the section whatever the caller's
// comparison answers (inconsistent answers give some ranking, never a fault).
int m01dz(M01DZ_Adapter adapter, Zor_UserFn compar, Zor_Integer m1, Zor_Integer m2,
          Zor_Integer* irank, Zor_Integer* iuser, double* ruser, Zor_Comm* comm, Message& msg)
{
    if (int e = check_section(msg, m1, m2)) return e;
    rank_offsets(section_length(m1, m2), m1, irank + (m1 - 1), [&](Zor_Integer a, Zor_Integer b) {
        const Zor_Integer i = static_cast<Zor_Integer>(m1 + static_cast<std::int64_t>(a));
        const Zor_Integer j = static_cast<Zor_Integer>(m1 + static_cast<std::int64_t>(b));
        Zor_Integer before = 0;
        adapter(compar, &i, &j, &before, iuser, ruser, comm);
        return before != 0;
    });
    return 0;
}

}  // namespace
}  // namespace zor::sorting

using namespace zor::sorting;

// ---- M01DAF ------------------------------------------------------------------------

extern "C" ZOR_API void M01DAFT(Zor_Context*, const double rv[], const Zor_Integer* m1,
                                const Zor_Integer* m2, const char* order, Zor_Integer irank[],
                                char msgbuf[200], Zor_Integer* ierr, std::size_t order_len) noexcept
{
    zor::Message msg(msgbuf);
    *ierr = zor::guarded([&] { return rank_vector(rv, *m1, *m2, order, order_len, irank, msg); });
}

extern "C" ZOR_API void M01DAF(const double rv[], const Zor_Integer* m1, const Zor_Integer* m2,
                               const char* order, Zor_Integer irank[], Zor_Integer* ifail,
                               std::size_t order_len) noexcept
{
    zor::f_call(ifail, "m01daf", m01daf_records,
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    M01DAFT(ctx, rv, m1, m2, order, irank, msgbuf, ierr, order_len);
                });
}
ZOR_F_ALIAS(m01daf_, M01DAF);

extern "C" ZOR_API void m01dac(const double rv[], Zor_Integer m1, Zor_Integer m2, char order,
                               Zor_Integer irank[], Zor_Fail* fail) noexcept
{
    zor::c_call(fail, "m01dac", m01dac_messages, {{rv, "rv"}, {irank, "irank"}},
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    M01DAFT(ctx, rv, &m1, &m2, &order, irank, msgbuf, ierr, 1);
                });
}

// ---- M01DBF ------------------------------------------------------------------------

extern "C" ZOR_API void M01DBFT(Zor_Context*, const Zor_Integer iv[], const Zor_Integer* m1,
                                const Zor_Integer* m2, const char* order, Zor_Integer irank[],
                                char msgbuf[200], Zor_Integer* ierr, std::size_t order_len) noexcept
{
    zor::Message msg(msgbuf);
    *ierr = zor::guarded([&] { return rank_vector(iv, *m1, *m2, order, order_len, irank, msg); });
}

extern "C" ZOR_API void M01DBF(const Zor_Integer iv[], const Zor_Integer* m1, const Zor_Integer* m2,
                               const char* order, Zor_Integer irank[], Zor_Integer* ifail,
                               std::size_t order_len) noexcept
{
    zor::f_call(ifail, "m01dbf", m01dbf_records,
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    M01DBFT(ctx, iv, m1, m2, order, irank, msgbuf, ierr, order_len);
                });
}
ZOR_F_ALIAS(m01dbf_, M01DBF);

extern "C" ZOR_API void m01dbc(const Zor_Integer iv[], Zor_Integer m1, Zor_Integer m2, char order,
                               Zor_Integer irank[], Zor_Fail* fail) noexcept
{
    zor::c_call(fail, "m01dbc", m01dbc_messages, {{iv, "iv"}, {irank, "irank"}},
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    M01DBFT(ctx, iv, &m1, &m2, &order, irank, msgbuf, ierr, 1);
                });
}

// ---- M01DCF ------------------------------------------------------------------------

extern "C" ZOR_API void M01DCFT(Zor_Context*, const char ch[], const Zor_Integer* m1,
                                const Zor_Integer* m2, const Zor_Integer* l1, const Zor_Integer* l2,
                                const char* order, Zor_Integer irank[], char msgbuf[200],
                                Zor_Integer* ierr, std::size_t ch_len, std::size_t order_len) noexcept
{
    // A negative lenc of the c interface arrives as a huge size_t and converts back.
    zor::Message msg(msgbuf);
    *ierr = zor::guarded([&] {
        return m01dc(ch, static_cast<std::int64_t>(ch_len), *m1, *m2, *l1, *l2, order, order_len, irank,
                     msg);
    });
}

extern "C" ZOR_API void M01DCF(const char ch[], const Zor_Integer* m1, const Zor_Integer* m2,
                               const Zor_Integer* l1, const Zor_Integer* l2, const char* order,
                               Zor_Integer irank[], Zor_Integer* ifail, std::size_t ch_len,
                               std::size_t order_len) noexcept
{
    zor::f_call(ifail, "m01dcf", m01dcf_records,
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    M01DCFT(ctx, ch, m1, m2, l1, l2, order, irank, msgbuf, ierr, ch_len, order_len);
                });
}
ZOR_F_ALIAS(m01dcf_, M01DCF);

extern "C" ZOR_API void m01dcc(const char ch[], Zor_Integer lenc, Zor_Integer m1, Zor_Integer m2,
                               Zor_Integer l1, Zor_Integer l2, char order, Zor_Integer irank[],
                               Zor_Fail* fail) noexcept
{
    zor::c_call(fail, "m01dcc", m01dcc_messages, {{ch, "ch"}, {irank, "irank"}},
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    M01DCFT(ctx, ch, &m1, &m2, &l1, &l2, &order, irank, msgbuf, ierr,
                            static_cast<std::size_t>(lenc), 1);
                });
}

// ---- M01DEF, M01DFF, M01DJF, M01DKF: one shape, four instances ------------------------

#define ZOR_M01_MATRIX_RANK(UPPER, lower_f, lower_c, Elem, arg, body)                                   \
    extern "C" ZOR_API void UPPER##T(Zor_Context*, const Elem arg[], const Zor_Integer* ldm,            \
                                     const Zor_Integer* m1, const Zor_Integer* m2,                   \
                                     const Zor_Integer* n1, const Zor_Integer* n2, const char* order, \
                                     Zor_Integer irank[], char msgbuf[200], Zor_Integer* ierr,       \
                                     std::size_t order_len) noexcept                                 \
    {                                                                                                \
        zor::Message msg(msgbuf);                                                                    \
        *ierr = zor::guarded([&] { return body; });                                                  \
    }                                                                                                \
    extern "C" ZOR_API void UPPER(const Elem arg[], const Zor_Integer* ldm, const Zor_Integer* m1,      \
                                  const Zor_Integer* m2, const Zor_Integer* n1,                      \
                                  const Zor_Integer* n2, const char* order, Zor_Integer irank[],     \
                                  Zor_Integer* ifail, std::size_t order_len) noexcept                \
    {                                                                                                \
        zor::f_call(ifail, #lower_f, lower_f##_records,                                              \
                    [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {                         \
                        UPPER##T(ctx, arg, ldm, m1, m2, n1, n2, order, irank, msgbuf, ierr, order_len); \
                    });                                                                              \
    }                                                                                                \
    ZOR_F_ALIAS(lower_f##_, UPPER);                                                                  \
    extern "C" ZOR_API void lower_c(const Elem arg[], Zor_Integer ldm, Zor_Integer m1, Zor_Integer m2,  \
                                    Zor_Integer n1, Zor_Integer n2, char order, Zor_Integer irank[], \
                                    Zor_Fail* fail) noexcept                                         \
    {                                                                                                \
        zor::c_call(fail, #lower_c, lower_c##_messages, {{arg, #arg}, {irank, "irank"}},             \
                    [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {                         \
                        UPPER##T(ctx, arg, &ldm, &m1, &m2, &n1, &n2, &order, irank, msgbuf, ierr, 1);   \
                    });                                                                              \
    }

ZOR_M01_MATRIX_RANK(M01DEF, m01def, m01dec, double, rm,
                    rank_rows(rm, *ldm, *m1, *m2, *n1, *n2, order, order_len, irank, false, msg))
ZOR_M01_MATRIX_RANK(M01DFF, m01dff, m01dfc, Zor_Integer, im,
                    rank_rows(im, *ldm, *m1, *m2, *n1, *n2, order, order_len, irank, true, msg))
ZOR_M01_MATRIX_RANK(M01DJF, m01djf, m01djc, double, rm,
                    rank_columns(rm, *ldm, *m1, *m2, *n1, *n2, order, order_len, irank, msg))
ZOR_M01_MATRIX_RANK(M01DKF, m01dkf, m01dkc, Zor_Integer, im,
                    rank_columns(im, *ldm, *m1, *m2, *n1, *n2, order, order_len, irank, msg))

// ---- M01DZF ------------------------------------------------------------------------

extern "C" ZOR_API void M01DZF_FH(Zor_UserFn compar, const Zor_Integer* i, const Zor_Integer* j,
                                  Zor_Integer* before, Zor_Integer iuser[], double ruser[],
                                  Zor_Comm*) noexcept
{
    *before = reinterpret_cast<M01DZF_COMPAR>(compar)(i, j, iuser, ruser) != 0;
}

extern "C" ZOR_API void m01dzc_fh(Zor_UserFn compar, const Zor_Integer* i, const Zor_Integer* j,
                                  Zor_Integer* before, Zor_Integer*, double*, Zor_Comm* comm) noexcept
{
    *before = reinterpret_cast<m01dzc_compar>(compar)(*i, *j, comm) != 0;
}

extern "C" ZOR_API void M01DZFT(Zor_Context*, M01DZ_Adapter adapter, Zor_UserFn compar,
                                const Zor_Integer* m1, const Zor_Integer* m2, Zor_Integer irank[],
                                Zor_Integer iuser[], double ruser[], Zor_Comm* comm, char msgbuf[200],
                                Zor_Integer* ierr) noexcept
{
    zor::Message msg(msgbuf);
    *ierr = zor::guarded([&] { return m01dz(adapter, compar, *m1, *m2, irank, iuser, ruser, comm, msg); });
}

extern "C" ZOR_API void M01DZF(M01DZF_COMPAR compar, const Zor_Integer* m1, const Zor_Integer* m2,
                               Zor_Integer irank[], Zor_Integer iuser[], double ruser[],
                               Zor_Integer* ifail) noexcept
{
    zor::f_call(ifail, "m01dzf", m01dzf_records,
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    M01DZFT(ctx, M01DZF_FH, reinterpret_cast<Zor_UserFn>(compar), m1, m2, irank, iuser,
                            ruser, nullptr, msgbuf, ierr);
                });
}
ZOR_F_ALIAS(m01dzf_, M01DZF);

extern "C" ZOR_API void m01dzc(m01dzc_compar compar, Zor_Integer m1, Zor_Integer m2, Zor_Integer irank[],
                               Zor_Comm* comm, Zor_Fail* fail) noexcept
{
    zor::c_call(fail, "m01dzc", m01dzc_messages, {{compar, "compar"}, {irank, "irank"}},
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    M01DZFT(ctx, m01dzc_fh, reinterpret_cast<Zor_UserFn>(compar), &m1, &m2, irank,
                            nullptr, nullptr, comm, msgbuf, ierr);
                });
}
