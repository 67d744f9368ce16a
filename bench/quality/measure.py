#!/usr/bin/env python3
"""measure.py PROGRAM [--only NAME] [--write TABLE.md] [--floor FILE]: how well PROGRAM (orvane) gives the bench's documents back.

Each measure is an F1 of 0 to 1 (1: all of it, and nothing else), the mean over the documents that have such a thing:
  words       the words, as many times as they stand there
  order       the longest run of matching words in the right order, of all words
  paragraphs  whole paragraphs outside tables: not cut, not joined
  headings    by level and text             items    of lists, by level, kind and text
  cells       by row, column, text          links    by text and address
  notes       by what stands before the mark and their text
  strong      bold and italic words         furniture  running heads and feet with their page numbers
  columns     the most columns of a section contents   entries of a table of contents
"""
import argparse
import collections
import difflib
import pathlib
import re
import subprocess
import sys
import tempfile

from documents import DOCUMENTS
from truth import truth_of
from wordread import WordReader

HERE = pathlib.Path(__file__).parent
# Scripts that write without blanks are counted by their characters.
WORD = re.compile("[\u0e00-\u0e7f\u3000-\u30ff\u3400-\u9fff\uff00-\uffef]|[^\\s\u0e00-\u0e7f\u3000-\u30ff\u3400-\u9fff\uff00-\uffef]+")


def f1(wanted, found):
    """Of two collections that may hold equal values; nothing when nothing is wanted and nothing found."""
    if not wanted and not found:
        return None
    wanted, found = collections.Counter(wanted), collections.Counter(found)
    return 2 * (wanted & found).total() / (wanted.total() + found.total())


def words_of(read):
    return [word for text, _ in read.paragraphs for word in WORD.findall(text)]


def order(wanted, found):
    matcher = difflib.SequenceMatcher(None, wanted, found, autojunk=False)
    return 2 * sum(block.size for block in matcher.get_matching_blocks()) / max(1, len(wanted) + len(found))


def tables_of(read):
    tables = collections.defaultdict(set)
    for table, row, column, text in read.cells:
        tables[table].add((row, column, text))
    return list(tables.values())


def cells(wanted, found):
    """Each wanted table is held against the found one that is most like it: a missed table does not shift the others."""
    pairs = sorted(((len(table & other), t, o) for t, table in enumerate(tables_of(wanted)) for o, other in enumerate(tables_of(found))),
                   reverse=True)
    same, taken = 0, set()
    for equal, table, other in pairs:
        if not {("wanted", table), ("found", other)} & taken:
            same += equal
            taken |= {("wanted", table), ("found", other)}
    total = len(wanted.cells) + len(found.cells)
    return 2 * same / total if total else None


def measures(wanted, found):
    whole = [text for text, in_table in wanted.paragraphs if not in_table]
    whole_found = [text for text, in_table in found.paragraphs if not in_table]
    # Headings are set bold by their style; whether a run says it again is a matter of taste.
    heading_words = {word for _, text in wanted.headings for word in text.split()}
    strong = [(mark, word) for mark, word in found.strong if word not in heading_words or (mark, word) in wanted.strong]
    return {
        "words": f1(words_of(wanted), words_of(found)),
        "order": order(words_of(wanted), words_of(found)),
        "paragraphs": f1(whole, whole_found),
        "headings": f1(wanted.headings, found.headings),
        "items": f1(wanted.items, found.items),
        "cells": cells(wanted, found),
        "links": f1(wanted.links, found.links),
        "notes": f1(wanted.notes, found.notes),
        "strong": f1(wanted.strong, strong),
        "furniture": f1(wanted.furniture, found.furniture),
        "columns": (1.0 if wanted.columns == found.columns else 0.0) if max(wanted.columns, found.columns) > 1 else None,
        "contents": f1(range(wanted.contents), range(found.contents)),
    }


def convert(program, document, folder):
    target = f"{folder}/{document.name}.docx"
    subprocess.run([program, "convert", str(HERE / "pdf" / f"{document.name}.pdf"), target], check=True, stdout=subprocess.DEVNULL,
                   timeout=60)
    return target


def measure_all(program, only):
    rows = {}
    with tempfile.TemporaryDirectory() as folder:
        for document in DOCUMENTS:
            if not only or document.name in only:
                rows[document.name] = measures(truth_of(document), WordReader(convert(program, document, folder)).run())
    return rows


def means(rows):
    result = {}
    for row in rows.values():
        for name, value in row.items():
            result.setdefault(name, [])
            if value is not None:
                result[name].append(value)
    return {name: sum(values) / len(values) if values else None for name, values in result.items()}


def shown(value):
    return "" if value is None else f"{value:.2f}"


def table_of(rows):
    names = list(next(iter(rows.values())))
    lines = ["| document | " + " | ".join(names) + " |", "|---|" + "---:|" * len(names)]
    for name, row in [*rows.items(), ("**mean**", means(rows))]:
        lines.append(f"| {name} | " + " | ".join(shown(row[measure]) for measure in names) + " |")
    return "\n".join(lines) + "\n"


def page_of(rows):
    text = (HERE / "quality.md.in").read_text(encoding="utf-8")
    shows = "".join(f"| `{document.name}` | {document.shows} |\n" for document in DOCUMENTS)
    return text.replace("@DOCUMENTS@\n", shows).replace("@TABLE@\n", table_of(rows))


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program")
    parser.add_argument("--only", nargs="*")
    parser.add_argument("--write", help="the page to write the table into")
    parser.add_argument("--floor", help="measures and the least that each must reach")
    options = parser.parse_args()
    rows = measure_all(options.program, options.only)
    if options.write:
        pathlib.Path(options.write).write_text(page_of(rows), encoding="utf-8")
    print(table_of(rows))
    fallen = []
    if options.floor:
        reached = means(rows)
        for line in pathlib.Path(options.floor).read_text(encoding="utf-8").splitlines():
            name, least = line.split()
            if (reached[name] or 0.0) < float(least):
                fallen.append(f"{name} is {shown(reached[name])}, below {least}")
    print("\n".join(fallen))
    return 1 if fallen else 0


if __name__ == "__main__":
    sys.exit(main())
