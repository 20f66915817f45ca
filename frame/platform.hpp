// frame/platform.hpp — everything that differs between platforms: the console check
// and the end of the process.
#pragma once

#include <string_view>

namespace zor::platform {

// True when records for units 0 and 6 can go to the unit itself; false when the
// process has no console and the record has been shown in the output window instead.
bool console_or_window(std::string_view record) noexcept;

// Flushes C stdio and every Fortran unit, then ends the process with the status,
// running no exit handlers.
[[noreturn]] void end_process(int status) noexcept;

}  // namespace zor::platform
