"""Pages that are wrong in one thing each, made from the right one, and the check that must complain."""

import behaviour
import colours
import document
import looks
import printed

HEAD = "</head>"


def with_style(rules):
    return lambda page: page.replace(HEAD, f"<style>{rules}</style>{HEAD}", 1)


def with_policy_gone(page):
    start = page.index("<meta http-equiv=")
    return page[:start] + page[page.index(">", start) + 1:]


def replaced(old, new):
    return lambda page: page.replace(old, new, 1)


# The check, and what makes a page wrong.
WRONG = (
    (document.check_source, replaced("<html", "<html id=search")),
    (document.check_source, replaced("</p>", "</q>")),
    (document.check_source, replaced("</body>", " " * document.LARGEST + "</body>")),
    (document.check_keyboards, replaced('data-key="F1" data-use="default"', 'data-key="F1" data-use="user"')),
    (document.check_keyboards, replaced('data-free="', 'data-free="1')),
    (document.check_other_keys, replaced('data-key="Ctrl + OEM_5"', 'data-key="Ctrl + OEM_6"')),
    (document.check_key_table, replaced('<tr data-key="Ctrl + C"', '<tr data-key="Ctrl + OEM_7"')),
    (document.check_command_table, replaced("Active panel: folder tree", "")),
    (document.check_saved, replaced("</h1>", '</h1><p id="unsaved">')),
    (looks.check_width, replaced("</body>", '<div style="width: 3000px">.</div></body>')),
    (looks.check_cut, with_style(".count { width: 2em; overflow: hidden; white-space: nowrap; }")),
    (looks.check_cut, with_style("g.key text { font-size: 40px; }")),
    (looks.check_columns, with_style("#by-command thead { display: none; }")),
    (looks.check_mirror, with_style(".board svg { transform: scaleX(-1); }")),
    (colours.check_colours, with_style("[data-use=user] { filter: invert(1); }")),
    (colours.check_colours, with_style("#legend, .keyboard { filter: contrast(0.1); }")),
    (behaviour.check_requests, with_policy_gone),
    (behaviour.check_search, replaced("<script>", "<script>throw 0;")),
    (behaviour.check_links, replaced("if (link)", "if (false)")),
    (behaviour.check_tip, replaced("<script>", "<script>throw 0;")),
    (printed.check_paper, with_style("@media print { section { break-inside: auto !important; "
                                     "margin-top: 63mm !important; } }")),
    (printed.check_paper, with_style("@page { size: portrait !important; }")),
)


def complaints_of(check, browser, path, model):
    if check is document.check_source:
        return check(path, "en", "ltr")
    browser.show(path)
    if check is printed.check_paper:
        return check(browser, path.with_suffix(".pdf"), "A4")
    return check(browser, model) if check.__module__ in ("document", "behaviour") else check(browser)


def checks(browser, folder, model):
    """For each wrong page that its check takes for a right one, or that is none, a complaint."""
    right = (folder / "English.html").read_bytes().decode("utf-8")
    path = folder / "wrong.html"
    for number, (check, spoil) in enumerate(WRONG, 1):
        wrong = spoil(right)
        path.write_bytes(wrong.encode("utf-8"))
        # The first complaint is enough: some checks wait for what never comes.
        is_found = wrong != right and any(complaints_of(check, browser, path, model))
        yield f"wrong page {number} is found by {check.__name__}", [] if is_found else ["it is not"]
