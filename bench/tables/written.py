"""Reads the tables of a .docx, nested ones too, with their merged cells. Source: ECMA-376 Part 1, 17.4."""
import xml.etree.ElementTree as xml
import zipfile

from relations import Cell

W = "{http://schemas.openxmlformats.org/wordprocessingml/2006/main}"
BREAKS = {W + "tab", W + "br", W + "cr", W + "p"}


def tables_of(file):
    with zipfile.ZipFile(file) as parts:
        root = xml.fromstring(parts.read("word/document.xml"))
    return [cells_of(table) for table in root.iter(W + "tbl")]


def cells_of(table):
    cells, open_spans = [], {}
    for row, element in enumerate(table.findall(W + "tr")):
        column = int(value(element, "trPr/gridBefore") or 0)
        for place in element.findall(W + "tc"):
            columns = int(value(place, "tcPr/gridSpan") or 1)
            if is_continued(place) and column in open_spans:
                index = open_spans[column]
                above = cells[index]
                cells[index] = Cell(above.row, above.column, above.rows + 1, above.columns, above.text)
            else:
                open_spans[column] = len(cells)
                cells.append(Cell(row, column, 1, columns, text_of(place)))
            column += columns
    return cells


def is_continued(place):
    """A vMerge without a value goes on with the cell above."""
    merge = place.find(f"{W}tcPr/{W}vMerge")
    return merge is not None and merge.get(W + "val") != "restart"


def value(element, path):
    found = element.find("/".join(W + name for name in path.split("/")))
    return None if found is None else found.get(W + "val")


def text_of(place):
    text = ""
    for element in place.iter():
        if element.tag == W + "t":
            text += element.text or ""
        elif element.tag == W + "noBreakHyphen":
            text += "-"
        elif element.tag in BREAKS:
            text += " "
    return text
