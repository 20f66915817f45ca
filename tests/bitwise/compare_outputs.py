#!/usr/bin/env python3
# tests/bitwise/compare_outputs.py — runs the bitwise identity program from the Linux
# build and from the Windows build (under Wine) and fails unless both print the same
# (standard output, then standard error; CR LF read as LF).
#   compare_outputs.py --native PROGRAM --windows EMULATOR... PROGRAM.exe
import argparse
import difflib
import os
import subprocess
import sys


def run(cmd):
    r = subprocess.run(cmd, capture_output=True, timeout=100)
    text = (r.stdout + r.stderr).decode("utf-8", "replace").replace("\r\n", "\n")
    return r.returncode, text


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument("--native", required=True)
    ap.add_argument("--windows", nargs="+", required=True)
    args = ap.parse_args()
    if not os.path.exists(args.native):
        print(f"{args.native} not found: build the Linux tree first (make lib)")
        return 1
    rc_linux, linux = run([args.native])
    rc_windows, windows = run(args.windows)
    if rc_linux != 0 or rc_windows != 0 or linux != windows:
        print(f"exit status: Linux {rc_linux}, Windows {rc_windows}")
        sys.stdout.writelines(difflib.unified_diff(
            linux.splitlines(True), windows.splitlines(True), "libzor.so", "zor.dll"))
        return 1
    print(f"identical: {len(linux.splitlines())} lines, "
          f"{linux.count(chr(10) + '== ') + linux.startswith('== ')} headings")
    return 0


if __name__ == "__main__":
    sys.exit(main())
