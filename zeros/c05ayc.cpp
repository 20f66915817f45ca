// zeros/c05ayc.cpp — c interface of C05AY and its callback adapter c05ayc_fh.
#include "c05ay_messages.hpp"
#include "frame/frame.hpp"
#include "zor_c05.h"

extern "C" ZOR_API void c05ayc_fh(Zor_UserFn f, const double* x, double* fx, Zor_Integer[],
                                  double[], Zor_Comm* comm) noexcept
{
    *fx = reinterpret_cast<C05AYC_F>(f)(*x, comm);
}

extern "C" ZOR_API void c05ayc(double a, double b, double eps, double eta, C05AYC_F f, double* x,
                               Zor_Comm* comm, Zor_Fail* fail) noexcept
{
    zor::c_call(fail, "c05ayc", zor::zeros::c05ayc_messages, {{x, "x"}, {f, "f"}},
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    C05AYFT(ctx, &a, &b, &eps, &eta, c05ayc_fh, reinterpret_cast<Zor_UserFn>(f),
                            x, nullptr, nullptr, comm, msgbuf, ierr);
                });
}
