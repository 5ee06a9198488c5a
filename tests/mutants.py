"""Makes small changes to the program, one by one, and lists those that no test notices.

Each change, a mutant, is built and tried in a copy of the tree under out/mutants, with everything that
is not committed yet. One that does not compile is not counted. Ends with 1 when some survived: each of
them is a missing test, unless the change makes no difference. Portable files are changed, and tried by
the native unit tests; with --windows the windows and the system's side, tried by the real program under
Wine, which takes a minute or more each: what fails there is tried once more by itself.
"""

import argparse
import contextlib
import os
import random
import re
import resource
import signal
import subprocess
import sys
import time
from collections import Counter, defaultdict
from pathlib import Path
from xml.etree import ElementTree

sys.path.insert(0, str(Path(__file__).parent / "checks"))
from check_sources import PRODUCT_FOLDERS, belongs_to_windows  # noqa: E402
from mutations import changed_lines, line_of, mutants_of  # noqa: E402

TREE = Path("out/mutants/tree")
RESULTS = TREE / "out/results"
SHARES = 2
MEMORY = 2 << 30   # bytes; some mutants never stop to take more
LONGEST_RUN = 300  # seconds of the processor, of the unchanged program


def git(*arguments):
    return subprocess.run(["git", *arguments], capture_output=True, text=True, check=True).stdout


def files_of_tree(*options):
    return {name for name in git("ls-files", "-z", *options).split("\0") if Path(name).is_file()}


def lines_since(commit, file):
    """The numbers of the lines that differ from where the branch left the commit; all of a new file."""
    if not git("ls-files", file):
        return range(1, sys.maxsize)
    diff = git("diff", "-U0", "--merge-base", commit, "--", file)
    hunks = re.findall(r"^@@ \S+ \+(\d+)(?:,(\d+))? @@", diff, re.M)
    return {line for begin, count in hunks for line in range(int(begin), int(begin) + int(count or 1))}


def wanted_mutants(options, files):
    """Those of the named files; a folder stands for its sources, no name for all folders."""
    names = [os.path.normpath(name) for name in options.files] or PRODUCT_FOLDERS
    for name in options.files:
        if not Path(name).exists():
            sys.exit(f"mutants: no such file: {name}")
    found = []
    for file in sorted(files):
        # A header is compiled many times over, so only its name or a change brings it in.
        below = any(file.startswith(f"{name}/") for name in names) and file.endswith(
            (".cpp", ".h") if options.since else ".cpp")
        path = Path(file)
        if path.parts[:2] == ("platform", "portable"):  # is only in tests
            continue
        of_windows = belongs_to_windows(path)
        if not (file in names or below) or path.parts[0] not in PRODUCT_FOLDERS or (
                of_windows != options.windows):
            continue
        text = path.read_text(encoding="utf-8")
        lines = lines_since(options.since, file) if options.since else range(1, sys.maxsize)
        found += [mutant for mutant in mutants_of(file, text) if line_of(text, mutant.begin) in lines]
    if options.most is not None and options.most < len(found):
        found = sorted(random.Random(options.seed).sample(found, options.most))
    return found


def content_of(name):
    """What the copy has of a file: warnings are no errors there, or changes that cause one go untried."""
    content = Path(name).read_bytes()
    if name != "CMakePresets.json":
        return content
    return content.replace(b'"TESSERA_WERROR": "ON"', b'"TESSERA_WERROR": "OFF"')


def copy_tree(files):
    """Makes the copy equal, and leaves alone what is equal already, so that it is not built again."""
    for name in files:
        copy, content = TREE / name, content_of(name)
        if not copy.is_file() or copy.read_bytes() != content:
            copy.parent.mkdir(parents=True, exist_ok=True)
            copy.write_bytes(content)
            copy.chmod(Path(name).stat().st_mode)
    for copy in TREE.rglob("*"):
        name = copy.relative_to(TREE)
        if name.parts[0] != "out" and copy.is_file() and name.as_posix() not in files:
            copy.unlink()


def succeeds(*command, **options):
    return subprocess.run(["nice", *command], cwd=TREE, check=False, stdin=subprocess.DEVNULL,
                          **options).returncode == 0


def run_tests(seconds, names="*"):
    """Shares the tests of these names among processes, each with so much time of the processor, until
    one fails. Gives "passed", "failed" or "late"."""
    command = ["nice", "prlimit", f"--cpu={seconds}", f"--as={MEMORY}", "--core=0",
               "out/mutants/tests/unit_tests", "--gtest_fail_fast", "--gtest_brief=1",
               f"--gtest_filter={names}"]
    runs = [subprocess.Popen(command, cwd=TREE, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                             stderr=subprocess.DEVNULL,
                             env=os.environ | {"GTEST_TOTAL_SHARDS": str(SHARES),
                                               "GTEST_SHARD_INDEX": str(share)})
            for share in range(SHARES)]
    try:
        deadline = time.monotonic() + 5 * seconds  # for those that only wait, and on a busy machine
        while time.monotonic() < deadline:
            codes = [run.poll() for run in runs]
            if any(codes):
                return "late" if -signal.SIGKILL in codes else "failed"
            if None not in codes:
                return "passed"
            time.sleep(0.02)
        return "late"
    finally:
        for run in runs:
            run.kill()
            run.wait()


class Portable:
    """Tries a change by the native unit tests."""

    def __init__(self):
        if not succeeds("scripts/compile.sh", "mutants"):
            sys.exit("mutants: the unchanged program does not build")
        before = resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime
        if run_tests(LONGEST_RUN) != "passed":
            sys.exit("mutants: the unchanged program fails its tests")
        unchanged = resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime - before
        self.seconds = 2 + round(3 * unchanged / SHARES)

    def outcome(self, file):
        if not succeeds("cmake", "--build", "out/mutants", "--target", "unit_tests", capture_output=True):
            return "uncompiled"
        # Most are found by the tests of their own class, which are few.
        outcome = run_tests(self.seconds, f"*{Path(file).stem}*")
        return outcome if outcome != "passed" else run_tests(self.seconds)


class Windows:
    """Tries a change by the program under Wine."""

    def __init__(self):
        if not self.passes("windows") or not self.passes("end-to-end"):
            sys.exit("mutants: the unchanged program fails its tests")

    def outcome(self, file):
        if not succeeds("scripts/compile.sh", "windows", capture_output=True):
            return "uncompiled"
        # The windows are in no unit test.
        suites = ["windows"] * file.startswith("platform/") + ["end-to-end"]
        return "passed" if all(map(self.passes, suites)) else "failed"

    def passes(self, suite):
        # On a busy machine a test fails now and then whatever the change; it hides what comes after it.
        passed_alone = set()
        while failing := self.failing_tests(suite, "-" + ":".join(passed_alone)):
            if "*" in failing or self.failing_tests(suite, ":".join(failing)):
                return False
            passed_alone |= failing
        return True

    def failing_tests(self, suite, names):
        """Those of these names that fail, "*" for some that left no report; ends soon after the first."""
        for left in RESULTS.glob("*-[0-9].*"):
            left.unlink()
        run = subprocess.Popen(["./test", suite], cwd=TREE, stdin=subprocess.DEVNULL,
                               stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                               env=os.environ | {"GTEST_FAIL_FAST": "1", "GTEST_FILTER": names},
                               start_new_session=True)
        while run.poll() is None:
            if failing := self.reported_failures():
                self.end(run)
                return failing
            time.sleep(1)
        # A run of few names leaves shares without any, which counts as failed.
        few = not names.startswith("-")
        return self.reported_failures() or ({"*"} if run.returncode and not few else set())

    @staticmethod
    def end(run):
        """Ends a run, and waits until its tests have cleaned up: the next ones take their places."""
        os.killpg(run.pid, signal.SIGTERM)
        run.wait()
        with contextlib.suppress(ProcessLookupError):
            while True:
                os.killpg(run.pid, 0)
                time.sleep(0.1)

    @staticmethod
    def reported_failures():
        found = set()
        for status in RESULTS.glob("*-[0-9].status"):
            if status.read_text(encoding="utf-8").strip() == "0":
                continue
            report = status.with_suffix(".xml")
            cases = ElementTree.parse(report).iter("testcase") if report.is_file() else []
            failed = {f"{case.get('classname')}.{case.get('name')}" for case in cases
                      if case.find("failure") is not None}
            found |= failed or {"*"}
        return found


def outcome_of(mutant, text, trial):
    copy = TREE / mutant.file
    copy.write_text(text[:mutant.begin] + mutant.text + text[mutant.end:], encoding="utf-8")
    try:
        return trial.outcome(mutant.file)
    finally:
        copy.write_text(text, encoding="utf-8")


def show_score(name, outcomes):
    tried = sum(outcomes.values()) - outcomes["uncompiled"]
    print(f"{name}: {tried - outcomes['passed']} of {tried} found, {outcomes['late']} of them by the time "
          f"limit; {outcomes['uncompiled']} did not compile")


def main():
    parser = argparse.ArgumentParser(prog="./test mutants", description=__doc__)
    parser.add_argument("files", nargs="*", metavar="FILE", help="a file or a folder")
    parser.add_argument("--since", metavar="COMMIT", help="only lines changed since the branch left it")
    parser.add_argument("--windows", action="store_true", help="the windows' code, in place of portable")
    parser.add_argument("--most", type=int, metavar="N", help="a sample of so many")
    parser.add_argument("--seed", type=int, default=1, help="chooses the sample")
    options = parser.parse_args()
    files = files_of_tree("--cached", "--others", "--exclude-standard")
    mutants = wanted_mutants(options, files)
    if not mutants:
        sys.exit("mutants: nothing to change there in code of that kind")

    copy_tree(files)
    trial = Windows() if options.windows else Portable()
    print(f"{len(mutants)} changes", flush=True)

    scores = defaultdict(Counter)
    for mutant in mutants:
        text = (TREE / mutant.file).read_text(encoding="utf-8")  # the tree may change meanwhile
        outcome = outcome_of(mutant, text, trial)
        for name in (os.path.dirname(mutant.file), "all"):
            scores[name][outcome] += 1
        if outcome == "passed":
            old, new = changed_lines(text, mutant)
            place = f"{mutant.file}:{line_of(text, mutant.begin)}"
            print(f"{place}: survived\n  - {old}\n  + {new}", flush=True)
    for name in sorted(scores, key=lambda name: (name == "all", name)):
        show_score(name, scores[name])
    return 1 if scores["all"]["passed"] else 0


if __name__ == "__main__":
    sys.exit(main())
