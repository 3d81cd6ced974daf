#!/usr/bin/env python3
"""What the manual says about the program stands in the program: captions, messages, controls that
are marked in pictures, and links."""

import re

import tree

FOLDER = "docs/manual/"
PROBLEMS = FOLDER + "11-when-something-goes-wrong.md"
CAPTION = re.compile(r"(?<!\*)\*\*(?!\*)([^*\n]+)\*\*(?!\*)")
LINK = re.compile(r"(?<!!)\[[^\]]*\]\(([^)#\s]*)(?:#([\w-]+))?\)")
# The controls that get a circle in a picture; "_0" is the first of an array.
MARKS = re.compile(r'^!\[.*\bmarks="([^"]*)"')
ANCHOR = re.compile(r"\{#([\w-]+)\}")
QUOTED = re.compile(r'^(?:"[^"\n]+"(?:, )?)+$', re.M)
LITERAL = re.compile(r'u?"((?:[^"\\\n]|\\.)*)"')
# Boxes that the program shows; their texts are literals of the call or of a constant that it names.
BOX = re.compile(r"(?:MsgBox|Complain|OperationError)\(")


def shown(literal):
    """A literal as a person reads it: without mnemonics and line breaks."""
    text = re.sub(r"\(&\w\)", "", literal)
    return text.replace("&", "").replace("\\r\\n", "\n").replace("\\n", "\n").strip()


def literals(root, known):
    for name in known:
        if not name.startswith("src/"):
            continue
        for line in tree.lines(root, name):
            if line.lstrip().startswith(("//", "#include")):
                continue
            for match in LITERAL.finditer(line):
                yield name, shown(match[1])


def boxes(root, known):
    """The first lines of the texts that stand in calls of boxes."""
    for name in known:
        if not name.startswith("src/") or not name.endswith(".cpp") or name.startswith("src/ctl/"):
            continue
        text = "\n".join(tree.lines(root, name))
        for call in BOX.finditer(text):
            literal = LITERAL.match(text[call.end():].lstrip().removeprefix("std::string("))
            if literal and re.search(r"[A-Z]", literal[1]):
                words = shown(literal[1]).split("\n")[0]
                yield name, f"*** {words} Error!!(" if "OperationError" in call[0] else words


def check(root):
    known = tree.files(root, (".cpp", ".h", ".md"))
    pages = {name: "\n".join(tree.lines(root, name)) for name in known if name.startswith(FOLDER)}
    anchors = {name: set(ANCHOR.findall(text)) for name, text in pages.items()}
    captions = {text for _, text in literals(root, known)}
    said = []
    for name, text in pages.items():
        for number, line in enumerate(text.split("\n"), 1):
            for caption in CAPTION.findall(line):
                if caption not in captions and caption.rstrip(":") not in captions:
                    said.append(f"{name}:{number}: **{caption}**: no text of the program")
            for mark in " ".join(MARKS.findall(line)).split():
                if re.sub(r"_\d+$", "", mark) not in captions:
                    said.append(f"{name}:{number}: {mark}: no control of the program")
            for target, anchor in LINK.findall(line):
                page = FOLDER + target if target else name
                if page not in pages:
                    said.append(f"{name}:{number}: {target}: no such chapter")
                elif anchor and anchor not in anchors[page]:
                    said.append(f"{name}:{number}: #{anchor}: not in {page}")
    problems = pages.get(PROBLEMS, "")
    every = "\n".join(captions)
    for line in QUOTED.findall(problems):
        for message in re.findall(r'"([^"]+)"', line):
            words = message.removeprefix("*** ").removesuffix(" Error!!(")
            if words not in every:
                said.append(f'{PROBLEMS}: "{message}": no message of the program')
    for name, message in boxes(root, known):
        if problems and message not in problems:
            said.append(f'{name}: "{message}": not explained in {PROBLEMS}')
    return said


GOOD = {
    "src/app/A.cpp": 'void F() {\n  menu->addMenu(u"File(&F)"_s);\n  prompts.MsgBox("No Lamp\\r\\nGo", 0);\n}\n',
    FOLDER + "01-a.md": "# A {#a}\n![A](pictures/a.png){shows=\"A\" marks=\"File_1\"}\n"
                        "Choose **File**, see [B](11-when-something-goes-wrong.md#b).\n",
    PROBLEMS: '# B {#b}\n\n"No Lamp"\n:   Buy one.\n',
}
BAD = {
    "a caption that is none": ({FOLDER + "02-b.md": "\n**Fiel**\n"}, FOLDER + "02-b.md:2"),
    "a chapter that is none": ({FOLDER + "02-b.md": "\n[x](03-c.md)\n"}, FOLDER + "02-b.md:2"),
    "a control that is none": (
        {FOLDER + "02-b.md": '\n![B](pictures/b.png){shows="A" marks="Fiel"}\n'},
        FOLDER + "02-b.md:2"),
    "an anchor that is none": ({FOLDER + "02-b.md": "\n[x](01-a.md#c)\n"}, FOLDER + "02-b.md:2"),
    "a message that is none": ({PROBLEMS: '# B {#b}\n\n"No Lamp"\n:   Buy.\n\n"No Fun"\n:   Laugh.\n'},
                               PROBLEMS),
    "a message that nobody explains": (
        {"src/app/B.cpp": '  prompts.MsgBox("Lost Lens", 0);\n'}, "src/app/B.cpp"),
}

if __name__ == "__main__":
    tree.main(check, GOOD, BAD)
