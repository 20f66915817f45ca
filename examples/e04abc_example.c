/* examples/e04abc_example.c — e04abc from C: the minimum of x^2 + c/x in [0.1, 2]
   (at (c/2)^(1/3)), c and a call counter carried to funct by the communication record;
   then max_fun too small with fail.print set, which writes the warning on standard error
   and returns the best point found so far. */
#include <stdio.h>

#include "zor.h"

struct problem {
    double c;
    int calls;
};

static void funct(double xc, double *fc, Zor_Comm *comm)
{
    struct problem *p = (struct problem *)comm->p;
    p->calls++;
    *fc = xc * xc + p->c / xc;
}

int main(void)
{
    struct problem prob = {3.0, 0};
    Zor_Comm comm = {&prob, NULL, NULL, 0};
    Zor_Fail fail = {0};
    double e1 = 0.0, e2 = 0.0, a = 0.1, b = 2.0, x = 0.0, f = 0.0;
    Zor_Integer max_fun = 30;

    printf("e04abc example: minimum of x^2 + 3/x in [0.1, 2]\n");
    e04abc(funct, &e1, &e2, &a, &b, &max_fun, &x, &f, &comm, &fail);
    printf("x = %.8f (1.5^(1/3) = 1.14471424), f = %.8f, fail.code = %d\n", x, f,
           (int)fail.code);
    printf("e1 = e2 = %.16e (replaced)\n", e1);
    printf("max_fun = number of calls: %s\n", max_fun == prob.calls ? "yes" : "no");

    printf("with max_fun = 5 and fail.print set:\n");
    fflush(stdout);
    a = 0.1;
    b = 2.0;
    max_fun = 5;
    fail.print = Zor_TRUE;
    e04abc(funct, &e1, &e2, &a, &b, &max_fun, &x, &f, &comm, &fail);
    printf("fail.code = %d (NW_MAX_FUN = %d), fail.errnum = %d, max_fun = %d\n", (int)fail.code,
           (int)NW_MAX_FUN, (int)fail.errnum, (int)max_fun);
    printf("a <= x <= b: %s\n", a <= x && x <= b ? "yes" : "no");
    return 0;
}
