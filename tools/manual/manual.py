#!/usr/bin/env python3
"""The parts of building the manual that no other program does:

manual.py pictures SOURCE          the pictures that the chapters ask for, for manual_pictures
manual.py text SOURCE              all chapters as one text for pandoc
manual.py page SOURCE PAGE FOLDER  PAGE with its pictures, and a file for each chapter, into FOLDER

A chapter asks for a picture by the line
![What it is.](pictures/NAME.png){shows="Objectives/Nosepiece" marks="ListSeries ListItem"}
and speaks of the marked controls as (1), (2) and so on, in the section that the picture stands in."""

import base64
import html
import pathlib
import re
import sys

PICTURE = re.compile(r'^!\[([^\]]+)\]\(pictures/([\w-]+)\.png\)'
                     r'\{shows="([^"]+)"(?: marks="([^"]+)")?\}$', re.M)
NUMBER = re.compile(r"\((\d)\)")
CHAPTER = re.compile(r"^# (.+) \{#([\w-]+)\}$", re.M)
LINK = re.compile(r"\]\(\d\d-[\w-]+\.md#([\w-]+)\)")


class Wrong(Exception):
    pass


def chapters(source):
    """The texts by file name, in their order."""
    return {path.name: path.read_text(encoding="utf-8")
            for path in sorted(pathlib.Path(source).glob("*.md"))}


def check_numbers(name, text):
    """In each section every circle is spoken of, and no circle that there is not."""
    for section in re.split(r"^#+ ", text, flags=re.M):
        circles = [len((marks or "").split()) for *_, marks in PICTURE.findall(section)]
        if len(circles) > 1:
            raise Wrong(f"{name}: two pictures in one section: {section.splitlines()[0]}")
        said = {int(number) for number in NUMBER.findall(section)}
        if said != set(range(1, sum(circles) + 1)):
            raise Wrong(f"{name}: {section.splitlines()[0]}: circles {sum(circles)}, "
                        f"text {sorted(said)}")


def pictures(source):
    names = set()
    for name, text in chapters(source).items():
        check_numbers(name, text)
        if text.count("![") != len(PICTURE.findall(text)):
            raise Wrong(f"{name}: a picture that is not asked for as it must be")
        for _, picture, shows, marks in PICTURE.findall(text):
            if picture in names:
                raise Wrong(f"{name}: {picture} twice")
            names.add(picture)
            yield "\t".join([picture, shows, *marks.split()])


def text_of(source):
    for text in chapters(source).values():
        text = LINK.sub(r"](#\1)", text)
        text = PICTURE.sub(r"![\1](pictures/\2.png)", text)
        yield NUMBER.sub(lambda found: f'[{chr(0x2460 + int(found[1]) - 1)}]{{.circle}}', text)


def data(path):
    return "data:image/png;base64," + base64.b64encode(path.read_bytes()).decode()


def with_pictures(page, folder):
    def embed(found):
        name = found[1]
        fine = data(folder / f"{name}@2x.png")
        return f'src="{data(folder / f"{name}.png")}" srcset="{fine} 2x"'
    return re.sub(r'src="pictures/([\w-]+)\.png"', embed, page)


def check_page(page):
    """All of it is there, and nothing comes from elsewhere."""
    anchors = set(re.findall(r'\bid="([^"]+)"', page))
    for target in re.findall(r'\b(?:href|src)="([^"]*)"', page):
        if target.startswith("#"):
            if target[1:] not in anchors:
                raise Wrong(f"{target}: no such place")
        elif not target.startswith("data:image/png;base64,"):
            raise Wrong(f"{target}: not in the file")


def write(page, chapter_files, folder):
    folder.joinpath("index.html").write_text(page, encoding="utf-8")
    for title, anchor in chapter_files:
        title = html.escape(title)
        folder.joinpath(f"{anchor}.html").write_text(
            f'<!DOCTYPE html>\n<html lang="en">\n<head>\n<meta charset="utf-8">\n'
            f"<title>{title}</title>\n"
            f'<meta http-equiv="refresh" content="0; url=index.html#{anchor}">\n</head>\n'
            f'<body>\n<p><a href="index.html#{anchor}">{title}</a></p>\n</body>\n</html>\n',
            encoding="utf-8")


def main():
    act, source = sys.argv[1:3]
    if act == "pictures":
        print("\n".join(pictures(source)))
    elif act == "text":
        print("\n\n".join(text_of(source)))
    elif act == "page":
        folder = pathlib.Path(sys.argv[4])
        page = with_pictures(pathlib.Path(sys.argv[3]).read_text(encoding="utf-8"),
                             folder / "pictures")
        check_page(page)
        write(page, CHAPTER.findall("\n".join(chapters(source).values())), folder)


if __name__ == "__main__":
    try:
        main()
    except Wrong as wrong:
        sys.exit(f"manual: {wrong}")
