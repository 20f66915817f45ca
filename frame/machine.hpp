// frame/machine.hpp — the machine constants of IEEE 754 binary64 and 32-bit integer
// arithmetic, as literals. Kernels use these; the X02 routines return them.
#pragma once

#include <cstdint>
#include <limits>

namespace zor::machine {

inline constexpr double maxsc = 0x1p150;                   // fixed large bound, 2^150
inline constexpr double eps = 0x1p-53;                     // unit roundoff: half the spacing of doubles in [1,2)
inline constexpr double tiny = 0x1p-1022;                  // smallest positive normal double
inline constexpr double huge = 0x1.fffffffffffffp1023;     // largest finite double
inline constexpr double saferange = 0x1.0000000000001p-1022;  // one ulp above tiny: safe to divide by
inline constexpr double zrange = saferange;                // the same bound for complex arithmetic
inline constexpr std::int32_t hugeint = 2147483647;        // 2^31 - 1
inline constexpr std::int32_t iprec = 15;                  // decimal digits of precision
inline constexpr std::int32_t irad = 2;                    // base of the arithmetic
inline constexpr std::int32_t idigs = 53;                  // significand bits, hidden bit counted
inline constexpr std::int32_t minexp = -1021;              // model 0.d1d2... x 2^e: tiny = 2^(minexp-1)
inline constexpr std::int32_t maxexp = 1024;               // huge is just below 2^maxexp

static_assert(eps == std::numeric_limits<double>::epsilon() / 2);
static_assert(tiny == std::numeric_limits<double>::min());
static_assert(huge == std::numeric_limits<double>::max());
static_assert(hugeint == std::numeric_limits<std::int32_t>::max());
static_assert(idigs == std::numeric_limits<double>::digits);
static_assert(iprec == std::numeric_limits<double>::digits10);
static_assert(minexp == std::numeric_limits<double>::min_exponent);
static_assert(maxexp == std::numeric_limits<double>::max_exponent);

}  // namespace zor::machine
