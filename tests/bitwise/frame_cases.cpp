// tests/bitwise/frame_cases.cpp — the frame's routines: machine constants, output units,
// records, an error exit with its message, and the library identification's fixed lines.
#include <cstdio>
#include <cstring>
#include <string>

#include "bitwise.hpp"
#include "zor.h"

namespace {

void record(Zor_Integer unit, const char* rec)
{
    X04BAF(&unit, rec, std::strlen(rec));
}

}  // namespace

ZOR_BITWISE_CASE(a00aaf_fixed_lines)
{
    // The advisory unit goes to a file; the lines that describe the build are left out.
    const char* file = "bitwise_a00aaf.txt";
    Zor_Integer unit = 17, mode = 1, ifail = 1, one = 1, old = 0, zero = 0;
    X04ACF(&unit, file, &mode, &ifail, std::strlen(file));
    out.integer("x04acf ifail", ifail);
    X04ABF(&zero, &old);
    X04ABF(&one, &unit);
    A00AAF();
    X04ABF(&one, &old);
    X04ADF(&unit, &ifail);
    out.integer("x04adf ifail", ifail);
    std::FILE* f = std::fopen(file, "r");
    if (!f) return;
    char line[512];
    int n = 0;
    while (std::fgets(line, sizeof line, f)) {
        ++n;
        std::string s(line);
        while (!s.empty() && (s.back() == '\n' || s.back() == '\r')) s.pop_back();
        const bool build_dependent = s.find("Implementation title") != std::string::npos ||
                                     s.find("Product Code") != std::string::npos ||
                                     s.find(" - ") != std::string::npos;
        if (!build_dependent) out.text("line", s);
    }
    std::fclose(f);
    std::remove(file);
    out.integer("lines", n);
}

ZOR_BITWISE_CASE(x02_constants)
{
    out.real("x02ahf", X02AHF());
    out.real("x02ajf", X02AJF());
    out.real("x02akf", X02AKF());
    out.real("x02alf", X02ALF());
    out.real("x02amf", X02AMF());
    out.real("x02anf", X02ANF());
    out.integer("x02bbf", X02BBF());
    out.integer("x02bef", X02BEF());
    out.integer("x02bhf", X02BHF());
    out.integer("x02bjf", X02BJF());
    out.integer("x02bkf", X02BKF());
    out.integer("x02blf", X02BLF());
    double r = 0.0;
    Zor_Context ctx{};
    X02AJFT(&ctx, &r);
    out.real("x02ajft", r);
    out.real("x02ajf_", x02ajf_());
}

ZOR_BITWISE_CASE(x04_units_and_records)
{
    const Zor_Integer get = 0, set = 1, other = 2;
    Zor_Integer nerr = -7, nadv = -7;
    X04AAF(&get, &nerr);
    X04ABF(&get, &nadv);
    out.integer("error unit", nerr);
    out.integer("advisory unit", nadv);
    Zor_Integer v = 9;
    X04AAF(&set, &v);
    v = 123;
    X04AAF(&other, &v);
    out.integer("iflag 2 leaves nerr", v);
    X04AAF(&get, &v);
    out.integer("error unit after set", v);
    v = 6;
    X04AAF(&set, &v);
    out.flush();
    record(6, " a record with trailing blanks      ");
    record(6, "      ");
    record(-1, " unit -1 prints nothing");
    record(6, " last record");
}

ZOR_BITWISE_CASE(x04acf_error_exits)
{
    const char* name = "nofile";
    const Zor_Integer bad_unit = -3, unit = 18, bad_mode = 7, read_mode = 0;
    for (Zor_Integer ifail_in : {-1, 1}) {
        Zor_Integer ifail = ifail_in;
        out.flush();
        X04ACF(&bad_unit, name, &read_mode, &ifail, std::strlen(name));
        out.integer("bad unit ifail", ifail);
        ifail = ifail_in;
        out.flush();
        X04ACF(&unit, name, &bad_mode, &ifail, std::strlen(name));
        out.integer("bad mode ifail", ifail);
    }
    Zor_Integer ifail = -1;
    const char* missing = "bitwise-no-such-file.txt";
    out.flush();
    X04ACF(&unit, missing, &read_mode, &ifail, std::strlen(missing));
    out.integer("missing file ifail", ifail);
}
