#!/usr/bin/env python3
"""Asks whether docs/messages.md shows every text that the library can print.

The texts are the literals of messages.h in each room and of the sources that write the debug log,
cut at their gaps. Each must stand in what a console block shows, which check_page.py compares with what is printed.
"""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
PAGE = ROOT / "docs/messages.md"
SOURCES = [*ROOT.glob("src/*/messages.h"), *ROOT.glob("src/recognizers/*.cpp"),
           *ROOT.glob("src/parser/*.cpp")]
# Literals that no user meets.
UNSEEN = {
    "basic_string::substr: position behind the end",  # callers stay inside the text
    "There is no result to store into",  # a parse without a result is refused before
}
SHORTEST = 4  # shorter ones are quotes and separators


def literals(source):
    for line in source.read_text().splitlines():
        if not line.startswith("#include"):
            code = re.sub(r"//.*", "", line)
            for literal in re.findall(r'"((?:[^"\\]|\\.)*)"', code):
                yield from literal.replace(r"\n", "\n").replace(r"\"", '"').split("{}")


def main():
    consoles = re.findall(r"^```console\n(.*?)^```$", PAGE.read_text(), re.M | re.S)
    shown = "".join(consoles)
    texts = {text for source in SOURCES for text in literals(source) if len(text) >= SHORTEST}
    missing = sorted(text for text in texts - UNSEEN if text.rstrip(" ") not in shown)
    for text in missing:
        print(f"{PAGE.relative_to(ROOT)} does not show: {text}")
    if not missing:
        print(f"All {len(texts)} texts are shown.")
    return 1 if missing or not texts else 0


if __name__ == "__main__":
    sys.exit(main())
