/* include/zor_a00.h — A00, library identification: F interface. */
#ifndef ZOR_A00_H
#define ZOR_A00_H

#include "zor_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Writes the library's implementation details to the advisory unit. */
ZOR_API void A00AAF(void) ZOR_NOEXCEPT;
ZOR_API void a00aaf_(void) ZOR_NOEXCEPT;
ZOR_API void A00AAFT(Zor_Context *ctx) ZOR_NOEXCEPT;

#ifdef __cplusplus
}
#endif

#endif /* ZOR_A00_H */
