// tests/install/client.cpp — a C++ user of the installed library, found by find_package.
#include <cstdio>
#include <zor.h>

static_assert(noexcept(X02AJF()), "exported functions are noexcept in C++");

int main()
{
    const Zor_Integer get = 0;
    Zor_Integer nerr = -1;
    X04AAF(&get, &nerr);
    std::printf("C++ client: eps = %.17g, error unit = %d\n", X02AJF(), static_cast<int>(nerr));
    std::fflush(stdout);
    A00AAF();
    return 0;
}
