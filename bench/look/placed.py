"""The words of a PDF file with their places, and those of two files matched with each other."""
import difflib
import html
import re
import subprocess
import typing

ITEM = re.compile(r'<page |<line |<word xMin="([-\d.]+)" yMin="([-\d.]+)" xMax="([-\d.]+)" yMax="([-\d.]+)">(.*?)</word>')


class Word(typing.NamedTuple):
    """Places are points from the page's top left corner."""
    page: int
    left: float
    top: float
    right: float
    bottom: float
    text: str


def lines_of(markup):
    """The lines of what `pdftotext -bbox-layout` writes, each a list of words."""
    lines, page = [], 0
    for match in ITEM.finditer(markup):
        if match[0].startswith("<page"):
            page += 1
        elif match[0].startswith("<line"):
            lines.append([])
        else:
            lines[-1].append(Word(page, *(float(match[i]) for i in range(1, 5)), html.unescape(match[5])))
    return [line for line in lines if line]


def read(pdf):
    run = subprocess.run(["pdftotext", "-bbox-layout", pdf, "-"], capture_output=True, check=True)
    return lines_of(run.stdout.decode("utf-8", "replace"))


def matched(source, result):
    """For each line of `source` the pairs of its words and the same words of `result`, as far as they were found in order."""
    words = [word for line in source for word in line]
    others = [word for line in result for word in line]
    matcher = difflib.SequenceMatcher(None, [word.text for word in words], [word.text for word in others], autojunk=False)
    partner = {block.a + i: block.b + i for block in matcher.get_matching_blocks() for i in range(block.size)}
    pairs, at = [], 0
    for line in source:
        pairs.append([(words[i], others[partner[i]]) for i in range(at, at + len(line)) if i in partner])
        at += len(line)
    return pairs
