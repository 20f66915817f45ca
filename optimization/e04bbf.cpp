// optimization/e04bbf.cpp — F interface of E04BB: E04BBF, E04BBA and their callback
// adapters E04BBF_FUNCTH and E04BBA_FUNCTH.
#include "e04bb_messages.hpp"
#include "frame/frame.hpp"
#include "zor_e04.h"

extern "C" ZOR_API void E04BBF_FUNCTH(Zor_UserFn funct, const double* xc, double* fc, double* gc,
                                      Zor_Integer[], double[], Zor_Comm*) noexcept
{
    reinterpret_cast<E04BBF_FUNCT>(funct)(xc, fc, gc);
}

extern "C" ZOR_API void E04BBA_FUNCTH(Zor_UserFn funct, const double* xc, double* fc, double* gc,
                                      Zor_Integer iuser[], double ruser[], Zor_Comm*) noexcept
{
    reinterpret_cast<E04BBA_FUNCT>(funct)(xc, fc, gc, iuser, ruser);
}

extern "C" ZOR_API void E04BBF(E04BBF_FUNCT funct, double* e1, double* e2, double* a, double* b,
                               Zor_Integer* maxcal, double* x, double* f, double* g,
                               Zor_Integer* ifail) noexcept
{
    Zor_Integer iuser[1] = {0};
    double ruser[1] = {0.0};
    zor::f_call(ifail, "e04bbf", zor::optimization::e04bbf_records,
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    E04BBFT(ctx, E04BBF_FUNCTH, reinterpret_cast<Zor_UserFn>(funct), e1, e2, a,
                            b, maxcal, x, f, g, iuser, ruser, nullptr, msgbuf, ierr);
                });
}

extern "C" ZOR_API void E04BBA(E04BBA_FUNCT funct, double* e1, double* e2, double* a, double* b,
                               Zor_Integer* maxcal, double* x, double* f, double* g,
                               Zor_Integer iuser[], double ruser[], Zor_Integer* ifail) noexcept
{
    zor::f_call(ifail, "e04bba", zor::optimization::e04bba_records,
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    E04BBFT(ctx, E04BBA_FUNCTH, reinterpret_cast<Zor_UserFn>(funct), e1, e2, a,
                            b, maxcal, x, f, g, iuser, ruser, nullptr, msgbuf, ierr);
                });
}

ZOR_F_ALIAS(e04bbf_, E04BBF);
ZOR_F_ALIAS(e04bba_, E04BBA);
