/* include/zor_e04.h — E04, minimizing or maximizing a function: F and c interfaces. */
#ifndef ZOR_E04_H
#define ZOR_E04_H

#include "zor_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ------------------------------------------------------------------------------
   Minimum of a function of one variable in [A, B]: E04ABF (values only) and E04BBF
   (values and first derivatives), each in three forms sharing one kernel entry.

   Callback convention. The kernel entry (E04ABFT, E04BBFT) takes the context record,
   then the adapter and the user function (as a Zor_UserFn), then the F routine's
   arguments in their order, then IUSER, RUSER, the c interface's communication record
   (null from the F forms), the message buffer and the error number. An adapter's
   arguments are (user function, inputs..., outputs..., iuser, ruser, comm):
   E04ABF_FUNCTH calls funct(&xc, &fc) and ignores iuser, ruser and comm;
   E04ABA_FUNCTH calls funct(&xc, &fc, iuser, ruser); e04abc_functh calls
   funct(xc, &fc, comm) and ignores iuser and ruser. The E04BB adapters add the
   derivative gc after fc. A c user function asks the routine to stop by setting
   comm->flag to a negative value: the routine returns after that call with the best
   point found so far (NE_USER_STOP).

   E1, E2: relative and absolute accuracy of the position of the minimum; a value below
   2^-53 (or NaN) is replaced by sqrt(2^-53) = 1.0536712127723509e-8 and the replaced
   value is returned. MAXCAL: the largest number of calls on entry, the number of calls
   made on exit. On exit A and B hold the final interval, X the best point, F = f(X)
   (and G = f'(X) for E04BBF).
   ------------------------------------------------------------------------------ */

/* User functions of E04ABF, E04ABA and e04abc: *fc = f(xc). */
typedef void (*E04ABF_FUNCT)(const double *xc, double *fc);
typedef void (*E04ABA_FUNCT)(const double *xc, double *fc, Zor_Integer iuser[], double ruser[]);
typedef void (*E04ABC_FUNCT)(double xc, double *fc, Zor_Comm *comm);
/* Callback adapter of E04ABFT. */
typedef void (*E04AB_Adapter)(Zor_UserFn funct, const double *xc, double *fc,
                              Zor_Integer iuser[], double ruser[], Zor_Comm *comm);

/* E04ABF: minimum of f in [A, B] from function values. IFAIL: 0 success; 1 MAXCAL < 3
   (checked first), A + E2 >= B, A, B or B - A not finite, or E1 so large that tol(x)
   overflows; 2 MAXCAL calls made without convergence (X, F, A, B, MAXCAL usable). */
ZOR_API void E04ABF(E04ABF_FUNCT funct, double *e1, double *e2, double *a, double *b,
                    Zor_Integer *maxcal, double *x, double *f, Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void e04abf_(E04ABF_FUNCT funct, double *e1, double *e2, double *a, double *b,
                     Zor_Integer *maxcal, double *x, double *f, Zor_Integer *ifail) ZOR_NOEXCEPT;
/* E04ABA: E04ABF with IUSER and RUSER passed to funct. */
ZOR_API void E04ABA(E04ABA_FUNCT funct, double *e1, double *e2, double *a, double *b,
                    Zor_Integer *maxcal, double *x, double *f, Zor_Integer iuser[],
                    double ruser[], Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void e04aba_(E04ABA_FUNCT funct, double *e1, double *e2, double *a, double *b,
                     Zor_Integer *maxcal, double *x, double *f, Zor_Integer iuser[],
                     double ruser[], Zor_Integer *ifail) ZOR_NOEXCEPT;
/* Kernel entry of E04ABF, E04ABA and e04abc. Kernel error numbers: 1 MAXCAL < 3;
   2 bad interval or tolerance; 3 MAXCAL calls made; 4 stop asked through comm->flag. */
ZOR_API void E04ABFT(Zor_Context *ctx, E04AB_Adapter fh, Zor_UserFn funct, double *e1,
                     double *e2, double *a, double *b, Zor_Integer *maxcal, double *x,
                     double *f, Zor_Integer iuser[], double ruser[], Zor_Comm *comm,
                     char msgbuf[200], Zor_Integer *ierr) ZOR_NOEXCEPT;
/* Adapters: E04ABF_FUNCT, E04ABA_FUNCT and E04ABC_FUNCT callers. */
ZOR_API void E04ABF_FUNCTH(Zor_UserFn funct, const double *xc, double *fc, Zor_Integer iuser[],
                           double ruser[], Zor_Comm *comm) ZOR_NOEXCEPT;
ZOR_API void E04ABA_FUNCTH(Zor_UserFn funct, const double *xc, double *fc, Zor_Integer iuser[],
                           double ruser[], Zor_Comm *comm) ZOR_NOEXCEPT;
ZOR_API void e04abc_functh(Zor_UserFn funct, const double *xc, double *fc, Zor_Integer iuser[],
                           double ruser[], Zor_Comm *comm) ZOR_NOEXCEPT;
/* e04abc: the c form of E04ABF; max_fun is MAXCAL. comm (may be NULL) is passed to
   funct; fail may be NULL. */
ZOR_API void e04abc(E04ABC_FUNCT funct, double *e1, double *e2, double *a, double *b,
                    Zor_Integer *max_fun, double *x, double *f, Zor_Comm *comm,
                    Zor_Fail *fail) ZOR_NOEXCEPT;

/* User functions of E04BBF, E04BBA and e04bbc: *fc = f(xc), *gc = f'(xc). */
typedef void (*E04BBF_FUNCT)(const double *xc, double *fc, double *gc);
typedef void (*E04BBA_FUNCT)(const double *xc, double *fc, double *gc, Zor_Integer iuser[],
                             double ruser[]);
typedef void (*E04BBC_FUNCT)(double xc, double *fc, double *gc, Zor_Comm *comm);
/* Callback adapter of E04BBFT. */
typedef void (*E04BB_Adapter)(Zor_UserFn funct, const double *xc, double *fc, double *gc,
                              Zor_Integer iuser[], double ruser[], Zor_Comm *comm);

/* E04BBF: minimum of f in [A, B] from values and first derivatives; G = f'(X). IFAIL:
   0 success; 1 A + E2 >= B (checked first), MAXCAL < 2, A, B or B - A not finite, or
   E1 so large that tol(x) overflows; 2 MAXCAL calls made without convergence. */
ZOR_API void E04BBF(E04BBF_FUNCT funct, double *e1, double *e2, double *a, double *b,
                    Zor_Integer *maxcal, double *x, double *f, double *g,
                    Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void e04bbf_(E04BBF_FUNCT funct, double *e1, double *e2, double *a, double *b,
                     Zor_Integer *maxcal, double *x, double *f, double *g,
                     Zor_Integer *ifail) ZOR_NOEXCEPT;
/* E04BBA: E04BBF with IUSER and RUSER passed to funct. */
ZOR_API void E04BBA(E04BBA_FUNCT funct, double *e1, double *e2, double *a, double *b,
                    Zor_Integer *maxcal, double *x, double *f, double *g, Zor_Integer iuser[],
                    double ruser[], Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void e04bba_(E04BBA_FUNCT funct, double *e1, double *e2, double *a, double *b,
                     Zor_Integer *maxcal, double *x, double *f, double *g, Zor_Integer iuser[],
                     double ruser[], Zor_Integer *ifail) ZOR_NOEXCEPT;
/* Kernel entry of E04BBF, E04BBA and e04bbc. Kernel error numbers: 1 argument errors;
   2 MAXCAL calls made; 3 stop asked through comm->flag. */
ZOR_API void E04BBFT(Zor_Context *ctx, E04BB_Adapter fh, Zor_UserFn funct, double *e1,
                     double *e2, double *a, double *b, Zor_Integer *maxcal, double *x,
                     double *f, double *g, Zor_Integer iuser[], double ruser[], Zor_Comm *comm,
                     char msgbuf[200], Zor_Integer *ierr) ZOR_NOEXCEPT;
ZOR_API void E04BBF_FUNCTH(Zor_UserFn funct, const double *xc, double *fc, double *gc,
                           Zor_Integer iuser[], double ruser[], Zor_Comm *comm) ZOR_NOEXCEPT;
ZOR_API void E04BBA_FUNCTH(Zor_UserFn funct, const double *xc, double *fc, double *gc,
                           Zor_Integer iuser[], double ruser[], Zor_Comm *comm) ZOR_NOEXCEPT;
ZOR_API void e04bbc_functh(Zor_UserFn funct, const double *xc, double *fc, double *gc,
                           Zor_Integer iuser[], double ruser[], Zor_Comm *comm) ZOR_NOEXCEPT;
/* e04bbc: the c form of E04BBF; max_fun is MAXCAL. comm may be NULL; fail may be NULL. */
ZOR_API void e04bbc(E04BBC_FUNCT funct, double *e1, double *e2, double *a, double *b,
                    Zor_Integer *max_fun, double *x, double *f, double *g, Zor_Comm *comm,
                    Zor_Fail *fail) ZOR_NOEXCEPT;

#ifdef __cplusplus
}
#endif

#endif /* ZOR_E04_H */
