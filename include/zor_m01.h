/* include/zor_m01.h — M01, sorting and searching: F and c interfaces.

   F interface: every argument by reference, IFAIL last, then the hidden lengths of the
   character arguments in order (as gfortran passes them). Kernel entries (...FT) take
   the context record first and end with the message buffer and the error number.
   c interface: scalars by value, the fail record last; ORDER is one char, 'A' or 'a'
   (ascending) or 'D' or 'd' (descending). Character vectors of the c interface are
   fixed-length records: record i (counted from 1) is ch[(i-1)*lenc .. i*lenc-1].
   Complex vectors are pairs of doubles: element i is cv[2(i-1)] + i cv[2(i-1)+1].
   Matrices are stored by columns: element (i, j) is at [(j-1)*ldm + i-1]. */
#ifndef ZOR_M01_H
#define ZOR_M01_H

#include "zor_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Sorting in place: M01CAF (reals), M01CBF (integers), M01CCF (strings) ---- */
ZOR_API void M01CAF(double rv[], const Zor_Integer *m1, const Zor_Integer *m2, const char *order,
                    Zor_Integer *ifail, size_t order_len) ZOR_NOEXCEPT;
ZOR_API void m01caf_(double rv[], const Zor_Integer *m1, const Zor_Integer *m2, const char *order,
                     Zor_Integer *ifail, size_t order_len) ZOR_NOEXCEPT;
ZOR_API void M01CAFT(Zor_Context *ctx, double rv[], const Zor_Integer *m1, const Zor_Integer *m2,
                     const char *order, char msgbuf[200], Zor_Integer *ierr,
                     size_t order_len) ZOR_NOEXCEPT;
ZOR_API void m01cac(double rv[], Zor_Integer m1, Zor_Integer m2, char order,
                    Zor_Fail *fail) ZOR_NOEXCEPT;

ZOR_API void M01CBF(Zor_Integer iv[], const Zor_Integer *m1, const Zor_Integer *m2,
                    const char *order, Zor_Integer *ifail, size_t order_len) ZOR_NOEXCEPT;
ZOR_API void m01cbf_(Zor_Integer iv[], const Zor_Integer *m1, const Zor_Integer *m2,
                     const char *order, Zor_Integer *ifail, size_t order_len) ZOR_NOEXCEPT;
ZOR_API void M01CBFT(Zor_Context *ctx, Zor_Integer iv[], const Zor_Integer *m1,
                     const Zor_Integer *m2, const char *order, char msgbuf[200], Zor_Integer *ierr,
                     size_t order_len) ZOR_NOEXCEPT;
ZOR_API void m01cbc(Zor_Integer iv[], Zor_Integer m1, Zor_Integer m2, char order,
                    Zor_Fail *fail) ZOR_NOEXCEPT;

ZOR_API void M01CCF(char ch[], const Zor_Integer *m1, const Zor_Integer *m2, const Zor_Integer *l1,
                    const Zor_Integer *l2, const char *order, Zor_Integer *ifail, size_t ch_len,
                    size_t order_len) ZOR_NOEXCEPT;
ZOR_API void m01ccf_(char ch[], const Zor_Integer *m1, const Zor_Integer *m2, const Zor_Integer *l1,
                     const Zor_Integer *l2, const char *order, Zor_Integer *ifail, size_t ch_len,
                     size_t order_len) ZOR_NOEXCEPT;
ZOR_API void M01CCFT(Zor_Context *ctx, char ch[], const Zor_Integer *m1, const Zor_Integer *m2,
                     const Zor_Integer *l1, const Zor_Integer *l2, const char *order,
                     char msgbuf[200], Zor_Integer *ierr, size_t ch_len,
                     size_t order_len) ZOR_NOEXCEPT;
ZOR_API void m01ccc(char ch[], Zor_Integer lenc, Zor_Integer m1, Zor_Integer m2, Zor_Integer l1,
                    Zor_Integer l2, char order, Zor_Fail *fail) ZOR_NOEXCEPT;

/* ---- Ranking (stable): M01DAF, M01DBF, M01DCF vectors; M01DEF, M01DFF rows and
        M01DJF, M01DKF columns of a real or integer matrix; M01DZF any data ---- */
ZOR_API void M01DAF(const double rv[], const Zor_Integer *m1, const Zor_Integer *m2,
                    const char *order, Zor_Integer irank[], Zor_Integer *ifail,
                    size_t order_len) ZOR_NOEXCEPT;
ZOR_API void m01daf_(const double rv[], const Zor_Integer *m1, const Zor_Integer *m2,
                     const char *order, Zor_Integer irank[], Zor_Integer *ifail,
                     size_t order_len) ZOR_NOEXCEPT;
ZOR_API void M01DAFT(Zor_Context *ctx, const double rv[], const Zor_Integer *m1,
                     const Zor_Integer *m2, const char *order, Zor_Integer irank[],
                     char msgbuf[200], Zor_Integer *ierr, size_t order_len) ZOR_NOEXCEPT;
ZOR_API void m01dac(const double rv[], Zor_Integer m1, Zor_Integer m2, char order,
                    Zor_Integer irank[], Zor_Fail *fail) ZOR_NOEXCEPT;

ZOR_API void M01DBF(const Zor_Integer iv[], const Zor_Integer *m1, const Zor_Integer *m2,
                    const char *order, Zor_Integer irank[], Zor_Integer *ifail,
                    size_t order_len) ZOR_NOEXCEPT;
ZOR_API void m01dbf_(const Zor_Integer iv[], const Zor_Integer *m1, const Zor_Integer *m2,
                     const char *order, Zor_Integer irank[], Zor_Integer *ifail,
                     size_t order_len) ZOR_NOEXCEPT;
ZOR_API void M01DBFT(Zor_Context *ctx, const Zor_Integer iv[], const Zor_Integer *m1,
                     const Zor_Integer *m2, const char *order, Zor_Integer irank[],
                     char msgbuf[200], Zor_Integer *ierr, size_t order_len) ZOR_NOEXCEPT;
ZOR_API void m01dbc(const Zor_Integer iv[], Zor_Integer m1, Zor_Integer m2, char order,
                    Zor_Integer irank[], Zor_Fail *fail) ZOR_NOEXCEPT;

ZOR_API void M01DCF(const char ch[], const Zor_Integer *m1, const Zor_Integer *m2,
                    const Zor_Integer *l1, const Zor_Integer *l2, const char *order,
                    Zor_Integer irank[], Zor_Integer *ifail, size_t ch_len,
                    size_t order_len) ZOR_NOEXCEPT;
ZOR_API void m01dcf_(const char ch[], const Zor_Integer *m1, const Zor_Integer *m2,
                     const Zor_Integer *l1, const Zor_Integer *l2, const char *order,
                     Zor_Integer irank[], Zor_Integer *ifail, size_t ch_len,
                     size_t order_len) ZOR_NOEXCEPT;
ZOR_API void M01DCFT(Zor_Context *ctx, const char ch[], const Zor_Integer *m1,
                     const Zor_Integer *m2, const Zor_Integer *l1, const Zor_Integer *l2,
                     const char *order, Zor_Integer irank[], char msgbuf[200], Zor_Integer *ierr,
                     size_t ch_len, size_t order_len) ZOR_NOEXCEPT;
ZOR_API void m01dcc(const char ch[], Zor_Integer lenc, Zor_Integer m1, Zor_Integer m2,
                    Zor_Integer l1, Zor_Integer l2, char order, Zor_Integer irank[],
                    Zor_Fail *fail) ZOR_NOEXCEPT;

ZOR_API void M01DEF(const double rm[], const Zor_Integer *ldm, const Zor_Integer *m1,
                    const Zor_Integer *m2, const Zor_Integer *n1, const Zor_Integer *n2,
                    const char *order, Zor_Integer irank[], Zor_Integer *ifail,
                    size_t order_len) ZOR_NOEXCEPT;
ZOR_API void m01def_(const double rm[], const Zor_Integer *ldm, const Zor_Integer *m1,
                     const Zor_Integer *m2, const Zor_Integer *n1, const Zor_Integer *n2,
                     const char *order, Zor_Integer irank[], Zor_Integer *ifail,
                     size_t order_len) ZOR_NOEXCEPT;
ZOR_API void M01DEFT(Zor_Context *ctx, const double rm[], const Zor_Integer *ldm,
                     const Zor_Integer *m1, const Zor_Integer *m2, const Zor_Integer *n1,
                     const Zor_Integer *n2, const char *order, Zor_Integer irank[],
                     char msgbuf[200], Zor_Integer *ierr, size_t order_len) ZOR_NOEXCEPT;
ZOR_API void m01dec(const double rm[], Zor_Integer ldm, Zor_Integer m1, Zor_Integer m2,
                    Zor_Integer n1, Zor_Integer n2, char order, Zor_Integer irank[],
                    Zor_Fail *fail) ZOR_NOEXCEPT;

ZOR_API void M01DFF(const Zor_Integer im[], const Zor_Integer *ldm, const Zor_Integer *m1,
                    const Zor_Integer *m2, const Zor_Integer *n1, const Zor_Integer *n2,
                    const char *order, Zor_Integer irank[], Zor_Integer *ifail,
                    size_t order_len) ZOR_NOEXCEPT;
ZOR_API void m01dff_(const Zor_Integer im[], const Zor_Integer *ldm, const Zor_Integer *m1,
                     const Zor_Integer *m2, const Zor_Integer *n1, const Zor_Integer *n2,
                     const char *order, Zor_Integer irank[], Zor_Integer *ifail,
                     size_t order_len) ZOR_NOEXCEPT;
ZOR_API void M01DFFT(Zor_Context *ctx, const Zor_Integer im[], const Zor_Integer *ldm,
                     const Zor_Integer *m1, const Zor_Integer *m2, const Zor_Integer *n1,
                     const Zor_Integer *n2, const char *order, Zor_Integer irank[],
                     char msgbuf[200], Zor_Integer *ierr, size_t order_len) ZOR_NOEXCEPT;
ZOR_API void m01dfc(const Zor_Integer im[], Zor_Integer ldm, Zor_Integer m1, Zor_Integer m2,
                    Zor_Integer n1, Zor_Integer n2, char order, Zor_Integer irank[],
                    Zor_Fail *fail) ZOR_NOEXCEPT;

ZOR_API void M01DJF(const double rm[], const Zor_Integer *ldm, const Zor_Integer *m1,
                    const Zor_Integer *m2, const Zor_Integer *n1, const Zor_Integer *n2,
                    const char *order, Zor_Integer irank[], Zor_Integer *ifail,
                    size_t order_len) ZOR_NOEXCEPT;
ZOR_API void m01djf_(const double rm[], const Zor_Integer *ldm, const Zor_Integer *m1,
                     const Zor_Integer *m2, const Zor_Integer *n1, const Zor_Integer *n2,
                     const char *order, Zor_Integer irank[], Zor_Integer *ifail,
                     size_t order_len) ZOR_NOEXCEPT;
ZOR_API void M01DJFT(Zor_Context *ctx, const double rm[], const Zor_Integer *ldm,
                     const Zor_Integer *m1, const Zor_Integer *m2, const Zor_Integer *n1,
                     const Zor_Integer *n2, const char *order, Zor_Integer irank[],
                     char msgbuf[200], Zor_Integer *ierr, size_t order_len) ZOR_NOEXCEPT;
ZOR_API void m01djc(const double rm[], Zor_Integer ldm, Zor_Integer m1, Zor_Integer m2,
                    Zor_Integer n1, Zor_Integer n2, char order, Zor_Integer irank[],
                    Zor_Fail *fail) ZOR_NOEXCEPT;

ZOR_API void M01DKF(const Zor_Integer im[], const Zor_Integer *ldm, const Zor_Integer *m1,
                    const Zor_Integer *m2, const Zor_Integer *n1, const Zor_Integer *n2,
                    const char *order, Zor_Integer irank[], Zor_Integer *ifail,
                    size_t order_len) ZOR_NOEXCEPT;
ZOR_API void m01dkf_(const Zor_Integer im[], const Zor_Integer *ldm, const Zor_Integer *m1,
                     const Zor_Integer *m2, const Zor_Integer *n1, const Zor_Integer *n2,
                     const char *order, Zor_Integer irank[], Zor_Integer *ifail,
                     size_t order_len) ZOR_NOEXCEPT;
ZOR_API void M01DKFT(Zor_Context *ctx, const Zor_Integer im[], const Zor_Integer *ldm,
                     const Zor_Integer *m1, const Zor_Integer *m2, const Zor_Integer *n1,
                     const Zor_Integer *n2, const char *order, Zor_Integer irank[],
                     char msgbuf[200], Zor_Integer *ierr, size_t order_len) ZOR_NOEXCEPT;
ZOR_API void m01dkc(const Zor_Integer im[], Zor_Integer ldm, Zor_Integer m1, Zor_Integer m2,
                    Zor_Integer n1, Zor_Integer n2, char order, Zor_Integer irank[],
                    Zor_Fail *fail) ZOR_NOEXCEPT;

/* M01DZF: COMPAR(I, J, IUSER, RUSER) is a LOGICAL function, true when item I must be
   ranked before item J. m01dzc: compar(i, j, comm) returns non-zero for the same. */
typedef Zor_Integer (*M01DZF_COMPAR)(const Zor_Integer *i, const Zor_Integer *j,
                                     Zor_Integer iuser[], double ruser[]);
typedef Zor_Boolean (*m01dzc_compar)(Zor_Integer i, Zor_Integer j, Zor_Comm *comm);
/* The adapter through which the kernel calls the user's comparison. */
typedef void (*M01DZ_Adapter)(Zor_UserFn compar, const Zor_Integer *i, const Zor_Integer *j,
                              Zor_Integer *before, Zor_Integer iuser[], double ruser[],
                              Zor_Comm *comm);
ZOR_API void M01DZF(M01DZF_COMPAR compar, const Zor_Integer *m1, const Zor_Integer *m2,
                    Zor_Integer irank[], Zor_Integer iuser[], double ruser[],
                    Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void m01dzf_(M01DZF_COMPAR compar, const Zor_Integer *m1, const Zor_Integer *m2,
                     Zor_Integer irank[], Zor_Integer iuser[], double ruser[],
                     Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void M01DZFT(Zor_Context *ctx, M01DZ_Adapter adapter, Zor_UserFn compar,
                     const Zor_Integer *m1, const Zor_Integer *m2, Zor_Integer irank[],
                     Zor_Integer iuser[], double ruser[], Zor_Comm *comm, char msgbuf[200],
                     Zor_Integer *ierr) ZOR_NOEXCEPT;
ZOR_API void M01DZF_FH(Zor_UserFn compar, const Zor_Integer *i, const Zor_Integer *j,
                       Zor_Integer *before, Zor_Integer iuser[], double ruser[],
                       Zor_Comm *comm) ZOR_NOEXCEPT;
ZOR_API void m01dzc_fh(Zor_UserFn compar, const Zor_Integer *i, const Zor_Integer *j,
                       Zor_Integer *before, Zor_Integer iuser[], double ruser[],
                       Zor_Comm *comm) ZOR_NOEXCEPT;
ZOR_API void m01dzc(m01dzc_compar compar, Zor_Integer m1, Zor_Integer m2, Zor_Integer irank[],
                    Zor_Comm *comm, Zor_Fail *fail) ZOR_NOEXCEPT;

/* ---- Rearranging into rank order, in place: element i moves to position irank(i) ---- */
ZOR_API void M01EAF(double rv[], const Zor_Integer *m1, const Zor_Integer *m2,
                    const Zor_Integer irank[], Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void m01eaf_(double rv[], const Zor_Integer *m1, const Zor_Integer *m2,
                     const Zor_Integer irank[], Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void M01EAFT(Zor_Context *ctx, double rv[], const Zor_Integer *m1, const Zor_Integer *m2,
                     const Zor_Integer irank[], char msgbuf[200], Zor_Integer *ierr) ZOR_NOEXCEPT;
ZOR_API void m01eac(double rv[], Zor_Integer m1, Zor_Integer m2, const Zor_Integer irank[],
                    Zor_Fail *fail) ZOR_NOEXCEPT;

ZOR_API void M01EBF(Zor_Integer iv[], const Zor_Integer *m1, const Zor_Integer *m2,
                    const Zor_Integer irank[], Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void m01ebf_(Zor_Integer iv[], const Zor_Integer *m1, const Zor_Integer *m2,
                     const Zor_Integer irank[], Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void M01EBFT(Zor_Context *ctx, Zor_Integer iv[], const Zor_Integer *m1,
                     const Zor_Integer *m2, const Zor_Integer irank[], char msgbuf[200],
                     Zor_Integer *ierr) ZOR_NOEXCEPT;
ZOR_API void m01ebc(Zor_Integer iv[], Zor_Integer m1, Zor_Integer m2, const Zor_Integer irank[],
                    Zor_Fail *fail) ZOR_NOEXCEPT;

ZOR_API void M01ECF(char ch[], const Zor_Integer *m1, const Zor_Integer *m2,
                    const Zor_Integer irank[], Zor_Integer *ifail, size_t ch_len) ZOR_NOEXCEPT;
ZOR_API void m01ecf_(char ch[], const Zor_Integer *m1, const Zor_Integer *m2,
                     const Zor_Integer irank[], Zor_Integer *ifail, size_t ch_len) ZOR_NOEXCEPT;
ZOR_API void M01ECFT(Zor_Context *ctx, char ch[], const Zor_Integer *m1, const Zor_Integer *m2,
                     const Zor_Integer irank[], char msgbuf[200], Zor_Integer *ierr,
                     size_t ch_len) ZOR_NOEXCEPT;
ZOR_API void m01ecc(char ch[], Zor_Integer lenc, Zor_Integer m1, Zor_Integer m2,
                    const Zor_Integer irank[], Zor_Fail *fail) ZOR_NOEXCEPT;

ZOR_API void M01EDF(double cv[], const Zor_Integer *m1, const Zor_Integer *m2,
                    const Zor_Integer irank[], Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void m01edf_(double cv[], const Zor_Integer *m1, const Zor_Integer *m2,
                     const Zor_Integer irank[], Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void M01EDFT(Zor_Context *ctx, double cv[], const Zor_Integer *m1, const Zor_Integer *m2,
                     const Zor_Integer irank[], char msgbuf[200], Zor_Integer *ierr) ZOR_NOEXCEPT;
ZOR_API void m01edc(double cv[], Zor_Integer m1, Zor_Integer m2, const Zor_Integer irank[],
                    Zor_Fail *fail) ZOR_NOEXCEPT;

/* ---- Searching sorted vectors: the position of the last element <= item, m1 - 1 when
        every element exceeds it (M01NAF reals, M01NBF integers, M01NCF strings);
        M01NDF, several items and five kinds of search (MODE 0 to 4) ---- */
ZOR_API Zor_Integer M01NAF(const double valid[], const Zor_Integer *m1, const Zor_Integer *m2,
                           const double *item, Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API Zor_Integer m01naf_(const double valid[], const Zor_Integer *m1, const Zor_Integer *m2,
                            const double *item, Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void M01NAFT(Zor_Context *ctx, const double valid[], const Zor_Integer *m1,
                     const Zor_Integer *m2, const double *item, Zor_Integer *index,
                     char msgbuf[200], Zor_Integer *ierr) ZOR_NOEXCEPT;
ZOR_API Zor_Integer m01nac(const double valid[], Zor_Integer m1, Zor_Integer m2, double item,
                           Zor_Fail *fail) ZOR_NOEXCEPT;

ZOR_API Zor_Integer M01NBF(const Zor_Integer valid[], const Zor_Integer *m1,
                           const Zor_Integer *m2, const Zor_Integer *item,
                           Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API Zor_Integer m01nbf_(const Zor_Integer valid[], const Zor_Integer *m1,
                            const Zor_Integer *m2, const Zor_Integer *item,
                            Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void M01NBFT(Zor_Context *ctx, const Zor_Integer valid[], const Zor_Integer *m1,
                     const Zor_Integer *m2, const Zor_Integer *item, Zor_Integer *index,
                     char msgbuf[200], Zor_Integer *ierr) ZOR_NOEXCEPT;
ZOR_API Zor_Integer m01nbc(const Zor_Integer valid[], Zor_Integer m1, Zor_Integer m2,
                           Zor_Integer item, Zor_Fail *fail) ZOR_NOEXCEPT;

ZOR_API Zor_Integer M01NCF(const char valid[], const Zor_Integer *m1, const Zor_Integer *m2,
                           const char *item, Zor_Integer *ifail, size_t valid_len,
                           size_t item_len) ZOR_NOEXCEPT;
ZOR_API Zor_Integer m01ncf_(const char valid[], const Zor_Integer *m1, const Zor_Integer *m2,
                            const char *item, Zor_Integer *ifail, size_t valid_len,
                            size_t item_len) ZOR_NOEXCEPT;
ZOR_API void M01NCFT(Zor_Context *ctx, const char valid[], const Zor_Integer *m1,
                     const Zor_Integer *m2, const char *item, Zor_Integer *index,
                     char msgbuf[200], Zor_Integer *ierr, size_t valid_len,
                     size_t item_len) ZOR_NOEXCEPT;
/* item: a zero-terminated string, compared as if padded with blanks. */
ZOR_API Zor_Integer m01ncc(const char valid[], Zor_Integer lenc, Zor_Integer m1, Zor_Integer m2,
                           const char *item, Zor_Fail *fail) ZOR_NOEXCEPT;

ZOR_API void M01NDF(const double a[], const Zor_Integer *n, const Zor_Integer *m1,
                    const Zor_Integer *m2, const double x[], const Zor_Integer *m,
                    const Zor_Integer *mode, Zor_Integer idx[], Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void m01ndf_(const double a[], const Zor_Integer *n, const Zor_Integer *m1,
                     const Zor_Integer *m2, const double x[], const Zor_Integer *m,
                     const Zor_Integer *mode, Zor_Integer idx[], Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void M01NDFT(Zor_Context *ctx, const double a[], const Zor_Integer *n,
                     const Zor_Integer *m1, const Zor_Integer *m2, const double x[],
                     const Zor_Integer *m, const Zor_Integer *mode, Zor_Integer idx[],
                     char msgbuf[200], Zor_Integer *ierr) ZOR_NOEXCEPT;
ZOR_API void m01ndc(const double a[], Zor_Integer n, Zor_Integer m1, Zor_Integer m2,
                    const double x[], Zor_Integer m, Zor_Integer mode, Zor_Integer idx[],
                    Zor_Fail *fail) ZOR_NOEXCEPT;

/* ---- Permutations of m1..m2: M01ZAF inverts in place, M01ZBF checks, M01ZCF lists
        the cycles (each cycle from its smallest element, that element negated) ---- */
ZOR_API void M01ZAF(Zor_Integer iperm[], const Zor_Integer *m1, const Zor_Integer *m2,
                    Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void m01zaf_(Zor_Integer iperm[], const Zor_Integer *m1, const Zor_Integer *m2,
                     Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void M01ZAFT(Zor_Context *ctx, Zor_Integer iperm[], const Zor_Integer *m1,
                     const Zor_Integer *m2, char msgbuf[200], Zor_Integer *ierr) ZOR_NOEXCEPT;
ZOR_API void m01zac(Zor_Integer iperm[], Zor_Integer m1, Zor_Integer m2,
                    Zor_Fail *fail) ZOR_NOEXCEPT;

ZOR_API void M01ZBF(const Zor_Integer iperm[], const Zor_Integer *m1, const Zor_Integer *m2,
                    Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void m01zbf_(const Zor_Integer iperm[], const Zor_Integer *m1, const Zor_Integer *m2,
                     Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void M01ZBFT(Zor_Context *ctx, const Zor_Integer iperm[], const Zor_Integer *m1,
                     const Zor_Integer *m2, char msgbuf[200], Zor_Integer *ierr) ZOR_NOEXCEPT;
ZOR_API void m01zbc(const Zor_Integer iperm[], Zor_Integer m1, Zor_Integer m2,
                    Zor_Fail *fail) ZOR_NOEXCEPT;

ZOR_API void M01ZCF(const Zor_Integer iperm[], const Zor_Integer *m1, const Zor_Integer *m2,
                    Zor_Integer icycl[], Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void m01zcf_(const Zor_Integer iperm[], const Zor_Integer *m1, const Zor_Integer *m2,
                     Zor_Integer icycl[], Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void M01ZCFT(Zor_Context *ctx, const Zor_Integer iperm[], const Zor_Integer *m1,
                     const Zor_Integer *m2, Zor_Integer icycl[], char msgbuf[200],
                     Zor_Integer *ierr) ZOR_NOEXCEPT;
ZOR_API void m01zcc(const Zor_Integer iperm[], Zor_Integer m1, Zor_Integer m2,
                    Zor_Integer icycl[], Zor_Fail *fail) ZOR_NOEXCEPT;

#ifdef __cplusplus
}
#endif

#endif /* ZOR_M01_H */
