// frame/units.cpp — the error and advisory units, the record writer, and the routines
// that get, set and write to them (X04AAF, X04ABF, X04BAF) or attach files (X04ACF,
// X04ADF).
#include <atomic>
#include <cstdio>
#include <cstring>

#include "frame.hpp"
#include "platform.hpp"
#include "x04_messages.hpp"
#include "zor_x04.h"

extern "C" {   // frame/record_writer.f90
void zor_unit_write(Zor_Integer unit, const char* rec, Zor_Integer n, Zor_Integer* ierr);
void zor_unit_opened(Zor_Integer unit, Zor_Integer* opened);
void zor_unit_open(Zor_Integer unit, const char* name, Zor_Integer n, Zor_Integer mode,
                   Zor_Integer* ierr);
void zor_unit_close(Zor_Integer unit, Zor_Integer* ierr);
void zor_unit_flush(Zor_Integer unit);
}

namespace zor {

namespace {

// The library's only mutable state. Relaxed atomics: a unit changed while another
// thread prints is not ordered with that printing, but it is never torn.
std::atomic<Zor_Integer> error_unit_number{6};
std::atomic<Zor_Integer> advisory_unit_number{6};

void get_or_set(std::atomic<Zor_Integer>& unit, Zor_Integer iflag, Zor_Integer& value)
{
    if (iflag == 0)
        value = unit.load(std::memory_order_relaxed);
    else if (iflag == 1)
        unit.store(value, std::memory_order_relaxed);
}

}  // namespace

Zor_Integer error_unit() noexcept { return error_unit_number.load(std::memory_order_relaxed); }
Zor_Integer advisory_unit() noexcept
{
    return advisory_unit_number.load(std::memory_order_relaxed);
}

int write_record(Zor_Integer unit, std::string_view record) noexcept
{
    if (unit < 0) return 0;
    while (!record.empty() && (record.back() == ' ' || record.back() == '\0'))
        record.remove_suffix(1);
    const Zor_Integer n = static_cast<Zor_Integer>(std::min<std::size_t>(record.size(), INT32_MAX));
    const char* text = n > 0 ? record.data() : " ";
    const Zor_Integer w = n > 0 ? n : 0;
    Zor_Integer opened = 0;
    if (unit != 0 && unit != 6) zor_unit_opened(unit, &opened);
    Zor_Integer status = 0;
    if (opened) {
        zor_unit_write(unit, text, w, &status);
        return status;
    }
    // C stdio and the Fortran runtime buffer separately, and the two standard streams
    // often share one file (2>&1): flush what the caller wrote to either stream, through
    // C or through the other Fortran unit, so that the record lands after it. The record
    // itself is flushed by the writer.
    if (unit == 0 || unit == 6) {
        std::fflush(stdout);
        std::fflush(stderr);
        zor_unit_flush(unit == 0 ? 6 : 0);
    }
    if (platform::console_or_window(record.substr(0, static_cast<std::size_t>(n))))
        zor_unit_write(unit, text, w, &status);
    return 0;
}

}  // namespace zor

using zor::trace;
using zor::value_text;

extern "C" void X04BAZN(Zor_Context*, const Zor_Integer* nout, const char* rec,
                                Zor_Integer* status, std::size_t rec_len) noexcept
{
    *status = zor::write_record(*nout, {rec, rec_len});
}

extern "C" ZOR_API void X04AAFT(Zor_Context*, const Zor_Integer* iflag, Zor_Integer* nerr) noexcept
{
    zor::get_or_set(zor::error_unit_number, *iflag, *nerr);
}

extern "C" ZOR_API void X04ABFT(Zor_Context*, const Zor_Integer* iflag, Zor_Integer* nadv) noexcept
{
    zor::get_or_set(zor::advisory_unit_number, *iflag, *nadv);
}

extern "C" ZOR_API void X04AAF(const Zor_Integer* iflag, Zor_Integer* nerr) noexcept
{
    Zor_Context ctx;
    Y90HAAN(&ctx);
    if (ctx.trace)
        trace(ctx, "x04aafv", "en_data", {{"iflag", value_text(*iflag)}, {"nerr", value_text(*nerr)}});
    X04AAFT(&ctx, iflag, nerr);
    if (ctx.trace)
        trace(ctx, "x04aafv", "ex_data", {{"iflag", value_text(*iflag)}, {"nerr", value_text(*nerr)}});
}

extern "C" ZOR_API void X04ABF(const Zor_Integer* iflag, Zor_Integer* nadv) noexcept
{
    Zor_Context ctx;
    Y90HAAN(&ctx);
    X04ABFT(&ctx, iflag, nadv);
}

extern "C" ZOR_API void X04BAF_FH(Zor_RecordWriter writer, Zor_Context* ctx, const Zor_Integer* nout,
                                  const char* rec, Zor_Integer* status, std::size_t rec_len) noexcept
{
    writer(ctx, nout, rec, status, rec_len);
}

extern "C" ZOR_API void X04BAFT(Zor_Context* ctx, const Zor_Integer* nout, const char* rec,
                                Zor_RecordWriter writer, Zor_RecordTrampoline trampoline,
                                Zor_Integer* status, std::size_t rec_len) noexcept
{
    trampoline(writer, ctx, nout, rec, status, rec_len);
}

extern "C" ZOR_API void X04BAF(const Zor_Integer* nout, const char* rec, std::size_t rec_len) noexcept
{
    Zor_Context ctx;
    Y90HAAN(&ctx);
    Zor_Integer ierr = 0;
    const std::string_view text(rec, rec_len);
    if (ctx.trace)
        trace(ctx, "x04bafv:print_rec", "en_data",
              {{"nout", value_text(*nout)}, {"rec", value_text(text)}, {"ierr", value_text(ierr)}});
    X04BAFT(&ctx, nout, rec, X04BAZN, X04BAF_FH, &ierr, rec_len);
    if (ctx.trace)
        trace(ctx, "x04bafv:print_rec", "ex_data",
              {{"nout", value_text(*nout)}, {"rec", value_text(text)}, {"ierr", value_text(ierr)}});
}

// ----------------------------------------------------------------------------------
// X04ACF, X04ADF: files on units, for callers that have no Fortran OPEN of their own.
// Their records: frame/x04_messages.hpp.

extern "C" ZOR_API void X04ACFT(Zor_Context*, const Zor_Integer* nout, const char* file,
                                const Zor_Integer* mode, char msgbuf[200], Zor_Integer* ierr,
                                std::size_t file_len) noexcept
{
    zor::Message msg(msgbuf);
    std::string_view name(file, file_len);
    while (!name.empty() && name.back() == ' ') name.remove_suffix(1);
    if (*nout < 0) {
        *ierr = msg.fail(1, 1001, *nout);
    } else if (*mode < 0 || *mode > 2) {
        *ierr = msg.fail(2, 1002, *mode);
    } else {
        Zor_Integer status = 1;
        if (!name.empty() && name.size() < INT32_MAX)
            zor_unit_open(*nout, name.data(), static_cast<Zor_Integer>(name.size()), *mode, &status);
        *ierr = status == 0 ? 0 : msg.fail(3, 1003 + *mode, name);
    }
}

extern "C" ZOR_API void X04ACF(const Zor_Integer* nout, const char* file, const Zor_Integer* mode,
                               Zor_Integer* ifail, std::size_t file_len) noexcept
{
    zor::f_call(ifail, "x04acf", zor::frame::x04acf_records,
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    X04ACFT(ctx, nout, file, mode, msgbuf, ierr, file_len);
                });
}

extern "C" ZOR_API void X04ADFT(Zor_Context*, const Zor_Integer* nout, char msgbuf[200],
                                Zor_Integer* ierr) noexcept
{
    zor::Message msg(msgbuf);
    Zor_Integer status = 0;
    if (*nout < 0) {
        *ierr = msg.fail(1, 1001, *nout);
        return;
    }
    zor_unit_close(*nout, &status);
    *ierr = status == 0 ? 0 : msg.fail(2, 1002, *nout);
}

extern "C" ZOR_API void X04ADF(const Zor_Integer* nout, Zor_Integer* ifail) noexcept
{
    zor::f_call(ifail, "x04adf", zor::frame::x04adf_records,
                [&](Zor_Context* ctx, char* msgbuf, Zor_Integer* ierr) {
                    X04ADFT(ctx, nout, msgbuf, ierr);
                });
}

ZOR_F_ALIAS(x04aaf_, X04AAF);
ZOR_F_ALIAS(x04abf_, X04ABF);
ZOR_F_ALIAS(x04baf_, X04BAF);
ZOR_F_ALIAS(x04acf_, X04ACF);
ZOR_F_ALIAS(x04adf_, X04ADF);
