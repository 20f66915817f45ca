// frame/message.cpp — value texts and the kernel's message buffer.
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>

#include "frame.hpp"

namespace zor {

ValueText value_text(double v) noexcept
{
    ValueText t;
    if (std::isnan(v)) {
        std::memcpy(t.text, "nan", 3);
        t.len = 3;
        return t;
    }
    // Shortest round-trip form; std::to_chars never needs more than 24 characters.
    const auto r = std::to_chars(t.text, t.text + field_len - 2, v);
    t.len = static_cast<std::size_t>(r.ptr - t.text);
    const std::string_view s(t.text, t.len);
    if (std::isfinite(v) && s.find_first_of(".e") == std::string_view::npos) {
        t.text[t.len++] = '.';
        t.text[t.len++] = '0';
    }
    return t;
}

ValueText value_text(long long v) noexcept
{
    ValueText t;
    const auto r = std::to_chars(t.text, t.text + field_len, v);
    t.len = static_cast<std::size_t>(r.ptr - t.text);
    return t;
}

ValueText value_text(std::string_view v) noexcept
{
    ValueText t;
    t.len = std::min(v.size(), field_len);
    for (std::size_t i = 0; i < t.len; ++i) {
        const unsigned char c = static_cast<unsigned char>(v[i]);
        t.text[i] = (c < 0x20 || c == 0x7f) ? '?' : static_cast<char>(c);
    }
    return t;
}

void Message::clear() noexcept { std::memset(buf_, ' ', msgbuf_len); }

// Fields that do not fit are dropped whole, so that the count field then disagrees
// with the fields present and the exits report an unexpected error rather than a
// message with a value cut short.
void Message::write(const ValueText* fields, std::size_t n) noexcept
{
    clear();
    std::size_t pos = 0;
    buf_[pos++] = field_sep;
    for (std::size_t i = 0; i < n; ++i) {
        if (pos + fields[i].len + 1 > msgbuf_len) break;
        std::memcpy(buf_ + pos, fields[i].text, fields[i].len);
        pos += fields[i].len;
        buf_[pos++] = field_sep;
    }
}

}  // namespace zor
