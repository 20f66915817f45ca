// frame/platform.cpp — console check and process end. The Windows build has its console
// check and output window in frame/output_window_win32.cpp; elsewhere every process
// counts as having a console.
#include <cstdio>
#include <cstdlib>

#include "platform.hpp"

extern "C" void zor_fortran_flush_all();   // frame/record_writer.f90

namespace zor::platform {

#ifndef _WIN32
bool console_or_window(std::string_view) noexcept { return true; }
#endif

void end_process(int status) noexcept
{
    std::fflush(nullptr);
    zor_fortran_flush_all();
    std::_Exit(status);
}

}  // namespace zor::platform
