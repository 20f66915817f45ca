// frame/frame.hpp — the call frame that every routine shares: the kernel's message
// buffer, the F and c exits driven by a routine's message tables, the exception guard.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <new>
#include <span>
#include <string_view>
#include <type_traits>

#include "zor_types.h"
#include "zor_errors.h"

// Internal services under their chapter names; not exported from the shared library.
extern "C" {
void Y90HAAN(Zor_Context* ctx) noexcept;
void P01ABTN(const char* msgbuf, Zor_Integer* msgcode, char fields[12][80],
             Zor_Integer* status) noexcept;
void P01ABZU(Zor_Integer* ifail, const Zor_Integer* error, const char* routine,
             const Zor_Integer* nrec, const char* records, std::size_t name_len,
             std::size_t rec_len) noexcept;
void P01ABYU(Zor_Integer* ifail, const Zor_Integer* error, const char* routine,
             const Zor_Integer* nrec, const char* records, std::size_t name_len,
             std::size_t rec_len) noexcept;
void P01ABXU(bool quiet, bool hard, const Zor_Integer* error, const char* routine,
             const Zor_Integer* nrec, const char* records, std::size_t name_len,
             std::size_t rec_len) noexcept;
void P01ZZWN(const char* text, std::size_t len) noexcept;
void X04BAZN(Zor_Context* ctx, const Zor_Integer* nout, const char* rec,
             Zor_Integer* status, std::size_t rec_len) noexcept;
}

namespace zor {

// ---------------------------------------------------------------------------------
// Message buffer: 200 characters of fields, each preceded and the last one followed by
// the separator of code 1: error number, message code, a count n, then n value texts.
// The rest of the buffer is blank.

inline constexpr std::size_t msgbuf_len = 200;
inline constexpr char field_sep = '\x01';
inline constexpr std::size_t field_len = 80;   // a value text never exceeds a field

// One value text, formatted once, on the failure path only.
struct ValueText {
    char text[field_len];
    std::size_t len = 0;
};

// Reals in the shortest form that reads back to the same double (an integral value
// keeps a ".0": "1.0", "-0.0", "1e-08", "nan", "inf"); integers in decimal; texts as
// they are, cut at 80 characters, with the separator and control characters shown as
// '?' so that no value can break the buffer's layout.
ValueText value_text(double v) noexcept;
ValueText value_text(long long v) noexcept;
ValueText value_text(std::string_view v) noexcept;
inline ValueText value_text(int v) noexcept { return value_text(static_cast<long long>(v)); }
inline ValueText value_text(const char* v) noexcept { return value_text(std::string_view(v)); }

// Writes the kernel's message buffer. A kernel holds one and returns through fail():
//     if (!(eps > 0.0)) return msg.fail(1, 1001, eps);
class Message {
public:
    explicit Message(char* buffer) noexcept : buf_(buffer) { clear(); }
    void clear() noexcept;
    template <class... V>
    int fail(int error, int code, const V&... values) noexcept
    {
        const ValueText texts[] = {value_text(error), value_text(code),
                                   value_text(static_cast<int>(sizeof...(V))),
                                   value_text(values)...};
        write(texts, std::size(texts));
        return error;
    }

private:
    void write(const ValueText* fields, std::size_t n) noexcept;
    char* buf_;
};

// ---------------------------------------------------------------------------------
// A routine's message tables. F records: key (error, message code), up to eight lines
// of at most 80 characters, each starting " ** "; "%1" ... "%9" stand for the value
// texts. c messages: key message code, the fail-record code and a format whose "%s"
// take the value texts in order.

inline constexpr std::size_t max_lines = 8;

struct FRecord {
    int error;
    int code;
    std::array<const char*, max_lines> lines;
};

struct CMessage {
    int msgcode;
    int code;
    const char* format;
};

// Exit status of a process ended by a hard failure (IFAIL = 0 on entry).
inline constexpr int hard_stop_status = 1;

// How IFAIL on entry is read: the current convention (0 hard, -1 soft and printed,
// anything else soft and quiet) or the older digit convention.
enum class Convention { current, digits };

// Ends an F routine: words the records selected by (error, message code) from the
// buffer, pads them to 80 characters and passes them through the error exit, which
// prints, stops or returns as IFAIL on entry asks and stores the error number (-99 for
// an undocumented pair or a malformed buffer). Error 0 touches nothing but IFAIL.
void f_exit(Zor_Integer* ifail, int error, const char* msgbuf, const char* routine,
            std::span<const FRecord> records,
            Convention convention = Convention::current) noexcept;

// First step of every c routine: clears code and errnum of a given record.
void c_begin(Zor_Fail* fail) noexcept;

// Reports a null pointer argument (code 70, NE_BAD_PARAM) and returns it.
int c_bad_param(Zor_Fail* fail, const char* routine, const char* argument) noexcept;

// Ends a c routine: error 0 reports success; -999 reports NE_ALLOC_FAIL; any other
// error stores errnum, parses the buffer and formats the message chosen by its code
// (74, NE_INTERNAL_ERROR, when the code is not listed or the buffer is malformed).
void c_exit(Zor_Fail* fail, int error, const char* msgbuf, const char* routine,
            std::span<const CMessage> messages) noexcept;

// A pointer argument of a c routine and its name, for c_require. Function pointers
// (callbacks) are accepted as they are.
struct Required {
    const void* pointer;
    const char* name;
    Required(const void* p, const char* n) noexcept : pointer(p), name(n) {}
    template <class F>
        requires std::is_function_v<F>
    Required(F* f, const char* n) noexcept : pointer(reinterpret_cast<const void*>(f)), name(n)
    {
    }
};

// Checks the pointer arguments in the order given; the first null one is reported
// through c_bad_param and the result is false. True when every one is given.
inline bool c_require(Zor_Fail* fail, const char* routine,
                      std::initializer_list<Required> arguments) noexcept
{
    for (const Required& r : arguments)
        if (r.pointer == nullptr) {
            c_bad_param(fail, routine, r.name);
            return false;
        }
    return true;
}

// The one reporting routine of the c interface: fills the record, prints, calls the
// handler, and ends the process with status 1 for a failure without a record.
void c_report(const char* message, int code, const char* routine, Zor_Fail* fail) noexcept;

// Default message of a code (the text for 74 for a number outside the table).
const char* default_message(int code) noexcept;

// Runs a kernel body. No exception leaves: std::bad_alloc becomes -999 and anything
// else an error number that no routine documents, which both exits turn into their
// unexpected-error report.
inline constexpr int unexpected_error = -98;
template <class F>
int guarded(F&& body) noexcept
{
    try {
        return body();
    } catch (const std::bad_alloc&) {
        return -999;
    } catch (...) {
        return unexpected_error;
    }
}

// ---------------------------------------------------------------------------------
// The common call sequence of the F and c routines: a fresh context, the message
// buffer and the error number, one call of the kernel entry, the exit with the
// routine's table. The kernel is called as kernel(&ctx, msgbuf, &ierr); it may change
// ierr after its entry returns (a routine that renumbers its errors).

// One call of the kernel in a fresh context; exit(ierr, msgbuf) ends the call. Used
// directly by the routines whose checks or exit differ from f_call's and c_call's (a
// length checked after the pointers, a reverse-communication return that asks for a
// function value and so leaves IFAIL alone).
template <class K, class Exit>
void run_kernel(K&& kernel, Exit&& exit) noexcept
{
    Zor_Context ctx;
    Y90HAAN(&ctx);
    char msgbuf[msgbuf_len];
    Zor_Integer ierr = 0;
    kernel(&ctx, msgbuf, &ierr);
    exit(ierr, msgbuf);
}

template <class K>
void f_call(Zor_Integer* ifail, const char* routine, std::span<const FRecord> records,
            K&& kernel) noexcept
{
    run_kernel(kernel, [&](Zor_Integer ierr, const char* msgbuf) {
        f_exit(ifail, ierr, msgbuf, routine, records);
    });
}

// The c form starts with c_begin and c_require of the pointer arguments, in order.
template <class K>
void c_call(Zor_Fail* fail, const char* routine, std::span<const CMessage> messages,
            std::initializer_list<Required> arguments, K&& kernel) noexcept
{
    c_begin(fail);
    if (!c_require(fail, routine, arguments)) return;
    run_kernel(kernel, [&](Zor_Integer ierr, const char* msgbuf) {
        c_exit(fail, ierr, msgbuf, routine, messages);
    });
}

// ---------------------------------------------------------------------------------
// Output units and records.

Zor_Integer error_unit() noexcept;
Zor_Integer advisory_unit() noexcept;

// Writes one record (trailing blanks dropped, an empty record as an empty line) to a
// unit; returns 1 when a write to an open unit failed, else 0.
int write_record(Zor_Integer unit, std::string_view record) noexcept;

// Argument trace (ZOR_TRACE set and not "0"): one record to the advisory unit.
bool trace_enabled() noexcept;
struct TraceItem {
    const char* name;
    ValueText value;
};
void trace(const Zor_Context& ctx, const char* label, const char* heading,
           std::initializer_list<TraceItem> items) noexcept;

}  // namespace zor

// The lower-case name with one trailing underscore under which gfortran programs call
// an F routine, as an alias of the same code. Placed after the routine's definition.
#define ZOR_F_ALIAS(lower, upper) \
    extern "C" ZOR_API decltype(upper) lower __attribute__((alias(#upper)))
