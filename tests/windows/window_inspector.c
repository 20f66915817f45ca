/* tests/windows/window_inspector.c — reads the output window through the Win32 API for
   the output window test: finds it by its title and reports its title, visibility, menu
   texts and states and the text of its text area; or chooses one of its menu items.
     window_inspector OUT report         the report, into file OUT
     window_inspector OUT menu TEXT      sends the command of the menu item TEXT
   OUT ends with a line "status 0" (done) or "status N" (window not found, ...). */
#include <windows.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static const wchar_t title[] = L"ZOR Library Output Window";

static void put_utf8(FILE *f, const wchar_t *s)
{
    char buf[4096];
    int n = WideCharToMultiByte(CP_UTF8, 0, s, -1, buf, sizeof buf, NULL, NULL);
    if (n > 0) fputs(buf, f);
}

/* Visits every item of a menu (depth first); returns the command id of the item whose
   text is `want`, or 0. With f set, writes one line per item. */
static UINT walk(HMENU menu, int depth, FILE *f, const wchar_t *want)
{
    const int n = GetMenuItemCount(menu);
    for (int i = 0; i < n; ++i) {
        wchar_t text[256] = L"";
        GetMenuStringW(menu, (UINT)i, text, 256, MF_BYPOSITION);
        const UINT state = GetMenuState(menu, (UINT)i, MF_BYPOSITION);
        HMENU sub = GetSubMenu(menu, i);
        if (state & MF_SEPARATOR) {
            if (f) fprintf(f, "%*s----\n", depth * 2, "");
            continue;
        }
        if (f) {
            fprintf(f, "%*s", depth * 2, "");
            put_utf8(f, text);
            fprintf(f, " [%s%s]\n", (state & (MF_GRAYED | MF_DISABLED)) ? "grey" : "on",
                    (state & MF_CHECKED) ? ",checked" : "");
        }
        if (sub) {
            const UINT id = walk(sub, depth + 1, f, want);
            if (id) return id;
        } else if (want && wcscmp(text, want) == 0) {
            return GetMenuItemID(menu, i);
        }
    }
    return 0;
}

int main(int argc, char **argv)
{
    if (argc < 3) return 2;
    FILE *out = fopen(argv[1], "w");
    if (!out) return 2;
    HWND w = NULL;
    for (int i = 0; i < 600 && !w; ++i) {   /* up to 30 s */
        w = FindWindowW(NULL, title);
        if (!w) Sleep(50);
    }
    if (!w) {
        fprintf(out, "window not found\nstatus 1\n");
        fclose(out);
        return 1;
    }
    int status = 0;
    if (strcmp(argv[2], "report") == 0) {
        wchar_t t[256] = L"";
        GetWindowTextW(w, t, 256);
        fprintf(out, "title: ");
        put_utf8(out, t);
        fprintf(out, "\nvisible: %s\n", IsWindowVisible(w) ? "yes" : "no");
        HMENU menu = GetMenu(w);
        fprintf(out, "menu:\n");
        if (menu) walk(menu, 1, out, NULL);
        HWND edit = FindWindowExW(w, NULL, L"Edit", NULL);
        if (!edit) {
            fprintf(out, "no text area\n");
            status = 3;
        } else {
            const LRESULT len = SendMessageW(edit, WM_GETTEXTLENGTH, 0, 0);
            const LONG_PTR style = GetWindowLongPtrW(edit, GWL_STYLE);
            fprintf(out, "read-only: %s\n", (style & ES_READONLY) ? "yes" : "no");
            fprintf(out, "text length: %ld\n", (long)len);
            char *text = malloc((size_t)len + 1);
            if (text) {
                SendMessageA(edit, WM_GETTEXT, (WPARAM)len + 1, (LPARAM)text);
                fprintf(out, "text:\n");
                fwrite(text, 1, strlen(text), out);
                fprintf(out, "\nend of text\n");
                free(text);
            }
        }
    } else if (strcmp(argv[2], "menu") == 0 && argc == 4) {
        wchar_t want[256];
        MultiByteToWideChar(CP_UTF8, 0, argv[3], -1, want, 256);
        for (wchar_t *p = want; *p; ++p)   /* "\t" in the argument means a tab */
            if (p[0] == L'\\' && p[1] == L't') { p[0] = L'\t'; memmove(p + 1, p + 2, wcslen(p + 1) * sizeof *p); }
        const UINT id = walk(GetMenu(w), 0, NULL, want);
        if (id == 0 || id == (UINT)-1) {
            fprintf(out, "menu item not found\n");
            status = 4;
        } else {
            SendMessageW(w, WM_COMMAND, MAKEWPARAM(id, 0), 0);
        }
    } else {
        status = 2;
    }
    fprintf(out, "status %d\n", status);
    fclose(out);
    return status;
}
