"""The page on paper, read from the words of its PDF files."""

import re
import subprocess

# Words in the heading and in two corners of each keyboard, to be found again on paper.
MARK = """
document.querySelectorAll('section.keyboard').forEach((section, number) => {
  const drawing = section.querySelector('svg');
  const {width, height} = drawing.viewBox.baseVal;
  const mark = (name, x, y) => {
    const text = document.createElementNS('http://www.w3.org/2000/svg', 'text');
    text.textContent = `${name}-${number}`;
    text.setAttribute('x', x);
    text.setAttribute('y', y);
    text.setAttribute('font-size', 5);
    drawing.append(text);
  };
  mark('first', 1, 6);
  mark('last', width - 30, height - 1);
  section.querySelector('h2').append(` heading-${number}`);
});
"""
PARTS = ("heading", "first", "last")


def pages_of(pdf):
    """The size of each page, and its words with their places."""
    told = subprocess.run(["pdftotext", "-bbox", str(pdf), "-"], capture_output=True, text=True,
                          check=True).stdout
    for page in re.findall(r"<page .*?</page>", told, re.S):
        size = [float(number) for number in re.findall(r'(?:width|height)="([\d.]+)"', page)[:2]]
        yield size, [(word, [float(place) for place in places])
                     for *places, word in re.findall(
                         r'<word xMin="([-\d.]+)" yMin="([-\d.]+)" xMax="([-\d.]+)" yMax="([-\d.]+)">'
                         r"(.*?)</word>", page)]


def check_paper(browser, path, paper):
    """Pages lie on their side, each keyboard is whole on one of them, and no word leaves its page."""
    browser.ask(MARK)
    browser.print(path, paper)
    page_of = {}
    for number, ((width, height), words) in enumerate(pages_of(path), 1):
        if width < height:
            yield f"{paper}, page {number} stands upright"
        yield from (f"{paper}, page {number}: {word} leaves it" for word, place in words
                    if min(place) < 0 or place[2] > width or place[3] > height)
        page_of |= {word: number for word, _ in words}
    for keyboard in range(8):
        pages = [page_of.get(f"{part}-{keyboard}") for part in PARTS]
        if None in pages or len(set(pages)) != 1:
            yield f"{paper}: parts of keyboard {keyboard} are on pages {pages}"
