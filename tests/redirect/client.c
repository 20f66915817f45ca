/* tests/redirect/client.c — the program's own printf lines and the library's records on
   units 6 and 0, with standard output and standard error sent to one file: every line
   must land in the order the program produced it. */
#include <stdio.h>
#include <string.h>
#include "zor.h"

static void record(Zor_Integer unit, const char *text)
{
    X04BAF(&unit, text, strlen(text));
}

int main(void)
{
    const Zor_Integer set = 1, mode = 9;
    Zor_Integer unit = 0, ifail = -1;
    const Zor_Integer nout = 12;

    printf("C line 1\n");
    record(6, "record 1 on unit 6");
    printf("C line 2\n");
    record(0, "record 2 on unit 0");
    printf("C line 3\n");
    X04AAF(&set, &unit);   /* error messages on the standard error stream */
    X04ACF(&nout, "unused", &mode, &ifail, 6);
    printf("C line 4, IFAIL = %d\n", (int)ifail);
    record(6, "record 3 on unit 6");
    return 0;
}
