"""Runs checks of files over the repository, and over small samples that show that they can fail."""

import tempfile
from pathlib import Path


def findings(check, files):
    with tempfile.TemporaryDirectory() as folder:
        for name, content in files.items():
            path = Path(folder, name)
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_bytes(content.encode())
        return list(check(Path(folder)))


def report(title, problems):
    for problem in problems:
        print(f"  {problem}")
    print(f"{'not ok' if problems else 'ok'} {title}")
    return not problems


def main(wrong, right, subject=""):
    """Each key of `wrong` is a check that takes a folder and gives its findings; its value is a list
    of samples, each a dictionary of files, that it has to reject where they take the place of files
    of `right`. Gives the exit status."""
    good = True
    for check, samples in wrong.items():
        name = subject + check.__name__.removeprefix("check_")
        good &= report(f"{name}: {check.__doc__}", list(check(Path("."))))
        good &= report(f"{name} accepts right files", findings(check, right))
        for sample in samples:
            missed = [] if findings(check, right | sample) else [f"nothing found in {sample}"]
            good &= report(f"{name} rejects {next(iter(sample.items()))}", missed)
    return 0 if good else 1
