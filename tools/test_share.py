#!/usr/bin/env python3
"""Holds the tests of every kind, tests/ and fuzz/, to a third of the code.

Counted are lines of code, without blanks and comments, of the files that git knows. Documents,
scenarios and kept inputs are no code. Ends with 1 when it is more.
"""

import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
COMMENTS = {".h": "//", ".cpp": "//", ".py": "#", ".sh": "#", ".cmake": "#"}
MOST = 1 / 3


def lines_of_code(path):
    text = path.read_text(errors="replace")
    is_script = path.name == "CMakeLists.txt" or text.startswith("#!")
    mark = COMMENTS.get(path.suffix, "#" if is_script else None)
    if mark is None:
        return 0
    return len(re.findall(rf"^[ \t]*(?!{mark})\S", text, re.M))


def main():
    listed = subprocess.run(["git", "ls-files", "-z"], cwd=ROOT, capture_output=True, check=True)
    paths = [pathlib.Path(name) for name in listed.stdout.decode().split("\0")[:-1]]
    counted = {path: lines_of_code(ROOT / path) for path in paths if (ROOT / path).is_file()}
    tests = sum(lines for path, lines in counted.items() if path.parts[0] in ("tests", "fuzz"))
    share = tests / sum(counted.values())
    print(f"Tests are {tests} of {sum(counted.values())} lines of code: {100 * share:.1f} %")
    return 1 if share > MOST else 0


if __name__ == "__main__":
    sys.exit(main())
