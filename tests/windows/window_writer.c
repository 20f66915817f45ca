/* tests/windows/window_writer.c — a program without a console that writes records
   through X04BAF, for the output window test (output_window_test.py), which drives it
   step by step through files in DIR:
     window_writer DIR            shows records, waits for DIR/goN, writes DIR/writtenN;
                                  at the end DIR/writer_result holds "ok" or the faults.
     window_writer --no-display   writes records where no window can appear; must return. */
#include <windows.h>
#include <stdio.h>
#include <string.h>

#include "zor.h"

static char dir[MAX_PATH];

static void put(Zor_Integer unit, const char *rec)
{
    X04BAF(&unit, rec, strlen(rec));
}

static void touch(const char *name)
{
    char path[MAX_PATH + 32];
    snprintf(path, sizeof path, "%s\\%s", dir, name);
    FILE *f = fopen(path, "w");
    if (f) fclose(f);
}

/* Waits up to 120 s for the test to create DIR/name. */
static int wait_for(const char *name)
{
    char path[MAX_PATH + 32];
    snprintf(path, sizeof path, "%s\\%s", dir, name);
    for (int i = 0; i < 2400; ++i) {
        if (GetFileAttributesA(path) != INVALID_FILE_ATTRIBUTES) return 1;
        Sleep(50);
    }
    return 0;
}

static int no_display(void)
{
    const DWORD start = GetTickCount();
    put(6, " A record where no window can be shown.");
    put(0, " Another one, for the error unit.");
    const DWORD ms = GetTickCount() - start;
    printf("no-display records returned after %lu ms\n", (unsigned long)ms);
    return ms < 25000 ? 0 : 1;
}

int main(int argc, char **argv)
{
    if (argc == 2 && strcmp(argv[1], "--no-display") == 0) return no_display();
    if (argc != 2) return 2;
    snprintf(dir, sizeof dir, "%s", argv[1]);
    char faults[512] = "";

    /* Step 1: a few records, as a program would write them. */
    put(6, " ZOR output window test");
    put(6, " Record with trailing blanks          ");
    put(6, "   ");
    put(0, " A record for the error unit");
    {
        Zor_Integer nout = -1, mode = 1, ifail = -1;
        X04ACF(&nout, "unused.txt", &mode, &ifail, 10);   /* an error exit, printed */
        if (ifail != 1) strcat(faults, " x04acf-ifail");
    }
    put(-1, " never shown: unit -1");
    put(6, " End of step 1");
    touch("written1");

    /* Step 2: more than the text area holds; the oldest lines must give way. */
    if (!wait_for("go2")) return 3;
    for (int i = 1; i <= 1500; ++i) {
        char rec[100];
        snprintf(rec, sizeof rec, " record %04d %-84s|", i, "of ninety-nine characters");
        put(6, rec);
    }
    touch("written2");

    /* Step 3: the window was hidden through File > Close; the next record shows it. */
    if (!wait_for("go3")) return 3;
    put(6, " Shown again after Close.");
    touch("written3");

    /* Step 4: after File > Exit records are dropped at once, and no window comes back. */
    if (!wait_for("go4")) return 3;
    const DWORD start = GetTickCount();
    put(6, " After Exit: dropped.");
    const DWORD ms = GetTickCount() - start;
    if (ms > 1000) strcat(faults, " slow-after-exit");
    if (FindWindowW(NULL, L"ZOR Library Output Window")) strcat(faults, " window-after-exit");

    char path[MAX_PATH + 32];
    snprintf(path, sizeof path, "%s\\writer_result", dir);
    FILE *f = fopen(path, "w");
    if (!f) return 4;
    fprintf(f, "%s\n", faults[0] ? faults + 1 : "ok");
    fclose(f);
    return 0;
}
