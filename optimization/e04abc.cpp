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
    zor::c_call(fail, "e04abc", zor::optimization::e04abc_messages,
                {{funct, "funct"}, {e1, "e1"}, {e2, "e2"}, {a, "a"}, {b, "b"},
                 {max_fun, "max_fun"}, {x, "x"}, {f, "f"}},
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    E04ABFT(ctx, e04abc_functh, reinterpret_cast<Zor_UserFn>(funct), e1, e2, a,
                            b, max_fun, x, f, nullptr, nullptr, comm, msgbuf, ierr);
                    *ierr = zor::optimization::e04ab_ifail(*ierr);
                });
}
