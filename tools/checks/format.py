#!/usr/bin/env python3
"""Every source file is as clang-format leaves it. Versions differ, so one is named."""

import pathlib
import shutil
import subprocess

import tree

PROGRAM = "clang-format-14"
STYLE = (pathlib.Path(__file__).parents[2] / ".clang-format").read_text(encoding="utf-8")
AT_ONCE = 50


def check(root):
    program = shutil.which(PROGRAM)
    if program is None:
        return [f"{PROGRAM}: not installed"]
    said = []
    names = tree.files(root, tree.SOURCES)
    for start in range(0, len(names), AT_ONCE):
        result = subprocess.run([program, "--dry-run", *names[start:start + AT_ONCE]], cwd=root,
                                capture_output=True, text=True, check=False)
        said += [line for line in result.stderr.splitlines() if "warning:" in line or
                 "error:" in line]
    return said


GOOD = {".clang-format": STYLE, "src/common/A.cpp": "int main() {\n  return 0;\n}\n"}
BAD = {
    "a wild source": ({"src/common/B.cpp": "int  main( ){return 0 ;}\n"}, "src/common/B.cpp"),
    "a wild header": ({"tests/B.h": "#pragma once\nint   a;\n"}, "tests/B.h"),
}

if __name__ == "__main__":
    tree.main(check, GOOD, BAD)
