// tests/error_unit_capture.hpp — for the tests of F routines: capturing what the F error
// exit writes on the error unit, and the closing lines of a soft, printed failure.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

#include "tests/portable.hpp"
#include "zor.h"

namespace zor::test {

// Connects a Fortran unit to a scratch file (X04ACF), makes it the error unit (X04AAF),
// and on text() restores the error unit, disconnects the file (X04ADF) and returns what
// it got.
class ErrorUnitCapture {
public:
    ErrorUnitCapture()
    {
        static int serial = 0;
        path_ = ::testing::TempDir() + "zor_err_" + std::to_string(process_id()) + "_" +
                std::to_string(serial++) + ".txt";
        Zor_Integer mode = 1, ifail = -1, get = 0, set = 1;
        X04ACF(&unit_, path_.c_str(), &mode, &ifail, path_.size());
        EXPECT_EQ(ifail, 0);
        X04AAF(&get, &saved_);
        X04AAF(&set, &unit_);
    }
    ~ErrorUnitCapture() { restore(); }
    ErrorUnitCapture(const ErrorUnitCapture&) = delete;
    ErrorUnitCapture& operator=(const ErrorUnitCapture&) = delete;
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
    Zor_Integer unit_ = 61, saved_ = 6;
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

}  // namespace zor::test
