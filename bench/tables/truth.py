"""Reads what the tables of a PDF are: the competition's NAME-str.xml, or NAME.csv with one table."""
import csv
import xml.etree.ElementTree as xml

from relations import Cell


def read_regions(file):
    """A table of the competition may have several regions, on several pages; each tells how far its rows and columns are moved."""
    tables = []
    for table in xml.parse(file).getroot().iter("table"):
        cells, row, column = [], 0, 0
        for region in table.iter("region"):
            row += int(region.get("row-increment") or 0)
            column += int(region.get("col-increment") or 0)
            cells += [cell_of(element, row, column) for element in region.iter("cell")]
        tables.append(cells)
    return tables


def cell_of(element, row, column):
    first_row, first_column = int(element.get("start-row")), int(element.get("start-col"))
    last_row, last_column = int(element.get("end-row") or first_row), int(element.get("end-col") or first_column)
    return Cell(row + first_row, column + first_column, last_row - first_row + 1, last_column - first_column + 1,
                element.findtext("content") or "")


def read_values(file):
    with open(file, encoding="utf-8", errors="replace", newline="") as lines:
        return [[Cell(row, column, 1, 1, text) for row, texts in enumerate(csv.reader(lines)) for column, text in enumerate(texts)]]


READERS = {"-str.xml": read_regions, ".csv": read_values}


def truth_of(pdf, folders):
    """The tables of `pdf`, from the first of the folders that has a file for it; nothing when none has."""
    for folder in folders:
        for ending, read in READERS.items():
            file = folder / (pdf.stem + ending)
            if file.exists():
                return read(file)
    return None
