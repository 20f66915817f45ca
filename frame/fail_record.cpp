// frame/fail_record.cpp — the c interface's fail record: the table of codes with their
// default messages, the one reporting routine, and the c exit that maps a kernel's
// outcome onto a routine's message table.
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <string_view>

#include "frame.hpp"
#include "platform.hpp"

extern "C" void zor_unit_flush(Zor_Integer unit);   // frame/record_writer.f90

namespace zor {

namespace {

constexpr const char* default_messages[] = {
#define ZOR_FAIL_CODE(number, name, message) message,
#include "fail_codes.def"
#undef ZOR_FAIL_CODE
};
static_assert(std::size(default_messages) == ZOR_ERROR_CODE_COUNT);

// The enumeration of the public header and the table agree name for name.
#define ZOR_FAIL_CODE(number, name, message) static_assert(name == number);
#include "fail_codes.def"
#undef ZOR_FAIL_CODE

static_assert(std::is_standard_layout_v<Zor_Fail>);
static_assert(offsetof(Zor_Fail, code) == 0);
static_assert(offsetof(Zor_Fail, print) == 4);
static_assert(offsetof(Zor_Fail, message) == 8);
static_assert(offsetof(Zor_Fail, handler) == 520);
static_assert(offsetof(Zor_Fail, errnum) == 528);

constexpr std::size_t message_len = sizeof(Zor_Fail{}.message);

// Inserts the value texts for the format's "%s" in order ("%%" is a percent sign).
// Returns false when the format asks for more values than the buffer carries.
bool format_message(char (&out)[message_len], const char* format, const char (*values)[80],
                    Zor_Integer nvalues)
{
    std::size_t n = 0;
    Zor_Integer next = 0;
    const std::size_t cap = message_len - 1;
    auto put = [&](std::string_view s) {
        const std::size_t m = std::min(s.size(), cap - n);
        std::memcpy(out + n, s.data(), m);
        n += m;
    };
    for (const char* p = format; *p != '\0'; ++p) {
        if (p[0] == '%' && p[1] == 's') {
            if (next >= nvalues) return false;
            std::size_t len = 80;
            while (len > 0 && values[next][len - 1] == ' ') --len;
            put({values[next++], len});
            ++p;
        } else if (p[0] == '%' && p[1] == '%') {
            put("%");
            ++p;
        } else {
            put({p, 1});
        }
    }
    out[n] = '\0';
    return true;
}

}  // namespace

const char* default_message(int code) noexcept
{
    if (code < 0 || code >= ZOR_ERROR_CODE_COUNT) return default_messages[NE_INTERNAL_ERROR];
    return default_messages[code];
}

void c_report(const char* message, int code, const char* routine, Zor_Fail* fail) noexcept
{
    if (message == nullptr) message = default_message(code);
    if (code == 0 && fail == nullptr) return;
    if (code != 0 && (fail == nullptr || fail->print)) {
        // The kind is the letter after the first N among the first five characters
        // ("NE_" error, "NW_" warning).
        const std::size_t len = std::strlen(message);
        std::size_t at = 5;
        for (std::size_t i = 0; i < 5 && i < len; ++i)
            if (message[i] == 'N') {
                at = i + 1;
                break;
            }
        const bool error = at < len && message[at] == 'E';
        // The caller's own output first, when both streams go to one file (2>&1).
        std::fflush(stdout);
        zor_unit_flush(6);
        std::fprintf(stderr, error ? "Error detected by ZOR routine %s:\n%s\n"
                                   : "Warning from ZOR routine %s:\n%s\n",
                     routine, message);
        std::fflush(stderr);
        if (fail == nullptr) {
            std::fprintf(stderr, "...ZOR Function Terminated\n");
            platform::end_process(1);
        }
    }
    fail->code = code;
    if (fail->handler != nullptr) fail->handler(message, code, routine);
    if (fail->message != message) {
        std::strncpy(fail->message, message, message_len - 1);
        fail->message[message_len - 1] = '\0';
    }
}

void c_begin(Zor_Fail* fail) noexcept
{
    if (fail != nullptr) {
        fail->code = 0;
        fail->errnum = 0;
    }
}

int c_bad_param(Zor_Fail* fail, const char* routine, const char* argument) noexcept
{
    char message[message_len];
    std::snprintf(message, sizeof message, default_message(NE_BAD_PARAM), argument);
    c_report(message, NE_BAD_PARAM, routine, fail);
    return NE_BAD_PARAM;
}

void c_exit(Zor_Fail* fail, int error, const char* msgbuf, const char* routine,
            std::span<const CMessage> messages) noexcept
{
    if (error == 0) {
        c_report(nullptr, NE_NOERROR, routine, fail);
        return;
    }
    if (fail != nullptr) fail->errnum = error;
    if (error == -999) {
        c_report("NE_ALLOC_FAIL:\n  Dynamic memory allocation failed.", NE_ALLOC_FAIL, routine,
                 fail);
        return;
    }
    char fields[12][80];
    Zor_Integer msgcode = 0, status = 0;
    P01ABTN(msgbuf, &msgcode, fields, &status);
    if (status == 0) {
        Zor_Integer nvalues = 0;
        for (char c : std::string_view(fields[2], 80))
            if (c >= '0' && c <= '9') nvalues = nvalues * 10 + (c - '0');
        for (const CMessage& m : messages) {
            if (m.msgcode != msgcode) continue;
            char message[message_len];
            if (!format_message(message, m.format, fields + 3, nvalues)) break;
            c_report(message, m.code, routine, fail);
            return;
        }
    }
    c_report(nullptr, NE_INTERNAL_ERROR, routine, fail);
}

}  // namespace zor
