"""Checks that packing a folder gives the same bytes each time, and holds that folder and no more.

Usage: check_package.py FOLDER. Prints one line "ok ..." or "not ok ..." per check. Run at the root
of the repository.
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import zipfile
from pathlib import Path


def packed(folder, output):
    """The path of the package; nothing when there is none."""
    run = subprocess.run([sys.executable, "scripts/package.py", str(folder), str(output)],
                         capture_output=True, text=True, check=False)
    package = Path(run.stdout.strip())
    return package if run.returncode == 0 and package.is_file() else None


def contents_of_folder(folder):
    return {path.relative_to(folder).as_posix(): path.read_bytes()
            for path in folder.rglob("*") if path.is_file()}


def contents_of(package):
    with zipfile.ZipFile(package) as source:
        names = source.namelist()
        contents = {name: source.read(name) for name in names}
    return contents if len(contents) == len(names) else None


def copy_made_elsewhere(folder, copy):
    """The same files with other times and rights, made in another order."""
    for path in sorted((path for path in folder.rglob("*") if path.is_file()), reverse=True):
        target = copy / path.relative_to(folder)
        target.parent.mkdir(parents=True, exist_ok=True)
        shutil.copyfile(path, target)
        os.utime(target, (1234567890, 1234567890))
        target.chmod(0o600)
    return copy


def checks(folder, work):
    package = packed(folder, work / "first")
    yield "the package can be made", package is not None
    if package is None:
        return
    bytes_of_it = package.read_bytes()
    version = re.search(r"project\(\w+ VERSION ([\d.]+)", Path("CMakeLists.txt").read_text("utf-8"))[1]
    yield "its name holds the version of the project", package.name == f"tessera-{version}-x64.zip"
    yield "it holds the folder's files and no more", contents_of(package) == contents_of_folder(folder)
    again = packed(folder, work / "second")
    yield "a second run gives the same bytes", again and again.read_bytes() == bytes_of_it
    copy = copy_made_elsewhere(folder, work / "copy")
    elsewhere = packed(copy, work / "third")
    yield "times, rights and order of the files do not count", (
        elsewhere and elsewhere.read_bytes() == bytes_of_it)
    with open(next(path for path in sorted(copy.rglob("*")) if path.is_file()), "ab") as file:
        file.write(b"!")
    changed = packed(copy, work / "fourth")
    yield "another byte in a file gives another package", (
        changed and changed.read_bytes() != bytes_of_it)
    (copy / "link").symlink_to("tessera.exe")
    yield "a link in the folder is refused", packed(copy, work / "fifth") is None
    (work / "empty").mkdir()
    yield "an empty folder is refused", packed(work / "empty", work / "sixth") is None
    yield "a refusal leaves no package", not list((work / "sixth").iterdir())


def main():
    good = True
    with tempfile.TemporaryDirectory() as work:
        for title, passed in checks(Path(sys.argv[1]), Path(work)):
            print(f"{'ok' if passed else 'not ok'} package: {title}")
            good &= bool(passed)
    return 0 if good else 1


if __name__ == "__main__":
    sys.exit(main())
