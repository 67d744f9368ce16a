#!/usr/bin/env python3
"""A document of one's own is well-formed, and its truth says what its table is: spans, marks and indents told apart from the texts."""
import pathlib
import sys
import tempfile
import xml.etree.ElementTree as xml

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent))

import cells
import frames
import heads
import labels
import pages
import reports
from odf import Document, Look, Setting
from relations import Cell
from traps import TRAPS
from truth import read_regions

TABLE = ["Crop|Yield|<", "^|1911|1912", " Rye^{1}||84//85"]
CELLS = [Cell(0, 0, 2, 1, "Crop"), Cell(0, 1, 1, 2, "Yield"), Cell(1, 1, 1, 1, "1911"), Cell(1, 2, 1, 1, "1912"),
         Cell(2, 0, 1, 1, "Rye1"), Cell(2, 1, 1, 1, ""), Cell(2, 2, 1, 1, "84 85")]


def faults():
    document = Document(Setting())
    document.table([3, 2, 2], TABLE, Look(head=2, span_rules=(0,)))
    with tempfile.TemporaryDirectory() as folder:
        file = pathlib.Path(folder) / "a-str.xml"
        file.write_text(document.truth(), encoding="utf-8")
        if read_regions(file) != [CELLS]:
            yield f"the truth is {read_regions(file)}"
    try:
        document.table([3, 2], TABLE)
        yield "a table with more cells than columns is taken"
    except ValueError:
        pass
    for name, make in TRAPS.items():
        for larger in (0, -1):
            xml.fromstring(make(Setting(larger=larger)).xml())
        if not make(Setting()).tables:
            yield f"{name} has no table"


def main():
    found = list(faults())
    print("\n".join(found))
    sys.exit(bool(found))


if __name__ == "__main__":
    main()
