"""What the page says, read from the document that a browser has made of it, against the model.

Each check takes the browser, in which the page is shown, and the model, and yields what is wrong.
"""

import re

import html5lib

from model import MODIFIERS, NAMES, shown_key

LARGEST = 400_000  # bytes

KEYBOARDS = """
return [...document.querySelectorAll('section.keyboard')].map(section => {
  const count = section.querySelector('.count');
  return {modifiers: section.dataset.modifiers, free: +count.dataset.free, all: +count.dataset.all,
          text: count.textContent,
          keys: [...section.querySelectorAll('g.key')].map(key => [key.dataset.key, key.dataset.use])};
});
"""
ROWS = """
return [...document.querySelectorAll(arguments[0] + ' tbody tr')].map(
  row => [row.dataset.key ?? null, [...row.cells].map(cell => cell.textContent.trim())]);
"""


def check_source(path, language, direction):
    """The file is strict HTML 5 of moderate size, in its language."""
    source = path.read_bytes()
    try:
        document = html5lib.HTMLParser(strict=True, namespaceHTMLElements=False).parse(source)
    except html5lib.html5parser.ParseError as error:
        yield f"it is not strict HTML: {error}"
        return
    if len(source) > LARGEST:
        yield f"it has {len(source)} bytes"
    if document.get("lang") != language or document.get("dir", "ltr") != direction:
        yield f"its language is {document.get('lang')}, {document.get('dir')}"
    identifiers = [element.get("id") for element in document.iter() if element.get("id")]
    yield from (f"the id {name} is there twice" for name in sorted(set(identifiers))
                if identifiers.count(name) > 1)


def modifiers_of(text):
    return frozenset(word for word in MODIFIERS if word in text)


def check_keyboards(browser, model):
    """Eight keyboards, those in use first, have every key once, with its use, and say how many are free."""
    keyboards = browser.ask(KEYBOARDS)
    sets = [modifiers_of(keyboard["modifiers"]) for keyboard in keyboards]
    if len(set(sets)) != 8 or len(sets) != 8:
        yield f"the keyboards are those of {sets}"
    for held, keyboard in zip(sets, keyboards):
        shown = {shown_key(key): use for key, use in keyboard["keys"]}
        expected = {(held, name): model.use((held, name)) for name in NAMES}
        if len(keyboard["keys"]) != len(NAMES) or shown.keys() != expected.keys():
            yield f"{set(held)}: other keys: {shown.keys() ^ expected.keys()}"
        yield from (f"{key[1]} with {set(held)} is {shown[key]}, not {expected[key]}"
                    for key in shown.keys() & expected.keys() if shown[key] != expected[key])
        free = len(model.free(held))
        if (keyboard["free"], keyboard["all"]) != (free, len(NAMES)):
            yield f"{set(held)}: {keyboard['free']} of {keyboard['all']} free, not {free}"
        if not {str(free), str(len(NAMES))} <= set(re.findall(r"\d+", keyboard["text"])):
            yield f"{set(held)}: the count says {keyboard['text']}"
    used = [len(model.free(held)) < len(NAMES) for held in sets]
    if used != sorted(used, reverse=True):
        yield f"an unused keyboard stands before a used one: {sets}"


def check_other_keys(browser, model):
    """Keys that no keyboard has are shown beside them, once."""
    shown = browser.ask("return [...document.querySelectorAll('[data-key]:not(tr)')]"
                        ".filter(key => !key.closest('section.keyboard')).map(key => key.dataset.key);")
    expected = {key for key in model.keys() if key[1] not in NAMES}
    if len(shown) != len(expected) or {shown_key(text) for text in shown} != expected:
        yield f"other keys are {shown}, not {expected}"


def check_key_table(browser, model):
    """The table by key has every key that is held once, with all its holders."""
    rows = browser.ask(ROWS, "#by-key")
    shown = [shown_key(key) for key, _ in rows if key]
    yield from (f"{key} is there twice" for key in sorted(set(shown), key=str) if shown.count(key) > 1)
    if set(shown) != model.keys():
        yield f"it has other keys: {set(shown) ^ model.keys()}"
    for key, cells in rows:
        text = " ".join(cells)
        yield from (f"{holder} is no holder of {key}" for holder in model.holders(shown_key(key))
                    if holder not in text)


def check_command_table(browser, model):
    """The table by command has every command once, under its heading, with its description."""
    rows = [cells for _, cells in browser.ask(ROWS, "#by-command")]
    whole = browser.ask("return document.querySelector('#by-command').textContent;")
    if len(rows) < len(model.commands):
        yield f"it has {len(rows)} rows"
    for name, _, description in model.commands:
        found = [cells for cells in rows if name in cells]
        if len(found) != 1 or description not in found[0]:
            yield f"{name} is in {found}"
    yield from (f"{heading} is missing" for heading in model.headings
                if heading.strip("[]_ ") not in whole)


def check_saved(browser, _model):
    """What is read from a file is saved."""
    if browser.ask("return document.getElementById('unsaved') !== null;"):
        yield "it says that keys are not saved"


CHECKS = (check_keyboards, check_other_keys, check_key_table, check_command_table, check_saved)
