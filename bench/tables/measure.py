#!/usr/bin/env python3
"""measure.py PROGRAM FOLDER [--truth DIR ...] [--only PART] [--show]: how well PROGRAM (orvane) finds the tables of the PDFs in FOLDER.

The PDFs are converted to documents, and the tables of these compared with what the tables are: NAME-str.xml as in the ICDAR 2013 table
competition, or NAME.csv, which lie beside the PDF, in FOLDER/truth or in DIR. What is compared are the relations between neighbouring
cells; precision, recall and F1 are the means over the documents. PDFs without truth are passed over.
"""
import argparse
import pathlib
import subprocess
import sys
import tempfile

sys.dont_write_bytecode = True

from relations import Score, compare, relations
from truth import truth_of
from written import tables_of


def all_relations(tables):
    """Of all tables with more than one cell: what stands alone has no neighbours, and no part in it."""
    return sum((relations(cells) for cells in tables if len(cells) > 1), start=relations([]))


def found_in(program, pdf, timeout):
    """The tables of the document that the program makes; none when it makes no document."""
    with tempfile.TemporaryDirectory() as scratch:
        target = pathlib.Path(scratch) / "a.docx"
        try:
            subprocess.run([program, "convert", str(pdf), str(target)], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                           timeout=timeout, check=False)
        except subprocess.TimeoutExpired:
            return []
        return tables_of(target) if target.exists() else []


def show(wanted, found):
    for title, lines in (("missing", wanted - found), ("too many", found - wanted)):
        for (text, other, direction), count in sorted(lines.items()):
            print(f"    {title}: {text!r} {direction} {other!r}" + (f" ({count} times)" if count > 1 else ""))


def line(name, score, counts=""):
    return f"{name:<48} {score.precision:.3f} {score.recall:.3f} {score.f1:.3f} {counts}"


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program")
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("--truth", type=pathlib.Path, nargs="*", default=[])
    parser.add_argument("--only", default="", help="a part of the PDFs' names")
    parser.add_argument("--show", action="store_true", help="print the relations that are missing or too many")
    parser.add_argument("--timeout", type=float, default=60, help="seconds a document may take")
    options = parser.parse_args()

    print(f"{'document':<48} precision, recall, F1, tables found and wanted")
    scores = []
    for pdf in sorted(options.folder.glob("*.pdf")):
        tables = truth_of(pdf, [pdf.parent, pdf.parent / "truth", *options.truth]) if options.only in pdf.name else None
        if tables is None:
            continue
        found = [cells for cells in found_in(options.program, pdf, options.timeout) if len(cells) > 1]
        wanted_relations, found_relations = all_relations(tables), all_relations(found)
        scores.append(compare(wanted_relations, found_relations))
        print(line(pdf.stem, scores[-1], f"{len(found)}/{len(tables)}"), flush=True)
        if options.show:
            show(wanted_relations, found_relations)
    if not scores:
        sys.exit(f"{options.folder}: no PDF with a truth beside it")
    count = len(scores)
    mean = Score(sum(score.precision for score in scores) / count, sum(score.recall for score in scores) / count)
    print(line(f"mean of {count}", mean))
    print(f"{'mean of their F1':<48} {sum(score.f1 for score in scores) / count:.3f}")


if __name__ == "__main__":
    main()
