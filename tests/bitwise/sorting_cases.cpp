// tests/bitwise/sorting_cases.cpp — the sorting chapter: M01CAF on signed zeros, NaNs and
// infinities (the order of equal keys shows in their bits), a long pseudo-random array
// that takes the randomised-pivot branch (a checksum of every bit), integers and strings,
// M01DAF ranks with ties, rearranging by rank, searching, and the messages of bad calls.
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include "bitwise.hpp"
#include "zor.h"

namespace {

constexpr double inf = std::numeric_limits<double>::infinity();
const double nan = std::numeric_limits<double>::quiet_NaN();

// 64-bit FNV-1a over the bit patterns of reals and the values of integers.
struct Checksum {
    std::uint64_t h = 14695981039346656037ull;
    void add(std::uint64_t v)
    {
        for (int i = 0; i < 8; ++i) {
            h ^= (v >> (8 * i)) & 0xff;
            h *= 1099511628211ull;
        }
    }
    void add(double v)
    {
        std::uint64_t bits;
        std::memcpy(&bits, &v, sizeof bits);
        add(bits);
    }
};

// Few distinct keys, signed zeros among them, from a fixed linear congruential stream.
std::vector<double> pseudo_random(std::size_t n)
{
    std::uint64_t s = 88172645463325252ull;
    std::vector<double> v(n);
    for (double& x : v) {
        s = s * 6364136223846793005ull + 1442695040888963407ull;
        const int k = static_cast<int>((s >> 33) % 41) - 20;
        x = k == 0 ? ((s >> 20) & 1 ? -0.0 : 0.0) : k * 0.375;
    }
    return v;
}

const double signed_zeros[] = {0.0, -0.0, 1.5, -0.0, nan, 0.0, -2.25, inf, -0.0, -inf, 0.0, -nan, 1.5, -0.0};
constexpr Zor_Integer n_signed = sizeof signed_zeros / sizeof signed_zeros[0];

}  // namespace

ZOR_BITWISE_CASE(m01caf_signed_zeros)
{
    for (const char* order : {"A", "D"}) {
        std::vector<double> v(signed_zeros, signed_zeros + n_signed);
        const Zor_Integer m1 = 1, m2 = n_signed;
        Zor_Integer ifail = 1;
        M01CAF(v.data(), &m1, &m2, order, &ifail, 1);
        out.text("order", order);
        out.integer("ifail", ifail);
        for (double x : v) out.real("rv", x);
    }
    // A section only: the elements outside it stay where they are.
    std::vector<double> v(signed_zeros, signed_zeros + n_signed);
    Zor_Fail fail{};
    m01cac(v.data(), 2, 9, 'a', &fail);
    out.integer("m01cac section code", fail.code);
    for (double x : v) out.real("rv", x);
}

ZOR_BITWISE_CASE(m01caf_long_array)
{
    for (std::size_t n : {16u, 17u, 100u, 3001u, 20000u})
        for (const char* order : {"A", "D"}) {
            std::vector<double> v = pseudo_random(n);
            const Zor_Integer m1 = 1, m2 = static_cast<Zor_Integer>(n);
            Zor_Integer ifail = 1;
            M01CAF(v.data(), &m1, &m2, order, &ifail, 1);
            Checksum c;
            for (double x : v) c.add(x);
            out.integer("n", static_cast<long long>(n));
            out.text("order", order);
            out.integer("ifail", ifail);
            out.integer("checksum", static_cast<long long>(c.h >> 1));
        }
}

ZOR_BITWISE_CASE(m01cbf_m01ccf)
{
    Zor_Integer iv[] = {7, -3, 2147483647, 0, -2147483647 - 1, 7, 12, -3, 5};
    const Zor_Integer m1 = 1, m2 = 9;
    Zor_Integer ifail = 1;
    M01CBF(iv, &m1, &m2, "D", &ifail, 1);
    out.integer("m01cbf ifail", ifail);
    for (Zor_Integer x : iv) out.integer("iv", x);
    // Strings of 6 characters compared on columns 2 to 4.
    char ch[] = "delta alpha gamma beta  epsilo zeta  eta   ";
    const Zor_Integer s1 = 1, s2 = 7, l1 = 2, l2 = 4;
    ifail = 1;
    M01CCF(ch, &s1, &s2, &l1, &l2, "A", &ifail, 6, 1);
    out.integer("m01ccf ifail", ifail);
    out.text("ch", std::string(ch, 42));
}

ZOR_BITWISE_CASE(m01daf_ranks)
{
    for (const char* order : {"A", "D"}) {
        Zor_Integer irank[n_signed];
        const Zor_Integer m1 = 1, m2 = n_signed;
        Zor_Integer ifail = 1;
        M01DAF(signed_zeros, &m1, &m2, order, irank, &ifail, 1);
        out.text("order", order);
        out.integer("ifail", ifail);
        for (Zor_Integer r : irank) out.integer("irank", r);
        // Rearranged into rank order by M01EAF.
        std::vector<double> v(signed_zeros, signed_zeros + n_signed);
        ifail = 1;
        M01EAF(v.data(), &m1, &m2, irank, &ifail);
        out.integer("m01eaf ifail", ifail);
        for (double x : v) out.real("rv", x);
    }
    // Long runs take the merge path.
    std::vector<double> runs(5000);
    for (std::size_t i = 0; i < runs.size(); ++i)
        runs[i] = static_cast<double>(i % 1250) * 0.5 - (i >= 2500 ? 0.25 : 0.0);
    std::vector<Zor_Integer> irank(runs.size());
    const Zor_Integer m1 = 1, m2 = static_cast<Zor_Integer>(runs.size());
    Zor_Integer ifail = 1;
    M01DAF(runs.data(), &m1, &m2, "A", irank.data(), &ifail, 1);
    Checksum c;
    for (Zor_Integer r : irank) c.add(static_cast<std::uint64_t>(r));
    out.integer("runs ifail", ifail);
    out.integer("runs checksum", static_cast<long long>(c.h >> 1));
}

ZOR_BITWISE_CASE(m01naf_search)
{
    const double valid[] = {-inf, -2.5, -0.0, 0.0, 0.0, 1.5, 1.5, 3.75, inf};
    const Zor_Integer m1 = 1, m2 = 9;
    for (double item : {-3.0, -2.5, -0.0, 0.0, 1.5, 2.0, 1e308, inf, -inf, nan}) {
        Zor_Integer ifail = 1;
        const Zor_Integer pos = M01NAF(valid, &m1, &m2, &item, &ifail);
        out.real("item", item);
        out.integer("position", pos);
        out.integer("ifail", ifail);
    }
}

ZOR_BITWISE_CASE(m01_messages)
{
    // F records on the error unit (IFAIL = -1) and c messages in the fail record.
    double rv[4] = {1.0, 2.0, 3.0, 4.0};
    Zor_Integer irank[4];
    const Zor_Integer one = 1, four = 4, zero = 0, big = 2147483647;
    Zor_Integer ifail = -1;
    out.flush();
    M01CAF(rv, &four, &one, "A", &ifail, 1);
    out.integer("m1 > m2 ifail", ifail);
    ifail = -1;
    out.flush();
    M01CAF(rv, &one, &four, "Q", &ifail, 1);
    out.integer("order Q ifail", ifail);
    ifail = -1;
    out.flush();
    M01DAF(rv, &one, &zero, "A", irank, &ifail, 1);
    out.integer("m2 = 0 ifail", ifail);
    ifail = -1;
    out.flush();
    M01DAF(rv, &big, &four, "A", irank, &ifail, 1);
    out.integer("m1 = 2^31 - 1 > m2 ifail", ifail);
    Zor_Fail fail{};
    m01cac(rv, 1, 4, 'X', &fail);
    out.integer("m01cac code", fail.code);
    out.integer("m01cac errnum", fail.errnum);
    out.text("message", fail.message);
    m01dac(rv, 0, 0, 'A', irank, &fail);
    out.integer("m01dac code", fail.code);
    out.text("message", fail.message);
}
