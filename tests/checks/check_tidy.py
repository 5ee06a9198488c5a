"""Runs clang-tidy, with the checks of .clang-tidy, over the program's sources.

Usage: check_tidy.py [--each] BUILD_FOLDER..., native or for Windows, with compile commands. A source
file of several is read as the first of them compiles it. The tests are left out: the macros of their
library cost minutes and tell nothing. Most of the time goes into the library's headers, so several
sources are read as one; a batch with findings is read in halves, and all with --each one by one.
Prints one line "ok ..." or "not ok ..." per source file, and one more for each sample of code that
shows that the check can fail.
"""

import json
import os
import re
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

OUTSIDE = ("tests", "benchmarks", "out")
BATCH_SIZE = 16
BAD = "#include <string>\nint Length(const std::string text) { return static_cast<int>(text.size()); }\n"
GOOD = "#include <string>\nint Length(const std::string& text) { return static_cast<int>(text.size()); }\n"
# What is no fault in an included file.
UNUSED = "static inline int Unused() { return 1; }\n"


def program_sources(build):
    """The compile commands of the program's sources in a build, by their paths from the root."""
    root = Path.cwd()
    text = (build / "compile_commands.json").read_text(encoding="utf-8")
    # What another compiler than clang has precompiled means nothing to clang.
    commands = json.loads(re.sub(r" -include \S+/cmake_pch\.hxx", "", text))
    inside = {Path(command["file"]).relative_to(root): command for command in commands
              if command["file"].endswith(".cpp") and Path(command["file"]).is_relative_to(root)}
    return {file: inside[file] for file in sorted(inside) if file.parts[0] not in OUTSIDE}


def cross_options(command):
    """What clang is to know about the compiler of a cross build: its target, its C++ headers, and that
    it has options of its own."""
    compiler = next(word for word in command.split() if "++" in word)
    target = subprocess.run([compiler, "-dumpmachine"], capture_output=True, text=True, check=True)
    if "mingw" not in target.stdout:
        return []
    search = subprocess.run([compiler, "-E", "-v", "-x", "c++", os.devnull],
                            capture_output=True, text=True, check=True).stderr
    headers = [line.strip() for line in search.splitlines() if re.match(r" /.*/c\+\+(/|$)", line)]
    return [f"--extra-arg-before=--target={target.stdout.strip()}", "--extra-arg=-nostdinc++",
            "--extra-arg=-Wno-unknown-warning-option",
            *(f"--extra-arg=-isystem{folder}" for folder in headers)]


def findings(file, *options, inside):
    """In the file itself, and in what it includes from below one of the folders `inside`."""
    headers = f"--header-filter=^({inside})/"
    command = ["clang-tidy-14", "--quiet", "--config-file=.clang-tidy", headers, str(file), *options]
    output = subprocess.run(command, capture_output=True, text=True, check=False)
    # Beside findings, the second stream only counts what was suppressed.
    return (output.stdout or output.stderr) if output.returncode else ""


def batch_findings(files, command, *options, inside):
    """Of one file by its compile command; several are read as one, by the command of the first."""
    with tempfile.TemporaryDirectory() as folder:
        source = Path(command["file"])
        if len(files) > 1:
            source = Path(folder, "batch.cpp")
            source.write_text("".join(
                f'#include "{file.resolve()}"  // NOLINT(bugprone-suspicious-include)\n'
                for file in files), encoding="utf-8")
            command = command | {"file": str(source),
                                 "command": command["command"].replace(command["file"], str(source))}
        Path(folder, "compile_commands.json").write_text(json.dumps([command]), encoding="utf-8")
        return findings(source, "-p", folder, *options, inside=inside)


def sample_findings(*codes):
    """What is found in samples that are read as one batch."""
    with tempfile.TemporaryDirectory() as folder:
        files = [Path(folder, f"sample{number}.cpp") for number in range(len(codes))]
        for file, code in zip(files, codes):
            file.write_text(code, encoding="utf-8")
        command = {"directory": folder, "file": str(files[0]),
                   "command": f"c++ -std=c++20 -Wall -Werror -c {files[0]}"}
        return batch_findings(files, command, inside=folder)


def report(title, problems):
    if problems:
        print(problems)
    print(f"{'not ok' if problems else 'ok'} {title}", flush=True)
    return not problems


def declared_names(file):
    """What a source declares at the beginnings of its lines, but for members of classes."""
    lines = re.findall(r"^(?!namespace)\w[^\n=;({\[]*", file.read_text(encoding="utf-8"), re.M)
    return {name for line in lines for name in re.findall(r"(?<!:)\b\w+(?=\s*$)", line)}


def read(batch, build):
    """What is found in each file of a batch."""
    problems = batch_findings(batch, build.sources[batch[0]], *build.options, inside=build.inside)
    if len(batch) == 1 or not problems:
        return [(file, problems) for file in batch]
    # Something is wrong with one of them, or two of them have a name in common.
    middle = len(batch) // 2
    return read(batch[:middle], build) + read(batch[middle:], build)


class Build:
    """The files of a build folder that are read as it compiles them."""

    def __init__(self, folder, read_before):
        self.sources = {file: command for file, command in program_sources(folder).items()
                        if file not in read_before}
        commands = [command["command"] for command in self.sources.values()]
        self.options = cross_options(commands[0]) if commands else []
        self.inside = "|".join(sorted({f"{Path.cwd()}/{file.parts[0]}" for file in self.sources}))

    def batches(self, size):
        """The files in parts of about that size; those of one part declare nothing of the same name."""
        parts = [([], set()) for _ in range(-(-len(self.sources) // size))]
        for file in self.sources:
            names = declared_names(file)
            fitting = [part for part in parts if not part[1] & names]
            if not fitting:
                fitting = [([], set())]
                parts += fitting
            files, taken = min(fitting, key=lambda part: len(part[0]))
            files.append(file)
            taken |= names
        return [files for files, _ in parts]


def main(folders, each=False):
    builds = []
    for folder in folders:
        builds.append(Build(folder, {file for build in builds for file in build.sources}))
    todo = [(batch, build) for build in builds for batch in build.batches(1 if each else BATCH_SIZE)]
    good = report("clang-tidy has sources to read", "" if todo else "no compile commands")
    for name, beside in {"by itself": [], "in a batch": [""]}.items():
        good &= report(f"clang-tidy accepts right code {name}", sample_findings(*beside, GOOD))
        wrong = sample_findings(*beside, BAD)
        good &= report(f"clang-tidy rejects wrong code {name}", "" if wrong else "nothing found")
    unused = sample_findings(UNUSED)
    good &= report("clang-tidy reads one file by itself", "" if unused else "nothing found")
    with ThreadPoolExecutor(os.cpu_count()) as threads:
        for results in threads.map(lambda task: read(*task), todo):
            for file, problems in results:
                good &= report(f"clang-tidy on {file}", problems)
    return 0 if good else 1


if __name__ == "__main__":
    ARGUMENTS = sys.argv[1:]
    sys.exit(main([Path(folder) for folder in ARGUMENTS if folder != "--each"], "--each" in ARGUMENTS))
