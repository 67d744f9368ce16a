#!/usr/bin/env python3
"""Tables read back as their relations: the same table measures 1, and what was split, merged, lost or made up measures less."""
import pathlib
import sys
import tempfile
import zipfile

sys.dont_write_bytecode = True

from relations import BELOW, RIGHT, Cell, compare, relations
from truth import truth_of
from written import tables_of

# A head over two columns, and a blank cell.
TABLE = [Cell(0, 0, 2, 1, "Crop"), Cell(0, 1, 1, 2, "Yield"), Cell(1, 1, 1, 1, "1911"), Cell(1, 2, 1, 1, "1912"),
         Cell(2, 0, 1, 1, "Rye"), Cell(2, 1, 1, 1, ""), Cell(2, 2, 1, 1, "84")]
RELATIONS = {("crop", "yield", RIGHT): 1, ("crop", "1911", RIGHT): 1, ("1911", "1912", RIGHT): 1, ("rye", "84", RIGHT): 1,
             ("crop", "rye", BELOW): 1, ("yield", "1911", BELOW): 1, ("yield", "1912", BELOW): 1, ("1912", "84", BELOW): 1}

REGIONS = """<document><table id="1"><region page="1">
<cell start-row="0" start-col="0" end-row="1"><content>Crop</content></cell>
<cell start-row="0" start-col="1" end-col="2"><content>Yield</content></cell>
<cell start-row="1" start-col="1"><content>1911</content></cell><cell start-row="1" start-col="2"><content>1912</content></cell>
</region><region page="2" row-increment="2"><cell start-row="0" start-col="0"><content>Rye</content></cell>
<cell start-row="0" start-col="2"><content>84</content></cell></region></table></document>"""

DOCUMENT = """<w:document xmlns:w="http://schemas.openxmlformats.org/wordprocessingml/2006/main"><w:body><w:tbl>
<w:tr><w:tc><w:tcPr><w:vMerge w:val="restart"/></w:tcPr><w:p><w:r><w:t>Crop</w:t></w:r></w:p></w:tc>
<w:tc><w:tcPr><w:gridSpan w:val="2"/></w:tcPr><w:p><w:r><w:t>Yield</w:t></w:r></w:p></w:tc></w:tr>
<w:tr><w:tc><w:tcPr><w:vMerge/></w:tcPr><w:p/></w:tc><w:tc><w:p><w:r><w:t>1911</w:t></w:r></w:p></w:tc>
<w:tc><w:p><w:r><w:t>1912</w:t></w:r></w:p></w:tc></w:tr>
<w:tr><w:tc><w:p><w:r><w:t>Rye</w:t></w:r></w:p></w:tc><w:tc><w:p/></w:tc><w:tc><w:p><w:r><w:t>84</w:t></w:r></w:p></w:tc></w:tr>
</w:tbl></w:body></w:document>"""


def without(cells, index):
    return cells[:index] + cells[index + 1:]


def faults():
    wanted = relations(TABLE)
    if dict(wanted) != RELATIONS:
        yield f"the relations are {dict(wanted)}"
    moved = [Cell(cell.row, cell.column + (cell.column > 1), cell.rows, cell.columns + (cell.columns > 1), cell.text) for cell in TABLE]
    if compare(wanted, relations(moved)).f1 != 1:
        yield "a blank column counts"
    split = without(TABLE, 4) + [Cell(2, 0, 1, 1, "R"), Cell(3, 0, 1, 1, "ye")]
    for what, table in (("a lost cell", without(TABLE, 3)), ("a cell split in two", split),
                        ("a cell made up", TABLE + [Cell(3, 0, 1, 1, "Oats")]), ("no table", [])):
        if not compare(wanted, relations(table)).f1 < 1:
            yield f"{what} goes unseen"
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        (folder / "a-str.xml").write_text(REGIONS, encoding="utf-8")
        (folder / "b.csv").write_text("Rye,84\n", encoding="utf-8")
        with zipfile.ZipFile(folder / "a.docx", "w") as parts:
            parts.writestr("word/document.xml", DOCUMENT)
        for what, tables in (("a truth in regions", truth_of(folder / "a.pdf", [folder])), ("a document", tables_of(folder / "a.docx"))):
            if [relations(cells) for cells in tables] != [wanted]:
                yield f"{what} reads as {tables}"
        if [dict(relations(cells)) for cells in truth_of(folder / "b.pdf", [folder])] != [{("rye", "84", RIGHT): 1}]:
            yield "a truth of values does not read back"
        if truth_of(folder / "c.pdf", [folder]) is not None:
            yield "a PDF without truth has one"


if __name__ == "__main__":
    found = list(faults())
    print("\n".join(found))
    sys.exit(1 if found else 0)
