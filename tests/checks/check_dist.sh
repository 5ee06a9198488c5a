#!/usr/bin/env bash
# Checks that a folder holds what a user unzips and no more, that the program needs no run-time
# library beyond Windows and imports none that can wait, and that the help file is whole. Usage:
# check_dist.sh FOLDER. One line "ok ..." or "not ok ..." per check. Run at the root of the repository.
set -uo pipefail

shipped=("Data Files" Languages README.txt Readme.chm tessera.exe)
not_of_windows='libgcc|libstdc|libwinpthread|libssp'

says() { if [[ $1 -eq 0 ]]; then echo "ok $2"; else echo "not ok $2"; fi; }

strangers() {
  local entry name
  for entry in "$1"/* "$1"/.[!.]*; do
    [[ -e $entry ]] || continue
    for name in "${shipped[@]}"; do [[ ${entry##*/} == "$name" ]] && continue 2; done
    echo "${entry##*/}"
  done
}

# What should be there and is not, or is empty.
missing() {
  local name
  for name in "${shipped[@]}"; do
    [[ -n $(find "$1/$name" -type f -size +0 2>/dev/null | head -n 1) ]] || echo "$name"
  done
}

# The pages and pictures of help/ that a compiled help file, listed by chmls, lacks.
missing_pages() {
  local name
  (cd help && find . -name '*.html' -o -name '*.png') | while read -r name; do
    grep -q " ${name#.}$" <<<"$1" || echo "${name#./}"
  done
}

# An import of a library that Windows does not bring along, in what objdump prints; none is success.
stands_alone() { grep -q 'DLL Name' <<<"$1" && ! grep -E "DLL Name: .*($not_of_windows)" <<<"$1"; }

# An import of a library that is to be loaded at its first use only, since it and what it brings along
# would delay the start; none is success.
imports_nothing_early() { ! grep -iE 'DLL Name: (comdlg32|imm32|ole32|shell32|uxtheme)\.dll' <<<"$1"; }

# The least version of Windows, in what objdump prints.
wants_windows_10() {
  [[ $(grep -cE '^Major(OSystem|Subsystem)Version[[:space:]]+10$' <<<"$1") -eq 2 ]]
}

# The manifest in the program states the version that CMakeLists.txt does.
states_version() { grep -aq "name=\"Tessera\" version=\"$2.0\"" "$1"; }

folder=$1
version=$(sed -n 's/^project(.* VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
imports=$(x86_64-w64-mingw32-objdump -p "$folder/tessera.exe")
found=$(strangers "$folder")
[[ -z $found ]]; says $? "$folder holds nothing but what is shipped${found:+, but for $found}"
found=$(missing "$folder")
[[ -z $found ]]; says $? "$folder holds all that is shipped${found:+, but for $found}"
pages=$(chmls list "$folder/Readme.chm" 2>/dev/null)
found=$(missing_pages "$pages")
[[ -n $pages && -z $found ]]; says $? "Readme.chm holds all of the help${found:+, but for $found}"
stands_alone "$imports"; says $? "tessera.exe needs no library beyond Windows"
imports_nothing_early "$imports"; says $? "tessera.exe imports no library for its first use only"

wants_windows_10 "$imports"; says $? "tessera.exe names Windows 10 as the least version"
states_version "$folder/tessera.exe" "$version"; says $? "the manifest states version $version"
grep -aq 'stack smashing detected' "$folder/tessera.exe"; says $? "tessera.exe looks after its stack"

sample=$(mktemp -d)
trap 'rm -rf "$sample"' EXIT
touch "$sample/vantor.ini"
[[ -n $(strangers "$sample") ]]; says $? "a stray file is found"
touch "$sample/README.txt"
[[ $(missing "$sample") == *README.txt* ]]; says $? "an empty file is found"
[[ -n $(missing_pages "${pages//index.html/}") ]]; says $? "a missing page is found"
! stands_alone "$imports
DLL Name: libstdc++-6.dll" >/dev/null; says $? "a missing library is found"
older=$(sed -E 's/^(MajorOSystemVersion[[:space:]]+)10$/\16/' <<<"$imports")
! wants_windows_10 "$older"; says $? "an older version is found"
! states_version "$folder/tessera.exe" "$version.9"; says $? "another version is found"
! imports_nothing_early "DLL Name: SHELL32.dll" >/dev/null; says $? "an early import is found"
