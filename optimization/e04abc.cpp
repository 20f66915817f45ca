// optimization/e04abc.cpp — c interface of E04AB and its callback adapter e04abc_functh.
#include "e04_common.hpp"
#include "e04ab_messages.hpp"
#include "frame/frame.hpp"
#include "zor_e04.h"

extern "C" ZOR_API void e04abc_functh(Zor_UserFn funct, const double* xc, double* fc,
                                      Zor_Integer[], double[], Zor_Comm* comm) noexcept
{
    reinterpret_cast<E04ABC_FUNCT>(funct)(*xc, fc, comm);
}

extern "C" ZOR_API void e04abc(E04ABC_FUNCT funct, double* e1, double* e2, double* a, double* b,
                               Zor_Integer* max_fun, double* x, double* f, Zor_Comm* comm,
                               Zor_Fail* fail) noexcept
{
    constexpr const char* name = "e04abc";
    zor::c_begin(fail);
    const struct {
        const void* p;
        const char* name;
    } required[] = {{reinterpret_cast<const void*>(funct), "funct"},
                    {e1, "e1"}, {e2, "e2"}, {a, "a"}, {b, "b"},
                    {max_fun, "max_fun"}, {x, "x"}, {f, "f"}};
    for (const auto& r : required)
        if (r.p == nullptr) {
            zor::c_bad_param(fail, name, r.name);
            return;
        }
    Zor_Context ctx;
    Y90HAAN(&ctx);
    char msgbuf[zor::msgbuf_len];
    Zor_Integer ierr = 0;
    E04ABFT(&ctx, e04abc_functh, reinterpret_cast<Zor_UserFn>(funct), e1, e2, a, b, max_fun, x, f,
            nullptr, nullptr, comm, msgbuf, &ierr);
    zor::c_exit(fail, zor::optimization::e04ab_ifail(ierr), msgbuf, name,
                zor::optimization::e04abc_messages);
}
