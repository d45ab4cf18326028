#!/usr/bin/env python3
"""Holds the rooms of src/ to the order in which docs/architecture.md lists them.

A room may use those below it. Ends with 1 when an include goes up, or names a room that is not listed.
"""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent


def main():
    page = (ROOT / "docs" / "architecture.md").read_text()
    order = re.findall(r"^\| `src/(\w+)` \|", page, re.M)
    wrong = []
    for path in sorted((ROOT / "src").rglob("*.[ch]*")):
        room = path.relative_to(ROOT / "src").parts[0]
        if room not in order:
            wrong.append(f"{path.relative_to(ROOT)}: the page does not list this room")
            continue
        for used in re.findall(r'^#include "(\w+)/', path.read_text(), re.M):
            if used not in [*order[order.index(room):], "zarn", "plinth2"]:
                wrong.append(f"{path.relative_to(ROOT)}: may not use src/{used}")
    print("\n".join(wrong) or f"{len(order)} rooms use those below them alone")
    return 1 if wrong or not order else 0


if __name__ == "__main__":
    sys.exit(main())
