"""Who holds which key in a Total Commander folder, told from its files alone, by rules of their own.

A key is a pair: its modifiers as a frozenset, and its name in capitals.
"""

import re
from collections import defaultdict
from pathlib import Path

MODIFIERS = ("Ctrl", "Alt", "Shift")
NAMES = ([f"F{number}" for number in range(1, 13)] + [chr(letter) for letter in range(65, 91)]
         + [str(digit) for digit in range(10)]
         + "INS DEL HOME END PGUP PGDN SPACE BACK TAB".split()
         + [f"NUM {sign}" for sign in "+-*/"] + "ENTER ESC LEFT RIGHT UP DOWN".split())


def shown_key(text):
    """The key that a page shows as "Ctrl + Num +"."""
    modifiers = set()
    while match := re.match(r"(Ctrl|Alt|Shift) \+ (?=.)", text):
        modifiers.add(match[1])
        text = text[match.end():]
    return frozenset(modifiers), text.upper()


def decoded(value):
    mark = b"\xef\xbb\xbf"
    return value[3:].decode("utf-8") if value.startswith(mark) else value.decode("cp1252")


def section(path, name):
    """Keys and values of the first section of that name, in file order."""
    inside, entries = False, []
    for line in path.read_bytes().splitlines():
        line = line.strip()
        if line.startswith(b"["):
            if inside:
                break
            inside = line.decode("latin-1").lower() == f"[{name.lower()}]"
        elif inside and b"=" in line and not line.startswith(b";"):
            key, value = line.split(b"=", 1)
            entries.append((decoded(key.strip()), decoded(value.strip())))
    return entries


def native_key(text):
    """The key that Wincmd.ini writes as "CA+F1"."""
    letters, plus, name = text.partition("+")
    if not plus or not name:
        letters, name = "", text
    modifiers = frozenset(word for word in MODIFIERS if word[0] in letters)
    return modifiers, named(name)


def named(name):
    name = name.strip().upper()
    return f"NUM {name}" if name in ("+", "-", "*", "/") else name


def default_key(text):
    """The key that the file of default keys writes as "Ctrl+Shift+F1"."""
    modifiers = frozenset(word for word in MODIFIERS if word.lower() in text.lower())
    text = text.strip()
    name = text[text.rfind("+", 0, len(text) - 1) + 1:] if modifiers else text
    return modifiers, named(name)


class Model:
    def __init__(self, commander, default_keys):
        self.commands, self.headings = [], []  # commands: name, number, description
        for line in (commander / "Totalcmd.inc").read_text("cp1252").splitlines():
            line = line.strip()
            if line.lower().startswith("cm_"):
                name, rest = line.split("=", 1)
                number, description = rest.split(";", 1)
                self.commands.append((name.strip(), number.strip(), description.strip()))
            elif line:
                self.headings.append(line.rpartition("=")[0])
        self.user, self.default = defaultdict(list), defaultdict(list)
        self.startmenu = {}
        self.read_default_keys(default_keys)
        self.read_wincmd_ini(commander / "Wincmd.ini")

    def read_default_keys(self, path):
        keys = dict(section(path, "TC Default Hotkeys"))
        for name, number, _ in self.commands:
            for piece in keys.get(number, "").split("="):
                if piece.strip():
                    self.default[default_key(piece)].append(name)

    def read_wincmd_ini(self, path):
        for key, value in section(path, "Shortcuts"):
            name = next((name for name, number, _ in self.commands
                         if value.lower() in (name.lower(), number)), None)
            if name:
                self.user[native_key(key)].append(name)
        entries = dict(section(path, "user"))
        number = 1
        while caption := entries.get(f"menu{number}"):
            slot = int(entries.get(f"key{number}") or 0)
            if slot:
                modifiers = ("Ctrl", "Alt") if slot <= 12 else MODIFIERS
                self.startmenu[frozenset(modifiers), f"F{(slot - 1) % 12 + 1}"] = caption
            number += 1

    def keys(self):
        return set(self.user) | set(self.default) | set(self.startmenu)

    def holders(self, key):
        """Names of commands, and captions of the Start menu."""
        return (set(self.user.get(key, ())) | set(self.default.get(key, ()))
                | ({self.startmenu[key]} if key in self.startmenu else set()))

    def use(self, key):
        if key in self.user:
            return "over" if key in self.default else "user"
        if key in self.startmenu:
            return "startmenu"
        return "default" if key in self.default else "free"

    def free(self, modifiers):
        return [name for name in NAMES if self.use((frozenset(modifiers), name)) == "free"]


def model_of_demonstration():
    return Model(Path("demo"), Path("Data Files/tc default hotkeys.hky"))

