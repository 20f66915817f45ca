/* include/zor_c05.h — C05, zeros of functions: F and c interfaces. */
#ifndef ZOR_C05_H
#define ZOR_C05_H

#include "zor_types.h"

#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif

#endif /* ZOR_C05_H */
