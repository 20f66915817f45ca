// optimization/test/e04_problems.hpp — smooth unimodal test problems of the minimizers,
// shared by the tests and bench/minimize.cpp (tools/fminbound_counts.py has the same
// list in Python).
#pragma once

#include <cmath>

namespace zor::optimization::testing_util {

// Smooth functions with one minimum in [a, b] and its position xmin: closed forms, or
// zeros of f' computed with mpmath at 30 digits (findroot, lambertw) and rounded:
//   /usr/bin/python3 -c "import mpmath as mp; mp.mp.dps=30;
//       print(mp.findroot(lambda x: mp.tan(x)-x, 4.49), mp.lambertw(0.5))"
struct Problem {
    const char* name;
    double (*f)(double);
    double (*g)(double);
    double a, b, xmin;
};

inline const Problem problems[] = {
    {"(x-2.385)^2+1", [](double x) { return (x - 2.385) * (x - 2.385) + 1.0; },
     [](double x) { return 2.0 * (x - 2.385); }, 0.125, 5.75, 2.385},
    {"cos x", [](double x) { return std::cos(x); }, [](double x) { return -std::sin(x); }, 2.0,
     5.0, 3.141592653589793},
    {"exp(x)-2x", [](double x) { return std::exp(x) - 2.0 * x; },
     [](double x) { return std::exp(x) - 2.0; }, 0.0, 2.0, 0.6931471805599453},
    {"sin(x)/x", [](double x) { return std::sin(x) / x; },
     [](double x) { return (x * std::cos(x) - std::sin(x)) / (x * x); }, 3.0, 6.0,
     4.493409457909064},
    {"x log x", [](double x) { return x * std::log(x); },
     [](double x) { return std::log(x) + 1.0; }, 0.1, 1.0, 0.36787944117144233},
    {"x^4-3x+1", [](double x) { return x * x * x * x - 3.0 * x + 1.0; },
     [](double x) { return 4.0 * x * x * x - 3.0; }, -1.0, 2.0, 0.9085602964160698},
    {"2/x+3x", [](double x) { return 2.0 / x + 3.0 * x; },
     [](double x) { return -2.0 / (x * x) + 3.0; }, 0.2, 3.0, 0.816496580927726},
    {"exp(-x)+x^2", [](double x) { return std::exp(-x) + x * x; },
     [](double x) { return -std::exp(-x) + 2.0 * x; }, -1.0, 1.5, 0.35173371124919584},
    {"-exp(-x)sin(3x)", [](double x) { return -std::exp(-x) * std::sin(3.0 * x); },
     [](double x) { return std::exp(-x) * (std::sin(3.0 * x) - 3.0 * std::cos(3.0 * x)); }, 0.0,
     1.0, 0.41634859079941814},   // atan(3)/3
    {"cosh(x-1234.5)", [](double x) { return std::cosh(x - 1234.5); },
     [](double x) { return std::sinh(x - 1234.5); }, 1200.0, 1250.0, 1234.5},
};

}  // namespace zor::optimization::testing_util
