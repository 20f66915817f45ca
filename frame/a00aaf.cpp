// frame/a00aaf.cpp — A00AAF: the library's implementation details on the advisory unit,
// one 200-character record per line through the record writer.
#include <cstring>

#include "build_info.hpp"
#include "frame.hpp"
#include "zor_a00.h"

namespace {

void line(Zor_Context* ctx, std::initializer_list<std::string_view> parts)
{
    char rec[200];
    std::memset(rec, ' ', sizeof rec);
    std::size_t n = 0;
    for (std::string_view p : parts) {
        const std::size_t m = std::min(p.size(), sizeof rec - n);
        std::memcpy(rec + n, p.data(), m);
        n += m;
    }
    Zor_Integer status = 0;
    X04BAZN(ctx, &ctx->nadv, rec, &status, sizeof rec);
}

}  // namespace

extern "C" ZOR_API void A00AAFT(Zor_Context* ctx) noexcept
{
    namespace b = zor::build;
    line(ctx, {" *** Start of ZOR Library implementation details ***"});
    line(ctx, {" Implementation title: ", b::title});
    line(ctx, {"            Precision: double precision"});
    line(ctx, {"         Product Code: ", b::product_code});
    line(ctx, {"              Release: ", b::release});
    line(ctx, {"  This is a 64-bit library using 32-bit integers."});
    line(ctx, {" Created using:"});
    line(ctx, {"     hardware - x86_64"});
    line(ctx, {"     op. sys. - Windows 64-bit"});
    line(ctx, {"     ", b::cxx_compiler});
    line(ctx, {"     ", b::fortran_compiler});
    line(ctx, {"     ", b::cmake});
    line(ctx, {" Applicable to:"});
    line(ctx, {"     hardware - x86_64"});
    line(ctx, {"     op. sys. - Windows 64-bit"});
    line(ctx, {" and compatible systems."});
    line(ctx, {" *** End of ZOR Library implementation details ***"});
}

extern "C" ZOR_API void A00AAF() noexcept
{
    Zor_Context ctx;
    Y90HAAN(&ctx);
    A00AAFT(&ctx);
}

ZOR_F_ALIAS(a00aaf_, A00AAF);
