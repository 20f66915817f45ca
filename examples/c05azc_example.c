/* examples/c05azc_example.c — c05azc from C: the zero of x^2 - 2 in [0, 2] by reverse
   communication; then 1/(x - 0.3) on [0, 1], whose sign change is a pole, with
   fail.print set, which writes the message on standard error and returns. */
#include <stdio.h>

#include "zor.h"

static int solve(double (*f)(double), double *x, double *y, double tolx, Zor_Fail *fail)
{
    double c[ZOR_C05AZ_CLEN];
    Zor_Integer ind = 1;
    double fx = 0.0;
    int calls = 0;
    while (calls < 1000) {
        c05azc(x, y, fx, tolx, 2, c, &ind, fail);
        calls++;
        if (ind == 0) break;
        fx = f(*x);
    }
    return calls;
}

static double g(double x) { return x * x - 2.0; }
static double h(double x) { return 1.0 / (x - 0.3); }

int main(void)
{
    Zor_Fail fail = {0};
    double x = 0.0, y = 1.0;

    printf("c05azc example: zero of x^2 - 2 in [0, 2]\n");
    y = 2.0;
    solve(g, &x, &y, 1e-12, &fail);
    printf("x = %.12f, fail.code = %d\n", x, (int)fail.code);
    printf("|x - y| <= tolx: %s\n", (x > y ? x - y : y - x) <= 1e-12 ? "yes" : "no");

    printf("1/(x - 0.3) on [0, 1], with fail.print set:\n");
    fflush(stdout);
    fail.print = Zor_TRUE;
    x = 0.0;
    y = 1.0;
    solve(h, &x, &y, 1e-10, &fail);
    printf("fail.code = %d (NE_PROBABLE_POLE = %d), x = %.9f\n", (int)fail.code,
           (int)NE_PROBABLE_POLE, x);
    return 0;
}
