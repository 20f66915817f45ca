/* include/zor_e04.h — E04, minimizing or maximizing a function: F and c interfaces. */
#ifndef ZOR_E04_H
#define ZOR_E04_H

#include "zor_types.h"

#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif

#endif /* ZOR_E04_H */
