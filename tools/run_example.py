#!/usr/bin/env python3
# tools/run_example.py — runs one example program and compares what it prints (standard
# output, then standard error) with its expected file. In the expected file "@ANY@"
# matches any text within a line (build-dependent lines such as compiler versions).
# Line ends are compared without CR, so that runs under Wine compare too.
#   run_example.py EXPECTED [STATUS] -- COMMAND...
import re
import subprocess
import sys

def main():
    sep = sys.argv.index("--")
    expected_file = sys.argv[1]
    status = int(sys.argv[2]) if sep > 2 else 0
    cmd = sys.argv[sep + 1:]
    run = subprocess.run(cmd, capture_output=True, timeout=300)
    got = (run.stdout + run.stderr).decode("utf-8", "replace").replace("\r\n", "\n")
    got_lines = got.split("\n")
    with open(expected_file, encoding="utf-8") as f:
        want_lines = f.read().split("\n")
    ok = run.returncode == status and len(got_lines) == len(want_lines)
    if ok:
        for g, w in zip(got_lines, want_lines):
            pattern = "^" + ".*".join(re.escape(p) for p in w.split("@ANY@")) + "$"
            if not re.match(pattern, g):
                ok = False
                break
    if not ok:
        print(f"exit status {run.returncode}, expected {status}")
        print("---- got ----")
        print(got, end="")
        print("---- expected ----")
        print("\n".join(want_lines), end="")
        for i, (g, w) in enumerate(zip(got_lines, want_lines)):
            if g != w and "@ANY@" not in w:
                print(f"\nfirst difference at line {i + 1}:\n  got:      {g!r}\n  expected: {w!r}")
                break
        return 1
    return 0

if __name__ == "__main__":
    sys.exit(main())
