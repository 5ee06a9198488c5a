"""What the page does: it finds, it tells of a key, and it asks for nothing outside itself.

Each check takes the browser, in which the page is shown, and the model, and yields what is wrong.
"""

from model import MODIFIERS, NAMES, shown_key

SEARCH = """
const search = document.getElementById('search');
search.value = arguments[0];
search.dispatchEvent(new Event('input', {bubbles: true}));
const rows = table => [...document.querySelectorAll(`#${table} tbody tr`)]
  .filter(row => row.checkVisibility() && !row.closest('[hidden]') && row.cells.length > 1);
return {keys: rows('by-key').map(row => row.dataset.key),
        commands: rows('by-command').map(row => row.textContent),
        found: [...document.querySelectorAll('.key.found')].map(key => key.dataset.key)};
"""
# Gives what is refused of an attempt to load something.
FETCH = """
const done = arguments[arguments.length - 1];
const refused = [];
document.addEventListener('securitypolicyviolation', event => refused.push(event.violatedDirective));
document.body.append(Object.assign(new Image(), {src: 'http://127.0.0.1:9/picture.png'}));
fetch('http://127.0.0.1:9/data').catch(() => 0).then(() => setTimeout(() => done(refused), 50));
"""
# What can be seen after a key was pointed at, or tapped, that was not to be seen before.
SEEN = """
const tip = [...document.querySelectorAll('body *')].filter(
  element => getComputedStyle(element).position === 'fixed' && element.checkVisibility());
return tip.map(element => element.innerText).join(' ');
"""
# Follows the name in a row of the table by key, and gives what can then be seen of the command's row.
FOLLOW = """
const [key, name] = arguments;
const row = [...document.querySelectorAll('#by-key tr')].find(row => row.dataset.key === key);
const link = [...row.querySelectorAll('a')].find(link => link.textContent === name);
link.click();
const target = document.querySelector(':target');
return target !== null && target.checkVisibility() ? target.textContent : '';
"""


def commands_with(model, words):
    """The names of commands whose own texts hold all words."""
    return {name for name, _, description in model.commands
            if all(word in f"{name} {description}".lower() for word in words.lower().split())}


def check_search(browser, model):
    """The search narrows both tables to what matches, and marks those keys on the keyboards."""
    everything = browser.ask(SEARCH, "")
    if len(everything["commands"]) != len(model.commands) or everything["found"]:
        yield f"without words it shows {len(everything['commands'])}, {everything['found']}"
    for words in ("compare", "NAMES Copy", "no such word"):
        expected = commands_with(model, words)
        told = browser.ask(SEARCH, words)
        if len(told["commands"]) != len(expected) or not all(
                any(name in text for text in told["commands"]) for name in expected):
            yield f"{words}: {told['commands']} instead of {expected}"
        keys = {key for key in model.keys() if model.holders(key) & expected}
        if {shown_key(key) for key in told["keys"]} != keys:
            yield f"{words}: keys {told['keys']} instead of {keys}"
        if {shown_key(key) for key in told["found"]} != keys:
            yield f"{words}: marks {told['found']} instead of {keys}"
    key, (name, *_) = next(iter(model.user.items()))
    told = browser.ask(SEARCH, " + ".join((*(word for word in MODIFIERS if word in key[0]), key[1])))
    if key not in map(shown_key, told["keys"]) or not any(name in text for text in told["commands"]):
        yield f"{key} is not found by its own name"
    if browser.ask(SEARCH, "") != everything:
        yield "an emptied search does not show everything again"


def check_tip(browser, model):
    """Pointing at a key, tapping it, and going to it by keyboard tell the command and the description."""
    key, (name, *_) = next((key, names) for key, names in model.user.items()
                           if key in model.default and key[1] in NAMES)
    description = next(text for command, _, text in model.commands if command == name)
    element = next(element for element in browser.keys()
                   if shown_key(element.get_attribute("data-key")) == key)
    for way in (browser.point_at, browser.tap, browser.focus):
        browser.leave()
        if name in browser.ask_until(SEEN, lambda seen: name not in seen):
            yield f"{way.__name__}: {name} was seen before"
        way(element)
        seen = browser.ask_until(SEEN, lambda seen: name in seen)
        yield from (f"{way.__name__}: {text} is missing in {seen!r}"
                    for text in (name, description, *model.default[key]) if text not in seen)


def check_links(browser, model):
    """A name in the table by key leads to its command, also to one that the search has hidden."""
    for key, (own, *_) in model.user.items():
        for default in model.default.get(key, ()):
            shown = next(row for row in browser.ask(SEARCH, own)["keys"] if shown_key(row) == key)
            for name in (own, default):
                if name not in browser.ask(FOLLOW, shown, name):
                    yield f"{shown}, in a search for {own}: {name} leads nowhere"


def check_requests(browser, _model):
    """The page asks for nothing but itself, and its policy refuses to."""
    asked = [address for address in browser.requests() if not address.startswith("data:")]
    yield from (f"{address} was asked for" for address in asked if address != browser.address)
    if browser.address not in asked:
        yield "the page itself was not asked for"
    refused = browser.wait_for(FETCH)
    if not {"img-src", "connect-src"} <= set(refused):
        yield f"the policy refuses {refused} alone"


CHECKS = (check_requests, check_search, check_links, check_tip)
