#!/usr/bin/env python3
"""Which room may include which: arrows go one way, and there is no circle of modules. A header and
its source are one module."""

import fnmatch
import re

import tree

# The rooms as layers, from the lowest up; a room may include itself and every layer below. The
# areas (a unit and its page side by side) stand in one layer and know nothing of each other.
LAYERS = (
    ("common",),
    ("platform",),
    ("document",),
    ("controller",),
    ("model",),
    ("objectives", "filters", "condensers", "interlocks", "drives", "switches"),
    ("hub",),
    ("record",),
    ("app", "ctl"),
    ("wizard",),
)
# The program of the command line, which nothing else includes.
PROGRAM = "ctl"
# The kit of controls stands beside them, the drawings made of it above: they see the texts of the
# core alone, and only pages and windows see them.
KIT = ("widgets", "drawings")
# What screen readers are told of kit, drawings and pages; only the windows see it.
ACCESSIBLE = "accessible"
AREAS = LAYERS[5]
# Pages, and controls that one area alone uses.
PAGES = (*(f"src/{area}/*Ctl*" for area in AREAS), "src/drives/CaptionedFrame.*",
         "src/interlocks/ToggleTile.*", "src/objectives/FillNames.h", "src/switches/ReportList.*",
         "src/switches/ShownField.h")

# Headers of the operating system and of libraries stand in these places only.
FOREIGN = {
    r"libxml/": ("src/document/*",),
    r".*\.h$": ("src/platform/posix/*", "src/platform/windows/*", "src/controller/com/*"),
}

# UTF-16 for COM, which is Windows' own.
COM_TEXTS = "platform/windows/Wide.h"

# Where code may ask which system it is built for, and what asks it.
SYSTEM_PLACES = FOREIGN[r".*\.h$"]
SYSTEM = re.compile(
    r"\b(?:_WIN32|_WIN64|WIN32|__MINGW\w+|_MSC_VER|__CYGWIN__|__linux__|__unix__|__APPLE__|__wine__"
    r"|Q_OS_\w+|Q_PROCESSOR_\w+)\b")

INCLUDE = re.compile(r'^\s*#\s*include\s+(?:"([^"]+)"|<([^>]+)>)')


def fits(name, patterns):
    return any(fnmatch.fnmatch(name, pattern) for pattern in patterns)


def room_of(name):
    return name.split("/")[1]


def rank(room):
    return next((i for i, rooms in enumerate(LAYERS) if room in rooms), None)


def is_page(name):
    return fits(name, PAGES)


def has_qt(name):
    return room_of(name) in (*KIT, ACCESSIBLE, "app", "wizard") or is_page(name)


def direction_problem(name, target):
    """Why the one file may not include the other; None when it may."""
    own, other = room_of(name), room_of(target)
    if own == other:
        if is_page(target) and not is_page(name) and own in AREAS:
            return "a unit may not include a page"
        return None
    if own in KIT:
        fits_kit = other == "common" or (other in KIT and KIT.index(other) < KIT.index(own))
        return None if fits_kit else f"{own} may not include {other}"
    if other in KIT:
        return None if has_qt(name) else f"only pages and windows may include {other}"
    if own == ACCESSIBLE:
        return None if is_page(target) else f"{own} may not include {other}"
    if other == ACCESSIBLE:
        return None if own in ("app", "wizard") else f"only the windows may include {other}"
    if other == PROGRAM:
        return f"{own} may not include {other}"
    if is_page(name) and other == "controller":
        return "a page asks its units, not the controller"
    if rank(own) is None or rank(other) is None or rank(other) >= rank(own):
        return f"{own} may not include {other}"
    return None


def foreign_problem(name, header):
    if has_qt(name):
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
        friends = ("src/" + header.rsplit("/", 1)[0],)
        if header == COM_TEXTS:
            friends += ("src/controller/com/",)
        if not name.startswith(friends):
            return f'"{header}": belongs to one half of the platform room'
    problem = direction_problem(name, target)
    return f'"{header}": {problem}' if problem else None


def module_of(name, known):
    """The header's or source's name without its ending; a half of the platform room belongs to its
    header."""
    stem = name.rsplit(".", 1)[0]
    whole = re.sub(r"^src/platform/(?:posix|windows)/", "src/platform/", stem)
    return whole if whole + ".h" in known else stem


def circles(graph):
    """The circles, each once, as the modules in their order."""
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
    graph = {module_of(name, known): set() for name in known}
    for name in known:
        module = module_of(name, known)
        for number, line in enumerate(tree.lines(root, name), 1):
            asked = SYSTEM.search(line)
            if asked and not fits(name, SYSTEM_PLACES):
                said.append(f"{name}:{number}: {asked[0]}: only the platform room knows the system")
            match = INCLUDE.match(line)
            if not match:
                continue
            own, foreign = match.groups()
            if own:
                target = module_of("src/" + own, known)
                # A source includes its header; a header that includes itself is a circle.
                if target != module or name == "src/" + own:
                    graph[module].add(target)
                problem = own_problem(name, own, known)
            else:
                problem = foreign_problem(name, foreign)
            if problem:
                said.append(f"{name}:{number}: {problem}")
    ordered = {module: sorted(targets) for module, targets in sorted(graph.items())}
    said += [f"{circle[0]}: a circle of modules: {' -> '.join(circle)}"
             for circle in circles(ordered)]
    return said


GOOD = {
    "src/common/Text.h": "#include <string>\n",
    "src/document/Dom.h": '#include "common/Text.h"\n',
    "src/document/DomParser.cpp": "#include <libxml/parser.h>\n",
    "src/controller/Microscope.h": '#include "common/Text.h"\n',
    "src/model/ConnectedMicroscope.h": '#include "controller/Microscope.h"\n',
    "src/objectives/clsNosepiece.h": '#include "model/ConnectedMicroscope.h"\n',
    "src/hub/clsK70.h": '#include "objectives/clsNosepiece.h"\n',
    "src/widgets/Card.h": "#include <QWidget>\n",
    "src/drawings/TurretDrawing.h": '#include <QWidget>\n#include "widgets/Card.h"\n',
    "src/interlocks/ToggleTile.h": '#include "widgets/Card.h"\n',
    "src/accessible/Accessible.cpp":
        '#include <QAccessible>\n#include "drawings/TurretDrawing.h"\n'
        '#include "interlocks/ToggleTile.h"\n#include "widgets/Card.h"\n',
    "src/app/ApplyTheme.cpp": '#include "accessible/Accessible.h"\n',
    "src/accessible/Accessible.h": "",
    "src/objectives/ObjectiveCtl.h":
        '#include "objectives/clsNosepiece.h"\n#include "widgets/Card.h"\n',
    "src/app/main.cpp":
        '#include <QApplication>\n#include "hub/clsK70.h"\n#include "objectives/ObjectiveCtl.h"\n',
    "src/record/Report.h": '#include "hub/clsK70.h"\n',
    "src/app/Report.cpp": '#include "record/Report.h"\n',
    "src/wizard/Report.cpp": '#include "record/Report.h"\n',
    "src/ctl/Arguments.h": '#include <CLI/CLI.hpp>\n#include "record/Report.h"\n',
    "src/platform/Sleep.h": "",
    "src/platform/posix/Sleep.cpp": "#include <unistd.h>\n",
    "src/platform/windows/Sleep.cpp": "#include <windows.h>\n#ifdef __MINGW32__\n#endif\n",
    "src/platform/windows/Wide.h": "",
    "src/controller/com/Variant.cpp": '#include "platform/windows/Wide.h"\n',
}
BAD = {
    "a unit that includes the hub": (
        {"src/objectives/clsNosepiece.cpp": '#include "hub/clsK70.h"\n'},
        "src/objectives/clsNosepiece.cpp:1"),
    "a page that includes the hub": (
        {"src/objectives/ObjectiveCtl.cpp": '#include "hub/clsK70.h"\n'},
        "src/objectives/ObjectiveCtl.cpp:1"),
    "a page that includes the controller": (
        {"src/objectives/ObjectiveCtl.cpp": '#include "controller/Microscope.h"\n'},
        "src/objectives/ObjectiveCtl.cpp:1"),
    "a unit that includes a page": (
        {"src/objectives/clsNosepiece.cpp": '#include "objectives/ObjectiveCtl.h"\n'},
        "src/objectives/clsNosepiece.cpp:1"),
    "a unit that includes the kit": (
        {"src/objectives/clsNosepiece.cpp": '#include "widgets/Card.h"\n'},
        "src/objectives/clsNosepiece.cpp:1"),
    "an area that includes another": (
        {"src/filters/clsFilter.cpp": '#include "objectives/clsNosepiece.h"\n'},
        "src/filters/clsFilter.cpp:1"),
    "the model above itself": (
        {"src/model/Names.cpp": '\n#include "objectives/clsNosepiece.h"\n'},
        "src/model/Names.cpp:2"),
    "the controller above itself": (
        {"src/controller/Proxy.cpp": '#include "model/ConnectedMicroscope.h"\n'},
        "src/controller/Proxy.cpp:1"),
    "the controller and the hub": (
        {"src/controller/Proxy.cpp": '#include "hub/clsK70.h"\n'}, "src/controller/Proxy.cpp:1"),
    "common above itself": (
        {"src/common/Text.cpp": '#include "document/Dom.h"\n'}, "src/common/Text.cpp:1"),
    "widgets that know the model": (
        {"src/widgets/Card.cpp": '#include "model/ConnectedMicroscope.h"\n'},
        "src/widgets/Card.cpp:1"),
    "widgets that know the drawings": (
        {"src/widgets/Card.cpp": '#include "drawings/TurretDrawing.h"\n'},
        "src/widgets/Card.cpp:1"),
    "a page that knows the screen reader": (
        {"src/objectives/ObjectiveCtl.cpp": '#include "accessible/Accessible.h"\n'},
        "src/objectives/ObjectiveCtl.cpp:1"),
    "the screen reader with a unit": (
        {"src/accessible/Items.cpp": '#include "objectives/clsNosepiece.h"\n'},
        "src/accessible/Items.cpp:1"),
    "a page that knows the windows": (
        {"src/app/Main.h": "", "src/filters/FilterCtl.cpp": '#include "app/Main.h"\n'},
        "src/filters/FilterCtl.cpp:1"),
    "a room that no layer names": (
        {"src/utils/Misc.h": "", "src/app/Main.cpp": '#include "utils/Misc.h"\n'},
        "src/app/Main.cpp:1"),
    "the hub that includes the record": (
        {"src/hub/clsK70.cpp": '#include "record/Report.h"\n'}, "src/hub/clsK70.cpp:1"),
    "the record that includes the command line": (
        {"src/record/Report.cpp": '#include "ctl/Arguments.h"\n'}, "src/record/Report.cpp:1"),
    "a window that includes the command line": (
        {"src/app/Report.cpp": '#include "ctl/Arguments.h"\n'}, "src/app/Report.cpp:1"),
    "the wizard that includes the command line": (
        {"src/wizard/Report.cpp": '#include "ctl/Arguments.h"\n'}, "src/wizard/Report.cpp:1"),
    "the command line that includes a window": (
        {"src/app/Main.h": "", "src/ctl/Arguments.cpp": '#include "app/Main.h"\n'},
        "src/ctl/Arguments.cpp:1"),
    "the command line with Qt": (
        {"src/ctl/Arguments.cpp": "#include <QString>\n"}, "src/ctl/Arguments.cpp:1"),
    "Qt in the record": (
        {"src/record/Report.cpp": "#include <QString>\n"}, "src/record/Report.cpp:1"),
    "Qt in the core": ({"src/hub/clsK70.cpp": "#include <QString>\n"}, "src/hub/clsK70.cpp:1"),
    "Qt by its module's folder": (
        {"src/common/Text.cpp": "#include <QtCore/QString>\n"}, "src/common/Text.cpp:1"),
    "the operating system outside the platform room": (
        {"src/hub/clsMutex.cpp": "#  include <sys/file.h>\n"}, "src/hub/clsMutex.cpp:1"),
    "libxml2 outside the document": (
        {"src/hub/SettingsFile.h": "#include <libxml/tree.h>\n"}, "src/hub/SettingsFile.h:1"),
    "one half that includes the other": (
        {"src/platform/posix/D.h": "", "src/platform/windows/Sleep.cpp":
         '#include "platform/posix/D.h"\n'}, "src/platform/windows/Sleep.cpp:1"),
    "code that asks for the system": (
        {"src/hub/clsK70.cpp": "#ifdef _WIN32\n#endif\n"}, "src/hub/clsK70.cpp:1"),
    "a window that asks for the system": (
        {"src/app/main.cpp": "\n#if defined(Q_OS_WIN)\n#endif\n"}, "src/app/main.cpp:2"),
    "the controller with more of a half than texts": (
        {"src/platform/windows/Handle.h": "",
         "src/controller/com/A.cpp": '#include "platform/windows/Handle.h"\n'},
        "src/controller/com/A.cpp:1"),
    "the hub with the texts of COM": (
        {"src/hub/clsK70.cpp": '#include "platform/windows/Wide.h"\n'}, "src/hub/clsK70.cpp:1"),
    "a half that is missing": ({"src/platform/Mutex.h": ""}, "src/platform/Mutex.h"),
    "a circle of two": (
        {"src/common/A.h": '#include "common/B.h"\n', "src/common/B.h": '#include "common/A.h"\n'},
        "src/common/A: a circle"),
    "a circle through a source": (
        {"src/common/A.h": "", "src/common/B.h": '#include "common/A.h"\n',
         "src/common/A.cpp": '#include "common/A.h"\n#include "common/B.h"\n'},
        "src/common/A: a circle"),
    "a circle through a half": (
        {"src/platform/E.h": "", "src/platform/posix/E.cpp": '#include "platform/posix/F.h"\n',
         "src/platform/windows/E.cpp": "", "src/platform/posix/F.h": '#include "platform/E.h"\n'},
        "src/platform/E: a circle"),
    "a circle of one": ({"src/common/A.h": '#include "common/A.h"\n'}, "src/common/A: a circle"),
    "an include that is not rooted at src": (
        {"src/common/Text.cpp": '#include "Text.h"\n'}, "src/common/Text.cpp:1"),
}

if __name__ == "__main__":
    tree.main(check, GOOD, BAD)
