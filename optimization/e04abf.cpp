// optimization/e04abf.cpp — F interface of E04AB: E04ABF, E04ABA and their callback
// adapters E04ABF_FUNCTH and E04ABA_FUNCTH.
#include "e04_common.hpp"
#include "e04ab_messages.hpp"
#include "frame/frame.hpp"
#include "zor_e04.h"

extern "C" ZOR_API void E04ABF_FUNCTH(Zor_UserFn funct, const double* xc, double* fc,
                                      Zor_Integer[], double[], Zor_Comm*) noexcept
{
    reinterpret_cast<E04ABF_FUNCT>(funct)(xc, fc);
}

extern "C" ZOR_API void E04ABA_FUNCTH(Zor_UserFn funct, const double* xc, double* fc,
                                      Zor_Integer iuser[], double ruser[], Zor_Comm*) noexcept
{
    reinterpret_cast<E04ABA_FUNCT>(funct)(xc, fc, iuser, ruser);
}

namespace {

void e04ab_f_form(E04AB_Adapter fh, Zor_UserFn funct, double* e1, double* e2, double* a,
                  double* b, Zor_Integer* maxcal, double* x, double* f, Zor_Integer iuser[],
                  double ruser[], Zor_Integer* ifail, const char* name,
                  std::span<const zor::FRecord> records) noexcept
{
    zor::f_call(ifail, name, records, [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
        E04ABFT(ctx, fh, funct, e1, e2, a, b, maxcal, x, f, iuser, ruser, nullptr, msgbuf, ierr);
        const int error = zor::optimization::e04ab_ifail(*ierr);
        if (error != *ierr) zor::optimization::renumber(msgbuf, error);
        *ierr = error;
    });
}

}  // namespace

extern "C" ZOR_API void E04ABF(E04ABF_FUNCT funct, double* e1, double* e2, double* a, double* b,
                               Zor_Integer* maxcal, double* x, double* f,
                               Zor_Integer* ifail) noexcept
{
    Zor_Integer iuser[1] = {0};
    double ruser[1] = {0.0};
    e04ab_f_form(E04ABF_FUNCTH, reinterpret_cast<Zor_UserFn>(funct), e1, e2, a, b, maxcal, x, f,
                 iuser, ruser, ifail, "e04abf", zor::optimization::e04abf_records);
}

extern "C" ZOR_API void E04ABA(E04ABA_FUNCT funct, double* e1, double* e2, double* a, double* b,
                               Zor_Integer* maxcal, double* x, double* f, Zor_Integer iuser[],
                               double ruser[], Zor_Integer* ifail) noexcept
{
    e04ab_f_form(E04ABA_FUNCTH, reinterpret_cast<Zor_UserFn>(funct), e1, e2, a, b, maxcal, x, f,
                 iuser, ruser, ifail, "e04aba", zor::optimization::e04aba_records);
}

ZOR_F_ALIAS(e04abf_, E04ABF);
ZOR_F_ALIAS(e04aba_, E04ABA);
