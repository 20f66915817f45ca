/* tests/windows/window_writer.c — a program without a console that writes records
   through X04BAF, for the output window test (output_window_test.py), which drives it
   step by step through files in the directory DIR:
     window_writer DIR            writes the records of step N once DIR/goN exists (step 1
                                  at once), then DIR/writtenN; at the end DIR/writer_result
                                  holds "ok" or the faults found. While it waits it serves
                                  DIR/request: "report NAME" writes the window's report
                                  (window_report.h, menus included: they belong to this
                                  process) to DIR/NAME; "menu TEXT" chooses that menu item;
                                  "ctrl X" presses Ctrl+X on the keyboard.
     window_writer --no-display   writes records where no window can appear; must return. */
#include "window_report.h"
#include "zor.h"

static char dir[MAX_PATH];

static void put(Zor_Integer unit, const char *rec)
{
    X04BAF(&unit, rec, strlen(rec));
}

static void path_of(char *path, size_t n, const char *name)
{
    snprintf(path, n, "%s\\%s", dir, name);
}

static void touch(const char *name)
{
    char path[MAX_PATH + 64];
    path_of(path, sizeof path, name);
    FILE *f = fopen(path, "w");
    if (f) fclose(f);
}

/* Sends the command of the menu item with this text ("\t" written as backslash t). */
static void choose(HWND w, const char *text)
{
    wchar_t want[256];
    MultiByteToWideChar(CP_UTF8, 0, text, -1, want, 256);
    for (wchar_t *p = want; *p; ++p)
        if (p[0] == L'\\' && p[1] == L't') {
            p[0] = L'\t';
            memmove(p + 1, p + 2, wcslen(p + 1) * sizeof *p);
        }
    const UINT id = walk(GetMenu(w), 0, NULL, want);
    if (id != 0 && id != (UINT)-1) SendMessageW(w, WM_COMMAND, MAKEWPARAM(id, 0), 0);
}

static DWORD WINAPI print_from_thread(void *arg)
{
    const int t = (int)(INT_PTR)arg;
    for (int i = 1; i <= 25; ++i) {
        char rec[64];
        snprintf(rec, sizeof rec, " thread %d record %02d", t, i);
        put(6, rec);
    }
    return 0;
}

/* Presses Ctrl and a letter on the keyboard, with the window in front. */
static void press_ctrl(HWND w, char letter)
{
    SetForegroundWindow(w);
    Sleep(200);
    INPUT in[4];
    memset(in, 0, sizeof in);
    for (int i = 0; i < 4; ++i) in[i].type = INPUT_KEYBOARD;
    in[0].ki.wVk = VK_CONTROL;
    in[1].ki.wVk = (WORD)letter;
    in[2].ki.wVk = (WORD)letter;
    in[2].ki.dwFlags = KEYEVENTF_KEYUP;
    in[3].ki.wVk = VK_CONTROL;
    in[3].ki.dwFlags = KEYEVENTF_KEYUP;
    SendInput(4, in, sizeof in[0]);
    Sleep(300);
}

static void serve_request(void)
{
    char path[MAX_PATH + 64], line[512] = "";
    path_of(path, sizeof path, "request");
    FILE *f = fopen(path, "r");
    if (!f) return;
    if (!fgets(line, sizeof line, f)) line[0] = '\0';
    fclose(f);
    line[strcspn(line, "\r\n")] = '\0';
    HWND w = FindWindowW(NULL, window_title);
    if (strncmp(line, "report ", 7) == 0) {
        char out_path[MAX_PATH + 64];
        path_of(out_path, sizeof out_path, line + 7);
        FILE *out = fopen(out_path, "wb");
        if (out) {
            const int status = w ? report_window(w, out) : (fprintf(out, "window not found\n"), 1);
            fprintf(out, "status %d\n", status);
            fclose(out);
        }
    } else if (strncmp(line, "menu ", 5) == 0 && w) {
        choose(w, line + 5);
    } else if (strncmp(line, "ctrl ", 5) == 0 && w) {
        press_ctrl(w, line[5]);
    }
    DeleteFileA(path);
}

/* Waits up to 120 s for the test to create DIR/name, serving its requests meanwhile. */
static int wait_for(const char *name)
{
    char path[MAX_PATH + 64];
    path_of(path, sizeof path, name);
    for (int i = 0; i < 6000; ++i) {
        if (GetFileAttributesA(path) != INVALID_FILE_ATTRIBUTES) return 1;
        serve_request();
        Sleep(20);
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

/* Creates, shows and destroys a window like the output window (an edit control in the
   same font) before the first record. A process's first window under Wine pays for
   connecting to the display and loading the window and font machinery: without this the
   first record waited more than its 10 s for the output window in about one run in
   three, and was dropped; with it the output window appears within 40 ms. */
static void warm_this_process(void)
{
    HWND w = CreateWindowExW(0, L"EDIT", L"", WS_OVERLAPPEDWINDOW | ES_MULTILINE, 0, 0, 600,
                             400, NULL, NULL, GetModuleHandleW(NULL), NULL);
    HFONT font = CreateFontW(-12, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                             OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                             FIXED_PITCH | FF_MODERN, L"Lucida Console");
    if (w) {
        if (font) SendMessageW(w, WM_SETFONT, (WPARAM)font, TRUE);
        ShowWindow(w, SW_SHOWNOACTIVATE);
        UpdateWindow(w);
        MSG msg;
        while (PeekMessageW(&msg, NULL, 0, 0, PM_REMOVE)) DispatchMessageW(&msg);
        DestroyWindow(w);
    }
    if (font) DeleteObject(font);
}

int main(int argc, char **argv)
{
    if (argc == 2 && strcmp(argv[1], "--no-display") == 0) return no_display();
    if (argc != 2) return 2;
    snprintf(dir, sizeof dir, "%s", argv[1]);
    char faults[512] = "";

    /* Step 1: a few records, as a program would write them, an error exit among them.
       DIR/written1 tells how long the first one took (window creation included). */
    warm_this_process();
    const DWORD first_start = GetTickCount();
    put(6, " ZOR output window test");
    const DWORD first_ms = GetTickCount() - first_start;
    put(6, " Record with trailing blanks          ");
    put(6, "   ");
    put(0, " A record for the error unit");
    {
        Zor_Integer nout = -1, mode = 1, ifail = -1;
        X04ACF(&nout, "unused.txt", &mode, &ifail, 10);
        if (ifail != 1) strcat(faults, " x04acf-ifail");
    }
    put(-1, " never shown: unit -1");
    put(6, " End of step 1");
    {
        char path[MAX_PATH + 64];
        path_of(path, sizeof path, "written1.tmp");
        FILE *f = fopen(path, "w");
        if (f) {
            fprintf(f, "%lu\n", (unsigned long)first_ms);
            fclose(f);
        }
        char final_path[MAX_PATH + 64];
        path_of(final_path, sizeof final_path, "written1");
        MoveFileA(path, final_path);
    }

    /* Step 2: four threads print at once; every record must arrive, each thread's in
       order. */
    if (!wait_for("go2")) return 3;
    {
        HANDLE threads[4];
        for (int t = 0; t < 4; ++t)
            threads[t] = CreateThread(NULL, 0, print_from_thread, (void *)(INT_PTR)t, 0, NULL);
        for (int t = 0; t < 4; ++t)
            if (threads[t]) {
                WaitForSingleObject(threads[t], INFINITE);
                CloseHandle(threads[t]);
            } else {
                strcat(faults, " no-thread");
            }
    }
    touch("written2");

    /* Step 3: more than the text area holds (130 lines of 1000 + 2 characters); the
       oldest lines must give way. */
    if (!wait_for("go3")) return 3;
    for (int i = 1; i <= 130; ++i) {
        char rec[1001];
        memset(rec, '.', 1000);
        rec[1000] = '\0';
        char head[32];
        const int n = snprintf(head, sizeof head, " record %04d ", i);
        memcpy(rec, head, (size_t)n);
        put(6, rec);
    }
    touch("written3");

    /* Step 4: the window was hidden through File > Close; the next record shows it. */
    if (!wait_for("go4")) return 3;
    put(6, " Shown again after Close.");
    touch("written4");

    /* Step 5: after File > Exit records are dropped at once, and no window comes back. */
    if (!wait_for("go5")) return 3;
    const DWORD start = GetTickCount();
    put(6, " After Exit: dropped.");
    const DWORD ms = GetTickCount() - start;
    if (ms > 1000) strcat(faults, " slow-after-exit");
    if (FindWindowW(NULL, window_title)) strcat(faults, " window-after-exit");

    char path[MAX_PATH + 64];
    path_of(path, sizeof path, "writer_result");
    FILE *f = fopen(path, "w");
    if (!f) return 4;
    fprintf(f, "%s\n", faults[0] ? faults + 1 : "ok");
    fclose(f);
    return 0;
}
