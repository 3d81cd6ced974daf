#!/usr/bin/env python3
"""Words that must not stand in the tree: what nobody finished, what hides a failing test, what
means something on one machine only."""

import re

import tree

# In all files but the images and this one, which has to name them.
RULES = (
    (r"\b(TODO|FIXME|XXX|HACK)\b", "finish it or leave it out"),
    (r"^\s*#\s*if\s+0\b", "dead code"),
    (r"^(<{7}|={7}|>{7})( |$)", "a merge that was not finished"),
    (r"\b(DISABLED_\w+|GTEST_SKIP)\b", "a test that does not run is not a pass"),
    (r"catch\s*\(\s*\.\.\.\s*\)", "hides what nobody thought of"),
    (r"\busing\s+namespace\s+std\s*;", "names without their house"),
    (r"(?<![\w.$}/])/(home|root|Users|work)/\w", "a path of one machine"),
    (r"\b(Part|Chapter|Section|Appendix) \d+\.\d", "a document that is not in the tree"),
)
SPACES = (r"[ \t]+$", "blanks at the end of the line")
TEXTS = (".cpp", ".h", ".py", ".sh", ".txt", ".md", ".cmake", ".json", ".qrc", ".clang-tidy")
OWN_NAME = "tools/checks/words.py"


def check(root):
    rules = [(re.compile(pattern), reason) for pattern, reason in (*RULES, SPACES)]
    said = []
    for name in tree.files(root, TEXTS):
        if name == OWN_NAME:
            continue
        for number, line in enumerate(tree.lines(root, name), 1):
            for pattern, reason in rules:
                match = pattern.search(line)
                if match:
                    said.append(f"{name}:{number}: \"{match.group().strip()}\": {reason}")
    return said


GOOD = {
    "src/common/A.cpp": "using namespace std::string_literals;\n// Part of it, home/user, \"/run\"\n",
    "README.md": "`cmake --preset dev`\n",
}
BAD = {
    meaning: ({"src/common/B.cpp": "\n" + line + "\n"}, "src/common/B.cpp:2")
    for meaning, line in {
        "unfinished work": "// TODO: this",
        "dead code": "#if 0",
        "a half merge": "<<<<<<< HEAD",
        "a disabled test": "TEST(A, DISABLED_B) {}",
        "a skipped test": "  GTEST_SKIP();",
        "a catch of everything": "} catch ( ... ) {",
        "an open namespace": "using namespace std;",
        "a path of one machine": 'open("/home/me/x");',
        "a document from elsewhere": "// see Chapter 1.2",
        "blanks at the end": "int a;  ",
    }.items()
}

if __name__ == "__main__":
    tree.main(check, GOOD, BAD)
