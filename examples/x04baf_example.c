/* examples/x04baf_example.c — the record writer and the units from C: the F routines
   take their arguments by reference and a text with its length last. Records written
   by the library come out in order with the program's own printf output, also when the
   standard output is a file or a pipe. */
#include <stdio.h>
#include <string.h>
#include "zor.h"

static void x04baf(Zor_Integer nout, const char *rec)
{
    X04BAF(&nout, rec, strlen(rec));
}

int main(void)
{
    const Zor_Integer get = 0, set = 1;
    Zor_Integer nerr = -1, nadv = -1, unit;

    X04AAF(&get, &nerr);
    X04ABF(&get, &nadv);
    printf("error unit %d, advisory unit %d\n", (int)nerr, (int)nadv);

    printf("printf line 1\n");
    x04baf(6, "record 1, trailing blanks dropped      ");
    printf("printf line 2\n");
    x04baf(6, "    ");
    x04baf(6, "record 3 follows an empty record");
    printf("printf line 3\n");

    /* The error unit set to -1 silences error messages: X04ACF fails quietly even
       with IFAIL = -1. */
    unit = -1;
    X04AAF(&set, &unit);
    {
        const Zor_Integer nout = 30, mode = 7;
        Zor_Integer ifail = -1;
        X04ACF(&nout, "unused.txt", &mode, &ifail, strlen("unused.txt"));
        printf("X04ACF with MODE = 7: IFAIL = %d, nothing printed\n", (int)ifail);
    }
    /* Error unit 0 is the standard error stream. */
    unit = 0;
    X04AAF(&set, &unit);
    {
        const Zor_Integer nout = -2, mode = 1;
        Zor_Integer ifail = -1;
        X04ACF(&nout, "unused.txt", &mode, &ifail, strlen("unused.txt"));
        printf("X04ACF with NOUT = -2: IFAIL = %d, message on standard error\n", (int)ifail);
    }
    return 0;
}
