/* examples/e04bbc_example.c — e04bbc from C: the minimum of x^4/4 + x^2/2 - c*x in
   [-3, 7] (where x^3 + x = c) from values and derivatives, c through the communication record's ruser; a
   stop asked by funct through comm->flag; then a + e2 >= b with fail.print set. */
#include <stdio.h>

#include "zor.h"

static void funct(double xc, double *fc, double *gc, Zor_Comm *comm)
{
    const double c = comm->ruser[0];
    comm->iuser[0]++;
    if (comm->iuser[0] == comm->iuser[1]) comm->flag = -1;
    *fc = xc * xc * xc * xc / 4.0 + xc * xc / 2.0 - c * xc;
    *gc = xc * xc * xc + xc - c;
}

int main(void)
{
    Zor_Integer iuser[2] = {0, 0};
    double ruser[1] = {1.5};
    Zor_Comm comm = {NULL, iuser, ruser, 0};
    Zor_Fail fail = {0};
    double e1 = 1e-12, e2 = 1e-12, a = -3.0, b = 7.0, x = 0.0, f = 0.0, g = 0.0;
    Zor_Integer max_fun = 40;

    printf("e04bbc example: minimum of x^4/4 + x^2/2 - 1.5x in [-3, 7]\n");
    e04bbc(funct, &e1, &e2, &a, &b, &max_fun, &x, &f, &g, &comm, &fail);
    printf("x = %.10f, f = %.10f, fail.code = %d\n", x, f, (int)fail.code);
    printf("|g| < 1e-9: %s, fewer than 15 calls: %s\n", (g < 0 ? -g : g) < 1e-9 ? "yes" : "no",
           max_fun < 15 ? "yes" : "no");

    iuser[0] = 0;
    iuser[1] = 3; /* funct asks to stop at its third call */
    a = -3.0;
    b = 7.0;
    max_fun = 40;
    e04bbc(funct, &e1, &e2, &a, &b, &max_fun, &x, &f, &g, &comm, &fail);
    printf("stopped: fail.code = %d (NE_USER_STOP = %d), max_fun = %d\n", (int)fail.code,
           (int)NE_USER_STOP, (int)max_fun);

    printf("on [2, 2.5] with e2 = 1, fail.print set:\n");
    fflush(stdout);
    comm.flag = 0;
    iuser[1] = 0;
    a = 2.0;
    b = 2.5;
    e2 = 1.0;
    fail.print = Zor_TRUE;
    e04bbc(funct, &e1, &e2, &a, &b, &max_fun, &x, &f, &g, &comm, &fail);
    printf("fail.code = %d (NE_2_REAL_ARG_GE = %d), fail.errnum = %d\n", (int)fail.code,
           (int)NE_2_REAL_ARG_GE, (int)fail.errnum);
    return 0;
}
