#!/usr/bin/env python3
"""Counts the results of single tests that a run left behind and names those that are no pass:
tools/test-results.py FOLDER"""

import pathlib
import sys
import xml.etree.ElementTree as xml


def results(folder):
    """Name and state of each test: "passed", "failed" or "not run"."""
    for path in sorted(pathlib.Path(folder).glob("*.xml")):
        for case in xml.parse(path).getroot().iter("testcase"):
            name = f'{case.get("classname")}.{case.get("name")}'
            if case.find("failure") is not None:
                yield name, "failed"
            elif case.get("status") != "run" or case.find("skipped") is not None:
                yield name, "not run"
            else:
                yield name, "passed"


def main(folder):
    found = list(results(folder))
    wrong = [(name, state) for name, state in found if state != "passed"]
    for name, state in wrong:
        print(f"{state}: {name}")
    print(f"{len(found) - len(wrong)} of {len(found)} single tests passed")
    return 1 if wrong or not found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
