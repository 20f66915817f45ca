// tests/bitwise/bitwise.hpp — cases of the bitwise identity program: each calls library
// routines through the shared library and prints what they return as exact bit patterns
// (reals as 16 hex digits, integers in decimal) and what they print as text. The
// program's output from zor.dll under Wine must equal its output from libzor.so, byte
// for byte after CR LF becomes LF (windows.bitwise_identity).
//
// A chapter adds a file NAME_cases.cpp here (picked up by glob) with cases such as
//     ZOR_BITWISE_CASE(c05ayf_cubic) {
//         ...call C05AYF...
//         out.real("x", x);
//         out.integer("ifail", ifail);
//     }
// Cases run in the order of their names. Print nothing that depends on the platform
// (addresses, build descriptions); print through `out` or the library's own units only.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string_view>

namespace bitwise {

struct Out {
    void real(const char* label, double v) const
    {
        std::uint64_t bits;
        std::memcpy(&bits, &v, sizeof bits);
        std::printf("%s = 0x%016llX\n", label, static_cast<unsigned long long>(bits));
    }
    void integer(const char* label, long long v) const { std::printf("%s = %lld\n", label, v); }
    void text(const char* label, std::string_view v) const
    {
        std::printf("%s = [%.*s]\n", label, static_cast<int>(v.size()), v.data());
    }
    // Before the library prints to unit 6, so that its records follow this output.
    void flush() const { std::fflush(stdout); }
};

using CaseFn = void (*)(const Out&);
struct Registrar {
    Registrar(const char* name, CaseFn fn) noexcept;
};

}  // namespace bitwise

#define ZOR_BITWISE_CASE(name)                                              \
    static void bitwise_case_##name(const bitwise::Out& out);               \
    static const bitwise::Registrar bitwise_registrar_##name{#name, bitwise_case_##name}; \
    static void bitwise_case_##name([[maybe_unused]] const bitwise::Out& out)
