/* include/zor_m01.h — M01, sorting and searching: F and c interfaces. */
#ifndef ZOR_M01_H
#define ZOR_M01_H

#include "zor_types.h"

#ifdef __cplusplus
extern "C" {
#endif

#ifdef __cplusplus
}
#endif

#endif /* ZOR_M01_H */
