// tests/portable.hpp — the few operating-system services the tests need, written once for
// POSIX systems and once for Windows (the mingw-w64 build run under Wine, and MSVC), so
// that every test runs on both: environment variables, process ids, scratch file names,
// and pointing the standard descriptors at a file.
#pragma once

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <string_view>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <process.h>
#include <sys/stat.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace zor::test {

// Sets an environment variable of this process (and of the processes it starts).
inline void set_env(const char* name, const char* value)
{
#ifdef _WIN32
    _putenv_s(name, value);
#else
    setenv(name, value, 1);
#endif
}

// Removes an environment variable.
inline void unset_env(const char* name)
{
#ifdef _WIN32
    _putenv_s(name, "");   // an empty value removes the variable on Windows
#else
    unsetenv(name);
#endif
}

inline long process_id()
{
#ifdef _WIN32
    return static_cast<long>(_getpid());
#else
    return static_cast<long>(getpid());
#endif
}

// A name for a scratch file in the system's temporary directory, unique within the
// process (a serial number) and among processes (the process id), with a native path.
// The file is not created.
inline std::string temp_file(std::string_view stem)
{
    static std::atomic<int> serial{0};
    const std::string name = std::string(stem) + "_" + std::to_string(process_id()) + "_" +
                             std::to_string(serial++) + ".txt";
    return (std::filesystem::temp_directory_path() / name).string();
}

// Points the descriptors of standard output and standard error at the file `path`
// (created or emptied), so that both streams go to it in the order they are written.
// For a child process of a death test: the caller's own descriptors are not restored.
inline bool redirect_stdout_and_stderr(const std::string& path)
{
#ifdef _WIN32
    const int fd = _open(path.c_str(), _O_WRONLY | _O_CREAT | _O_TRUNC, _S_IREAD | _S_IWRITE);
    return fd >= 0 && _dup2(fd, 1) == 0 && _dup2(fd, 2) == 0;
#else
    const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    return fd >= 0 && dup2(fd, 1) == 1 && dup2(fd, 2) == 2;
#endif
}

}  // namespace zor::test
