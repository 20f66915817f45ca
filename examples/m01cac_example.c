/* examples/m01cac_example.c — sorting in place from C: reals with signed zeros
   (m01cac), integers (m01cbc), fixed-length strings on a range of columns (m01ccc),
   and a fail record receiving the message for an illegal order. */
#include <stdio.h>
#include <string.h>
#include "zor.h"

static void show(const char *title, const double *v, int n)
{
    int i;
    printf("%s\n", title);
    for (i = 0; i < n; ++i) printf("%5.1f%s", v[i], (i + 1) % 10 == 0 || i == n - 1 ? "\n" : " ");
}

int main(void)
{
    double small[6] = {0.0, -0.0, 1.0, -0.0, 0.0, -1.0};
    double rv[20] = {3.0, -0.0, 2.0, 0.0, -1.0, 0.0, -0.0, 5.0, -2.0, 0.0,
                     -0.0, 4.0, 1.0, 0.0, -0.0, -3.0, 0.0, -0.0, 2.5, -0.0};
    Zor_Integer iv[10] = {9, 8, 7, 6, 5, 4, 3, 2, 1, 0};
    char ch[6 * 8 + 1] = "a1zeta  b2alpha c3gamma d4alpha e5beta  f6delta ";
    Zor_Fail fail;
    int i;

    memset(&fail, 0, sizeof fail);
    m01cac(small, 1, 6, 'A', &fail);
    show("m01cac, 6 values with signed zeros, ascending:", small, 6);
    m01cac(rv, 1, 20, 'a', &fail);
    show("m01cac, 20 values with signed zeros, ascending:", rv, 20);
    m01cac(rv, 1, 20, 'D', &fail);
    show("m01cac, the same, descending (the ascending sort reversed):", rv, 20);

    m01cbc(iv, 3, 8, 'A', &fail);
    printf("m01cbc, section 3..8 ascending:\n");
    for (i = 0; i < 10; ++i) printf("%3d", (int)iv[i]);
    printf("\n");

    m01ccc(ch, 8, 1, 6, 3, 5, 'A', &fail);
    printf("m01ccc, on columns 3..5:\n%s\n", ch);

    m01cac(rv, 1, 20, 'X', &fail);
    printf("m01cac with order 'X': code %d, errnum %d\n%s\n", (int)fail.code, (int)fail.errnum,
           fail.message);
    m01cac(rv, 0, 0, 'A', &fail);
    printf("m01cac with m1 = m2 = 0: code %d\n%s\n", (int)fail.code, fail.message);
    return 0;
}
