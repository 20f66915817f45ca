/* include/zor_c05.h — C05, zeros of functions: F and c interfaces. */
#ifndef ZOR_C05_H
#define ZOR_C05_H

#include "zor_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ------------------------------------------------------------------------------
   Callback convention of the library (every chapter has the same shape).

   A kernel entry (name ending in T) takes the context record first, then the F
   routine's arguments in their order with each user function preceded by its
   adapter, then the c interface's communication record (null from the F interface),
   the message buffer and the error number. It receives the user's function as a
   Zor_UserFn; only the adapter, which knows the real signature, calls it. The
   adapter's arguments are: the user function, the inputs, the outputs, then IUSER,
   RUSER and the communication record. The F adapter (C05AYF_FH) passes IUSER and RUSER
   and ignores comm; the c adapter (c05ayc_fh) ignores IUSER and RUSER and passes comm.

   Zor_Comm (zor_types.h) is the c interface's communication record: the routines
   pass it to every call of the user's function and never read or change p, iuser or
   ruser. A user function asks the routine to stop by setting comm->flag to a negative
   value; the routine then returns at once with NE_USER_STOP (see c05ayc). The caller
   sets comm->flag to 0 (or any value >= 0) before the call.
   ------------------------------------------------------------------------------ */

/* F interface user function: f(X, IUSER, RUSER). */
typedef double (*C05AYF_F)(const double *x, Zor_Integer iuser[], double ruser[]);
/* c interface user function: f(x, comm). */
typedef double (*C05AYC_F)(double x, Zor_Comm *comm);
/* Callback adapter: evaluates *fx = f(*x) for the kernel. */
typedef void (*C05AYF_Adapter)(Zor_UserFn f, const double *x, double *fx, Zor_Integer iuser[],
                               double ruser[], Zor_Comm *comm);

/* C05AYF: a zero of f in [A, B], where f(A) and f(B) differ in sign, to within
   EPS * max(1, |X|); |f(X)| < ETA accepts a point at once. IFAIL: 0 success; 1 bad
   EPS, A = B, A or B not finite, or no sign change; 2 EPS too small for the
   arithmetic; 3 probably a pole. */
ZOR_API void C05AYF(const double *a, const double *b, const double *eps, const double *eta,
                    C05AYF_F f, double *x, Zor_Integer iuser[], double ruser[],
                    Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void c05ayf_(const double *a, const double *b, const double *eps, const double *eta,
                     C05AYF_F f, double *x, Zor_Integer iuser[], double ruser[],
                     Zor_Integer *ifail) ZOR_NOEXCEPT;
/* Kernel entry of C05AYF and c05ayc. comm may be null (the F interface passes null). */
ZOR_API void C05AYFT(Zor_Context *ctx, const double *a, const double *b, const double *eps,
                     const double *eta, C05AYF_Adapter fh, Zor_UserFn f, double *x,
                     Zor_Integer iuser[], double ruser[], Zor_Comm *comm, char msgbuf[200],
                     Zor_Integer *ierr) ZOR_NOEXCEPT;
/* Adapter of C05AYF: *fx = f(x, iuser, ruser), f a C05AYF_F; comm is ignored. */
ZOR_API void C05AYF_FH(Zor_UserFn f, const double *x, double *fx, Zor_Integer iuser[],
                       double ruser[], Zor_Comm *comm) ZOR_NOEXCEPT;
/* Adapter of c05ayc: *fx = f(*x, comm), f a C05AYC_F; iuser and ruser are ignored. */
ZOR_API void c05ayc_fh(Zor_UserFn f, const double *x, double *fx, Zor_Integer iuser[],
                       double ruser[], Zor_Comm *comm) ZOR_NOEXCEPT;
/* c05ayc: the c form of C05AYF; comm (may be NULL) is passed to f. fail may be NULL. */
ZOR_API void c05ayc(double a, double b, double eps, double eta, C05AYC_F f, double *x,
                    Zor_Comm *comm, Zor_Fail *fail) ZOR_NOEXCEPT;

/* Length of the state array C of C05AZF and c05azc. */
#define ZOR_C05AZ_CLEN 20

/* C05AZF: one reverse-communication step towards a zero in the bracket [X, Y].
   Start with IND = 1 (or -1 with FX = f(X)); while IND returns 2, 3 or 4, set
   FX = f(X) and call again leaving X, Y, C and IND alone. IND = 0: finished, and
   IFAIL reports how. IR: 0 mixed, 1 relative, 2 absolute error test with TOLX. */
ZOR_API void C05AZF(double *x, double *y, const double *fx, const double *tolx,
                    const Zor_Integer *ir, double c[], Zor_Integer *ind,
                    Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void c05azf_(double *x, double *y, const double *fx, const double *tolx,
                     const Zor_Integer *ir, double c[], Zor_Integer *ind,
                     Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void C05AZFT(Zor_Context *ctx, double *x, double *y, const double *fx,
                     const double *tolx, const Zor_Integer *ir, double c[], Zor_Integer *ind,
                     char msgbuf[200], Zor_Integer *ierr) ZOR_NOEXCEPT;
/* c05azc: the c form of C05AZF. fail may be NULL. */
ZOR_API void c05azc(double *x, double *y, double fx, double tolx, Zor_Integer ir, double c[],
                    Zor_Integer *ind, Zor_Fail *fail) ZOR_NOEXCEPT;

#ifdef __cplusplus
}
#endif

#endif /* ZOR_C05_H */
