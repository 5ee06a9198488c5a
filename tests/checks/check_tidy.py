"""Runs clang-tidy, with the checks of .clang-tidy, over the program's portable sources.

Usage: check_tidy.py BUILD_FOLDER, a native one with compile commands. The tests are left out: the
macros of their library cost minutes and tell nothing. Prints one line "ok ..." or "not ok ..." per
source file, and one more for a sample of wrong code that shows that the check can fail.
"""

import json
import os
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

OUTSIDE = ("tests", "benchmarks", "out")
BAD = "#include <string>\nint Length(const std::string text) { return static_cast<int>(text.size()); }\n"
GOOD = "#include <string>\nint Length(const std::string& text) { return static_cast<int>(text.size()); }\n"


def program_sources(build):
    """The portable sources among the compile commands, as paths from the root."""
    root = Path.cwd()
    commands = json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
    files = {Path(command["file"]) for command in commands}
    inside = {file.relative_to(root) for file in files if file.is_relative_to(root)}
    return sorted(file for file in inside if file.parts[0] not in OUTSIDE)


def findings(file, *options):
    headers = f"--header-filter={Path.cwd()}/(?!out/)"
    command = ["clang-tidy-14", "--quiet", "--config-file=.clang-tidy", headers, str(file), *options]
    output = subprocess.run(command, capture_output=True, text=True, check=False)
    # Beside findings, the second stream only counts what was suppressed.
    return (output.stdout or output.stderr) if output.returncode else ""


def sample_findings(code):
    with tempfile.TemporaryDirectory() as folder:
        sample = Path(folder, "sample.cpp")
        sample.write_text(code, encoding="utf-8")
        return findings(sample, "--", "-std=c++20")


def report(title, problems):
    if problems:
        print(problems)
    print(f"{'not ok' if problems else 'ok'} {title}", flush=True)
    return not problems


def main(build):
    files = program_sources(build)
    good = report("clang-tidy has sources to read", "" if files else "no compile commands")
    good &= report("clang-tidy accepts right code", sample_findings(GOOD))
    good &= report("clang-tidy rejects wrong code", "" if sample_findings(BAD) else "nothing found")
    with ThreadPoolExecutor(os.cpu_count()) as threads:
        for file, problems in zip(files, threads.map(lambda file: findings(file, "-p", str(build)), files)):
            good &= report(f"clang-tidy on {file}", problems)
    return 0 if good else 1


if __name__ == "__main__":
    sys.exit(main(Path(sys.argv[1])))
