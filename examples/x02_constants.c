/* examples/x02_constants.c — the machine constants, from C. */
#include <stdio.h>
#include <string.h>
#include <stdint.h>
#include "zor.h"

static void show(const char *name, double v)
{
    uint64_t bits;
    memcpy(&bits, &v, sizeof bits);
    printf("%-10s %-24.17g 0x%016llX\n", name, v, (unsigned long long)bits);
}

int main(void)
{
    printf("X02 machine constants\n");
    show("maxsc", X02AHF());
    show("eps", X02AJF());
    show("tiny_zor", X02AKF());
    show("huge_zor", X02ALF());
    show("saferange", X02AMF());
    show("zrange", X02ANF());
    printf("%-10s %d\n", "hugeint", (int)X02BBF());
    printf("%-10s %d\n", "iprec", (int)X02BEF());
    printf("%-10s %d\n", "irad", (int)X02BHF());
    printf("%-10s %d\n", "idigs", (int)X02BJF());
    printf("%-10s %d\n", "minexp", (int)X02BKF());
    printf("%-10s %d\n", "maxexp", (int)X02BLF());
    printf("1 + eps == 1: %s; 1 + 2*eps == 1: %s\n", 1.0 + X02AJF() == 1.0 ? "yes" : "no",
           1.0 + 2.0 * X02AJF() == 1.0 ? "yes" : "no");
    return 0;
}
