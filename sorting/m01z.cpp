// sorting/m01z.cpp — permutations of the integers M1..M2 held in IPERM(M1:M2):
// M01ZAF inverts one in place, M01ZBF checks that IPERM holds one, M01ZCF lists its
// cycles. Entries out of range or repeated give error 2, with IPERM untouched.
#include "sorting/m01.hpp"
#include "zor_m01.h"

namespace zor::sorting {
namespace {

// Checks and returns the offset view of the permutation through p.
int check_permutation(Message& msg, const Zor_Integer* iperm, Zor_Integer m1, Zor_Integer m2,
                      const Zor_Integer*& p, std::size_t& n)
{
    if (int e = check_section(msg, m1, m2)) return e;
    n = section_length(m1, m2);
    p = iperm + (m1 - 1);
    const std::size_t bad = first_non_permutation(p, n, m1);
    if (bad < n) return fail_permutation(msg, msg_iperm_perm, p, bad, m1);
    return 0;
}

// Inverse in place, cycle by cycle: along s -> p(s) -> p(p(s)) ... each entry is
// replaced by its predecessor on the cycle.
int m01za(Zor_Integer* iperm, Zor_Integer m1, Zor_Integer m2, Message& msg)
{
    const Zor_Integer* cp = nullptr;
    std::size_t n = 0;
    if (int e = check_permutation(msg, iperm, m1, m2, cp, n)) return e;
    Zor_Integer* p = iperm + (m1 - 1);
    Bitmap done(n);
    for (std::size_t s = 0; s < n; ++s) {
        if (done.test(s)) continue;
        std::size_t prev = s;
        std::size_t cur = static_cast<std::size_t>(p[s] - m1);
        while (cur != s) {   // at most the length of the cycle
            const std::size_t next = static_cast<std::size_t>(p[cur] - m1);
            p[cur] = static_cast<Zor_Integer>(m1 + static_cast<std::int64_t>(prev));
            done.set(cur);
            prev = cur;
            cur = next;
        }
        p[s] = static_cast<Zor_Integer>(m1 + static_cast<std::int64_t>(prev));
        done.set(s);
    }
    return 0;
}

int m01zb(const Zor_Integer* iperm, Zor_Integer m1, Zor_Integer m2, Message& msg)
{
    const Zor_Integer* p = nullptr;
    std::size_t n = 0;
    return check_permutation(msg, iperm, m1, m2, p, n);
}

// Cycles in order of their smallest element, each starting from it, negated:
// i -> iperm(i) -> iperm(iperm(i)) ... Fixed points are cycles of one.
int m01zc(const Zor_Integer* iperm, Zor_Integer m1, Zor_Integer m2, Zor_Integer* icycl, Message& msg)
{
    const Zor_Integer* p = nullptr;
    std::size_t n = 0;
    if (int e = check_permutation(msg, iperm, m1, m2, p, n)) return e;
    Zor_Integer* out = icycl + (m1 - 1);
    Bitmap done(n);
    std::size_t o = 0;
    for (std::size_t s = 0; s < n; ++s) {
        if (done.test(s)) continue;
        out[o++] = -static_cast<Zor_Integer>(m1 + static_cast<std::int64_t>(s));
        done.set(s);
        for (std::size_t cur = static_cast<std::size_t>(p[s] - m1); cur != s;
             cur = static_cast<std::size_t>(p[cur] - m1)) {
            out[o++] = static_cast<Zor_Integer>(m1 + static_cast<std::int64_t>(cur));
            done.set(cur);
        }
    }
    return 0;
}

}  // namespace
}  // namespace zor::sorting

using namespace zor::sorting;

// ---- M01ZAF ------------------------------------------------------------------------

extern "C" ZOR_API void M01ZAFT(Zor_Context*, Zor_Integer iperm[], const Zor_Integer* m1,
                                const Zor_Integer* m2, char msgbuf[200], Zor_Integer* ierr) noexcept
{
    zor::Message msg(msgbuf);
    *ierr = zor::guarded([&] { return m01za(iperm, *m1, *m2, msg); });
}

extern "C" ZOR_API void M01ZAF(Zor_Integer iperm[], const Zor_Integer* m1, const Zor_Integer* m2,
                               Zor_Integer* ifail) noexcept
{
    zor::f_call(ifail, "m01zaf", m01zaf_records,
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    M01ZAFT(ctx, iperm, m1, m2, msgbuf, ierr);
                });
}
ZOR_F_ALIAS(m01zaf_, M01ZAF);

extern "C" ZOR_API void m01zac(Zor_Integer iperm[], Zor_Integer m1, Zor_Integer m2, Zor_Fail* fail) noexcept
{
    zor::c_call(fail, "m01zac", m01zac_messages, {{iperm, "iperm"}},
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    M01ZAFT(ctx, iperm, &m1, &m2, msgbuf, ierr);
                });
}

// ---- M01ZBF ------------------------------------------------------------------------

extern "C" ZOR_API void M01ZBFT(Zor_Context*, const Zor_Integer iperm[], const Zor_Integer* m1,
                                const Zor_Integer* m2, char msgbuf[200], Zor_Integer* ierr) noexcept
{
    zor::Message msg(msgbuf);
    *ierr = zor::guarded([&] { return m01zb(iperm, *m1, *m2, msg); });
}

extern "C" ZOR_API void M01ZBF(const Zor_Integer iperm[], const Zor_Integer* m1, const Zor_Integer* m2,
                               Zor_Integer* ifail) noexcept
{
    zor::f_call(ifail, "m01zbf", m01zbf_records,
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    M01ZBFT(ctx, iperm, m1, m2, msgbuf, ierr);
                });
}
ZOR_F_ALIAS(m01zbf_, M01ZBF);

extern "C" ZOR_API void m01zbc(const Zor_Integer iperm[], Zor_Integer m1, Zor_Integer m2,
                               Zor_Fail* fail) noexcept
{
    zor::c_call(fail, "m01zbc", m01zbc_messages, {{iperm, "iperm"}},
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    M01ZBFT(ctx, iperm, &m1, &m2, msgbuf, ierr);
                });
}

// ---- M01ZCF ------------------------------------------------------------------------

extern "C" ZOR_API void M01ZCFT(Zor_Context*, const Zor_Integer iperm[], const Zor_Integer* m1,
                                const Zor_Integer* m2, Zor_Integer icycl[], char msgbuf[200],
                                Zor_Integer* ierr) noexcept
{
    zor::Message msg(msgbuf);
    *ierr = zor::guarded([&] { return m01zc(iperm, *m1, *m2, icycl, msg); });
}

extern "C" ZOR_API void M01ZCF(const Zor_Integer iperm[], const Zor_Integer* m1, const Zor_Integer* m2,
                               Zor_Integer icycl[], Zor_Integer* ifail) noexcept
{
    zor::f_call(ifail, "m01zcf", m01zcf_records,
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    M01ZCFT(ctx, iperm, m1, m2, icycl, msgbuf, ierr);
                });
}
ZOR_F_ALIAS(m01zcf_, M01ZCF);

extern "C" ZOR_API void m01zcc(const Zor_Integer iperm[], Zor_Integer m1, Zor_Integer m2,
                               Zor_Integer icycl[], Zor_Fail* fail) noexcept
{
    zor::c_call(fail, "m01zcc", m01zcc_messages, {{iperm, "iperm"}, {icycl, "icycl"}},
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    M01ZCFT(ctx, iperm, &m1, &m2, icycl, msgbuf, ierr);
                });
}
