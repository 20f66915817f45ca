// zeros/c05ayf.cpp — F interface of C05AY and its callback adapter C05AYF_FH.
#include "c05ay_messages.hpp"
#include "frame/frame.hpp"
#include "zor_c05.h"

extern "C" ZOR_API void C05AYF_FH(Zor_UserFn f, const double* x, double* fx, Zor_Integer iuser[],
                                  double ruser[], Zor_Comm*) noexcept
{
    *fx = reinterpret_cast<C05AYF_F>(f)(x, iuser, ruser);
}

extern "C" ZOR_API void C05AYF(const double* a, const double* b, const double* eps,
                               const double* eta, C05AYF_F f, double* x, Zor_Integer iuser[],
                               double ruser[], Zor_Integer* ifail) noexcept
{
    zor::f_call(ifail, "c05ayf", zor::zeros::c05ayf_records,
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    C05AYFT(ctx, a, b, eps, eta, C05AYF_FH, reinterpret_cast<Zor_UserFn>(f), x,
                            iuser, ruser, nullptr, msgbuf, ierr);
                });
}
ZOR_F_ALIAS(c05ayf_, C05AYF);
