// sorting/m01e.cpp — rearranging into rank order, in place: M01EAF (reals), M01EBF
// (integers), M01ECF (character strings), M01EDF (complex numbers), their kernels and
// c twins. Element i of the section moves to position IRANK(i); IRANK must hold a
// permutation of M1..M2 (error 2 otherwise, the vector untouched). One routine does
// the moving for all four, on records of the element's size.
#include <cstring>

#include "sorting/m01.hpp"
#include "zor_m01.h"

namespace zor::sorting {
namespace {

int rearrange(char* base, std::size_t size, Zor_Integer m1, Zor_Integer m2, const Zor_Integer* irank,
              Message& msg)
{
    if (int e = check_section(msg, m1, m2)) return e;
    const std::size_t n = section_length(m1, m2);
    const Zor_Integer* r = irank + (m1 - 1);
    const std::size_t bad = first_non_permutation(r, n, m1);
    if (bad < n) return fail_permutation(msg, msg_irank_perm, r, bad, m1);
    scatter_records(base + static_cast<std::size_t>(m1 - 1) * size, size, r, n, m1);
    return 0;
}

}  // namespace
}  // namespace zor::sorting

using namespace zor::sorting;

#define ZOR_M01_REARRANGE(UPPER, lower_f, lower_c, Elem, arg, size)                                     \
    extern "C" ZOR_API void UPPER##T(Zor_Context*, Elem arg[], const Zor_Integer* m1,                   \
                                     const Zor_Integer* m2, const Zor_Integer irank[],               \
                                     char msgbuf[200], Zor_Integer* ierr) noexcept                   \
    {                                                                                                \
        zor::Message msg(msgbuf);                                                                    \
        *ierr = zor::guarded(                                                                        \
            [&] { return rearrange(reinterpret_cast<char*>(arg), size, *m1, *m2, irank, msg); });    \
    }                                                                                                \
    extern "C" ZOR_API void UPPER(Elem arg[], const Zor_Integer* m1, const Zor_Integer* m2,             \
                                  const Zor_Integer irank[], Zor_Integer* ifail) noexcept            \
    {                                                                                                \
        zor::f_call(ifail, #lower_f, lower_f##_records,                                              \
                    [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {                         \
                        UPPER##T(ctx, arg, m1, m2, irank, msgbuf, ierr);                             \
                    });                                                                              \
    }                                                                                                \
    ZOR_F_ALIAS(lower_f##_, UPPER);                                                                  \
    extern "C" ZOR_API void lower_c(Elem arg[], Zor_Integer m1, Zor_Integer m2,                         \
                                    const Zor_Integer irank[], Zor_Fail* fail) noexcept              \
    {                                                                                                \
        zor::c_call(fail, #lower_c, lower_c##_messages, {{arg, #arg}, {irank, "irank"}},             \
                    [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {                         \
                        UPPER##T(ctx, arg, &m1, &m2, irank, msgbuf, ierr);                           \
                    });                                                                              \
    }

ZOR_M01_REARRANGE(M01EAF, m01eaf, m01eac, double, rv, sizeof(double))
ZOR_M01_REARRANGE(M01EBF, m01ebf, m01ebc, Zor_Integer, iv, sizeof(Zor_Integer))
// A complex number is two doubles, real part first (Fortran's COMPLEX(KIND=8)).
ZOR_M01_REARRANGE(M01EDF, m01edf, m01edc, double, cv, 2 * sizeof(double))

// ---- M01ECF: strings of len(ch(1)) <= 255 characters, checked first -----------------

extern "C" ZOR_API void M01ECFT(Zor_Context*, char ch[], const Zor_Integer* m1, const Zor_Integer* m2,
                                const Zor_Integer irank[], char msgbuf[200], Zor_Integer* ierr,
                                std::size_t ch_len) noexcept
{
    zor::Message msg(msgbuf);
    *ierr = zor::guarded([&] {
        if (ch_len > 255) return msg.fail(1, msg_len_le_255, static_cast<long long>(ch_len));
        return rearrange(ch, ch_len, *m1, *m2, irank, msg);
    });
}

extern "C" ZOR_API void M01ECF(char ch[], const Zor_Integer* m1, const Zor_Integer* m2,
                               const Zor_Integer irank[], Zor_Integer* ifail, std::size_t ch_len) noexcept
{
    zor::f_call(ifail, "m01ecf", m01ecf_records,
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    M01ECFT(ctx, ch, m1, m2, irank, msgbuf, ierr, ch_len);
                });
}
ZOR_F_ALIAS(m01ecf_, M01ECF);

extern "C" ZOR_API void m01ecc(char ch[], Zor_Integer lenc, Zor_Integer m1, Zor_Integer m2,
                               const Zor_Integer irank[], Zor_Fail* fail) noexcept
{
    // As c_call, with the length checked after the pointers.
    zor::c_begin(fail);
    if (!zor::c_require(fail, "m01ecc", {{ch, "ch"}, {irank, "irank"}})) return;
    if (lenc < 0) return void(zor::c_bad_param(fail, "m01ecc", "lenc"));
    zor::run_kernel(
        [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
            M01ECFT(ctx, ch, &m1, &m2, irank, msgbuf, ierr, static_cast<std::size_t>(lenc));
        },
        [&](Zor_Integer ierr, const char* msgbuf) {
            zor::c_exit(fail, ierr, msgbuf, "m01ecc", m01ecc_messages);
        });
}
