/* tests/windows/window_report.h — reads the output window through the Win32 API: its
   title, visibility, menu texts and states, and the text of its text area. Included by
   window_writer.c (the window's own process) and window_inspector.c (another one). */
#include <windows.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static const wchar_t window_title[] = L"ZOR Library Output Window";

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
        if (!sub && (state & MF_SEPARATOR)) {   /* a popup's state holds its item count */
            if (f) fprintf(f, "%*s----\n", depth * 2, "");
            continue;
        }
        if (f) {
            fprintf(f, "%*s", depth * 2, "");
            put_utf8(f, text);
            fprintf(f, " [%s%s]\n", (state & (MF_GRAYED | MF_DISABLED)) ? "grey" : "on",
                    (!sub && (state & MF_CHECKED)) ? ",checked" : "");
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


/* Writes title, visibility, menus (when they can be read: a menu belongs to the process
   that made it, so only the window's own process reads it under Wine), read-only state
   and the text of the window w. Returns 0, or 3 when it has no text area. */
static int report_window(HWND w, FILE *out)
{
    int status = 0;
    wchar_t t[256] = L"";
    GetWindowTextW(w, t, 256);
    fprintf(out, "title: ");
    put_utf8(out, t);
    fprintf(out, "\nvisible: %s\n", IsWindowVisible(w) ? "yes" : "no");
    HMENU menu = GetMenu(w);
    if (menu && GetMenuItemCount(menu) > 0) {
        fprintf(out, "menu:\n");
        walk(menu, 1, out, NULL);
    }
    HWND edit = FindWindowExW(w, NULL, L"Edit", NULL);
    if (!edit) {
        fprintf(out, "no text area\n");
        return 3;
    }
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
    return status;
}
