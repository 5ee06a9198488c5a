"""Packs a folder as a zip file, so that the same files always give the same bytes.

Usage: package.py FOLDER OUTPUT_FOLDER. The name holds the version that CMakeLists.txt states; prints
the path of the zip file. Run at the root of the repository.
"""

import re
import sys
import zipfile
from pathlib import Path

# Nothing of when, where and by whom the files were made gets into the zip file.
TIME = (1980, 1, 1, 0, 0, 0)
MADE_ON_WINDOWS = 0
ARCHIVE_ATTRIBUTE = 0x20


def version():
    found = re.search(r"^project\(\w+ VERSION ([\d.]+)", Path("CMakeLists.txt").read_text("utf-8"), re.M)
    if not found:
        sys.exit("package.py: CMakeLists.txt states no version")
    return found[1]


def files_of(folder):
    entries = sorted(folder.rglob("*"), key=lambda path: path.relative_to(folder).as_posix())
    links = [path for path in entries if path.is_symlink()]
    if links:
        sys.exit(f"package.py: {links[0]} is a link")
    files = [path for path in entries if path.is_file()]
    if not files:
        sys.exit(f"package.py: there is nothing in {folder}")
    return files


def pack(folder, package):
    with zipfile.ZipFile(package, "w") as target:
        for path in files_of(folder):
            entry = zipfile.ZipInfo(path.relative_to(folder).as_posix(), TIME)
            entry.create_system = MADE_ON_WINDOWS
            entry.external_attr = ARCHIVE_ATTRIBUTE
            target.writestr(entry, path.read_bytes(), zipfile.ZIP_DEFLATED, 9)


def main():
    folder, output = Path(sys.argv[1]), Path(sys.argv[2])
    output.mkdir(parents=True, exist_ok=True)
    package = output / f"tessera-{version()}-x64.zip"
    # Under another name until it is whole.
    unfinished = package.with_suffix(".unfinished")
    try:
        pack(folder, unfinished)
        unfinished.replace(package)
    finally:
        unfinished.unlink(missing_ok=True)
    print(package)


if __name__ == "__main__":
    main()
