/* examples/x04adf_example.c — a C program sends the library's advisory output to a file
   of its own: X04ACF attaches the file to a unit, X04ABF makes that unit the advisory
   unit, A00AAF writes the implementation details there, X04ADF detaches it. */
#include <stdio.h>
#include "zor.h"

int main(void)
{
    const char file[] = "x04adf_example.txt";
    const Zor_Integer unit = 21, write_mode = 1, get = 0, set = 1;
    Zor_Integer ifail = -1, nadv = 0, saved = 0;

    X04ACF(&unit, file, &write_mode, &ifail, sizeof file - 1);
    printf("X04ACF: ifail = %d\n", (int)ifail);
    X04ABF(&get, &saved);
    nadv = unit;
    X04ABF(&set, &nadv);
    A00AAF();
    X04ABF(&set, &saved);
    ifail = -1;
    X04ADF(&unit, &ifail);
    printf("X04ADF: ifail = %d\n", (int)ifail);

    FILE *f = fopen(file, "r");
    if (f == NULL) return 1;
    char line[256];
    while (fgets(line, sizeof line, f) != NULL) {
        size_t n = 0;
        while (line[n] != '\0' && line[n] != '\r' && line[n] != '\n') ++n;
        printf("| %.*s\n", (int)n, line);
    }
    fclose(f);
    remove(file);
    return 0;
}
