/* include/zor_x04.h — X04, output units and records: F interface. */
#ifndef ZOR_X04_H
#define ZOR_X04_H

#include "zor_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A record writer: writes rec(1:rec_len) as one record to unit *nout; *status 0, or 1
   when the write failed. The library's own is used unless X04BAFT is given another. */
typedef void (*Zor_RecordWriter)(Zor_Context *ctx, const Zor_Integer *nout, const char *rec,
                                 Zor_Integer *status, size_t rec_len);
/* Calls a record writer; the library's is X04BAF_FH. */
typedef void (*Zor_RecordTrampoline)(Zor_RecordWriter writer, Zor_Context *ctx,
                                     const Zor_Integer *nout, const char *rec,
                                     Zor_Integer *status, size_t rec_len);

/* Error unit: IFLAG = 0 gets it into NERR, IFLAG = 1 sets it from NERR. */
ZOR_API void X04AAF(const Zor_Integer *iflag, Zor_Integer *nerr) ZOR_NOEXCEPT;
ZOR_API void x04aaf_(const Zor_Integer *iflag, Zor_Integer *nerr) ZOR_NOEXCEPT;
ZOR_API void X04AAFT(Zor_Context *ctx, const Zor_Integer *iflag, Zor_Integer *nerr) ZOR_NOEXCEPT;

/* Advisory unit: the same for NADV. */
ZOR_API void X04ABF(const Zor_Integer *iflag, Zor_Integer *nadv) ZOR_NOEXCEPT;
ZOR_API void x04abf_(const Zor_Integer *iflag, Zor_Integer *nadv) ZOR_NOEXCEPT;
ZOR_API void X04ABFT(Zor_Context *ctx, const Zor_Integer *iflag, Zor_Integer *nadv) ZOR_NOEXCEPT;

/* Writes REC (trailing blanks dropped) as one record to unit NOUT. */
ZOR_API void X04BAF(const Zor_Integer *nout, const char *rec, size_t rec_len) ZOR_NOEXCEPT;
ZOR_API void x04baf_(const Zor_Integer *nout, const char *rec, size_t rec_len) ZOR_NOEXCEPT;
ZOR_API void X04BAFT(Zor_Context *ctx, const Zor_Integer *nout, const char *rec,
                     Zor_RecordWriter writer, Zor_RecordTrampoline trampoline,
                     Zor_Integer *status, size_t rec_len) ZOR_NOEXCEPT;
ZOR_API void X04BAF_FH(Zor_RecordWriter writer, Zor_Context *ctx, const Zor_Integer *nout,
                       const char *rec, Zor_Integer *status, size_t rec_len) ZOR_NOEXCEPT;

/* Connects unit NOUT to the file FILE: MODE 0 read, 1 write (replacing), 2 append. */
ZOR_API void X04ACF(const Zor_Integer *nout, const char *file, const Zor_Integer *mode,
                    Zor_Integer *ifail, size_t file_len) ZOR_NOEXCEPT;
ZOR_API void x04acf_(const Zor_Integer *nout, const char *file, const Zor_Integer *mode,
                     Zor_Integer *ifail, size_t file_len) ZOR_NOEXCEPT;
ZOR_API void X04ACFT(Zor_Context *ctx, const Zor_Integer *nout, const char *file,
                     const Zor_Integer *mode, char msgbuf[200], Zor_Integer *ierr,
                     size_t file_len) ZOR_NOEXCEPT;

/* Disconnects unit NOUT. */
ZOR_API void X04ADF(const Zor_Integer *nout, Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void x04adf_(const Zor_Integer *nout, Zor_Integer *ifail) ZOR_NOEXCEPT;
ZOR_API void X04ADFT(Zor_Context *ctx, const Zor_Integer *nout, char msgbuf[200],
                     Zor_Integer *ierr) ZOR_NOEXCEPT;

#ifdef __cplusplus
}
#endif

#endif /* ZOR_X04_H */
