"""Checks that sources include the standard headers whose names they use.

The builds with precompiled headers do not see what a file forgot. Each name of the standard library
has to come from a header that the file includes itself, or that a header of ours does which it
includes. Prints one line "ok ..." or "not ok ..." per check, and one more for each sample of wrong code
that shows that the check can fail. Run at the root of the repository.
"""

import re
import sys
from functools import cache
from pathlib import Path

import samples
from check_sources import (ANGLE_INCLUDE, PRODUCT_FOLDERS, QUOTED_INCLUDE, code_files,
                           WINDOWS_TYPES, without_comments_and_texts)

# The names that each header gives; "x::" stands for all names in x.
HEADERS = {
    "algorithm": """all_of any_of clamp copy copy_n count count_if equal erase_if fill fill_n find find_if
        find_if_not for_each is_permutation lower_bound max max_element min minmax mismatch none_of remove
        remove_if replace replace_if reverse rotate search sort stable_partition stable_sort transform
        unique upper_bound ranges::""",
    "array": "array tuple_size_v get size data begin end",
    "atomic": "atomic",
    "charconv": "from_chars to_chars chars_format errc",
    "chrono": "chrono::",
    "cmath": "isfinite isnan llround nearbyint pow",
    "cstddef": "size_t ptrdiff_t nullptr_t byte",
    "cstdint": "uint8_t uint16_t uint32_t uint64_t int8_t int16_t int32_t int64_t intptr_t uintptr_t",
    "cstdlib": "abs exit _Exit getenv",
    "exception": "exception set_terminate terminate current_exception",
    "functional": "function hash invoke less greater reference_wrapper",
    "initializer_list": "initializer_list",
    "iterator": "back_inserter make_reverse_iterator begin end next prev size data istreambuf_iterator",
    "limits": "numeric_limits",
    "list": "list initializer_list",
    "map": "map multimap initializer_list pair erase_if begin end size_t",
    "memory": "make_shared make_unique shared_ptr unique_ptr weak_ptr enable_shared_from_this",
    "numeric": "accumulate iota",
    "optional": "optional nullopt make_optional",
    "ranges": "ranges:: views::",
    "set": "set multiset initializer_list erase_if begin end",
    "span": "span begin end size data size_t",
    "stdexcept": "runtime_error logic_error out_of_range invalid_argument",
    "string": """string wstring u8string basic_string char_traits to_string to_wstring stoi erase erase_if
        getline string_view wstring_view basic_string_view initializer_list begin end size data size_t""",
    "string_view": """string_view wstring_view basic_string_view char_traits begin end size data size_t""",
    "system_error": "errc error_code system_error",
    "tuple": "tuple tie get make_tuple tuple_size_v",
    "type_traits": """conditional_t decay_t is_same_v is_enum_v make_unsigned_t remove_cvref_t
        remove_pointer_t type_identity_t underlying_type_t invoke_result_t""",
    "unordered_map": "unordered_map pair erase_if begin end",
    "unordered_set": "unordered_set erase_if begin end",
    "utility": "declval exchange forward in_place move pair make_pair swap as_const to_underlying",
    "variant": "variant visit monostate get holds_alternative get_if",
    "vector": "vector initializer_list erase erase_if begin end size data size_t",
}
NAME = re.compile(r"\bstd::(\w+(?:::)?)")


def headers_of(name):
    return {header for header, names in HEADERS.items() if name in names.split()}


def included(root):
    """A function that gives all headers by way of a file of ours: those of the library's that it
    includes, and those that come with ours."""
    @cache
    def headers(file):
        code = (root / file).read_text(encoding="utf-8")
        ours = [header for header in QUOTED_INCLUDE.findall(code) if (root / header).is_file()]
        return frozenset(ANGLE_INCLUDE.findall(code)).union(*map(headers, ours))
    return headers


def check_standard_headers(root):
    """Each name of the standard library has its header."""
    headers = included(root)
    for file in code_files(root):
        if file.parts[0] not in PRODUCT_FOLDERS:
            continue
        code = without_comments_and_texts((root / file).read_text(encoding="utf-8"))
        for name in sorted(set(NAME.findall(code))):
            wanted = headers_of(name) or headers_of(name.removesuffix("::"))
            if not wanted:
                yield f"{file} names std::{name}, whose header HEADERS does not tell"
            elif not wanted & headers(file.as_posix()):
                yield f"{file} names std::{name} without <{'> or <'.join(sorted(wanted))}>"


def check_system_headers(root):
    """Windows' own types have <windows.h>."""
    headers = included(root)
    for file in code_files(root):
        code = without_comments_and_texts((root / file).read_text(encoding="utf-8"))
        if (file.parts[0] in PRODUCT_FOLDERS and WINDOWS_TYPES.search(code)
                and "windows.h" not in headers(file.as_posix())):
            yield f"{file} names {WINDOWS_TYPES.search(code)[0]}"


BAD = {
    check_standard_headers: [
        {"text/a.cpp": "std::vector<int> a;\n"},
        {"text/a.cpp": "#include <vector>\nstd::vector<std::wstring> a;\n"},
        {"text/a.cpp": '#include "text/a.h"\nstd::string a;\n', "text/a.h": "// <string>\n"},
        {"text/a.h": "#include <vector>\nauto a = std::ranges::find(b, 1);\n"},
        {"app/frmA.cpp": "#include <windows.h>\nstd::optional<RECT> a;\n"},
        {"text/a.cpp": "#include <vector>\nstd::unheard_of a;\n"},
    ],
    check_system_headers: [
        {"app/frmA.cpp": '#include "text/good.h"\nHWND a;\n'},
    ],
}
GOOD = {
    "text/good.h": "#include <string>\nstd::string Good();  // no std::vector\n",
    "text/good.cpp": '#include "text/good.h"\n\nstd::string Good() { return "std::vector"; }\n',
    "text/other.cpp": '#include "text/good.cpp"\nstd::size_t Other(std::string_view text);\n',
    "app/frmGood.h": "#include <windows.h>\nHWND Good();\n",
    "app/frmGood.cpp": '#include "app/frmGood.h"\n\nHWND Good() { return nullptr; }\n',
    "text/ranges.cpp": "#include <algorithm>\n#include <vector>\nauto a = std::ranges::find(b, 1);\n",
}


if __name__ == "__main__":
    sys.exit(samples.main(BAD, GOOD))
