"""Checks what the compiler cannot: which file may name what, include what, and how it looks.

Prints one line "ok ..." or "not ok ..." per check, and one more for each sample of wrong code that
shows that the check can fail. Run at the root of the repository.
"""

import re
import subprocess
import sys
from itertools import accumulate
from pathlib import Path

import samples

# Lower folders first. A folder includes those of lower ranks and, in no circle, of its own.
RANKS = {
    "text": 0, "platform": 1, "settings/ini": 2, "settings": 3, "settings/commander": 4,
    "shortcuts": 5, "localisation": 5,
    "editing": 6, "export": 6, "options": 6, "recent": 6, "dialogs": 6, "app": 7,
}
# The numbers of controls, commands and icons: they include nothing, and only windows and the tables
# behind the main window need them.
NUMBERS = "resources"
PRODUCT_FOLDERS = sorted({folder.split("/")[0] for folder in RANKS} | {NUMBERS})
CODE_FOLDERS = [*PRODUCT_FOLDERS, "tests", "benchmarks"]

# What else than the program's own folders each part of the tests and benchmarks may include.
BESIDES_PRODUCT = {
    "tests/support": set(),
    "tests/fuzz": {"tests/support"},
    "tests/unit": {"tests/support", "tests/fuzz"},
    "tests/e2e": {"tests/support"},
    "benchmarks": {"tests/support"},
}

# Tests that are not named after one source file, and why.
OTHER_TESTS = {
    "command_list_search": "searches in the command list, whose other tests are long",
    "conflict_model": "holds the whole program to a model of its rules over random edits",
    "growth": "counts what the operations of the whole program run",
    "fuzz_regressions": "replays what the fuzzers found, over all readers",
    "hostile_values": "gives the whole program values that no one should store",
    "ini_properties": "holds the whole INI engine to a second reader, over random files",
    "kept_changes": "keeps beside the file what an end of the whole program would lose",
    "language_in_use": "starts and changes the language of the whole program",
    "other_programs": "lets another program hold and change every file that is saved",
    "profile_oracle": "compares the whole INI engine with the profile functions of the system",
    "profile_windows_cases": "holds the whole INI engine to what was measured on Windows",
    "save_and_restart": "saves with the whole program while Total Commander runs",
    "save_faults": "fails every file operation of every way of saving",
    "shipped_data": "reads the data files that are shipped, and no code of its own",
    "shipped_languages": "reads the language files that are shipped, and no code of its own",
    "twice_held_keys": "saves with the whole program what two rows hold",
    "unread_files": "opens with the whole program what cannot be read",
    "unsaved_content": "looks at what every way of saving leaves when it fails",
}

WINDOWS_TYPES = re.compile(
    r"\b(?:HWND|WPARAM|LPARAM|LRESULT|HRESULT|LSTATUS|HKEY|HANDLE|HMODULE|HINSTANCE|HMENU|HDC|HFONT"
    r"|HICON|HCURSOR|HBITMAP|HBRUSH|HGLOBAL|HGDIOBJ|HMONITOR|HIMAGELIST|HACCEL|HRSRC|HTREEITEM"
    r"|WORD|DWORD|DWORD_PTR|ULONG|LONG|LONG_PTR|UINT|UINT_PTR|INT_PTR|BYTE|BOOL|CHAR|WCHAR|TCHAR"
    r"|LPC?W?STR|PC?W?STR|LPC?TSTR|LPVOID|COLORREF|RECT|POINT|MSG|ATOM|LOGFONT[AW]?|NM[A-Z]+[AW]?"
    r"|LV(?:ITEM|COLUMN|FINDINFO)[AW]?|OPENFILENAME[AW]?|CHOOSE(?:FONT|COLOR)[AW]?|WINAPI|CALLBACK)\b"
    r"|\b_WIN32\b|\b_WIN64\b|__MINGW")
ANGLE_INCLUDE = re.compile(r"^\s*#\s*include\s*<([^>]+)>", re.M)
QUOTED_INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"', re.M)
TEST_LIBRARIES = ("gtest/", "benchmark/", "SimpleIni.h", "INIReader.h")


def code_files(root):
    return sorted(path.relative_to(root) for folder in CODE_FOLDERS
                  for path in (root / folder).rglob("*") if path.suffix in (".h", ".cpp"))


def belongs_to_windows(file):
    return (file.name.startswith("frm") or file.as_posix() == "app/main.cpp"
            or file.parts[:2] in (("platform", "win32"), ("tests", "e2e"), ("benchmarks", "win32"))
            or file.parts[:3] in (("tests", "unit", "win32"), ("tests", "support", "win32")))


def may_use_the_system(file):
    return belongs_to_windows(file) or file.parts[1:2] == ("portable",)


def without_comments_and_texts(code):
    """Blanks comments and literals, so that only the code's own names remain."""
    tokens = r'//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|(?<!\w)\'(?:\\.|[^\'\\\n])+\''
    return re.sub(tokens, lambda match: "\n" * match[0].count("\n"), code, flags=re.S)


def check_portable_files(root):
    """Portable files include standard headers only and name no type of the Windows headers."""
    for file in code_files(root):
        if may_use_the_system(file):
            continue
        code = (root / file).read_text(encoding="utf-8")
        for header in ANGLE_INCLUDE.findall(code):
            tests_library = file.parts[0] not in PRODUCT_FOLDERS and header.startswith(TEST_LIBRARIES)
            if not tests_library and re.search(r"[./]", header):
                yield f"{file} includes <{header}>"
        for name in sorted(set(WINDOWS_TYPES.findall(without_comments_and_texts(code)))):
            yield f"{file} names {name}"


def ranked_folder(path):
    """The folder of RANKS that a file or header belongs to; None for any other."""
    parts = Path(path).parts[:-1]
    return next((name for length in (2, 1) if (name := "/".join(parts[:length])) in RANKS), None)


def check_include_direction(root):
    """Folders include downwards only, and those of one rank in no circle."""
    beside = {}
    for file in code_files(root):
        if file.parts[0] not in PRODUCT_FOLDERS:
            continue
        here = ranked_folder(file)
        for header in QUOTED_INCLUDE.findall((root / file).read_text(encoding="utf-8")):
            there = ranked_folder(header)
            if here is None:
                yield f"{file} includes {header}, and is to include nothing"
            elif "/" not in header:
                yield f'{file} includes "{header}" without its folder'
            elif header.startswith(f"{NUMBERS}/") and not belongs_to_windows(file) and here != "app":
                yield f"{file} includes {header}, which is for windows and app/ alone"
            elif not may_use_the_system(file) and re.match("platform/(win32|portable)/", header):
                yield f"{file} includes {header}, which is behind a seam"
            elif there is not None and RANKS[there] > RANKS[here]:
                yield f"{file} includes {header}, which is above it"
            elif there is not None and RANKS[there] == RANKS[here] and there != here:
                beside.setdefault(here, set()).add(there)
    for here in sorted(beside):
        if here in reachable(beside, here):
            yield f"{here}/ includes itself by way of {', '.join(sorted(beside[here]))}"


def reachable(graph, start):
    seen, waiting = set(), list(graph.get(start, ()))
    while waiting:
        node = waiting.pop()
        if node not in seen:
            seen.add(node)
            waiting += graph.get(node, ())
    return seen


def tests_part(path):
    """The part of the tests or benchmarks that a file or header belongs to; None for the program's."""
    parts = Path(path).parts
    if parts[0] == "tests":
        return "/".join(parts[:2])
    return "benchmarks" if parts[0] == "benchmarks" else None


def check_test_includes(root):
    """The program includes no tests, and tests and benchmarks include what they share, in no circle."""
    for file in code_files(root):
        here = tests_part(file)
        for header in QUOTED_INCLUDE.findall((root / file).read_text(encoding="utf-8")):
            there = tests_part(header)
            if there not in {None, here} | BESIDES_PRODUCT.get(here, set()):
                yield f"{file} includes {header}"


def check_test_names(root):
    """A unit test is named after the source file that it tests: file_dialog_test.cpp for cFileDialog."""
    files = code_files(root)
    sources = {file.stem for file in files if file.parts[0] in PRODUCT_FOLDERS}
    tested = {name.lower() for name in sources} | {
        name[1:].lower() for name in sources if re.match("c[A-Z]", name)}
    for file in files:
        if file.parts[:2] != ("tests", "unit") or file.suffix != ".cpp":
            continue
        name = file.stem.removesuffix("_test")
        # Of several tests of one source file each has its topic behind that name.
        names = set(accumulate(name.split("_")))
        if name == file.stem:
            yield f"{file} does not end in _test.cpp"
        elif not tested & names and name not in OTHER_TESTS:
            yield f"{file} is named after no source file, and OTHER_TESTS gives no reason for it"


def check_test_namespaces(root):
    """Tests are compiled several files at once, so each file has a namespace of its own name."""
    for file in code_files(root):
        if file.parts[0] != "tests" or not file.name.endswith("_test.cpp"):
            continue
        outer = "tessera::e2e" if "e2e" in file.parts else "tessera"
        code = (root / file).read_text(encoding="utf-8")
        if re.findall(r"^namespace ([\w:]+) \{", code, re.M) != [f"{outer}::{file.stem}"]:
            yield f"{file} is not in namespace {outer}::{file.stem} alone"


def check_guarded(root):
    """No exception leaves a window procedure or a hook for the system's code, which calls them."""
    procedure = re.compile(r"^(?:LRESULT|INT_PTR) CALLBACK ([\w:]+)\([^;{]*\) \{(.*?)^\}", re.M | re.S)
    for file in code_files(root):
        if file.parts[0] in PRODUCT_FOLDERS:
            for name, body in procedure.findall((root / file).read_text(encoding="utf-8")):
                if "Guarded(" not in body:
                    yield f"{file}: {name} is not guarded"


def after_parenthesis(code, inside):
    """The place after the parenthesis that closes the one before `inside`."""
    depth = 1
    for place in range(inside, len(code)):
        depth += {"(": 1, ")": -1}.get(code[place], 0)
        if depth == 0:
            return place + 1
    return len(code)


def check_braces(root):
    """A statement on lines of its own is in braces."""
    for file in code_files(root):
        code = without_comments_and_texts((root / file).read_text(encoding="utf-8"))
        ends = [after_parenthesis(code, head.end())
                for head in re.finditer(r"\b(?:if|for|while)\b(?: constexpr)? \(", code)]
        ends += [head.end() for head in re.finditer(r"\belse\b", code)]
        for end in ends:
            if re.match(r" *\n\s*[^{\s]", code[end:]):
                yield f"{file}:{code.count(chr(10), 0, end) + 1} has no braces"


def check_format(root):
    """clang-format changes nothing."""
    files = [str(root / file) for file in code_files(root)]
    if not files:
        return
    style = Path(".clang-format").resolve()
    output = subprocess.run(
        ["clang-format-14", f"--style=file:{style}", "--dry-run", "--Werror", *files],
        capture_output=True, text=True, check=False)
    lines = [line for line in output.stderr.splitlines() if "error:" in line]
    yield from lines
    if output.returncode and not lines:
        yield output.stderr.strip()


def check_line_ends(root):
    """Sources have line feeds alone, no blanks at line ends, and a line feed at the end."""
    for file in code_files(root):
        code = (root / file).read_bytes()
        if b"\r" in code or re.search(rb"[ \t]\n", code) or not code.endswith(b"\n"):
            yield str(file)


# Per check: files that it must complain about. The good ones beside them must pass.
BAD = {
    check_portable_files: [
        {"settings/a.cpp": "#include <windows.h>\n"},
        {"settings/a.h": "  # include <commctrl.h>\n"},
        {"shortcuts/a.cpp": "#include <sys/stat.h>\n"},
        {"tests/unit/a_test.cpp": "#include <unistd.h>\n"},
        {"editing/a.h": "int f(HWND window);\n"},
        {"editing/a.h": "#ifdef _WIN32\n#endif\n"},
        {"app/Editor.h": "const char* a = \"//\"; DWORD b;\n"},
        {"app/Editor.h": "int a = 1'000; LPARAM b = 1'000;\n"},
    ],
    check_include_direction: [
        {"settings/a.h": '#include "shortcuts/b.h"\n'},
        {"platform/a.cpp": '#include "settings/b.h"\n'},
        {"editing/a.h": '#include "resources/resource.h"\n'},
        {"resources/a.h": '#include "text/Text.h"\n'},
        {"text/a.h": '#include "platform/Files.h"\n'},
        {"settings/ini/a.h": '#include "settings/Paths.h"\n'},
        {"settings/a.h": '#include "settings/commander/b.h"\n'},
        {"editing/frmA.h": '#include "app/frmMain.h"\n'},
        {"settings/a.h": '#include "b.h"\n'},
        {"settings/a.h": '#include "platform/win32/b.h"\n'},
        {"options/a.h": '#include "export/b.h"\n', "export/b.h": '#include "recent/c.h"\n',
         "recent/c.h": '#include "options/a.h"\n'},
    ],
    check_test_includes: [
        {"app/Editor.cpp": '#include "tests/support/FakeClock.h"\n'},
        {"settings/a.h": '#include "benchmarks/b.h"\n'},
        {"tests/unit/a_test.cpp": '#include "benchmarks/b.h"\n'},
        {"tests/unit/a_test.cpp": '#include "tests/e2e/b.h"\n'},
        {"tests/support/a.h": '#include "benchmarks/b.h"\n'},
        {"tests/support/a.h": '#include "tests/unit/b.h"\n'},
        {"tests/e2e/a.cpp": '#include "tests/unit/b.h"\n'},
        {"tests/fuzz/a.cpp": '#include "tests/unit/b.h"\n'},
        {"benchmarks/a.cpp": '#include "tests/unit/b.h"\n'},
        {"benchmarks/win32/a.cpp": '#include "tests/e2e/b.h"\n'},
    ],
    check_test_names: [
        {"tests/unit/nothing_test.cpp": "\n"},
        {"settings/good.h": "\n", "tests/unit/goodness_test.cpp": "\n"},
        {"settings/good.h": "\n", "tests/unit/not_good_test.cpp": "\n"},
        {"tests/unit/win32/nothing_test.cpp": "\n"},
        {"tests/unit/a.cpp": "\n", "settings/a.h": "\n"},
    ],
    check_test_namespaces: [
        {"tests/unit/a_test.cpp": "namespace tessera {}\n"},
        {"tests/unit/a_test.cpp": "namespace tessera::b_test {}\n"},
        {"tests/unit/win32/a_test.cpp": "namespace {}\n"},
        {"tests/e2e/a_test.cpp": "namespace tessera::a_test {}\n"},
    ],
    check_guarded: [
        {"app/frmA.cpp": "LRESULT CALLBACK A(HWND window) {\n  return Handle(window);\n}\n"},
        {"dialogs/frmA.cpp": "INT_PTR CALLBACK frmA::Procedure(HWND /*window*/,\n"
                             "                                int a) {\n  return a;\n}\n"},
    ],
    check_braces: [
        {"settings/a.cpp": "void f() {\n  if (a)\n    b();\n}\n"},
        {"settings/a.cpp": "void f() {\n  for (const A& a :  // (\n       b())\n    c();\n}\n"},
        {"settings/a.cpp": "void f() {\n  while (a(\")\"))\n    b();\n}\n"},
        {"settings/a.cpp": "void f() {\n  if (a) {\n    b();\n  } else\n    c();\n}\n"},
    ],
    check_format: [{"settings/a.cpp": "int  f( );\n"}],
    check_line_ends: [
        {"settings/a.cpp": "int a;\r\n"}, {"settings/a.cpp": "int a; \n"}, {"settings/a.cpp": "int a;"},
    ],
}
GOOD = {
    "settings/cGoodCase.h": "\n",
    "settings/good.h": '// No HWND here.\n#include <string>\n\n#include "platform/Files.h"\n',
    "platform/win32/good.cpp": "#include <windows.h>\nHWND window;\n",
    "app/good.cpp": '#include "resources/resource.h"\n',
    "app/braces.cpp": "void f() {\n  if (a) b();\n  do {\n  } while (a);\n  if (a) {\n    b();\n  }\n}\n",
    "app/main.cpp": '#include <windows.h>\n\n#include "resources/resource.h"\n',
    "options/frmOptions.cpp": '#include <windows.h>\n\n#include "resources/resource.h"\n',
    "options/frmGuarded.cpp":
        "LRESULT CALLBACK A(HWND window) {\n  return Guarded(window, [] { return 1; });\n}\n",
    "editing/good.h": '#include "dialogs/b.h"\n#include "shortcuts/b.h"\n',
    "benchmarks/good.cpp": '#include "benchmarks/b.h"\n#include "tests/support/b.h"\n',
    "tests/support/good.h": '#include "app/Editor.h"\n#include "tests/support/b.h"\n',
    "tests/unit/good_case_test.cpp": "namespace tessera::good_case_test {}\n",
    "tests/unit/good_case_topic_test.cpp": "namespace tessera::good_case_topic_test {}\n",
    "tests/unit/good_test.cpp":
        '#include "settings/good.h"\n\n#include <gtest/gtest.h>\n\nnamespace tessera::good_test {}\n',
    "tests/e2e/good_test.cpp": "namespace tessera::e2e::good_test {}\n",
}


if __name__ == "__main__":
    sys.exit(samples.main(BAD, GOOD))
