// frame/output_window_win32.cpp — the console check and the output window of the
// Windows build. A record for unit 0 or 6 of a process without a console is shown in a
// dialog that a thread of its own creates and runs; the printing thread hands the record
// over and waits, boundedly, until it is shown. Compiled on Windows only
// (cmake/ZorWindows.cmake); platform.cpp calls it.
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <chrono>
#include <condition_variable>
#include <cstring>
#include <deque>
#include <mutex>
#include <new>
#include <string>
#include <string_view>

#include "platform.hpp"

namespace zor::platform {

namespace {

constexpr wchar_t window_title[] = L"ZOR Library Output Window";
constexpr DWORD title_buffer_len = 1000;   // console title query

// The text area keeps at most this many characters; when it is full the oldest lines
// go, trim_lines at a time, at most trim_attempts times for one record.
constexpr int text_limit = 100000;
constexpr int trim_lines = 10;
constexpr int trim_attempts = 10;

// A printing thread waits for the window to appear, and then for its record to be
// shown, in steps of 10 ms, for at most 1000 steps (10 s) each time: a window thread
// that does not answer costs a routine 10 s at worst and never stops it. A step ends
// early when the window thread announces a change; the limit is kept as a deadline.
constexpr auto wait_step = std::chrono::milliseconds(10);
constexpr auto wait_limit = 1000 * wait_step;

template <class Done>
void wait_until(std::unique_lock<std::mutex>& lock, std::condition_variable& changed, Done done)
{
    const auto deadline = std::chrono::steady_clock::now() + wait_limit;
    while (!done() && std::chrono::steady_clock::now() < deadline) changed.wait_for(lock, wait_step);
}

constexpr int text_width = 600, text_height = 400;   // pixels, at creation
constexpr int font_points = 9;

enum : WORD {
    id_text = 100,
    cmd_close = 200,
    cmd_exit,
    cmd_undo,
    cmd_readonly,
    cmd_select_all,
    cmd_cut,
    cmd_copy,
    cmd_paste,
    cmd_clear_all,
    cmd_font_arial,
    cmd_font_console,
    cmd_about,
};

// Posted to the dialog when records wait in the queue.
constexpr UINT msg_records = WM_APP + 1;

// absent: no window (none yet, or its creation failed and may be tried again);
// starting: its thread is creating it; failed: creation failed and the message box
// saying so is up (records are dropped until it is dismissed, so that one failure
// does not start a thread per record); open: it takes records, shown or hidden;
// exited: the user chose "Exit (permanently)".
enum class Phase { absent, starting, failed, open, exited };

// The library-wide state of the window, besides the two unit numbers the only mutable
// state of the library. Guarded by m; `changed` announces a new phase or shown records.
struct WindowState {
    std::mutex m;
    std::condition_variable changed;
    Phase phase = Phase::absent;
    HWND dialog = nullptr;
    std::deque<std::string> pending;   // handed over, not yet shown
    unsigned long long handed = 0;     // records handed over so far
    unsigned long long shown = 0;      // of those, shown (or discarded by Exit)
};

// Never destroyed: the window thread may still use it while the process ends.
WindowState& state() noexcept
{
    alignas(WindowState) static unsigned char storage[sizeof(WindowState)];
    static WindowState* s = new (storage) WindowState;
    return *s;
}

// What the window thread alone touches, kept with the dialog (DWLP_USER).
struct Ui {
    HWND text = nullptr;
    HMENU edit_menu = nullptr;
    HMENU font_menu = nullptr;
    HFONT console_font = nullptr;
    HFONT arial_font = nullptr;
    bool read_only = true;
    bool full = false;   // set by EN_MAXTEXT while a record is appended
};

Ui* ui_of(HWND dialog) { return reinterpret_cast<Ui*>(GetWindowLongPtrW(dialog, DWLP_USER)); }

bool assume_console() noexcept
{
    // ZOR_ASSUME_CONSOLE=1 (read once) sends records to the unit without asking: for
    // processes whose console the title query cannot see, such as programs under Wine.
    static const bool assume = [] {
        char v[8] = {};
        const DWORD n = GetEnvironmentVariableA("ZOR_ASSUME_CONSOLE", v, sizeof v);
        return n == 1 && v[0] == '1';
    }();
    return assume;
}

bool has_console() noexcept
{
    wchar_t title[title_buffer_len];
    const DWORD n = GetConsoleTitleW(title, title_buffer_len);
    return n > 0 && title[0] != L'\0';
}

HFONT make_font(const wchar_t* face)
{
    HDC dc = GetDC(nullptr);
    const int height = -MulDiv(font_points, dc ? GetDeviceCaps(dc, LOGPIXELSY) : 96, 72);
    if (dc) ReleaseDC(nullptr, dc);
    return CreateFontW(height, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                       OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                       FIXED_PITCH | FF_DONTCARE, face);
}

void set_font(Ui& ui, bool console)
{
    SendMessageW(ui.text, WM_SETFONT, reinterpret_cast<WPARAM>(console ? ui.console_font : ui.arial_font),
                 TRUE);
    CheckMenuRadioItem(ui.font_menu, cmd_font_arial, cmd_font_console,
                       console ? cmd_font_console : cmd_font_arial, MF_BYCOMMAND);
}

// Cut, Paste and Clear All change the text: greyed while it is read-only.
void set_read_only(HWND dialog, Ui& ui, bool read_only)
{
    ui.read_only = read_only;
    SendMessageW(ui.text, EM_SETREADONLY, read_only, 0);
    const UINT state = MF_BYCOMMAND | (read_only ? MF_GRAYED : MF_ENABLED);
    EnableMenuItem(ui.edit_menu, cmd_cut, state);
    EnableMenuItem(ui.edit_menu, cmd_paste, state);
    EnableMenuItem(ui.edit_menu, cmd_clear_all, state);
    CheckMenuItem(ui.edit_menu, cmd_readonly, MF_BYCOMMAND | (read_only ? MF_CHECKED : MF_UNCHECKED));
    DrawMenuBar(dialog);
}

HMENU make_menu(Ui& ui)
{
    HMENU bar = CreateMenu();
    HMENU file = CreatePopupMenu();
    HMENU edit = CreatePopupMenu();
    HMENU font = CreatePopupMenu();
    if (!bar || !file || !edit || !font) return nullptr;
    AppendMenuW(file, MF_STRING, cmd_close, L"&Close (until more output)");
    AppendMenuW(file, MF_STRING, cmd_exit, L"&Exit (permanently)");
    AppendMenuW(edit, MF_STRING, cmd_undo, L"&Undo\tCtrl+Z");
    AppendMenuW(edit, MF_STRING, cmd_readonly, L"Toggle &Readonly\tCtrl+R");
    AppendMenuW(edit, MF_STRING, cmd_select_all, L"Select &All\tCtrl+A");
    AppendMenuW(edit, MF_SEPARATOR, 0, nullptr);
    AppendMenuW(edit, MF_STRING, cmd_cut, L"Cu&t\tCtrl+X");
    AppendMenuW(edit, MF_STRING, cmd_copy, L"&Copy\tCtrl+C");
    AppendMenuW(edit, MF_STRING, cmd_paste, L"&Paste\tCtrl+V");
    AppendMenuW(edit, MF_SEPARATOR, 0, nullptr);
    AppendMenuW(edit, MF_STRING, cmd_clear_all, L"Clea&r All");
    AppendMenuW(font, MF_STRING, cmd_font_arial, L"&Arial");
    AppendMenuW(font, MF_STRING, cmd_font_console, L"&Console");
    AppendMenuW(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(file), L"&File ");
    AppendMenuW(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(edit), L"&Edit ");
    AppendMenuW(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(font), L"F&ont ");
    AppendMenuW(bar, MF_STRING, cmd_about, L"&About ");
    ui.edit_menu = edit;
    ui.font_menu = font;
    return bar;
}

// Deletes the first n lines of the text (all of them when it has fewer).
void delete_first_lines(HWND text, int n)
{
    const LRESULT lines = SendMessageW(text, EM_GETLINECOUNT, 0, 0);
    const LRESULT end = lines > n ? SendMessageW(text, EM_LINEINDEX, n, 0)
                                  : GetWindowTextLengthW(text);
    SendMessageW(text, EM_SETSEL, 0, end);
    SendMessageW(text, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(L""));
}

// Appends one record as a line: trailing line feeds removed, CR LF added, inserted after
// the last line. When the text area reports that it is full (EN_MAXTEXT), the part that
// went in is taken out again, the first lines are deleted, and the record is appended
// again, after a pause of 10 ms; the last attempt keeps what fitted.
void append(Ui& ui, std::string_view record)
{
    while (!record.empty() && record.back() == '\n') record.remove_suffix(1);
    std::string line;
    try {
        line.reserve(record.size() + 3);
        line.append(record);
        line.append("\r\n");
        for (char& c : line)   // a NUL would end the text early
            if (c == '\0') c = ' ';
    } catch (...) {
        return;
    }
    for (int attempt = 0;; ++attempt) {
        ui.full = false;
        const int before = GetWindowTextLengthW(ui.text);
        SendMessageW(ui.text, EM_SETSEL, before, before);
        SendMessageA(ui.text, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(line.c_str()));
        if (attempt > 0) Sleep(10);
        if (!ui.full || attempt == trim_attempts) break;
        SendMessageW(ui.text, EM_SETSEL, before, -1);
        SendMessageW(ui.text, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(L""));
        delete_first_lines(ui.text, trim_lines);
    }
}

// Shows the window, in front of the others but not kept there, without taking the focus
// from the program (a focus change would send messages to the program's own windows,
// whose thread may be the one waiting for this record).
void bring_to_front(HWND dialog)
{
    // Already the frontmost visible window: nothing to do (and nothing to redraw).
    HWND w = GetTopWindow(nullptr);
    for (int n = 0; w && !IsWindowVisible(w) && n < 10000; ++n) w = GetWindow(w, GW_HWNDNEXT);
    if (w == dialog) return;
    constexpr UINT flags = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW;
    SetWindowPos(dialog, HWND_TOPMOST, 0, 0, 0, 0, flags);
    SetWindowPos(dialog, HWND_NOTOPMOST, 0, 0, 0, 0, flags);
}

void show_pending(HWND dialog, Ui& ui)
{
    WindowState& s = state();
    std::deque<std::string> batch;
    {
        std::lock_guard<std::mutex> lock(s.m);
        batch.swap(s.pending);
    }
    // One repaint for the batch rather than one per record.
    SendMessageW(ui.text, WM_SETREDRAW, FALSE, 0);
    for (const std::string& record : batch) append(ui, record);
    SendMessageW(ui.text, WM_SETREDRAW, TRUE, 0);
    SendMessageW(ui.text, EM_SCROLLCARET, 0, 0);
    InvalidateRect(ui.text, nullptr, TRUE);
    {
        std::lock_guard<std::mutex> lock(s.m);
        s.shown += batch.size();
    }
    s.changed.notify_all();
    if (!batch.empty()) bring_to_front(dialog);
}

void exit_permanently(HWND dialog)
{
    WindowState& s = state();
    {
        std::lock_guard<std::mutex> lock(s.m);
        s.phase = Phase::exited;
        s.dialog = nullptr;
        s.pending.clear();
        s.shown = s.handed;
    }
    s.changed.notify_all();
    DestroyWindow(dialog);
}

void command(HWND dialog, Ui& ui, WORD id)
{
    switch (id) {
    case cmd_close:
    case IDCANCEL:   // Escape
        ShowWindow(dialog, SW_HIDE);
        break;
    case cmd_exit:
        exit_permanently(dialog);
        break;
    case cmd_undo:
        SendMessageW(ui.text, EM_UNDO, 0, 0);
        break;
    case cmd_readonly:
        set_read_only(dialog, ui, !ui.read_only);
        break;
    case cmd_select_all:
        SendMessageW(ui.text, EM_SETSEL, 0, -1);
        break;
    case cmd_cut:
        if (!ui.read_only) SendMessageW(ui.text, WM_CUT, 0, 0);
        break;
    case cmd_copy:
        SendMessageW(ui.text, WM_COPY, 0, 0);
        break;
    case cmd_paste:
        if (!ui.read_only) SendMessageW(ui.text, WM_PASTE, 0, 0);
        break;
    case cmd_clear_all:
        if (!ui.read_only) SetWindowTextW(ui.text, L"");
        break;
    case cmd_font_arial:
        set_font(ui, false);
        break;
    case cmd_font_console:
        set_font(ui, true);
        break;
    case cmd_about:
        MessageBoxW(dialog,
                    L"ZOR Library Output Window\n\n"
                    L"Shows the records that the ZOR library writes to units 0 and 6 "
                    L"while the program has no console.\n\n"
                    L"File > Close hides the window until more output arrives; "
                    L"File > Exit closes it for the rest of the program.",
                    L"About ZOR Library Output Window", MB_OK | MB_ICONINFORMATION);
        break;
    default:
        break;
    }
}

INT_PTR CALLBACK dialog_proc(HWND dialog, UINT message, WPARAM wparam, LPARAM lparam)
{
    Ui* ui = message == WM_INITDIALOG ? reinterpret_cast<Ui*>(lparam) : ui_of(dialog);
    if (!ui) return FALSE;
    switch (message) {
    case WM_INITDIALOG: {
        SetWindowLongPtrW(dialog, DWLP_USER, reinterpret_cast<LONG_PTR>(ui));
        SetWindowTextW(dialog, window_title);
        HINSTANCE instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrW(dialog, GWLP_HINSTANCE));
        ui->text = CreateWindowExW(
            WS_EX_CLIENTEDGE, L"EDIT", L"",
            WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_HSCROLL | ES_MULTILINE | ES_AUTOVSCROLL |
                ES_AUTOHSCROLL | ES_WANTRETURN | ES_NOHIDESEL,
            0, 0, text_width, text_height, dialog,
            reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id_text)), instance, nullptr);
        HMENU menu = make_menu(*ui);
        if (!ui->text || !menu) {
            if (menu) DestroyMenu(menu);
            ui->text = nullptr;
            return FALSE;
        }
        SetMenu(dialog, menu);
        SendMessageW(ui->text, EM_SETLIMITTEXT, text_limit, 0);
        ui->console_font = make_font(L"Lucida Console");
        ui->arial_font = make_font(L"Arial");
        set_font(*ui, true);
        set_read_only(dialog, *ui, true);
        // Size the dialog so that its client area is the text area.
        RECT r{0, 0, text_width, text_height};
        AdjustWindowRectEx(&r, static_cast<DWORD>(GetWindowLongPtrW(dialog, GWL_STYLE)), TRUE,
                           static_cast<DWORD>(GetWindowLongPtrW(dialog, GWL_EXSTYLE)));
        SetWindowPos(dialog, nullptr, 0, 0, r.right - r.left, r.bottom - r.top,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        return FALSE;   // the focus stays where it is
    }
    case WM_SIZE:
        if (ui->text) MoveWindow(ui->text, 0, 0, LOWORD(lparam), HIWORD(lparam), TRUE);
        return TRUE;
    case WM_CTLCOLORSTATIC:   // a read-only edit control asks here: keep it white
        if (reinterpret_cast<HWND>(lparam) == ui->text) {
            SetBkColor(reinterpret_cast<HDC>(wparam), GetSysColor(COLOR_WINDOW));
            return reinterpret_cast<INT_PTR>(GetSysColorBrush(COLOR_WINDOW));
        }
        return FALSE;
    case WM_COMMAND:
        if (reinterpret_cast<HWND>(lparam) == ui->text) {
            if (HIWORD(wparam) == EN_MAXTEXT) ui->full = true;
            return TRUE;
        }
        command(dialog, *ui, LOWORD(wparam));
        return TRUE;
    case msg_records:
        show_pending(dialog, *ui);
        return TRUE;
    case WM_CLOSE:   // the title bar's close box: as File > Close
        ShowWindow(dialog, SW_HIDE);
        return TRUE;
    case WM_DESTROY:
        PostQuitMessage(0);
        return TRUE;
    default:
        return FALSE;
    }
}

// The dialog template, in memory: a resizable captioned window with no items (the text
// area is created at WM_INITDIALOG, in pixels) and no menu of its own (set then too).
struct alignas(DWORD) DialogTemplate {
    DLGTEMPLATE head;
    WORD menu = 0;         // none
    WORD window_class = 0; // the predefined dialog class
    wchar_t title[sizeof window_title / sizeof(wchar_t)];
};

HWND create_dialog(Ui& ui)
{
    static DialogTemplate t = [] {
        DialogTemplate d{};
        d.head.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | WS_MINIMIZEBOX |
                       WS_MAXIMIZEBOX | DS_CENTER;
        d.head.dwExtendedStyle = WS_EX_APPWINDOW;
        d.head.cdit = 0;
        d.head.cx = 300;
        d.head.cy = 200;
        std::memcpy(d.title, window_title, sizeof window_title);
        return d;
    }();
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                           GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&dialog_proc), &module);
    HWND dialog = CreateDialogIndirectParamW(module, &t.head, nullptr, dialog_proc,
                                             reinterpret_cast<LPARAM>(&ui));
    if (dialog && !ui.text) {   // the text area or the menu could not be made
        DestroyWindow(dialog);
        dialog = nullptr;
    }
    return dialog;
}

HACCEL make_accelerators()
{
    ACCEL keys[] = {
        {FVIRTKEY | FCONTROL, 'Z', cmd_undo},   {FVIRTKEY | FCONTROL, 'R', cmd_readonly},
        {FVIRTKEY | FCONTROL, 'A', cmd_select_all}, {FVIRTKEY | FCONTROL, 'X', cmd_cut},
        {FVIRTKEY | FCONTROL, 'C', cmd_copy},   {FVIRTKEY | FCONTROL, 'V', cmd_paste},
    };
    return CreateAcceleratorTableW(keys, static_cast<int>(std::size(keys)));
}

DWORD WINAPI window_thread(void*)
{
    WindowState& s = state();
    Ui ui;
    HWND dialog = create_dialog(ui);
    if (!dialog) {
        {
            std::lock_guard<std::mutex> lock(s.m);
            s.phase = Phase::failed;
        }
        s.changed.notify_all();
        MessageBoxW(nullptr, L"Failed to create ZOR output dialog", L"Error", MB_OK | MB_ICONERROR);
        {
            std::lock_guard<std::mutex> lock(s.m);
            s.phase = Phase::absent;
        }
        return 0;
    }
    HACCEL accelerators = make_accelerators();
    {
        std::lock_guard<std::mutex> lock(s.m);
        s.dialog = dialog;
        s.phase = Phase::open;
    }
    s.changed.notify_all();
    MSG msg;
    while (GetMessageW(&msg, nullptr, 0, 0) > 0) {
        if (accelerators && TranslateAcceleratorW(dialog, accelerators, &msg)) continue;
        if (IsWindow(dialog) && IsDialogMessageW(dialog, &msg)) continue;
        TranslateMessage(&msg);
        DispatchMessageW(&msg);
    }
    if (accelerators) DestroyAcceleratorTable(accelerators);
    if (ui.console_font) DeleteObject(ui.console_font);
    if (ui.arial_font) DeleteObject(ui.arial_font);
    return 0;
}

// Hands one record to the window, creating it first when needed, and waits until it is
// shown. Every wait is bounded; a record that cannot be shown is dropped.
void show_in_window(std::string_view record) noexcept
{
    try {
        WindowState& s = state();
        std::unique_lock<std::mutex> lock(s.m);
        if (s.phase == Phase::exited || s.phase == Phase::failed) return;
        if (s.phase == Phase::absent) {
            // The window thread runs code of this library: keep it loaded for good.
            HMODULE pinned = nullptr;
            GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN,
                               reinterpret_cast<LPCWSTR>(&window_thread), &pinned);
            HANDLE thread = CreateThread(nullptr, 0, window_thread, nullptr, 0, nullptr);
            if (!thread) {
                lock.unlock();
                MessageBoxW(nullptr, L"Could not start new thread for ZOR Output Window",
                            L"Failed to create ZOR Output Window", MB_OK | MB_ICONERROR);
                return;
            }
            CloseHandle(thread);
            s.phase = Phase::starting;
        }
        wait_until(lock, s.changed, [&] { return s.phase != Phase::starting; });
        if (s.phase != Phase::open) return;
        s.pending.emplace_back(record);
        const unsigned long long mine = ++s.handed;
        if (!PostMessageW(s.dialog, msg_records, 0, 0) && s.pending.size() == 1) {
            s.pending.pop_back();   // nothing will drain the queue for this record
            --s.handed;
            return;
        }
        wait_until(lock, s.changed, [&] { return s.shown >= mine || s.phase != Phase::open; });
    } catch (...) {
        // A lock or an allocation that failed: the record is dropped.
    }
}

}  // namespace

bool console_or_window(std::string_view record) noexcept
{
    if (assume_console() || has_console()) return true;
    show_in_window(record);
    return false;
}

}  // namespace zor::platform
