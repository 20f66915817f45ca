/* include/zor_x02.h — X02, machine constants: F interface. Each returns a fixed value
   of IEEE 754 binary64 and 32-bit integer arithmetic; the ...T entries store it in
   *result. */
#ifndef ZOR_X02_H
#define ZOR_X02_H

#include "zor_types.h"

#ifdef __cplusplus
extern "C" {
#endif

#define ZOR_X02_REAL(F, f, FT) \
    ZOR_API double F(void) ZOR_NOEXCEPT; \
    ZOR_API double f(void) ZOR_NOEXCEPT; \
    ZOR_API void FT(Zor_Context *ctx, double *result) ZOR_NOEXCEPT;
#define ZOR_X02_INTEGER(F, f, FT) \
    ZOR_API Zor_Integer F(void) ZOR_NOEXCEPT; \
    ZOR_API Zor_Integer f(void) ZOR_NOEXCEPT; \
    ZOR_API void FT(Zor_Context *ctx, Zor_Integer *result) ZOR_NOEXCEPT;

ZOR_X02_REAL(X02AHF, x02ahf_, X02AHFT)      /* maxsc: 2^150 */
ZOR_X02_REAL(X02AJF, x02ajf_, X02AJFT)      /* eps: 2^-53, the unit roundoff */
ZOR_X02_REAL(X02AKF, x02akf_, X02AKFT)      /* tiny_zor: 2^-1022, smallest normal */
ZOR_X02_REAL(X02ALF, x02alf_, X02ALFT)      /* huge_zor: largest finite real */
ZOR_X02_REAL(X02AMF, x02amf_, X02AMFT)      /* saferange: 2^-1022 + 2^-1074 */
ZOR_X02_REAL(X02ANF, x02anf_, X02ANFT)      /* zrange: the same, for complex arithmetic */
ZOR_X02_INTEGER(X02BBF, x02bbf_, X02BBFT)   /* hugeint: 2^31 - 1 */
ZOR_X02_INTEGER(X02BEF, x02bef_, X02BEFT)   /* iprec: 15 decimal digits */
ZOR_X02_INTEGER(X02BHF, x02bhf_, X02BHFT)   /* irad: 2 */
ZOR_X02_INTEGER(X02BJF, x02bjf_, X02BJFT)   /* idigs: 53 significand bits */
ZOR_X02_INTEGER(X02BKF, x02bkf_, X02BKFT)   /* minexp: -1021 */
ZOR_X02_INTEGER(X02BLF, x02blf_, X02BLFT)   /* maxexp: 1024 */

#undef ZOR_X02_REAL
#undef ZOR_X02_INTEGER

#ifdef __cplusplus
}
#endif

#endif /* ZOR_X02_H */
