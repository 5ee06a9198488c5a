"""The small changes to a source that tests/mutants.py tries."""

import re
from collections import namedtuple

Mutant = namedtuple("Mutant", "file begin end text")

# What a pattern finds becomes each of the texts. Operators stand between blanks, as the formatter
# puts them; so "<" of a template is none.
SWAPS = [(rf"(?<=\s){re.escape(found)}(?=\s)", texts) for found, texts in {
    "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="], ">=": [">", "<"],
    "==": ["!="], "!=": ["=="], "&&": ["||"], "||": ["&&"],
    "+": ["-"], "-": ["+"], "+=": ["-="], "-=": ["+="]}.items()]
SWAPS += [(r"\+\+", ["--"]), (r"(?<![-\w])--", ["++"]), (r"!(?=[\w(])", [""]),
          (r"\btrue\b", ["false"]), (r"\bfalse\b", ["true"]),
          (r"(?<![\w.'])0(?![\w.'])", ["1"]), (r"(?<![\w.'])1(?![\w.'])", ["0"])]

# A statement begins after another one, a bracket or "else". To reserve memory changes no result.
BEGINS = r"(?:(?<=[;{})])|(?<=else))\s+"
CALL = re.compile(
    BEGINS + r"((?:static_cast<void>\()?(?:[\w:]+(?:\.|->))*(?!reserve)[\w:]+(?:<[\w:, ]+>)?\()")
ASSIGNMENT = re.compile(BEGINS + r"([\w.>\[\]*-]+ [-+|&]?= [^;{}]*;)")
RETURN = re.compile(r"\breturn ([^;{}]+);")
CONDITION = re.compile(r"\bif \(")
DECIDES = re.compile(r"\s(?:[=!]=|[<>]=?|&&|\|\||=)\s|!")
# The default of its type, or the name of a value that may be.
MAYBE_DEFAULT = re.compile(
    r"""(?:0|false|FALSE|true|1|nullptr|std::nullopt|L?""|L?'\\0'|[A-Z]\w*(?:::\w+)+)$""")
# Numbers that the system does not look at: the parameters of a message that has none, and the place or
# the size of a window that keeps it.
IGNORED = re.compile(
    r"\b(?:Send|Post)MessageW\([^;]*?,\s+(0,\s+0)\)"
    r"|\bSetWindowPos\([^;]*?,\s+(0, 0),\s+(?=[^;]*\bSWP_NOMOVE)(?:(0, 0),\s+(?=[^;]*\bSWP_NOSIZE))?"
    r"|\bSetWindowPos\([^;]*?,\s+(0, 0),\s+(?=SWP_NOSIZE)")
WITHOUT_CODE = re.compile(
    r'//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|(?<!\w)\'(?:\\.|[^\'\\\n])+\''
    r"|^[ ]*#[^\n]*|\bstatic_assert\(.*?\);|\[\[nodiscard\]\][^;{]*;|\)(?: const)? = 0;", re.M | re.S)


def code_alone(text):
    """The text with blanks for comments, literals, directives and declarations, each as long."""
    return WITHOUT_CODE.sub(lambda found: re.sub(r"[^\n]", " ", found[0]), text)


def end_of_bracket(code, begin):
    """The place after the bracket that closes the one at `begin`."""
    depth = 0
    for place in range(begin, len(code)):
        depth += (code[place] == "(") - (code[place] == ")")
        if depth == 0:
            return place + 1
    return len(code)


def mutants_of(file, text):
    """All changes to the text of one file, in the order of their places."""
    code = code_alone(text)
    found = [Mutant(file, match.start(), match.end(), new)
             for pattern, texts in SWAPS for match in re.finditer(pattern, code) for new in texts]
    for match in CONDITION.finditer(code):
        begin, end = match.end(), end_of_bracket(code, match.end() - 1) - 1
        if not DECIDES.search(code[begin:end]):  # else a part of it is changed anyway
            found.append(Mutant(file, begin, end, f"!({text[begin:end]})"))
    for match in CALL.finditer(code):
        end = end_of_bracket(code, match.end() - 1)
        while chained := re.match(r"\s*(?:\.|->)\w+\(", code[end:]):
            end = end_of_bracket(code, end + chained.end() - 1)
        if code[end:end + 1] == ";":
            found.append(Mutant(file, match.start(1), end + 1, "{}"))
    for match in ASSIGNMENT.finditer(code):
        found.append(Mutant(file, *match.span(1), "{}"))
    for match in RETURN.finditer(code):
        if not MAYBE_DEFAULT.match(text[match.start(1):match.end(1)]):
            found.append(Mutant(file, *match.span(1), "{}"))
    ignored = {place for match in IGNORED.finditer(code)
               for group in range(1, 1 + IGNORED.groups) for place in range(*match.span(group))}
    return sorted({mutant for mutant in found if mutant.begin not in ignored},
                  key=lambda mutant: mutant[1:])


def line_of(text, place):
    return text.count("\n", 0, place) + 1


def changed_lines(text, mutant):
    """The lines that a mutant changes, before and after it, each as one line."""
    begin = text.rfind("\n", 0, mutant.begin) + 1
    end = text.find("\n", mutant.end)
    before = text[begin:end]
    after = text[begin:mutant.begin] + mutant.text + text[mutant.end:end]
    return " ".join(before.split()), " ".join(after.split())
