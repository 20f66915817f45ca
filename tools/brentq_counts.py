#!/usr/bin/python3
# tools/brentq_counts.py — function evaluations of SciPy's brentq (Brent's method) on the
# Alefeld-Potra-Shi test problems (scipy.optimize._tstutils), for comparison with ZOR's
# C05AZF step in bench/zeros.cpp. Prints one C++ initializer row per problem:
# {"id", evaluations at xtol = 2e-12, evaluations at xtol = 1e-15}; rtol is brentq's
# default (4 * machine epsilon) in both.
#   /usr/bin/python3 tools/brentq_counts.py
import scipy
from scipy.optimize import brentq
from scipy.optimize import _tstutils as T

def count(f, args, bracket, xtol):
    _, r = brentq(f, bracket[0], bracket[1], args=args, xtol=xtol, full_output=True)
    return r.function_calls

print(f"// scipy {scipy.__version__}")
tot = [0, 0]
for t in T._APS_TESTS:
    f, _, _, args, bracket, _, _, _, ident = t
    c1 = count(f, args, bracket, 2e-12)
    c2 = count(f, args, bracket, 1e-15)
    tot[0] += c1
    tot[1] += c2
    print(f'    {{"{ident}", {c1}, {c2}}},')
print(f"// totals: {tot[0]} (xtol 2e-12), {tot[1]} (xtol 1e-15)")
