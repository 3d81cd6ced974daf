#!/usr/bin/env python3
"""Which room may include which: arrows go one way, and there is no circle of files."""

import fnmatch
import re

import tree

# From the lowest layer to the highest; the first pattern that fits a file names its layer.
LAYERS = (
    ("base", ("src/common/*", "src/platform/*")),
    ("controller", ("src/controller/*",)),
    ("hub", ("src/model/clsK70*", "src/model/clsMutex.*", "src/model/SettingsFile.h",
             "src/model/Transfers.h")),
    ("microscope", ("src/model/*",)),
    ("widgets", ("src/widgets/*",)),
    ("app", ("src/app/*",)),
    ("pages", ("src/*/*Ctl*", "src/filters/OptionalFilters.*")),
    ("units", ("src/*/*",)),
)

# What a layer may include beside itself. A page sits in its unit's folder and includes the hub;
# the unit does not.
MAY_INCLUDE = {
    "base": (),
    "controller": ("base",),
    "microscope": ("base", "controller"),
    "units": ("base", "controller", "microscope"),
    "hub": ("base", "controller", "microscope", "units"),
    "widgets": ("base",),
    "pages": ("base", "controller", "microscope", "units", "hub", "widgets"),
    "app": ("base", "controller", "microscope", "units", "hub", "widgets", "pages"),
}
WITH_QT = ("widgets", "pages", "app")

# Headers of the operating system and of libraries stand in these places only.
FOREIGN = {
    r"libxml/": ("src/common/Dom*",),
    r".*\.h$": ("src/platform/posix/*", "src/platform/windows/*", "src/controller/com/*"),
}

INCLUDE = re.compile(r'^\s*#\s*include\s+(?:"([^"]+)"|<([^>]+)>)')


def fits(name, patterns):
    return any(fnmatch.fnmatch(name, pattern) for pattern in patterns)


def layer_of(name):
    return next((layer for layer, patterns in LAYERS if fits(name, patterns)), None)


def foreign_problem(name, header):
    if layer_of(name) in WITH_QT:
        return None
    if re.match(r"Q[A-Z]|Qt", header):
        return f"<{header}>: no Qt below the widgets and pages"
    for pattern, places in FOREIGN.items():
        if re.match(pattern, header):
            return None if fits(name, places) else f"<{header}>: belongs to {', '.join(places)}"
    return None


def own_problem(name, header, known):
    target = "src/" + header
    if target not in known:
        return f'"{header}": not found from src/'
    if header.startswith(("platform/posix/", "platform/windows/")):
        if not name.startswith("src/" + header.rsplit("/", 1)[0]):
            return f'"{header}": belongs to one half of the platform room'
    own, other = layer_of(name), layer_of(target)
    if other != own and other not in MAY_INCLUDE[own]:
        return f'"{header}": {own} may not include {other}'
    return None


def circles(graph):
    """The circles of files, each once, as the files in their order."""
    found, state = [], {}

    def visit(name, trail):
        state[name] = "open"
        for target in graph.get(name, ()):
            if state.get(target) == "open":
                found.append(trail[trail.index(target):] + [target])
            elif target not in state:
                visit(target, trail + [target])
        state[name] = "closed"

    for name in graph:
        if name not in state:
            visit(name, [name])
    return found


def halves(known):
    """Every header of the platform room needs both of its halves."""
    for name in known:
        if fnmatch.fnmatch(name, "src/platform/*.h") and name.count("/") == 2:
            stem = name.rsplit("/", 1)[1][:-2]
            for half in ("posix", "windows"):
                if f"src/platform/{half}/{stem}.cpp" not in known:
                    yield f"{name}: has no half in platform/{half}"


def check(root):
    known = [name for name in tree.files(root, tree.SOURCES) if name.startswith("src/")]
    said = list(halves(known))
    graph = {}
    for name in known:
        graph[name] = []
        for number, line in enumerate(tree.lines(root, name), 1):
            match = INCLUDE.match(line)
            if not match:
                continue
            own, foreign = match.groups()
            if own:
                graph[name].append("src/" + own)
                problem = own_problem(name, own, known)
            else:
                problem = foreign_problem(name, foreign)
            if problem:
                said.append(f"{name}:{number}: {problem}")
    said += [f"{circle[0]}: a circle of files: {' -> '.join(circle)}" for circle in circles(graph)]
    return said


GOOD = {
    "src/common/Text.h": "#include <string>\n",
    "src/common/DomParser.cpp": "#include <libxml/parser.h>\n",
    "src/controller/Microscope.h": '#include "common/Text.h"\n',
    "src/model/ConnectedMicroscope.h": '#include "controller/Microscope.h"\n',
    "src/objectives/clsNosepiece.h": '#include "model/ConnectedMicroscope.h"\n',
    "src/model/clsK70.h": '#include "objectives/clsNosepiece.h"\n',
    "src/widgets/Card.h": "#include <QWidget>\n",
    "src/objectives/ObjectiveCtl.h": '#include "model/clsK70.h"\n#include "widgets/Card.h"\n',
    "src/app/main.cpp": '#include <QApplication>\n#include "objectives/ObjectiveCtl.h"\n',
    "src/platform/Sleep.h": "",
    "src/platform/posix/Sleep.cpp": "#include <unistd.h>\n",
    "src/platform/windows/Sleep.cpp": "#include <windows.h>\n",
}
BAD = {
    "a unit that includes the hub": (
        {"src/objectives/clsNosepiece.cpp": '#include "model/clsK70.h"\n'},
        "src/objectives/clsNosepiece.cpp:1"),
    "a unit that includes a page": (
        {"src/filters/clsFilter.cpp": '#include "objectives/ObjectiveCtl.h"\n'},
        "src/filters/clsFilter.cpp:1"),
    "a helper of the units that includes one": (
        {"src/model/Names.cpp": '\n#include "objectives/clsNosepiece.h"\n'},
        "src/model/Names.cpp:2"),
    "the controller above itself": (
        {"src/controller/Proxy.cpp": '#include "model/ConnectedMicroscope.h"\n'},
        "src/controller/Proxy.cpp:1"),
    "common above itself": (
        {"src/common/Text.cpp": '#include "controller/Microscope.h"\n'}, "src/common/Text.cpp:1"),
    "widgets that know the model": (
        {"src/widgets/Card.cpp": '#include "model/clsK70.h"\n'}, "src/widgets/Card.cpp:1"),
    "a page that knows the windows": (
        {"src/app/Main.h": "", "src/filters/FilterCtl.cpp": '#include "app/Main.h"\n'},
        "src/filters/FilterCtl.cpp:1"),
    "Qt in the core": (
        {"src/model/clsK70.cpp": "#include <QString>\n"}, "src/model/clsK70.cpp:1"),
    "Qt by its module's folder": (
        {"src/common/Text.cpp": "#include <QtCore/QString>\n"}, "src/common/Text.cpp:1"),
    "the operating system outside the platform room": (
        {"src/model/clsMutex.cpp": "#  include <sys/file.h>\n"}, "src/model/clsMutex.cpp:1"),
    "libxml2 outside the document": (
        {"src/model/SettingsFile.h": "#include <libxml/tree.h>\n"}, "src/model/SettingsFile.h:1"),
    "one half that includes the other": (
        {"src/platform/posix/D.h": "", "src/platform/windows/Sleep.cpp":
         '#include "platform/posix/D.h"\n'}, "src/platform/windows/Sleep.cpp:1"),
    "a half that is missing": ({"src/platform/Mutex.h": ""}, "src/platform/Mutex.h"),
    "a circle of two": (
        {"src/common/A.h": '#include "common/B.h"\n', "src/common/B.h": '#include "common/A.h"\n'},
        "src/common/A.h: a circle"),
    "a circle of one": ({"src/common/A.h": '#include "common/A.h"\n'}, "src/common/A.h: a circle"),
    "an include that is not rooted at src": (
        {"src/common/Text.cpp": '#include "Text.h"\n'}, "src/common/Text.cpp:1"),
}

if __name__ == "__main__":
    tree.main(check, GOOD, BAD)
