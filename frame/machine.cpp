// frame/machine.cpp — the X02 routines: each F routine sets up a context record and
// calls its kernel entry, which takes the literal from its inner routine and, with the
// argument trace on, records it under the routine's label.
#include "frame.hpp"
#include "machine.hpp"
#include "zor_x02.h"

namespace {

template <class T>
void trace_result(Zor_Context* ctx, const char* label, const char* name, T value)
{
    if (ctx->trace) zor::trace(*ctx, label, "ex_data", {{name, zor::value_text(value)}});
}

}  // namespace

#define ZOR_X02(F, f, FT, FN, T, label, name, value)                        \
    extern "C" T FN() noexcept { return value; }                            \
    extern "C" ZOR_API void FT(Zor_Context* ctx, T* result) noexcept        \
    {                                                                       \
        *result = FN();                                                     \
        trace_result(ctx, label, name, *result);                            \
    }                                                                       \
    extern "C" ZOR_API T F() noexcept                                       \
    {                                                                       \
        Zor_Context ctx;                                                    \
        Y90HAAN(&ctx);                                                      \
        T result;                                                           \
        FT(&ctx, &result);                                                  \
        return result;                                                      \
    }                                                                       \
    ZOR_F_ALIAS(f, F);

ZOR_X02(X02AHF, x02ahf_, X02AHFT, X02AHFN, double, "x02ahfv", "maxsc", zor::machine::maxsc)
ZOR_X02(X02AJF, x02ajf_, X02AJFT, X02AJFN, double, "x02ajfv", "eps", zor::machine::eps)
ZOR_X02(X02AKF, x02akf_, X02AKFT, X02AKFN, double, "x02akfv", "tiny_zor", zor::machine::tiny)
ZOR_X02(X02ALF, x02alf_, X02ALFT, X02ALFN, double, "x02alfv", "huge_zor", zor::machine::huge)
ZOR_X02(X02AMF, x02amf_, X02AMFT, X02AMFN, double, "x02amfv", "saferange", zor::machine::saferange)
ZOR_X02(X02ANF, x02anf_, X02ANFT, X02ANFN, double, "x02anfv", "zrange", zor::machine::zrange)
ZOR_X02(X02BBF, x02bbf_, X02BBFT, X02BBFN, Zor_Integer, "x02bbfv", "hugeint", zor::machine::hugeint)
ZOR_X02(X02BEF, x02bef_, X02BEFT, X02BEFN, Zor_Integer, "x02befv", "iprec", zor::machine::iprec)
ZOR_X02(X02BHF, x02bhf_, X02BHFT, X02BHFN, Zor_Integer, "x02bhfv", "irad", zor::machine::irad)
ZOR_X02(X02BJF, x02bjf_, X02BJFT, X02BJFN, Zor_Integer, "x02bjfv", "idigs", zor::machine::idigs)
ZOR_X02(X02BKF, x02bkf_, X02BKFT, X02BKFN, Zor_Integer, "x02bkfv", "minexp", zor::machine::minexp)
ZOR_X02(X02BLF, x02blf_, X02BLFT, X02BLFN, Zor_Integer, "x02blfv", "maxexp", zor::machine::maxexp)
