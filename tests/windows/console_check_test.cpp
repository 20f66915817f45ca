// tests/windows/console_check_test.cpp — where records for units 0 and 6 go in the
// Windows DLL: to the unit when the process has a console or ZOR_ASSUME_CONSOLE=1 says
// so, otherwise to the output window (and not to the unit). Each case runs in a child
// process of its own, since the variable is read once per process. (A console whose title
// can be read cannot be made under Wine: even a process's own new console reads an empty
// title there. That case is the plain path of every console program on Windows.)
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdlib>
#include <cstring>

#include "zor.h"

namespace {

void record(Zor_Integer unit, const char* rec)
{
    X04BAF(&unit, rec, std::strlen(rec));
}

[[noreturn]] void finish()
{
    std::fflush(nullptr);
    std::_Exit(0);
}

}  // namespace

TEST(ConsoleCheckDeathTest, AssumeConsoleSendsRecordsToTheUnit)
{
    EXPECT_EXIT(
        {
            SetEnvironmentVariableA("ZOR_ASSUME_CONSOLE", "1");
            record(0, " to the error unit   ");
            finish();
        },
        testing::ExitedWithCode(0), "^ to the error unit\r?\n$");
}

TEST(ConsoleCheckDeathTest, WithoutConsoleNothingReachesTheUnitAndTheRoutineReturns)
{
    // Under Wine no process has a console of its own; headless (ctest empties DISPLAY),
    // the window cannot be shown either. Either way the record does not go to the unit, and X04BAF returns.
    EXPECT_EXIT(
        {
            SetEnvironmentVariableA("ZOR_ASSUME_CONSOLE", "0");
            wchar_t title[1000];
            if (GetConsoleTitleW(title, 1000) > 0 && title[0] != L'\0') std::_Exit(4);
            record(0, " not on the unit");
            finish();
        },
        testing::ExitedWithCode(0), "^$");
}
