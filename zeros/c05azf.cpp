// zeros/c05azf.cpp — F interface of C05AZ. A return that asks for a function value
// (IND /= 0) leaves IFAIL alone and prints nothing; only the final return goes through
// the error exit.
#include "c05az_messages.hpp"
#include "frame/frame.hpp"
#include "zor_c05.h"

extern "C" ZOR_API void C05AZF(double* x, double* y, const double* fx, const double* tolx,
                               const Zor_Integer* ir, double c[], Zor_Integer* ind,
                               Zor_Integer* ifail) noexcept
{
    zor::run_kernel(
        [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
            C05AZFT(ctx, x, y, fx, tolx, ir, c, ind, msgbuf, ierr);
        },
        [&](Zor_Integer ierr, const char* msgbuf) {
            if (ierr == 0 && *ind != 0) return;
            zor::f_exit(ifail, ierr, msgbuf, "c05azf", zor::zeros::c05azf_records);
        });
}
ZOR_F_ALIAS(c05azf_, C05AZF);
