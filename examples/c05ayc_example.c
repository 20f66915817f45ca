/* examples/c05ayc_example.c — c05ayc from C: the zero of x^3 - r*x - 5 in [2, 3] (r = 2:
   Wallis's cubic, as Newton solved it), r and an evaluation counter carried to f by the
   communication record; then an error exit (f(a) and f(b) of the same sign) with
   fail.print set, which writes the message on standard error and returns. */
#include <stdio.h>

#include "zor.h"

struct problem {
    double r;
    int evaluations;
};

static double f(double x, Zor_Comm *comm)
{
    struct problem *p = (struct problem *)comm->p;
    p->evaluations++;
    return x * x * x - p->r * x - 5.0;
}

int main(void)
{
    struct problem prob = {2.0, 0};
    Zor_Comm comm = {&prob, NULL, NULL, 0};
    Zor_Fail fail = {0};
    double x = 0.0;

    printf("c05ayc example: zero of x^3 - 2x - 5 in [2, 3]\n");
    c05ayc(2.0, 3.0, 1e-10, 0.0, f, &x, &comm, &fail);
    printf("x = %.10f, fail.code = %d\n", x, (int)fail.code);
    printf("f was evaluated fewer than 15 times: %s\n", prob.evaluations < 15 ? "yes" : "no");

    printf("on [3, 4], with fail.print set:\n");
    fflush(stdout);
    fail.print = Zor_TRUE;
    c05ayc(3.0, 4.0, 1e-10, 0.0, f, &x, &comm, &fail);
    printf("fail.code = %d (NE_FUNC_END_VAL = %d), fail.errnum = %d\n", (int)fail.code,
           (int)NE_FUNC_END_VAL, (int)fail.errnum);
    return 0;
}
