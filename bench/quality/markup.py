"""The constructs that the bench's documents are made of, as plain values.

A document is a Document of blocks; a paragraph is a list of runs. What a converter should give back is read off these values (truth.py),
and what a word processor prints is written from them (wordfile.py).
"""
from dataclasses import dataclass


@dataclass
class Run:
    text: str
    bold: bool = False
    italic: bool = False
    link: str = ""   # address, or "#name" of a heading's bookmark
    note: str = ""   # text of a footnote whose mark stands here
    break_before: bool = False


def b(text):
    return Run(text, bold=True)


def i(text):
    return Run(text, italic=True)


def link(text, address):
    return Run(text, link=address)


def note(text):
    return Run("", note=text)


def new_line(text):
    return Run(text, break_before=True)


def runs_of(parts):
    return [part if isinstance(part, Run) else Run(part) for part in parts]


@dataclass
class Paragraph:
    runs: list
    heading: int = 0      # 1 to 3; 0: none
    name: str = ""        # bookmark
    align: str = ""       # "", center, right, both
    level: int = -1       # of a list item
    ordered: bool = False
    list_id: int = 0      # items of one number are one list


def P(*parts, align=""):
    return Paragraph(runs_of(parts), align=align)


def H(level, text, name=""):
    return Paragraph(runs_of([text]), heading=level, name=name)


_lists = 0


def _items(content, ordered, level, list_id):
    for item in content:
        if isinstance(item, list):
            yield from _items(item, ordered, level + 1, list_id)
        else:
            yield Paragraph(runs_of([item]), level=level, ordered=ordered, list_id=list_id)


def bullets(*content):
    """A bulleted list; a list within the content is the level below."""
    global _lists
    _lists += 1
    return list(_items(content, False, 0, _lists))


def numbered(*content):
    global _lists
    _lists += 1
    return list(_items(content, True, 0, _lists))


@dataclass
class Cell:
    text: str
    columns: int = 1
    rows: int = 1
    align: str = ""


@dataclass
class Table:
    rows: list            # of lists of Cell or str; a place covered from above holds None
    widths: list          # millimetres
    head: int = 1         # rows that repeat
    ruled: str = "all"    # all, lines (horizontal ones), none


@dataclass
class Columns:
    count: int
    blocks: list


@dataclass
class Contents:
    """A table of contents over the document's headings; `pages` gives the page of each."""
    pages: list


@dataclass
class PageBreak:
    pass


@dataclass
class Document:
    name: str
    shows: str
    language: str
    blocks: list
    header: str = ""
    footer: str = ""          # "%p" and "%n" stand for the page and the number of pages
    font: str = "Liberation Serif"
    size: float = 11
    rtl: bool = False
    landscape: bool = False

    def __post_init__(self):
        self.blocks = list(_flattened(self.blocks))


def _flattened(blocks):
    for block in blocks:
        if isinstance(block, list):
            yield from _flattened(block)
        else:
            yield block
