#!/usr/bin/env python3
"""The files of a folder as the macros of the installer: installer-files.py FOLDER"""

import pathlib
import sys


def macro(name, lines, parameter=""):
    return [f"!macro {name}{parameter}", *(f"  {line}" for line in lines), "!macroend"]


def quoted(text):
    return '"' + text.replace("$", "$$") + '"'


def target(path):
    return '"$INSTDIR' + "".join("\\" + part.replace("$", "$$") for part in path.parts) + '"'


def script(folder):
    files = sorted(file.relative_to(folder) for file in folder.rglob("*") if file.is_file())
    folders = sorted({parent for file in files for parent in file.parents if parent.parts})
    install = []
    for place in [pathlib.Path(), *folders]:
        here = [file for file in files if file.parent == place]
        if here:
            install.append(f"SetOutPath {target(place)}")
            install += [f'File "{folder / file}"' for file in here]
    programs = [file for file in files if file.suffix == ".exe"]
    size = sum((folder / file).stat().st_size for file in files)
    return [
        f"!define SIZE_KIB {size // 1024}",
        *macro("InstallFiles", install),
        *macro("RemoveFiles", [f"Delete {target(file)}" for file in files]),
        *macro("RemoveFolders", [f"RMDir {target(place)}" for place in reversed(folders)]),
        *macro("ForEachProgram", [f"!insertmacro ${{use}} {quoted(str(file))}" for file in programs],
               " use"),
    ]


if __name__ == "__main__":
    print("\n".join(script(pathlib.Path(sys.argv[1]))))
