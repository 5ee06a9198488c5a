"""The colours of keys: those of the legend, different for each use, in greys too, and legible.

Each check takes the browser, in which the page is shown, and yields what is wrong.
"""

import io
from collections import Counter
from itertools import combinations

from PIL import Image, ImageChops, ImageStat

USES = ("free", "default", "user", "over", "startmenu")
SMALLEST_DIFFERENCE = 6  # of greys, of 255; the mean of all places, so that a pattern counts
SMALLEST_CONTRAST = 4.5

SWATCHES = "return [...document.querySelectorAll('#legend svg')].map(svg => place(svg));"
# Every key, its use, and where its shape stands.
KEYS = """
return [...document.querySelectorAll('section.keyboard g.key')].map(
  key => [key.dataset.key, key.dataset.use, place(key.querySelector('use, rect'))]);
"""
PLACE = """
const place = element => {
  const box = element.getBoundingClientRect();
  return [box.left + scrollX, box.top + scrollY, box.right + scrollX, box.bottom + scrollY];
};
"""
TEXTS = """
return [...document.querySelectorAll('section.keyboard g.key text')].map(text => {
  const [red, green, blue] = getComputedStyle(text).fill.match(/[\\d.]+/g).map(Number);
  return [text.closest('.key').dataset.use, [red, green, blue]];
});
"""


def pieces(picture, places):
    """Without the edge, which is drawn with blurred lines."""
    for left, top, right, bottom in places:
        yield picture.crop((round(left) + 3, round(top) + 3, round(right) - 3, round(bottom) - 3))


def main_colours(piece):
    """The colours that make up most of a piece: one, or two where it is hatched."""
    counts = Counter(piece.getdata()).most_common(2)
    return [colour for colour, count in counts if count > piece.width * piece.height / 8]


def luminance(colour):
    def linear(part):
        part /= 255
        return part / 12.92 if part <= 0.03928 else ((part + 0.055) / 1.055) ** 2.4
    red, green, blue = map(linear, colour[:3])
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue


def contrast(one, other):
    lighter, darker = sorted((luminance(one), luminance(other)), reverse=True)
    return (lighter + 0.05) / (darker + 0.05)


def check_colours(browser):
    """The uses differ in greys, keys have the colours of the legend, and their names can be read."""
    picture = Image.open(io.BytesIO(browser.picture())).convert("RGB")
    swatches = dict(zip(USES, pieces(picture, browser.ask(PLACE + SWATCHES))))
    if len(swatches) != len(USES):
        yield f"the legend has {len(swatches)} entries"
        return
    for one, other in combinations(USES, 2):
        size = swatches[one].size
        difference = ImageStat.Stat(ImageChops.difference(
            swatches[one].convert("L"), swatches[other].convert("L").resize(size))).mean[0]
        if difference < SMALLEST_DIFFERENCE:
            yield f"in greys {one} and {other} differ by {difference:.1f}"
    colours = {use: main_colours(swatch) for use, swatch in swatches.items()}
    keys = browser.ask(PLACE + KEYS)
    for (key, use, _), piece in zip(keys, pieces(picture, [place for *_, place in keys])):
        if not set(main_colours(piece)) & set(colours[use]):
            yield f"{key} is {main_colours(piece)}, and {use} {colours[use]}"
    for use, colour in sorted({(use, tuple(colour)) for use, colour in browser.ask(TEXTS)}):
        worst = min(contrast(colour, fill) for fill in colours[use])
        if worst < SMALLEST_CONTRAST:
            yield f"the contrast of {use} is {worst:.1f}"


CHECKS = (check_colours,)
