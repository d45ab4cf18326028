#!/usr/bin/env python3
"""Prints a file of the reference as Doxygen wants it: the filter of docs/Doxyfile.

Headers: every comment documents what follows it or stands in front of it. What is told in two
columns, a name and its meaning, becomes a list. Pages: headings get the anchors that links name,
and `<!-- diagram: FILE -->` becomes that diagram.
"""

import os
import re
import sys

from page_text import slug, split_code

COMMENT = re.compile(r"^( *)// ?(.*)$")
TRAILING = re.compile(r"^( *[^ /].*[,;]) *// (.*)$")
ROW = re.compile(r"^( {0,3})([a-zA-Z_][\w:]*(?:, [a-zA-Z_]\w*)*)(?:  +(\S.*))?$")
LINK = re.compile(r"(?<!!)\[([^]]*)\]\(([^):]+)\)")


def escaped(text):
    """Dashes, tags and commands as they stand; between quotes and backquotes they do anyway."""
    parts = re.split(r"(`[^`]*`|\"[^\"]*\")", text)
    parts[::2] = [re.sub(r"(--|[<>@#\\%])", r"\\\1", part) for part in parts[::2]]
    return "".join(parts)


def documented(block):
    """The lines of one comment block, without slashes."""
    in_list = False
    for text in block:
        row = ROW.match(text)
        is_row = row and (row[3] or row[1])
        if is_row:
            if not in_list:
                yield ""
            yield f"- {escaped(row[2])}" + (f": {escaped(row[3])}" if row[3] else "")
            in_list = True
        elif in_list and text.startswith("    "):
            yield "  " + escaped(text.strip())
        elif text.startswith("    "):
            yield "    " + text  # code
        else:
            in_list = in_list and text == ""
            yield escaped(text)


def header(lines):
    yield "/// \\file"
    block = []
    for number, line in enumerate(lines):
        comment = COMMENT.match(line)
        if comment:
            indent = comment[1]
            block.append(comment[2])
            continue
        if not line.startswith("#"):  # what documents a directive is no part of the reference
            yield from (f"{indent}/// {text}" for text in documented(block))
        if len(block) == number:  # the comment on top, which is about the file
            yield ""
        block = []
        yield TRAILING.sub(lambda found: f"{found[1]}  ///< {escaped(found[2])}", line)


def link(path, text, target):
    """Doxygen knows the pages and the anchors that page() gives them, and no other files."""
    text = " ".join(text.split())  # in one line
    name, _, anchor = target.partition("#")
    file = os.path.normpath(os.path.join(os.path.dirname(path), name)) if name else path
    if anchor:
        return f"[{text}](@ref {label(file, anchor)})"
    if file.endswith(".md") and (file.startswith("docs/") or "/" not in file):
        return f"[{text}](@ref {label(file)})"
    return f"`{file}`" if text == os.path.basename(file) else f"{text} (`{file}`)"


def label(path, anchor="page"):
    return re.sub(r"\W", "_", path.removesuffix(".md") + "_" + anchor)


def prose(path, text):
    text = re.sub(r"^(#+ (.*))$",
                  lambda found: f"{found[1]} {{#{label(path, slug(found[2]))}}}", text, flags=re.M)
    text = re.sub(r"^<!-- diagram: (\S+) -->$", r"\\dotfile \1", text, flags=re.M)
    text = re.sub(r"(?<!`)`([^`\n]*'[^`\n]*)`", r"``\1``", text)  # a quote would end the code
    return LINK.sub(lambda found: link(path, found[1], found[2]), text)


def page(path, text):
    title, _, rest = text.partition("\n")
    parts = split_code(rest)
    parts[::2] = [prose(path, part) for part in parts[::2]]
    return f"{title} {{#{label(path)}}}\n" + "".join(parts)


def main():
    path = sys.argv[1]
    with open(path, encoding="utf-8") as file:
        text = file.read()
    if path.endswith(".h"):
        print("\n".join(header(text.split("\n"))), end="")
    else:
        print(page(os.path.relpath(path), text), end="")


main()
