// frame/test/frame_test_util.hpp — helpers of the frame's tests: what a call prints on
// the standard units, split into lines, and message buffers built field by field.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "frame/frame.hpp"
#include "tests/portable.hpp"
#include "zor_x04.h"

namespace zor::test {

// The lines of a captured text (no trailing empty line for a final '\n').
inline std::vector<std::string> lines_of(const std::string& text)
{
    std::vector<std::string> out;
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string::npos) end = text.size();
        out.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return out;
}

// Runs body with the standard output captured at the descriptor level, so that records
// written by the Fortran runtime (unit 6) are caught as well as C stdio.
template <class Body>
std::vector<std::string> stdout_lines(Body&& body)
{
    std::fflush(stdout);
    capture_keeping_mode(1, [] { testing::internal::CaptureStdout(); });
    body();
    std::fflush(stdout);
    return lines_of(testing::internal::GetCapturedStdout());
}

template <class Body>
std::string stderr_text(Body&& body)
{
    capture_keeping_mode(2, [] { testing::internal::CaptureStderr(); });
    body();
    return testing::internal::GetCapturedStderr();
}

// A message buffer of 200 characters from raw bytes, blank-padded.
inline std::array<char, msgbuf_len> raw_buffer(std::string_view bytes)
{
    std::array<char, msgbuf_len> b;
    b.fill(' ');
    std::memcpy(b.data(), bytes.data(), std::min(bytes.size(), b.size()));
    return b;
}

// Fields joined with the separator, leading and trailing separators included.
inline std::string fields(std::initializer_list<std::string_view> f)
{
    std::string s(1, field_sep);
    for (std::string_view x : f) {
        s += x;
        s += field_sep;
    }
    return s;
}

// Restores both output units after a test that changes them.
class UnitGuard {
public:
    UnitGuard()
    {
        const Zor_Integer get = 0;
        X04AAF(&get, &nerr_);
        X04ABF(&get, &nadv_);
    }
    ~UnitGuard()
    {
        const Zor_Integer set = 1;
        X04AAF(&set, &nerr_);
        X04ABF(&set, &nadv_);
    }
    UnitGuard(const UnitGuard&) = delete;
    UnitGuard& operator=(const UnitGuard&) = delete;

private:
    Zor_Integer nerr_ = 6, nadv_ = 6;
};

inline void set_error_unit(Zor_Integer unit)
{
    const Zor_Integer set = 1;
    X04AAF(&set, &unit);
}

inline void set_advisory_unit(Zor_Integer unit)
{
    const Zor_Integer set = 1;
    X04ABF(&set, &unit);
}

}  // namespace zor::test
