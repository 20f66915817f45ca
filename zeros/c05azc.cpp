// zeros/c05azc.cpp — c interface of C05AZ. A return that asks for a function value
// (*ind != 0) leaves the fail record alone; the final return reports through it.
#include "c05az_messages.hpp"
#include "frame/frame.hpp"
#include "zor_c05.h"

extern "C" ZOR_API void c05azc(double* x, double* y, double fx, double tolx, Zor_Integer ir,
                               double c[], Zor_Integer* ind, Zor_Fail* fail) noexcept
{
    const char* null_arg = x == nullptr     ? "x"
                           : y == nullptr   ? "y"
                           : c == nullptr   ? "c"
                           : ind == nullptr ? "ind"
                                            : nullptr;
    if (null_arg != nullptr) {
        zor::c_begin(fail);
        if (ind != nullptr) *ind = 0;
        zor::c_bad_param(fail, "c05azc", null_arg);
        return;
    }
    zor::run_kernel(
        [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
            C05AZFT(ctx, x, y, &fx, &tolx, &ir, c, ind, msgbuf, ierr);
        },
        [&](Zor_Integer ierr, const char* msgbuf) {
            if (ierr == 0 && *ind != 0) return;
            zor::c_begin(fail);
            zor::c_exit(fail, ierr, msgbuf, "c05azc", zor::zeros::c05azc_messages);
        });
}
