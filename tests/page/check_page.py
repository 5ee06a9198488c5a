"""Looks at the page of keys in a real browser, on the screen and on paper.

Usage: check_page.py FOLDER, which holds the pages of the demonstration folder by language
("English.html"); pictures and PDF files are left there. Prints one line "ok ..." or "not ok ..." per
check, and one more for each wrong page, which shows that its check can fail. To be run by Debian's
Python, at the root of the repository.
"""

import sys
from pathlib import Path

import behaviour
import colours
import document
import looks
import printed
import wrong_pages
from browser import Browser
from model import model_of_demonstration

LANGUAGES = {"English": ("en", "ltr"), "Arabic": ("ar", "rtl"), "Japanese": ("ja", "ltr")}
WIDTHS = (1280, 390)


def report(name, complaints):
    complaints = list(complaints)
    print(f"{'not ok' if complaints else 'ok'} {name}", flush=True)
    for complaint in complaints[:10]:
        print(f"  {complaint}")
    return not complaints


def checks_of_document(browser, folder, model):
    """What each language's page says."""
    for language, (tag, direction) in LANGUAGES.items():
        path = folder / f"{language}.html"
        yield f"{language}: {first_line(document.check_source)}", document.check_source(
            path, tag, direction)
        browser.show(path)
        for check in document.CHECKS:
            yield f"{language}: {first_line(check)}", check(browser, model)


def checks_of_looks(browser, folder):
    for language in LANGUAGES:
        path = folder / f"{language}.html"
        for width in WIDTHS:
            browser.show(path, width=width)
            for check in looks.CHECKS:
                yield f"{language}, {width} wide: {first_line(check)}", check(browser)
            (folder / f"{language}-{width}.png").write_bytes(browser.picture())
        for paper in ("A4", "Letter"):
            browser.show(path)
            yield f"{language}, {paper}: {first_line(printed.check_paper)}", printed.check_paper(
                browser, folder / f"{language}-{paper}.pdf", paper)


def checks_of_english(browser, folder, model):
    path = folder / "English.html"
    for scheme, medium in (("light", "screen"), ("dark", "screen"), ("light", "print"),
                           ("dark", "print")):
        browser.show(path, scheme=scheme, medium=medium)
        for check in colours.CHECKS:
            yield f"{scheme} on {medium}: {first_line(check)}", check(browser)
        (folder / f"English-{scheme}-{medium}.png").write_bytes(browser.picture())
    for check in behaviour.CHECKS:
        browser.show(path)
        yield first_line(check), check(browser, model)
    browser.show(path, script=False)
    for check in document.CHECKS:
        yield f"without script: {first_line(check)}", check(browser, model)


def first_line(check):
    return check.__doc__.splitlines()[0].rstrip(".")


def main(folder):
    model = model_of_demonstration()
    browser = Browser()
    try:
        for make in (lambda: checks_of_document(browser, folder, model),
                     lambda: checks_of_looks(browser, folder),
                     lambda: checks_of_english(browser, folder, model),
                     lambda: wrong_pages.checks(browser, folder, model)):
            for name, complaints in make():
                report(name, complaints)
    finally:
        browser.close()


if __name__ == "__main__":
    sys.exit(main(Path(sys.argv[1])))
