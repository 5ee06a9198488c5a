"""Checks the sources of the help: it explains what the program shows, and nothing in it leads nowhere.

Prints one line "ok ..." or "not ok ..." per check, and one more for each sample of wrong help that
shows that the check can fail. Run at the root of the repository.
"""

import html
import re
import struct
import sys
from html.parser import HTMLParser
from pathlib import Path

import samples

TEXT = re.compile(r'\{TextId::(\w+),\s+L"((?:[^"\\]|\\.)*)"\}')
SETTING = re.compile(r'Field\{\w+, L"(\w+)"')
LOCAL = re.compile(r'<param name="Local" value="([^"]*)">')
WITHOUT_END = {"br", "img", "link", "meta"}


class Page(HTMLParser):
    """What a page names and defines."""

    def __init__(self, source):
        super().__init__()
        self.links, self.pictures, self.anchors, self.problems, self.open = [], [], set(), [], []
        self.feed(source)
        self.close()
        self.problems += [f"<{tag}> is not closed" for tag in self.open]

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        if "id" in values:
            self.anchors.add(values["id"])
        self.links += [values[name] for name in ("href", "src") if name in values]
        if tag == "img":
            self.pictures.append(values)
        if tag not in WITHOUT_END:
            self.open.append(tag)

    def handle_endtag(self, tag):
        if not self.open or self.open.pop() != tag:
            self.problems.append(f"</{tag}> closes nothing in line {self.getpos()[0]}")


def pages(root):
    return {file.name: file.read_text(encoding="ascii", errors="replace")
            for file in sorted((root / "help").glob("*.html"))}


def plain(text):
    """A text as the help writes it: no mnemonic, no dots at the end; a place for a value is a "%"."""
    text = re.sub("<var>.*?</var>|%[1-9]", "%", text, flags=re.S)
    return " ".join(html.unescape(text).replace("&", "").removesuffix("...").split())


def texts_of_program(root):
    table = (root / "localisation/TextTable.cpp").read_text(encoding="utf-8")
    return {name: plain(text) for name, text in TEXT.findall(table)}


def texts_of_help(root):
    """The texts that pages explain stand in <dfn>."""
    return {plain(re.sub("<(?!/?var>)[^>]*>", "", text))
            for page in pages(root).values() for text in re.findall("<dfn>(.*?)</dfn>", page, re.S)}


def check_texts(root):
    """Every menu item, option and message of the program is explained."""
    texts = texts_of_program(root)
    if not texts:
        yield "no texts were found in localisation/TextTable.cpp"
    explained = texts_of_help(root)
    yield from (f'{name} "{text}"' for name, text in texts.items() if text not in explained)


def check_terms(root):
    """What is explained as a text of the program is one."""
    yield from sorted(texts_of_help(root) - set(texts_of_program(root).values()))


def check_settings(root):
    """Every setting is explained."""
    page = pages(root).get("settings.html", "")
    names = SETTING.findall((root / "settings/Settings.cpp").read_text(encoding="utf-8"))
    if not names:
        yield "no settings were found in settings/Settings.cpp"
    yield from (name for name in names if f"<code>{name}</code>" not in page)


def check_languages(root):
    """Every language that is shipped is named."""
    page = pages(root).get("translate.html", "")
    files = sorted(file.name for file in (root / "Languages").glob("*.lng"))
    if not files:
        yield "no languages were found in Languages"
    yield from (name for name in files if f"<code>{name}</code>" not in page)


def dead(root, target, here=""):
    """True when a link leads nowhere; `here` is the page that holds it."""
    name, _, anchor = target.partition("#")
    file = root / "help" / (name or here)
    if not file.is_file():
        return True
    return bool(anchor) and anchor not in Page(pages(root)[file.name]).anchors


def check_pages(root):
    """Pages are plain, whole HTML, and each link and picture in them exists."""
    for name, source in pages(root).items():
        page = Page(source)
        yield from (f"{name}: {problem}" for problem in page.problems)
        if not (root / "help" / name).read_bytes().isascii():
            yield f"{name} is not plain ASCII"
        yield from (f"{name} leads to {link}" for link in page.links if dead(root, link, name))
        for picture in page.pictures:
            if not picture.get("alt"):
                yield f"{name}: {picture['src']} is not described"
            elif not dead(root, picture["src"]) and size_of(root, picture["src"]) != (
                    picture.get("width"), picture.get("height")):
                yield f"{name}: {picture['src']} has another size"


def size_of(root, picture):
    """Width and height as a PNG file states them."""
    header = (root / "help" / picture).read_bytes()[16:24]
    return tuple(str(number) for number in struct.unpack(">II", header))


def project_files(root):
    project = (root / "help/Readme.hhp").read_text(encoding="ascii")
    return [line for line in project.partition("[FILES]")[2].splitlines() if line]


def check_contents(root):
    """Contents and keywords lead to pages that exist, and every page is in the contents."""
    for file in ("contents.hhc", "keywords.hhk"):
        targets = LOCAL.findall((root / "help" / file).read_text(encoding="ascii"))
        yield from (f"{file} leads to {target}" for target in targets if dead(root, target))
        if file == "contents.hhc":
            yield from (f"{file} lacks {page}" for page in pages(root) if page not in targets)


def check_project(root):
    """The project lists every file of the help, and only those; every picture is used."""
    there = {file.relative_to(root / "help").as_posix()
             for pattern in ("*.html", "*.css", "images/*") for file in (root / "help").glob(pattern)}
    listed = project_files(root)
    yield from (f"{name} does not exist" for name in listed if name not in there)
    yield from (f"{name} is not listed" for name in sorted(there) if name not in listed)
    used = {link for source in pages(root).values() for link in Page(source).links}
    yield from (f"{name} is on no page" for name in sorted(there)
                if name.startswith("images/") and name not in used)


def sitemap(target):
    return f'<ul><li><object><param name="Name" value="A"><param name="Local" value="{target}"></object></ul>'


PICTURE = '<img src="images/a.png" width="3" height="2" alt="A">'
GOOD = {
    "localisation/TextTable.cpp": '{TextId::MenuFile, L"&File"},\n{TextId::FileOpen, L"&Open..."},\n',
    "settings/Settings.cpp": 'Field{ProgramSection, L"SortOrder", 1},\n',
    "help/a.html": f'<h1 id="top">A</h1>{PICTURE}<dfn>File</dfn> <dfn>Open...</dfn>'
                   '<a href="#top">A</a><a href="settings.html#b">B</a>\n',
    "help/settings.html": '<p id="b"><code>SortOrder</code></p>\n',
    "help/translate.html": "<p><code>French.lng</code></p>\n",
    "Languages/French.lng": "[UserLanguage]\n",
    "help/images/a.png": "\x00" * 16 + "\0\0\0\x03\0\0\0\x02",
    "help/contents.hhc": sitemap("a.html") + sitemap("settings.html") + sitemap("translate.html"),
    "help/keywords.hhk": sitemap("a.html#top"),
    "help/Readme.hhp": "[FILES]\na.html\nsettings.html\ntranslate.html\nimages/a.png\n",
}
# Per check: what replaces a file of the good help, and must be complained about.
BAD = {
    check_texts: [
        {"localisation/TextTable.cpp": '{TextId::MenuFile, L"&File"},\n{TextId::FileSave, L"&Save"},\n'},
        {"localisation/TextTable.cpp": "\n"},
        {"help/a.html": "File, Open\n"},
    ],
    check_terms: [{"help/settings.html": "<dfn>Fiel</dfn>\n"}],
    check_settings: [
        {"settings/Settings.cpp": 'Field{ProgramSection, L"SortedList", 1},\n'},
        {"settings/Settings.cpp": "\n"},
    ],
    check_languages: [
        {"Languages/Polish.lng": "[UserLanguage]\n"},
        {"help/translate.html": "<p>French</p>\n"},
    ],
    check_pages: [
        {"help/settings.html": '<a href="b.html">B</a>\n'},
        {"help/settings.html": '<a href="a.html#bottom">A</a>\n'},
        {"help/settings.html": PICTURE.replace('alt="A"', "")},
        {"help/settings.html": PICTURE.replace('"3"', '"4"')},
        {"help/settings.html": PICTURE.replace("a.png", "b.png")},
        {"help/settings.html": "<p><b>B</p>\n"},
        {"help/settings.html": "<p>B\n"},
        {"help/settings.html": "<p>\u00e9</p>\n"},
    ],
    check_contents: [
        {"help/contents.hhc": GOOD["help/contents.hhc"] + sitemap("b.html")},
        {"help/contents.hhc": sitemap("a.html")},
        {"help/keywords.hhk": sitemap("a.html#bottom")},
    ],
    check_project: [
        {"help/Readme.hhp": GOOD["help/Readme.hhp"] + "b.html\n"},
        {"help/Readme.hhp": "[FILES]\na.html\ntranslate.html\nimages/a.png\n"},
        {"help/a.html": "<p>A</p>\n"},
    ],
}


if __name__ == "__main__":
    sys.exit(samples.main(BAD, GOOD, "help "))
