"""What a page of the documents is made of: fenced code, and prose with headings and links."""

import re


def split_code(text):
    """Prose and fenced blocks in turn, beginning with prose."""
    return re.split(r"(^```.*?^```$)", text, flags=re.M | re.S)


def slug(heading):
    """The anchor of a heading, as sites that show Markdown make it."""
    return re.sub(r"[^\w -]", "", heading.lower()).replace(" ", "-")
