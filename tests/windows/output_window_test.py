#!/usr/bin/env python3
# tests/windows/output_window_test.py — the output window under Wine on a virtual X
# display (Xvfb): a program without a console (window_writer.exe) writes records through
# X04BAF; the window's title, menus, states and text are read back through the Win32 API,
# from the window's own process (window_writer's report) and from another one
# (window_inspector.exe); a screenshot of the screen is kept as output_window.png in the
# work directory. Steps: records shown; read-only toggle (menu and Ctrl+R) greys Cut,
# Paste and Clear All; records of four threads printing at once all arrive; the text area
# stays within 100000 characters by dropping its oldest lines; Close hides the window
# until the next record; Exit drops records for good.
import argparse
import os
import shutil
import subprocess
import sys
import time

TEXT_LIMIT = 100000


STARTED = time.time()


def note(msg):
    print(f"[{time.time() - STARTED:5.1f} s] {msg}", flush=True)


def fail(msg):
    print("FAIL: " + msg)
    sys.exit(1)


def windows_path(path):
    return "Z:" + os.path.abspath(path).replace("/", "\\")


def wait_file(path, timeout, what):
    end = time.time() + timeout
    while time.time() < end:
        if os.path.exists(path):
            return
        time.sleep(0.05)
    fail(f"timed out after {timeout} s waiting for {what}")


def start_xvfb(width, height):
    r, w = os.pipe()
    xvfb = subprocess.Popen(["Xvfb", "-displayfd", str(w), "-screen", "0",
                             f"{width}x{height}x24", "-nolisten", "tcp"],
                            pass_fds=(w,), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(w)
    number = b""
    with os.fdopen(r, "rb") as f:
        while not number.endswith(b"\n"):
            c = f.read(1)
            if not c:
                break
            number += c
    if not number.strip():
        xvfb.kill()
        fail("Xvfb did not start")
    return xvfb, ":" + number.decode().strip()


class Session:
    def __init__(self, args, env):
        self.args, self.env, self.work = args, env, args.work
        self.desktop = f"zortest,{args.width}x{args.height}"

    def on_desktop(self, exe, *exe_args, wait):
        # Programs run inside one named Wine desktop, which draws the window's frame.
        cmd = self.args.emulator + ["explorer", f"/desktop={self.desktop}",
                                    windows_path(exe)] + list(exe_args)
        p = subprocess.Popen(cmd, env=self.env, stdout=subprocess.DEVNULL,
                             stderr=subprocess.DEVNULL)
        if wait:
            p.wait(timeout=60)
        return p

    def request(self, line, out=None):
        # Asks the writer (the window's own process) for a report or a menu command.
        if out:
            try:
                os.remove(os.path.join(self.work, out))
            except FileNotFoundError:
                pass
        tmp = os.path.join(self.work, "request.tmp")
        with open(tmp, "w") as f:
            f.write(line + "\n")
        os.replace(tmp, os.path.join(self.work, "request"))
        end = time.time() + 30
        while os.path.exists(os.path.join(self.work, "request")):
            if time.time() > end:
                fail(f"the writer did not serve the request {line!r}")
            time.sleep(0.05)
        if out:
            return read_report(os.path.join(self.work, out))
        return None

    def inspect(self, name):
        out = os.path.join(self.work, name)
        self.on_desktop(self.args.inspector, windows_path(out), wait=True)
        wait_file(out, 30, name)
        return read_report(out)


def read_report(path):
    for _ in range(100):   # the file may still be being written
        with open(path, encoding="utf-8", errors="replace", newline="") as f:
            text = f.read().replace("\r\n", "\n")
        if text.rstrip().split("\n")[-1].startswith("status "):
            return text
        time.sleep(0.05)
    fail(f"incomplete report {path}")


def report_lines(report):
    lines = report.split("\n")
    if lines[-1] == "":
        lines.pop()
    return lines


def text_of(report):
    lines = report_lines(report)
    a, b = lines.index("text:"), lines.index("end of text")
    return lines[a + 1:b]


def field(report, name):
    for line in report_lines(report):
        if line.startswith(name + ": "):
            return line[len(name) + 2:]
    fail(f"no {name!r} in report:\n{report}")


def menu_state(report, item):
    for line in report_lines(report):
        if line.strip().startswith(item + " ["):
            return line.strip()[len(item) + 2:-1]
    fail(f"menu item {item!r} not in report:\n{report}")


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument("--emulator", nargs="+", required=True)
    ap.add_argument("--writer", required=True)
    ap.add_argument("--inspector", required=True)
    ap.add_argument("--expected", required=True)
    ap.add_argument("--work", required=True)
    ap.add_argument("--width", type=int, default=800)
    ap.add_argument("--height", type=int, default=600)
    args = ap.parse_args()

    began = time.time()
    shutil.rmtree(args.work, ignore_errors=True)
    os.makedirs(args.work)
    xvfb, display = start_xvfb(args.width, args.height)
    env = dict(os.environ, DISPLAY=display, ZOR_ASSUME_CONSOLE="0")
    s = Session(args, env)
    writer = None
    try:
        writer = s.on_desktop(args.writer, windows_path(args.work), wait=False)
        w = lambda name: os.path.join(args.work, name)

        note("window starting")
        # Step 1: the records, as the window's own process and another one read them.
        wait_file(w("written1"), 60, "the first records")
        with open(w("written1")) as f:
            note(f"first records written; the first took {f.read().strip()} ms")
        own = s.request("report report1.txt", "report1.txt")
        with open(args.expected, encoding="utf-8", newline="") as f:
            expected = f.read()
        if own != expected:
            fail(f"window report differs from {args.expected}:\n---- got ----\n{own}")
        other = s.inspect("inspect1.txt")
        for name in ("title", "visible", "read-only", "text length"):
            if field(other, name) != field(own, name):
                fail(f"{name} seen from another process: {field(other, name)!r}")
        if text_of(other) != text_of(own):
            fail("the text seen from another process differs")

        note("step 1 checked")
        time.sleep(0.5)
        png = w("output_window.png")
        subprocess.run(["import", "-window", "root", png], env=env, check=True, timeout=60)
        colours = subprocess.run(["identify", "-format", "%k", png], capture_output=True,
                                 text=True, check=True).stdout.strip()
        if int(colours) < 3:
            fail(f"the screenshot {png} shows {colours} colours: nothing drawn")

        # Read-only toggle: Cut, Paste and Clear All follow it.
        s.request("menu Toggle &Readonly\\tCtrl+R")
        r = s.request("report report1b.txt", "report1b.txt")
        if field(r, "read-only") != "no":
            fail("Toggle Readonly left the text read-only")
        for item in ("Cu&t\tCtrl+X", "&Paste\tCtrl+V", "Clea&r All"):
            if menu_state(r, item) != "on":
                fail(f"{item!r} still greyed while the text is writable")
        s.request("menu Toggle &Readonly\\tCtrl+R")
        r = s.request("report report1c.txt", "report1c.txt")
        if field(r, "read-only") != "yes" or menu_state(r, "Cu&t\tCtrl+X") != "grey":
            fail("Toggle Readonly twice did not restore the read-only state")

        note("read-only toggle checked")
        # The same toggle from the keyboard: Ctrl+R through the window's accelerators.
        s.request("ctrl R")
        r = s.request("report report1d.txt", "report1d.txt")
        if field(r, "read-only") != "no" or menu_state(r, "&Paste\tCtrl+V") != "on":
            fail("Ctrl+R did not toggle the read-only state")
        s.request("ctrl R")
        r = s.request("report report1e.txt", "report1e.txt")
        if field(r, "read-only") != "yes":
            fail("Ctrl+R twice did not restore the read-only state")

        note("Ctrl+R checked")
        # Step 2: four threads print 25 records each at the same time.
        open(w("go2"), "w").close()
        wait_file(w("written2"), 60, "the records of four threads")
        r = s.request("report report2.txt", "report2.txt")
        got = [l.split() for l in text_of(r) if l.startswith(" thread ")]
        for t in range(4):
            mine = [int(x[3]) for x in got if x[1] == str(t)]
            if mine != list(range(1, 26)):
                fail(f"thread {t}'s records arrived as {mine}")

        note("threads checked")
        # Step 3: 130 records of 1000 characters (1002 with CR LF) do not fit.
        start = time.time()
        open(w("go3"), "w").close()
        wait_file(w("written3"), 180, "130 long records")
        seconds = time.time() - start
        r = s.request("report report3.txt", "report3.txt")
        length = int(field(r, "text length"))
        lines = [l for l in text_of(r) if l]
        if length > TEXT_LIMIT:
            fail(f"text length {length} over the limit {TEXT_LIMIT}")
        numbers = [int(l.split()[1]) for l in lines]
        if numbers[-1] != 130 or numbers != list(range(numbers[0], 131)):
            fail(f"records lost or out of order: first {lines[0]!r}, last {lines[-1]!r}")
        if length < TEXT_LIMIT - 11 * 1002:
            fail(f"text length {length}: more lines dropped than the trimming should")
        print(f"130 records in {seconds:.1f} s; the window keeps records "
              f"{numbers[0]}..130, {length} characters")

        note("text limit checked")
        # Step 4: Close hides the window until the next record.
        s.request("menu &Close (until more output)")
        if field(s.inspect("inspect4a.txt"), "visible") != "no":
            fail("Close did not hide the window")
        open(w("go4"), "w").close()
        wait_file(w("written4"), 60, "the record after Close")
        r = s.inspect("inspect4b.txt")
        if field(r, "visible") != "yes" or text_of(r)[-2] != " Shown again after Close.":
            fail(f"the record after Close was not shown:\n{r[-300:]}")

        note("Close checked")
        # Step 5: Exit ends the window for good.
        s.request("menu &Exit (permanently)")
        open(w("go5"), "w").close()
        wait_file(w("writer_result"), 60, "the writer's result")
        with open(w("writer_result")) as f:
            result = f.read().strip()
        if result != "ok":
            fail(f"the writer found: {result}")
        note("Exit checked")
        # The desktop that ran the writer may outlive it a while; it is not waited for.
        try:
            writer.wait(timeout=15)
        except subprocess.TimeoutExpired:
            pass
        print(f"output window test passed in {time.time() - began:.1f} s; screenshot {png}")
        return 0
    finally:
        if writer and writer.poll() is None:
            writer.kill()
        xvfb.terminate()
        try:
            xvfb.wait(timeout=10)
        except subprocess.TimeoutExpired:
            xvfb.kill()


if __name__ == "__main__":
    sys.exit(main())
