/* tests/install/client.c — a C user of the installed library, built with pkg-config. */
#include <stdio.h>
#include <zor.h>

int main(void)
{
    const Zor_Integer get = 0;
    Zor_Integer nerr = -1;
    X04AAF(&get, &nerr);
    printf("C client: eps = %.17g, error unit = %d\n", X02AJF(), (int)nerr);
    fflush(stdout);
    A00AAF();
    return 0;
}
