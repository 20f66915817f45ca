// frame/error_exit.cpp — the F interface's error exit: splitting the kernel's message
// buffer (P01ABTN), wording a routine's records from its table (f_exit), and the exits
// that print, stop or return as IFAIL on entry asks (P01ABZU, P01ABYU, P01ABXU).
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include "frame.hpp"
#include "platform.hpp"

namespace {

constexpr std::size_t nfields = 12;
constexpr std::size_t rec_len = 80;

std::string_view trim_right(const char* s, std::size_t n)
{
    while (n > 0 && (s[n - 1] == ' ' || s[n - 1] == '\0')) --n;
    return {s, n};
}

// A field read as an integer the way a list-directed read accepts it: blanks around
// an optional sign and decimal digits, within the 32-bit range.
bool read_integer(std::string_view s, Zor_Integer& out)
{
    while (!s.empty() && s.front() == ' ') s.remove_prefix(1);
    while (!s.empty() && s.back() == ' ') s.remove_suffix(1);
    bool negative = false;
    if (!s.empty() && (s.front() == '+' || s.front() == '-')) {
        negative = s.front() == '-';
        s.remove_prefix(1);
    }
    while (s.size() > 1 && s.front() == '0') s.remove_prefix(1);   // "0001001" is 1001
    if (s.empty() || s.size() > 10) return false;
    long long v = 0;
    for (char c : s) {
        if (c < '0' || c > '9') return false;
        v = v * 10 + (c - '0');
    }
    if (negative) v = -v;
    if (v < INT32_MIN || v > INT32_MAX) return false;
    out = static_cast<Zor_Integer>(v);
    return true;
}

// Writes text into an 80-character record, blank-padded, cut at 80.
void set_record(char* rec, std::string_view text)
{
    std::memset(rec, ' ', rec_len);
    std::memcpy(rec, text.data(), std::min(text.size(), rec_len));
}

void write_line(std::string_view text)
{
    zor::write_record(zor::error_unit(), text);
}

}  // namespace

extern "C" void P01ABTN(const char* msgbuf, Zor_Integer* msgcode, char fields[12][80],
                        Zor_Integer* status) noexcept
{
    for (std::size_t i = 0; i < nfields; ++i) std::memset(fields[i], ' ', rec_len);
    *status = 0;
    *msgcode = 0;
    if (msgbuf[0] != zor::field_sep) {
        *status = -1000;
        return;
    }
    const std::string_view buf = trim_right(msgbuf, zor::msgbuf_len);
    if (buf.size() <= 1 || buf.back() != zor::field_sep) {
        *status = -1000;
        return;
    }
    std::size_t count = 0;
    std::size_t start = 1;
    while (count < nfields && start < buf.size()) {
        const std::size_t end = buf.find(zor::field_sep, start);
        // The run goes into its 80-character slot, then is left-justified there.
        std::string_view field = buf.substr(start, std::min(end - start, rec_len));
        while (!field.empty() && field.front() == ' ') field.remove_prefix(1);
        std::memcpy(fields[count], field.data(), field.size());
        ++count;
        start = end + 1;
    }
    Zor_Integer error = 0, n = 0;
    if (count < 3 || !read_integer({fields[0], rec_len}, error) ||
        !read_integer({fields[1], rec_len}, *msgcode) || !read_integer({fields[2], rec_len}, n)) {
        *status = -1000;
        return;
    }
    if (n < 0 || static_cast<std::size_t>(n) + 3 != count) *status = -1001;
}

extern "C" void P01ZZWN(const char* text, std::size_t len) noexcept
{
    write_line(trim_right(text, len));
}

extern "C" void P01ABXU(bool quiet, bool hard, const Zor_Integer* error, const char* routine,
                        const Zor_Integer* nrec, const char* records, std::size_t name_len,
                        std::size_t rec_len_in) noexcept
{
    // The error unit is looked up once, so that one message never straddles two units
    // when another thread changes the unit meanwhile.
    const Zor_Integer unit = zor::error_unit();
    if (!quiet) {
        for (Zor_Integer i = 0; i < *nrec; ++i)
            zor::write_record(unit, trim_right(records + static_cast<std::size_t>(i) * rec_len_in,
                                               rec_len_in));
        char line[73];
        const std::string_view name = trim_right(routine, name_len);
        std::snprintf(line, sizeof line, " ** ABNORMAL EXIT from ZOR Library routine %.*s: IFAIL =%6d",
                      static_cast<int>(std::min<std::size_t>(name.size(), 6)), name.data(),
                      static_cast<int>(*error));
        zor::write_record(unit, trim_right(line, std::strlen(line)));
    }
    if (hard) {
        zor::write_record(unit, " ** ZOR hard failure - execution terminated");
        zor::platform::end_process(zor::hard_stop_status);
    }
    if (!quiet) zor::write_record(unit, " ** ZOR soft failure - control returned");
}

extern "C" void P01ABZU(Zor_Integer* ifail, const Zor_Integer* error, const char* routine,
                        const Zor_Integer* nrec, const char* records, std::size_t name_len,
                        std::size_t rec_len_in) noexcept
{
    if (*error != 0) {
        const bool hard = *ifail == 0;
        const bool quiet = !(hard || *ifail == -1);
        P01ABXU(quiet, hard, error, routine, nrec, records, name_len, rec_len_in);
    }
    *ifail = *error;
}

extern "C" void P01ABYU(Zor_Integer* ifail, const Zor_Integer* error, const char* routine,
                        const Zor_Integer* nrec, const char* records, std::size_t name_len,
                        std::size_t rec_len_in) noexcept
{
    if (*error != 0) {
        const long long digits = std::llabs(static_cast<long long>(*ifail)) % 100;
        const bool hard = digits % 10 == 0;
        const bool quiet = !(hard || digits / 10 != 0);
        P01ABXU(quiet, hard, error, routine, nrec, records, name_len, rec_len_in);
    }
    *ifail = *error;
}

namespace zor {

namespace {

// Substitutes the value texts (fields 4 on, trailing blanks removed) for %1 ... %9.
// Returns false when a line names a value that the buffer does not carry.
bool word_line(char* rec, const char* line, const char (*fields)[80], Zor_Integer nvalues)
{
    char out[2 * rec_len];
    std::size_t n = 0;
    for (const char* p = line; *p != '\0' && n < sizeof out; ++p) {
        if (p[0] == '%' && p[1] >= '1' && p[1] <= '9') {
            const int k = p[1] - '1';
            if (k >= nvalues) return false;
            const std::string_view v = trim_right(fields[3 + k], rec_len);
            const std::size_t m = std::min(v.size(), sizeof out - n);
            std::memcpy(out + n, v.data(), m);
            n += m;
            ++p;
        } else {
            out[n++] = *p;
        }
    }
    set_record(rec, {out, n});
    return true;
}

}  // namespace

void f_exit(Zor_Integer* ifail, int error, const char* msgbuf, const char* routine,
            std::span<const FRecord> table, Convention convention) noexcept
{
    char records[max_lines][rec_len];
    Zor_Integer nrec = 0;
    Zor_Integer err = error;
    if (error == -999) {
        set_record(records[nrec++], " ** Dynamic memory allocation failed.");
    } else if (error != 0) {
        char fields[12][80];
        Zor_Integer code = 0, status = 0;
        P01ABTN(msgbuf, &code, fields, &status);
        Zor_Integer written = 0;
        const bool well_formed = status == 0 && read_integer({fields[0], rec_len}, written) &&
                                 written == error;
        Zor_Integer nvalues = 0;
        if (well_formed) read_integer({fields[2], rec_len}, nvalues);
        const FRecord* found = nullptr;
        if (well_formed)
            for (const FRecord& r : table)
                if (r.error == error && r.code == code) found = &r;
        bool worded = found != nullptr;
        for (std::size_t i = 0; worded && i < max_lines && found->lines[i] != nullptr; ++i)
            worded = word_line(records[nrec++], found->lines[i], fields, nvalues);
        if (!worded) {
            char line[rec_len + 1];
            std::snprintf(line, sizeof line, " ** Unexpected error (%5d,%5d)",
                          static_cast<int>(error), static_cast<int>(code));
            nrec = 0;
            set_record(records[nrec++], line);
            err = -99;
        }
    }
    const std::size_t name_len = std::strlen(routine);
    if (convention == Convention::digits)
        P01ABYU(ifail, &err, routine, &nrec, records[0], name_len, rec_len);
    else
        P01ABZU(ifail, &err, routine, &nrec, records[0], name_len, rec_len);
}

}  // namespace zor
