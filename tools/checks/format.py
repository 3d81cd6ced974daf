#!/usr/bin/env python3
"""Every source file is as the distribution's clang-format leaves it: format.py ROOT.
format.py --write ROOT brings the files into that form."""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor

import tree

PROGRAM = "clang-format"
STYLE = pathlib.Path(__file__).parents[2] / ".clang-format"
COMPLAINT = re.compile(r"^(.+?):\d+:\d+: warning: code should be clang-formatted", re.M)
AT_ONCE = 100  # files; the program takes as long to start as for a dozen of them

# The form is the same from version 14 to 19 but for the pointer to a member, which version 19 parts
# from its name: "int Row::* field". Ours is that of version 14.
POINTER_TO_MEMBER = re.compile(r"::\* (?=\w)")


def in_house_form(text):
    """What the program leaves, with our pointers to members and a line end at the end."""
    text = POINTER_TO_MEMBER.sub("::*", text)
    return text if text.endswith("\n") or not text else text + "\n"


def batches(names):
    return (names[start:start + AT_ONCE] for start in range(0, len(names), AT_ONCE))


def suspects(root, names):
    """The files that the program would change, or whose form is not ours though it would not.
    Looked at where they stand: to copy a whole tree takes as long again."""
    def ask(some):
        said = subprocess.run([PROGRAM, "--dry-run", f"--style=file:{STYLE}", *some], cwd=root,
                              capture_output=True, text=True, check=True).stderr
        return COMPLAINT.findall(said)

    with ThreadPoolExecutor(os.cpu_count()) as workers:
        found = {name for some in workers.map(ask, batches(names)) for name in some}
    for name in names:
        text = (pathlib.Path(root) / name).read_text(encoding="utf-8")
        if text != in_house_form(text):
            found.add(name)
    return sorted(found)


def formatted(root, names):
    """The text of each file in its form, as {name: text}. Raises CalledProcessError with what the
    program says."""
    with tempfile.TemporaryDirectory() as folder:
        copies = {name: pathlib.Path(folder) / name for name in names}
        for name, copy in copies.items():
            copy.parent.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(pathlib.Path(root) / name, copy)
        for some in batches(names):
            subprocess.run([PROGRAM, "-i", f"--style=file:{STYLE}", *some], cwd=folder,
                           capture_output=True, text=True, check=True)
        return {name: in_house_form(copy.read_text(encoding="utf-8"))
                for name, copy in copies.items()}


def differences(root):
    """Each file that is not in its form, with the text that it should have."""
    result = formatted(root, suspects(root, tree.files(root, tree.SOURCES)))
    return {name: text for name, text in result.items()
            if text != (pathlib.Path(root) / name).read_text(encoding="utf-8")}


def first_line(root, name, text):
    """The number of the first line that differs, from 1."""
    wanted, found = text.splitlines(), tree.lines(root, name)
    same = (i for i, (one, other) in enumerate(zip(wanted, found)) if one != other)
    return next(same, min(len(wanted), len(found))) + 1


def check(root):
    if shutil.which(PROGRAM) is None:
        return [f"{PROGRAM}: not installed; tools/setup.sh test"]
    try:
        wrong = differences(root)
    except subprocess.CalledProcessError as error:
        return [f"{PROGRAM}: {error.stderr}"]
    return [f"{name}:{first_line(root, name, text)}: not as {PROGRAM} leaves it"
            for name, text in wrong.items()]


def write_all(root):
    for name, text in differences(root).items():
        print(name)
        (pathlib.Path(root) / name).write_text(text, encoding="utf-8")


GOOD = {"src/common/A.cpp": "int main() {\n  return 0;\n}\n",
        "src/common/A.h": "struct A {\n  int A::*next;\n};\n"}
BAD = {
    "a wild source": ({"src/common/B.cpp": "int  main( ){return 0 ;}\n"}, "src/common/B.cpp:1"),
    "a wild header": ({"tests/B.h": "#pragma once\nint   a;\n"}, "tests/B.h:2"),
    "a last line that does not end": ({"src/common/B.h": "int b;"}, "src/common/B.h"),
    "another form of a pointer to a member": (
        {"src/common/B.h": "struct B {\n  int B::* next;\n};\n"}, "src/common/B.h:2"),
}

if __name__ == "__main__":
    if len(sys.argv) > 2 and sys.argv[1] == "--write":
        write_all(sys.argv[2])
    else:
        tree.main(check, GOOD, BAD)
