/* include/zor_types.h — types shared by every chapter of ZOR, both interfaces. */
#ifndef ZOR_TYPES_H
#define ZOR_TYPES_H

#include <stddef.h>
#include <stdint.h>

/* Symbol export: the library is built with ZOR_BUILDING; a Windows user of the DLL
   gets dllimport, everyone else plain declarations. Static Windows users define
   ZOR_STATIC. */
#if defined(ZOR_EXPORT_SCAN)
#  define ZOR_API zor_export_mark   /* the build lists the exports from the headers */
#elif defined(_WIN32)
#  if defined(ZOR_BUILDING)
#    define ZOR_API __declspec(dllexport)
#  elif defined(ZOR_STATIC)
#    define ZOR_API
#  else
#    define ZOR_API __declspec(dllimport)
#  endif
#else
#  define ZOR_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
#  define ZOR_NOEXCEPT noexcept
#else
#  define ZOR_NOEXCEPT
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Integers of both interfaces: 32-bit signed. */
typedef int32_t Zor_Integer;

/* Boolean of the c interface: 0 false, any other value true. */
typedef int32_t Zor_Boolean;
#define Zor_FALSE 0
#define Zor_TRUE 1

/* Per-call context record. Every F routine sets one up on its stack (Y90HAAN) and
   passes it first to its kernel entry (the routine name followed by T). The kernel
   and the library's internal services keep all per-call state in it. */
typedef struct Zor_Context {
    Zor_Integer nerr;     /* error unit at the time of the call */
    Zor_Integer nadv;     /* advisory unit at the time of the call */
    Zor_Integer first;    /* 1 until the kernel has started its work */
    Zor_Integer stop;     /* 0; a callback sets it non-zero to ask the kernel to stop */
    Zor_Integer count;    /* 0; a counter for the kernel's own use */
    Zor_Integer trace;    /* non-zero when the argument trace is on (ZOR_TRACE) */
    void *reserved[2];    /* room for the library; never read by a user */
} Zor_Context;

/* The c interface's error record. The caller sets print and handler; every
   routine sets code, message and errnum. */
typedef struct Zor_Fail {
    Zor_Integer code;     /* error code (zor_errors.h); 0 is success */
    Zor_Boolean print;    /* true: the message is also written to standard error */
    char message[512];    /* the complete message of the last call */
    void (*handler)(const char *message, int code, const char *routine);
    Zor_Integer errnum;   /* the kernel's error number (the F interface's IFAIL) */
} Zor_Fail;

/* A user function of any signature, as a kernel entry receives it: only the routine's
   callback adapter, which knows the real signature, calls it. */
typedef void (*Zor_UserFn)(void);

/* The c interface's communication record: carries the caller's data, untouched,
   to every user function of a c routine. */
typedef struct Zor_Comm {
    void *p;              /* any data of the caller's */
    Zor_Integer *iuser;   /* an integer array of the caller's */
    double *ruser;        /* a real array of the caller's */
    Zor_Integer flag;     /* set negative by a user function to ask the routine to stop;
                             values >= 0 are the caller's own (see zor_c05.h) */
} Zor_Comm;

#ifdef __cplusplus
}
#endif

#endif /* ZOR_TYPES_H */
