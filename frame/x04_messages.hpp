// frame/x04_messages.hpp — what X04ACF and X04ADF say: F records keyed by (error, message
// code); "%1" stands for the value text that the kernel put into its message buffer.
#pragma once

#include "frame/frame.hpp"

namespace zor::frame {

inline constexpr FRecord x04acf_records[] = {
    {1, 1001, {" ** On entry, nout = %1.", " ** Constraint: nout >= 0."}},
    {2, 1002, {" ** On entry, mode = %1.", " ** Constraint: mode = 0, 1 or 2."}},
    {3, 1003, {" ** Cannot open file %1 for reading."}},
    {3, 1004, {" ** Cannot open file %1 for writing."}},
    {3, 1005, {" ** Cannot open file %1 for appending."}},
};

inline constexpr FRecord x04adf_records[] = {
    {1, 1001, {" ** On entry, nout = %1.", " ** Constraint: nout >= 0."}},
    {2, 1002, {" ** Cannot close unit %1."}},
};

}  // namespace zor::frame
