#!/usr/bin/python3
# tools/fminbound_counts.py — function calls of SciPy's fminbound (Brent's minimizer,
# bounded) on the test problems of optimization/test/e04_problems.hpp, for comparison
# with E04ABF and E04BBF in bench/minimize.cpp. The tolerance matches the benchmark's:
# fminbound stops when |x - m| <= 2*tol - (b - a)/2 with tol = sqrt(eps_mach)*|x| + xtol/3,
# sqrt(eps_mach) = 2^-26; xtol = 3*2^-28 makes tol = 2^-26*|x| + 2^-28, the tolerance of
# E04ABF with E1 = 2^-26, E2 = 2^-28. Prints one C++ initializer row per problem:
# {"name", calls, |x - xmin|}.
#   /usr/bin/python3 tools/fminbound_counts.py
import math

import scipy
from scipy.optimize import fminbound

# name, f, a, b, xmin: the same list as e04_problems.hpp.
PROBLEMS = [
    ("(x-2.385)^2+1", lambda x: (x - 2.385) ** 2 + 1.0, 0.125, 5.75, 2.385),
    ("cos x", math.cos, 2.0, 5.0, 3.141592653589793),
    ("exp(x)-2x", lambda x: math.exp(x) - 2.0 * x, 0.0, 2.0, 0.6931471805599453),
    ("sin(x)/x", lambda x: math.sin(x) / x, 3.0, 6.0, 4.493409457909064),
    ("x log x", lambda x: x * math.log(x), 0.1, 1.0, 0.36787944117144233),
    ("x^4-3x+1", lambda x: x ** 4 - 3.0 * x + 1.0, -1.0, 2.0, 0.9085602964160698),
    ("2/x+3x", lambda x: 2.0 / x + 3.0 * x, 0.2, 3.0, 0.816496580927726),
    ("exp(-x)+x^2", lambda x: math.exp(-x) + x * x, -1.0, 1.5, 0.35173371124919584),
    ("-exp(-x)sin(3x)", lambda x: -math.exp(-x) * math.sin(3.0 * x), 0.0, 1.0,
     0.41634859079941814),
    ("cosh(x-1234.5)", lambda x: math.cosh(x - 1234.5), 1200.0, 1250.0, 1234.5),
]

print(f"// scipy {scipy.__version__}, fminbound(f, a, b, xtol=3*2^-28)")
total = 0
for name, f, a, b, xmin in PROBLEMS:
    x, _, _, calls = fminbound(f, a, b, xtol=3.0 * 2.0 ** -28, full_output=True, maxfun=1000)
    total += calls
    print(f'    {{"{name}", {calls}, {abs(x - xmin):.3e}}},')
print(f"// total: {total}")
