#!/usr/bin/env python3
"""Runs what a page of the documents shows: see docs/samples.md.

Usage: check_page.py [--update] --build DIR --compiler COMPILER PAGE

Compiles the cpp blocks of PAGE against the library built in DIR, runs the console blocks and
compares what they print with what the page says. With --update the page is made to say it.
"""

import argparse
import difflib
import os
import pathlib
import re
import subprocess
import sys
import tempfile

from page_text import slug, split_code

ROOT = pathlib.Path(__file__).resolve().parents[2]
FRAMES = ROOT / "docs/samples"
# Where the commands stand that pages may show without their being run from the page.
SCRIPTS = [ROOT / "dev", *ROOT.glob("tests/package/*.sh")]
WARNINGS = ("-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor "
            "-Woverloaded-virtual -Werror").split()
PART = "// <part>"
CMAKE_FRAME = """cmake_minimum_required(VERSION 3.25)
project(sample LANGUAGES CXX)
add_executable({tool} {tool}.cpp)
"""
DIRECTIVE = re.compile(r"<!-- (tool|file): (\S+)(?: in (\S+))? -->")
LINK = re.compile(r"\]\(([^)#:]*)(?:#([^)]*))?\)")


class Block:
    """A fenced block: its info string, what the comment in front of it says, and its lines."""

    def __init__(self, page, kind, directive, first_line, lines):
        self.where = f"{page}:{first_line}"
        self.kind = kind
        self.verb, self.name, self.frame = directive.groups() if directive else (None,) * 3
        self.first_line = first_line  # the number of its first line, from 0
        self.lines = lines


def read_blocks(page):
    lines = page.read_text().split("\n")
    blocks = []
    begin = None
    for number, line in enumerate(lines):
        if not line.startswith("```"):
            continue
        if begin is None:
            begin = number
            continue
        directive = DIRECTIVE.fullmatch(lines[begin - 1]) if begin > 0 else None
        blocks.append(Block(page.relative_to(ROOT), lines[begin][3:], directive, begin + 1,
                            lines[begin + 1:number]))
        begin = None
    if begin is not None:
        raise SystemExit(f"{page}:{begin + 1}: the block has no end")
    return blocks


def write_sources(blocks, folder):
    """The files of the page, and one source for each tool: a program, or parts in their frame."""
    parts = {}
    for block in blocks:
        text = "\n".join(block.lines) + "\n"
        if block.verb == "file":
            (folder / block.name).write_text(text)
        elif block.kind == "cpp":
            parts.setdefault((block.name or "tool", block.frame), []).append(text)
    tools = []
    for (name, frame), texts in parts.items():
        source = (FRAMES / frame).read_text() if frame else PART
        if source.count(PART) != len(texts):
            raise SystemExit(f"{name}: {len(texts)} parts for {source.count(PART)} places")
        for text in texts:
            source = source.replace(PART, text, 1)
        (folder / f"{name}.cpp").write_text(source)
        tools.append(name)
    return tools


def compile_tools(tools, folder, compiler, environment):
    flags = subprocess.run(["pkg-config", "--cflags", "--libs", "zarn"], cwd=folder,
                           env=environment, capture_output=True, text=True,
                           check=True).stdout.split()
    for name in tools:
        command = [compiler, "-std=c++17", *WARNINGS, f"{name}.cpp", "-o", f"bin/{name}", *flags]
        done = subprocess.run(command, cwd=folder, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, text=True, check=False)
        if done.returncode != 0:
            raise SystemExit(f"{name}.cpp does not compile:\n{done.stdout}")


def read_commands(lines):
    """[(command, its lines on the page)]: "$ " begins a command, "> " goes on with it."""
    commands = []
    for line in lines:
        if line.startswith("$ "):
            commands.append((line[2:], [line]))
            is_head = True
        elif not commands:
            raise SystemExit("a console block begins with its command")
        elif is_head and line.startswith("> "):
            commands[-1] = (commands[-1][0] + "\n" + line[2:], commands[-1][1] + [line])
        else:
            is_head = False
    return commands


def run_console(block, folder, environment):
    """The lines that the block should have."""
    shown = []
    for command, head in read_commands(block.lines):
        done = subprocess.run(["bash", "-c", command], cwd=folder, env=environment, timeout=120,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, check=False)
        shown += head + done.stdout.decode(errors="backslashreplace").split("\n")
        if shown[-1] == "":
            shown.pop()
        if done.returncode != 0:
            shown.append(f"[exit code {done.returncode}]")
    return shown


def is_known_command(line):
    """Whether the scripts do the same: each command of the line, with its options."""
    text = "\n".join(script.read_text() for script in SCRIPTS)
    for command in re.sub(r"(^|\s)#.*", "", line).split("&&"):
        words = command.split()
        if words and words[0] == "./dev":
            pattern = rf"^  {re.escape(words[1])}\b"
        else:
            options = [word for word in words[1:] if word.startswith("-")]
            pattern = ".*".join(rf"(?<!\S){re.escape(word)}(?!\S)" for word in words[:1] + options)
        if not re.search(pattern, text, re.M):
            return False
    return True


def cmake_problems(block, tool, folder, environment):
    """A cmake block serves to build the tool."""
    project = folder / f"project_{block.first_line}"
    project.mkdir()
    text = CMAKE_FRAME.format(tool=tool) + "\n".join(block.lines) + "\n"
    (project / "CMakeLists.txt").write_text(text)
    (project / f"{tool}.cpp").write_bytes((folder / f"{tool}.cpp").read_bytes())
    command = "cmake -B build && cmake --build build"
    done = subprocess.run(command, shell=True, cwd=project, env=environment, text=True,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
    return [f"{block.where}: {done.stdout}"] if done.returncode != 0 else []


def tools_that_rest(tools, blocks):
    consoles = "\n".join(line for block in blocks if block.kind == "console"
                         for line in block.lines if line.startswith("$ "))
    return [f"{tool} is never run" for tool in tools if not re.search(rf"\b{tool}\b", consoles)]


def prose(page):
    return "".join(split_code(page.read_text())[::2])


def broken_links(page):
    for path, anchor in LINK.findall(prose(page)):
        target = page.parent / path if path else page
        if not target.exists():
            yield f"{page.name}: there is no {path}"
        elif anchor:
            headings = re.findall(r"^#+ (.*)$", prose(target), re.M)
            if anchor not in map(slug, headings):
                yield f"{page.name}: {path} has no {anchor}"


def make_environment(build, work):
    """Installs the library, for tools to be built on it as their authors build them."""
    subprocess.run(["cmake", "--install", build, "--prefix", work / "zarn"], check=True,
                   stdout=subprocess.DEVNULL)
    libraries = next((work / "zarn").rglob("libzarn.so")).parent
    return {
        **os.environ,
        "LC_ALL": "C.UTF-8",
        "COLUMNS": "80",
        "CMAKE_GENERATOR": "Ninja",
        "PATH": f"{work}/page/bin:{work}/zarn/bin:{os.environ['PATH']}",
        "LD_LIBRARY_PATH": str(libraries),
        # As seen from the page: in a shell, blanks in flags would cut them in two.
        "PKG_CONFIG_PATH": os.path.relpath(libraries / "pkgconfig", work / "page"),
        "CMAKE_PREFIX_PATH": str(work / "zarn"),
    }


def problems_of(page, blocks, work, arguments):
    """What the page says that is not so; with --update the page is mended where it can be."""
    environment = make_environment(arguments.build, work)
    folder = work / "page"
    (folder / "bin").mkdir(parents=True)
    tools = write_sources(blocks, folder)
    compile_tools(tools, folder, arguments.compiler, environment)

    problems = [*broken_links(page), *tools_that_rest(tools, blocks)]
    lines = page.read_text().split("\n")
    moved = 0  # by how many lines what follows has moved
    for block in blocks:
        if block.kind == "console":
            shown = run_console(block, folder, environment)
            begin = block.first_line + moved
            lines[begin:begin + len(block.lines)] = shown
            moved += len(shown) - len(block.lines)
            if shown != block.lines and not arguments.update:
                problems += [f"{block.where}: shown (-) and printed (+) differ:",
                             *list(difflib.unified_diff(block.lines, shown, lineterm=""))[2:]]
        elif block.verb == "file" or block.kind == "cpp":
            continue  # tried by the commands of the page
        elif block.kind == "cmake":
            problems += cmake_problems(block, tools[0], folder, environment)
        else:
            problems += [f"{block.where}: nothing tries this: {line}" for line in block.lines
                         if not is_known_command(line)]
    if arguments.update:
        page.write_text("\n".join(lines))
    return problems


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--update", action="store_true")
    parser.add_argument("--build", type=lambda path: pathlib.Path(path).resolve(), required=True)
    parser.add_argument("--compiler", required=True)
    parser.add_argument("page", type=pathlib.Path)
    arguments = parser.parse_args()
    page = arguments.page.resolve()
    blocks = read_blocks(page)
    with tempfile.TemporaryDirectory() as work:
        problems = problems_of(page, blocks, pathlib.Path(work), arguments)
    print("\n".join(problems) or f"{len(blocks)} blocks are as they are shown.")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
