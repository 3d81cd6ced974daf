#!/usr/bin/env python3
"""No source file grows past 400 lines, and no header past 200, without a reason that stands here."""

import tree

LIMITS = ((".h", 200), (".cpp", 400), (".py", 400), (".sh", 400))

# File: (its own limit, the reason).
REASONS = {
    "tests/gui/widgets/Gallery.cpp": (450, "a picture book: one function per sheet, no logic"),
}


def check(root):
    said = []
    for name in tree.files(root, tuple(suffix for suffix, _ in LIMITS)):
        limit = next(limit for suffix, limit in LIMITS if name.endswith(suffix))
        limit, _ = REASONS.get(name, (limit, ""))
        count = len(tree.lines(root, name))
        if count > limit:
            said.append(f"{name}: {count} lines, at most {limit}")
    known = tree.files(root)
    said += [f"{name}: has a reason and no file" for name in REASONS if name not in known]
    return said


GOOD = {"src/common/A.cpp": "\n" * 400, "src/common/A.h": "\n" * 200, "README.md": "\n" * 999}
BAD = {
    "a long source": ({"src/common/B.cpp": "\n" * 401}, "src/common/B.cpp"),
    "a long header": ({"src/common/B.h": "\n" * 201}, "src/common/B.h"),
    "a long test": ({"tests/common/B.cpp": "\n" * 401}, "tests/common/B.cpp"),
    "a long tool": ({"tools/b.py": "\n" * 401}, "tools/b.py"),
}

if __name__ == "__main__":
    # The small trees of the proof have none of the files with a reason.
    tree.main(check, {**GOOD, **{name: "" for name in REASONS}}, BAD)
