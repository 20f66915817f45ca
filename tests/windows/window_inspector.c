/* tests/windows/window_inspector.c — looks at the output window from another process,
   for the output window test: finds it by its title and reports what it shows
   (window_report.h; the menus only where another process can read them).
     window_inspector OUT    the report, into file OUT, ending with a line "status 0",
                             or "status N" when the window was not found (N = 1) ... */
#include "window_report.h"

int main(int argc, char **argv)
{
    if (argc != 2) return 2;
    FILE *out = fopen(argv[1], "wb");
    if (!out) return 2;
    HWND w = NULL;
    for (int i = 0; i < 600 && !w; ++i) {   /* up to 30 s */
        w = FindWindowW(NULL, window_title);
        if (!w) Sleep(50);
    }
    if (!w) {
        fprintf(out, "window not found\nstatus 1\n");
        fclose(out);
        return 1;
    }
    const int status = report_window(w, out);
    fprintf(out, "status %d\n", status);
    fclose(out);
    return status;
}
