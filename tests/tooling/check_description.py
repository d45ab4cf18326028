#!/usr/bin/env python3
"""Holds what a tool answers against its kept description, and kept descriptions against the schema.

Usage: check_description.py TOOL KEPT_DESCRIPTION [DESCRIPTION...]
"""

import copy
import difflib
import json
import os
import pathlib
import re
import subprocess
import sys

import jsonschema

ROOT = pathlib.Path(__file__).resolve().parents[2]
SCHEMA = json.loads((ROOT / "docs/description.schema.json").read_text())
PAGE = (ROOT / "docs/description.md").read_text()

# Each breaks a description that keeps the schema.
BREAKS = [
    lambda whole: whole.pop("format"),
    lambda whole: whole.update(format=2),
    lambda whole: whole.update(flags="62"),
    lambda whole: whole.update(sections=[]),
    lambda whole: whole["groups"].append("create"),
    lambda whole: whole["items"][0].pop("kind"),
    lambda whole: whole["items"][0].update(type="string"),
    lambda whole: whole["items"][0].update(hidden=False),
    lambda whole: whole["items"][0].update(default=1),
]


def keys_in(value):
    """The keys of all objects in a description."""
    if isinstance(value, dict):
        return set(value).union(*map(keys_in, value.values()))
    return set().union(*map(keys_in, value)) if isinstance(value, list) else set()


def keys_allowed(schema):
    """The keys that a schema knows."""
    if isinstance(schema, list):
        return set().union(*map(keys_allowed, schema))
    if not isinstance(schema, dict):
        return set()
    return set(schema.get("properties", ())).union(*map(keys_allowed, schema.values()))


def check_answers(tool, kept):
    for name in ("C", "C.UTF-8", "de_DE.UTF-8"):
        done = subprocess.run([tool, "--zarn-answer", "describe"], check=True,
                              stdin=subprocess.DEVNULL, capture_output=True,
                              env={**os.environ, "LC_ALL": name})
        answer = done.stdout.decode() + done.stderr.decode()
        if answer != kept.read_text():
            sys.exit("".join(difflib.unified_diff(kept.read_text().splitlines(True),
                                                  answer.splitlines(True), str(kept), name)))


def check_schema(texts):
    validator = jsonschema.Draft202012Validator(SCHEMA)
    described = [json.loads(text) for text in texts]
    for text, whole in zip(texts, described):
        validator.validate(whole)
        assert json.dumps(whole, indent=2, ensure_ascii=False) + "\n" == text, "another layout"
    documented = set(re.findall(r"^\| `(\w+)`", PAGE, re.M))
    assert keys_in(described) == keys_allowed(SCHEMA) == documented, "schema or page lacks a key"
    for number, spoil in enumerate(BREAKS):
        broken = copy.deepcopy(described[0])
        spoil(broken)
        assert not validator.is_valid(broken), f"the schema takes break {number}"


def main():
    tool, kept, *others = sys.argv[1:]
    check_answers(tool, pathlib.Path(kept))
    check_schema([pathlib.Path(path).read_text() for path in (kept, *others)])


if __name__ == "__main__":
    main()
