"""What the checks share: the files of a tree, the report, and the proof that a check can fail."""

import pathlib
import sys
import tempfile

FOLDERS = ("src", "tests", "benchmarks", "tools", "cmake", "docs", ".ci")
SOURCES = (".cpp", ".h")


def files(root, suffixes=None):
    """The files of the tree as paths from its root, in order; built things are not looked at."""
    root = pathlib.Path(root)
    found = [path for path in root.glob("*") if path.is_file()]
    for folder in FOLDERS:
        found += [path for path in (root / folder).rglob("*") if path.is_file()]
    names = sorted(path.relative_to(root).as_posix() for path in found)
    return [name for name in names
            if "__pycache__" not in name and (suffixes is None or name.endswith(suffixes))]


def lines(root, name):
    text = (pathlib.Path(root) / name).read_bytes().decode("utf-8", errors="replace")
    return text.splitlines()


def complaints_about(check, tree):
    """What the check says of a small tree, given as {name: content}."""
    with tempfile.TemporaryDirectory() as folder:
        for name, content in tree.items():
            path = pathlib.Path(folder) / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(content, encoding="utf-8")
        return check(folder)


def prove(check, good, bad):
    """The check is silent on the good tree and names each file of the bad one, told apart by
    itself: {what is wrong: (tree, file that must be named)}."""
    wrong = [f"complains of a good tree: {line}" for line in complaints_about(check, good)]
    for meaning, (tree, guilty) in bad.items():
        said = complaints_about(check, {**good, **tree})
        if not any(line.startswith(guilty) for line in said):
            wrong.append(f"does not see: {meaning}")
    return wrong


def main(check, good, bad):
    """Usage: check ROOT, or check --self-test."""
    root = sys.argv[1] if len(sys.argv) > 1 else "."
    said = prove(check, good, bad) if root == "--self-test" else check(root)
    for line in said:
        print(line)
    sys.exit(1 if said else 0)
