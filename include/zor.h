/* include/zor.h — the whole ZOR library: every chapter's header. */
#ifndef ZOR_H
#define ZOR_H

#include "zor_types.h"
#include "zor_errors.h"
#include "zor_a00.h"
#include "zor_c05.h"
#include "zor_e04.h"
#include "zor_m01.h"
#include "zor_x02.h"
#include "zor_x04.h"

#endif /* ZOR_H */
