// tests/portable.hpp — the few operating-system services the tests need, written once for
// POSIX systems and once for Windows (the mingw-w64 build run under Wine, and MSVC), so
// that every test runs on both: environment variables, process ids, scratch file names,
// pointing the standard descriptors at a file, and death-test patterns that mean the
// same to both of GoogleTest's regular expression dialects.
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

// Runs start_capture, which points descriptor fd at a file (GoogleTest's CaptureStdout or
// CaptureStderr), and gives fd back the text or binary mode it had. On Windows the Fortran
// runtime puts the standard descriptors into binary mode when it starts and ends its
// records with CR LF itself; the capture file is opened in text mode, which would add a
// second CR to every record. With the mode kept, the capture receives what the program's
// own output would; it is read back as text, CR LF as LF.
template <class StartCapture>
void capture_keeping_mode(int fd, StartCapture&& start_capture)
{
#ifdef _WIN32
    const int mode = _setmode(fd, _O_BINARY);
    _setmode(fd, mode);
    start_capture();
    _setmode(fd, mode);
#else
    (void)fd;
    start_capture();
#endif
}

// A death-test pattern matching `text` literally. GoogleTest reads patterns as POSIX
// extended regular expressions on POSIX systems and in its own simple dialect on Windows,
// which has no bracket expressions, groups or alternatives; a backslash before a
// punctuation character means that character in both.
inline std::string regex_quote(std::string_view text)
{
    std::string out;
    for (char c : text) {
        if (std::string_view("\\^$.|?*+()[]{}").find(c) != std::string_view::npos) out += '\\';
        out += c;
    }
    return out;
}

}  // namespace zor::test
