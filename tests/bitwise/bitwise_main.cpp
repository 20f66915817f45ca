// tests/bitwise/bitwise_main.cpp — runs every registered case of the bitwise identity
// program, in the order of their names, each under a heading line.
#include <algorithm>
#include <cstdio>
#include <cstring>

#include "bitwise.hpp"

namespace bitwise {

namespace {

struct Entry {
    const char* name;
    CaseFn fn;
};

// Fixed room: registration runs before main and must not allocate.
constexpr int max_cases = 1024;
Entry registry[max_cases];
int case_count = 0;

}  // namespace

Registrar::Registrar(const char* name, CaseFn fn) noexcept
{
    if (case_count < max_cases) registry[case_count++] = {name, fn};
}

}  // namespace bitwise

int main()
{
    using bitwise::registry;
    std::sort(registry, registry + bitwise::case_count,
              [](const auto& a, const auto& b) { return std::strcmp(a.name, b.name) < 0; });
    const bitwise::Out out;
    for (int i = 0; i < bitwise::case_count; ++i) {
        std::printf("== %s\n", registry[i].name);
        out.flush();
        registry[i].fn(out);
        out.flush();
    }
    std::printf("== %d cases\n", bitwise::case_count);
    return 0;
}
