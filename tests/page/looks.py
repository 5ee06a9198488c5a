"""How the page looks: nothing is too wide, cut or mirrored, and headings tell what cells hold.

Each check takes the browser, in which the page is shown, and yields what is wrong.
"""

WIDE = "return [document.documentElement.scrollWidth, document.body.scrollWidth, innerWidth];"
# Texts that stick out of a box that cuts them, unless it can be scrolled.
CUT = """
const cut = [];
for (const element of document.querySelectorAll('body *')) {
  const style = getComputedStyle(element);
  const cuts = value => value === 'hidden' || value === 'clip';
  if (element instanceof SVGElement || !element.textContent.trim() || style.display === 'inline') continue;
  if (element.clientWidth < 2) continue;  // for screen readers
  if (cuts(style.overflowX) && element.scrollWidth > element.clientWidth + 1 ||
      cuts(style.overflowY) && element.scrollHeight > element.clientHeight + 1)
    cut.push(element.textContent.trim().slice(0, 60));
}
for (const key of document.querySelectorAll('g.key')) {
  const shape = key.querySelector('use, rect').getBoundingClientRect();
  for (const text of key.querySelectorAll('text')) {
    const box = text.getBoundingClientRect();
    if (box.width && (box.left < shape.left - 1 || box.right > shape.right + 1 ||
                      box.top < shape.top - 1 || box.bottom > shape.bottom + 1))
      cut.push(key.dataset.key + ': ' + text.textContent);
  }
}
return cut;
"""
PLACES = """
return [...document.querySelectorAll('section.keyboard')].map(section => {
  const left = name => [...section.querySelectorAll('g.key')].find(
    key => key.dataset.key.split(' + ').pop() === name).getBoundingClientRect().left;
  return [section.dataset.modifiers, left('Q'), left('P'), left('F1'), left('F12'), left('DEL')];
});
"""
# Of the headings of all commands, and of the cells of one: where they begin, and how bold they are.
COLUMNS = """
const looks = cells => [...cells].filter(cell => cell.checkVisibility()).map(cell =>
  [Math.round(cell.getBoundingClientRect().left), getComputedStyle(cell).fontWeight]);
const row = [...document.querySelectorAll('#by-command tr[id]')].find(
  row => [...row.cells].every(cell => cell.textContent));
return [looks(document.querySelectorAll('#by-command thead th')), looks(row.cells)];
"""


def check_width(browser):
    """The page is not wider than the window."""
    document, body, window = browser.ask(WIDE)
    if max(document, body) > window:
        yield f"it is {max(document, body)} wide"


def check_cut(browser):
    """No text is cut by its box or sticks out of its key."""
    yield from browser.ask(CUT)


def check_mirror(browser):
    """Keyboards are never mirrored."""
    for modifiers, q, p, first, last, delete in browser.ask(PLACES):
        if not (q < p < delete and first < last):
            yield f"{modifiers}: Q at {q}, P at {p}, F1 at {first}, F12 at {last}, DEL at {delete}"


def check_columns(browser):
    """The headings tell the default keys of a command from its current ones."""
    headings, cells = browser.ask(COLUMNS)
    if headings != cells:
        yield f"the headings look as {headings}, and the cells as {cells}"
    if cells[2] == cells[3]:
        yield f"default and current keys both look as {cells[2]}"


CHECKS = (check_width, check_cut, check_mirror, check_columns)
