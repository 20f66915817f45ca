// frame/context.cpp — the per-call context record and the argument trace.
#include <cstdlib>
#include <cstring>

#include "frame.hpp"

namespace zor {

bool trace_enabled() noexcept
{
    // Read once, on first use; constant afterwards.
    static const bool on = [] {
        const char* v = std::getenv("ZOR_TRACE");
        return v != nullptr && v[0] != '\0' && std::strcmp(v, "0") != 0;
    }();
    return on;
}

// One record: the label, the heading and name = value pairs, for example
// " x04aafv en_data: iflag = 0, nerr = 6". Longer records are cut at 200 characters.
void trace(const Zor_Context& ctx, const char* label, const char* heading,
           std::initializer_list<TraceItem> items) noexcept
{
    char rec[200];
    std::size_t n = 0;
    auto put = [&](std::string_view s) {
        const std::size_t m = std::min(s.size(), sizeof rec - n);
        std::memcpy(rec + n, s.data(), m);
        n += m;
    };
    put(" ");
    put(label);
    put(" ");
    put(heading);
    put(":");
    const char* sep = " ";
    for (const TraceItem& item : items) {
        put(sep);
        put(item.name);
        put(" = ");
        put({item.value.text, item.value.len});
        sep = ", ";
    }
    write_record(ctx.nadv, {rec, n});
}

}  // namespace zor

extern "C" void Y90HAAN(Zor_Context* ctx) noexcept
{
    ctx->nerr = zor::error_unit();
    ctx->nadv = zor::advisory_unit();
    ctx->first = 1;
    ctx->stop = 0;
    ctx->count = 0;
    ctx->trace = zor::trace_enabled() ? 1 : 0;
    ctx->reserved[0] = nullptr;
    ctx->reserved[1] = nullptr;
}
