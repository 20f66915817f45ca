/* examples/m01dac_example.c — ranking and rearranging from C: m01dac, m01dbc, m01dcc
   (vectors), m01dec, m01dfc (rows), m01djc, m01dkc (columns), m01dzc (through a
   comparison function), then m01eac, m01ebc, m01ecc, m01edc (into rank order). */
#include <stdio.h>
#include <string.h>
#include "zor.h"

static void show_ranks(const char *title, const Zor_Integer *r, int n)
{
    int i;
    printf("%s\n", title);
    for (i = 0; i < n; ++i) printf("%3d", (int)r[i]);
    printf("\n");
}

/* Item i comes before item j when its weight is smaller; comm->p holds the weights
   (numbered from 1), comm->iuser[0] counts the calls. */
static Zor_Boolean lighter(Zor_Integer i, Zor_Integer j, Zor_Comm *comm)
{
    const double *w = (const double *)comm->p;
    comm->iuser[0]++;
    return w[i - 1] < w[j - 1];
}

int main(void)
{
    double rv[8] = {2.5, -1.0, 2.5, 0.0, 7.0, -1.0, 2.5, 3.0};
    Zor_Integer iv[8] = {5, 3, 5, 1, -2, 3, 9, 0};
    char ch[5 * 6 + 1] = "pear  apple plum  fig   aprico";
    /* A 4 x 3 matrix stored by columns. */
    double rm[12] = {1.0, 2.0, 3.0, 4.0, 5.0, 1.0, 5.0, 1.0, 0.5, 9.0, 0.25, 9.0};
    Zor_Integer im[12];
    double weights[6] = {0.7, 0.2, 0.9, 0.2, 0.1, 0.5};
    double cv[8] = {1.0, 1.0, 2.0, -2.0, 3.0, 3.0, 4.0, -4.0};
    Zor_Integer irank[8], calls = 0;
    Zor_Comm comm;
    Zor_Fail fail;
    int i;

    memset(&fail, 0, sizeof fail);
    m01dac(rv, 1, 8, 'A', irank, &fail);
    show_ranks("m01dac, ranks ascending (ties keep their order):", irank, 8);
    m01dac(rv, 1, 8, 'D', irank, &fail);
    show_ranks("m01dac, ranks descending (ties keep their order):", irank, 8);
    m01eac(rv, 1, 8, irank, &fail);
    printf("m01eac, rearranged by those ranks:\n");
    for (i = 0; i < 8; ++i) printf("%6.1f", rv[i]);
    printf("\n");

    m01dbc(iv, 1, 8, 'A', irank, &fail);
    show_ranks("m01dbc, ranks ascending:", irank, 8);
    m01ebc(iv, 1, 8, irank, &fail);
    show_ranks("m01ebc, rearranged:", iv, 8);

    m01dcc(ch, 6, 1, 5, 1, 2, 'A', irank, &fail);
    show_ranks("m01dcc, ranks on columns 1..2:", irank, 5);
    m01ecc(ch, 6, 1, 5, irank, &fail);
    printf("m01ecc, rearranged:\n%s\n", ch);

    for (i = 0; i < 12; ++i) im[i] = (Zor_Integer)(rm[i] * 4 + 0.5);
    m01dec(rm, 4, 1, 4, 2, 3, 'A', irank, &fail);
    show_ranks("m01dec, rows 1..4 ranked by columns 2..3:", irank, 4);
    m01dfc(im, 4, 1, 4, 2, 3, 'D', irank, &fail);
    show_ranks("m01dfc, the same in integers, descending:", irank, 4);
    m01djc(rm, 4, 1, 2, 1, 3, 'A', irank, &fail);
    show_ranks("m01djc, columns 1..3 ranked by rows 1..2:", irank, 3);
    m01dkc(im, 4, 1, 2, 1, 3, 'D', irank, &fail);
    show_ranks("m01dkc, the same in integers, descending:", irank, 3);

    comm.p = weights;
    comm.iuser = &calls;
    comm.ruser = NULL;
    comm.flag = 0;
    m01dzc(lighter, 1, 6, irank, &comm, &fail);
    show_ranks("m01dzc, six items ranked by weight through a comparison function:", irank, 6);
    printf("comparisons counted: %s\n", calls > 0 ? "yes" : "no");

    irank[0] = 4; irank[1] = 3; irank[2] = 2; irank[3] = 1;
    m01edc(cv, 1, 4, irank, &fail);
    printf("m01edc, four complex numbers reversed by ranks 4 3 2 1:\n");
    for (i = 0; i < 4; ++i) printf(" (%4.1f,%4.1f)", cv[2 * i], cv[2 * i + 1]);
    printf("\n");

    irank[0] = 1; irank[1] = 2; irank[2] = 2; irank[3] = 4;
    m01edc(cv, 1, 4, irank, &fail);
    printf("m01edc with ranks 1 2 2 4: code %d, errnum %d\n%s\n", (int)fail.code, (int)fail.errnum,
           fail.message);
    return 0;
}
