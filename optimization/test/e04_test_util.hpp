// optimization/test/e04_test_util.hpp — helpers of the minimizer tests: capturing what the
// F error exit writes on the error unit, and the problems with known minima.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <cmath>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

#include "zor.h"

namespace zor::optimization::testing_util {

// Connects a Fortran unit to a file (X04ACF), makes it the error unit (X04AAF), and on
// text() restores the error unit, disconnects the file (X04ADF) and returns what it got.
class ErrorUnitCapture {
public:
    ErrorUnitCapture()
    {
        static int serial = 0;
        path_ = ::testing::TempDir() + "e04_err_" + std::to_string(getpid()) + "_" +
                std::to_string(serial++) + ".txt";
        Zor_Integer mode = 1, ifail = -1, get = 0, set = 1;
        X04ACF(&unit_, path_.c_str(), &mode, &ifail, path_.size());
        EXPECT_EQ(ifail, 0);
        X04AAF(&get, &saved_);
        X04AAF(&set, &unit_);
    }
    ~ErrorUnitCapture() { restore(); }
    std::string text()
    {
        restore();
        std::ifstream in(path_);
        std::stringstream ss;
        ss << in.rdbuf();
        return ss.str();
    }

private:
    void restore()
    {
        if (done_) return;
        done_ = true;
        Zor_Integer set = 1, ifail = -1;
        X04AAF(&set, &saved_);
        X04ADF(&unit_, &ifail);
    }
    std::string path_;
    Zor_Integer unit_ = 62, saved_ = 6;
    bool done_ = false;
};

// The two closing lines of a soft, printed failure of routine `name` with IFAIL = e.
inline std::string soft_tail(const char* name, int e)
{
    char line[80];
    std::snprintf(line, sizeof line, " ** ABNORMAL EXIT from ZOR Library routine %s: IFAIL =%6d\n",
                  name, e);
    return std::string(line) + " ** ZOR soft failure - control returned\n";
}

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
