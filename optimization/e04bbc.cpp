// optimization/e04bbc.cpp — c interface of E04BB and its callback adapter e04bbc_functh.
#include "e04bb_messages.hpp"
#include "frame/frame.hpp"
#include "zor_e04.h"

extern "C" ZOR_API void e04bbc_functh(Zor_UserFn funct, const double* xc, double* fc, double* gc,
                                      Zor_Integer[], double[], Zor_Comm* comm) noexcept
{
    reinterpret_cast<E04BBC_FUNCT>(funct)(*xc, fc, gc, comm);
}

extern "C" ZOR_API void e04bbc(E04BBC_FUNCT funct, double* e1, double* e2, double* a, double* b,
                               Zor_Integer* max_fun, double* x, double* f, double* g,
                               Zor_Comm* comm, Zor_Fail* fail) noexcept
{
    zor::c_call(fail, "e04bbc", zor::optimization::e04bbc_messages,
                {{funct, "funct"}, {e1, "e1"}, {e2, "e2"}, {a, "a"}, {b, "b"},
                 {max_fun, "max_fun"}, {x, "x"}, {f, "f"}, {g, "g"}},
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    E04BBFT(ctx, e04bbc_functh, reinterpret_cast<Zor_UserFn>(funct), e1, e2, a,
                            b, max_fun, x, f, g, nullptr, nullptr, comm, msgbuf, ierr);
                });
}
