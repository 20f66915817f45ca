/* examples/m01nac_example.c — searching sorted vectors (m01nac, m01nbc, m01ncc, m01ndc
   in its five modes) and permutations (m01zac, m01zbc, m01zcc) from C. */
#include <stdio.h>
#include <string.h>
#include "zor.h"

int main(void)
{
    const double valid[6] = {1.0, 2.0, 2.0, 3.5, 7.0, 9.0};
    const Zor_Integer ivalid[5] = {-4, 0, 0, 10, 20};
    const char names[4 * 5 + 1] = "alphabeta deltagamma";
    const double x[5] = {2.0, 0.0, 3.0, 9.5, 8.1};
    Zor_Integer idx[5], iperm[6] = {3, 1, 2, 5, 4, 6}, icycl[6], mode;
    Zor_Fail fail;
    int i;

    memset(&fail, 0, sizeof fail);
    printf("m01nac, last position with valid(i) <= item (0 if none):\n");
    printf("  item 2.0: %d\n", (int)m01nac(valid, 1, 6, 2.0, &fail));
    printf("  item 0.5: %d\n", (int)m01nac(valid, 1, 6, 0.5, &fail));
    printf("  item 8.0 in the section 2..5: %d\n", (int)m01nac(valid, 2, 5, 8.0, &fail));
    printf("m01nbc, item 5: %d\n", (int)m01nbc(ivalid, 1, 5, 5, &fail));
    printf("m01ncc, item \"charlie\": %d\n", (int)m01ncc(names, 5, 1, 4, "charlie", &fail));
    printf("m01ncc, item \"beta\": %d\n", (int)m01ncc(names, 5, 1, 4, "beta", &fail));

    printf("m01ndc on valid(1:6), items 2.0 0.0 3.0 9.5 8.1:\n");
    for (mode = 0; mode <= 4; ++mode) {
        m01ndc(valid, 6, 1, 6, x, 5, mode, idx, &fail);
        printf("  mode %d:", (int)mode);
        for (i = 0; i < 5; ++i) printf("%3d", (int)idx[i]);
        printf("\n");
    }

    m01zbc(iperm, 1, 6, &fail);
    printf("m01zbc, 3 1 2 5 4 6 is a permutation: code %d\n", (int)fail.code);
    m01zcc(iperm, 1, 6, icycl, &fail);
    printf("m01zcc, its cycles (each led by its smallest element, negated):\n");
    for (i = 0; i < 6; ++i) printf("%4d", (int)icycl[i]);
    printf("\n");
    m01zac(iperm, 1, 6, &fail);
    printf("m01zac, its inverse:\n");
    for (i = 0; i < 6; ++i) printf("%4d", (int)iperm[i]);
    printf("\n");

    iperm[2] = 7;
    m01zbc(iperm, 1, 6, &fail);
    printf("m01zbc with a 7 among 1..6: code %d, errnum %d\n%s\n", (int)fail.code, (int)fail.errnum,
           fail.message);
    m01ndc(valid, 6, 1, 6, x, 5, 7, idx, &fail);
    printf("m01ndc with mode 7: code %d\n%s\n", (int)fail.code, fail.message);
    return 0;
}
