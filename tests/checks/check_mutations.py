"""Checks which changes tests/mutants.py makes to samples of code: those that it should, and no others;
and that a warning does not keep it from trying one.

Prints one line "ok ..." or "not ok ..." for each sample. Run at the root of the repository.
"""

import re
import sys
from pathlib import Path

import samples

sys.path.insert(0, str(Path(__file__).parents[1]))
from mutants import content_of  # noqa: E402
from mutations import changed_lines, line_of, mutants_of  # noqa: E402

# A line, and what it becomes.
CHANGES = {
    "if (a < b) f();": [
        "if (a <= b) f();", "if (a >= b) f();", "if (a < b) {}"],
    "const bool c = a == b && !d;": [
        "const bool c = a != b && !d;", "const bool c = a == b || !d;", "const bool c = a == b && d;"],
    "if (IsFree(key)) return size - 1;": [
        "if (!(IsFree(key))) return size - 1;", "if (IsFree(key)) return {};",
        "if (IsFree(key)) return size + 1;", "if (IsFree(key)) return size - 0;"],
    "  row.Icon = RowIcon::None;": ["{}"],
    "  files.Remove(Path(name)).Tell(\n      [] { Say(); });": [
        "{}", "[] { {} });"],
    "for (std::size_t i = 0; i < 10; ++i) sum += 10;": [
        "for (std::size_t i = 1; i < 10; ++i) sum += 10;", "for (std::size_t i = 0; i <= 10; ++i) sum += 10;",
        "for (std::size_t i = 0; i >= 10; ++i) sum += 10;", "for (std::size_t i = 0; i < 10; --i) sum += 10;",
        "for (std::size_t i = 0; i < 10; ++i) {}", "for (std::size_t i = 0; i < 10; ++i) sum -= 10;"],
    "if (busy) return false;": ["if (!(busy)) return false;", "if (busy) return true;"],
    'const std::vector<int> text = U"a < b" /* 0 */;  // true && false': [],
    "  const Busy busy(state);": [],
    "  ids.reserve(count);": [],
    "return std::nullopt;": [],
    "return FALSE;": [],
    r"return L'\0';": [],
    "return L'x';": ["return {};"],
    "#include <vector>  // 1": [],
    "  PostMessageW(Owner(window), WM_CLOSE, 0, 0);": ["{}"],
    "  SendMessageW(list, WM_ACTIVATE, 0, 0), Send(0);": [
        "SendMessageW(list, WM_ACTIVATE, 0, 0), Send(1);"],
    "  SetWindowPos(window, nullptr, 0, 0, width, 0, SWP_NOMOVE);": [
        "{}", "SetWindowPos(window, nullptr, 0, 0, width, 1, SWP_NOMOVE);"],
    "  SetWindowPos(window, HWND_TOP, 0, 0, 0, 0,\n      SWP_NOMOVE | SWP_NOSIZE);": ["{}"],
    "  SetWindowPos(window, nullptr, 0, Top(window), 0, 0,\n      SWP_NOSIZE);": [
        "{}", "SetWindowPos(window, nullptr, 1, Top(window), 0, 0,"],
    "static_assert(size ==\n              1);": [],
    "[[nodiscard]] bool Find(int first = 0) const;": [],
    "virtual void Stop() = 0;": [],
}


def differences(line, expected):
    # Something has to stand before a statement.
    text = f"void F() {{\n{line}\n}}\n"
    mutants = mutants_of("a.cpp", text)
    made = [changed_lines(text, mutant)[1] for mutant in mutants]
    yield from (f"missing: {after}" for after in expected if after not in made)
    yield from (f"not wanted: {after}" for after in made if after not in expected)
    yield from (f"in line {line_of(text, mutant.begin)}" for mutant in mutants
                if not 1 < line_of(text, mutant.begin) < text.count("\n"))


def main():
    good = [samples.report(f"mutations of {line!r}", list(differences(line, expected)))
            for line, expected in CHANGES.items()]
    seen = list(differences("a = 0;", [])) and list(differences("Stop();", ["{}", "Go();"]))
    good.append(samples.report("mutations: a missing one and one too many are seen", [] if seen else ["none"]))
    werror = re.findall(r'"TESSERA_WERROR": "(\w+)"', content_of("CMakePresets.json").decode())
    good.append(samples.report("mutations: a warning is no error", [] if werror == ["OFF"] else werror or ["none"]))
    return 0 if all(good) else 1


if __name__ == "__main__":
    sys.exit(main())
