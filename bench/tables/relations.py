"""Tables as the relations between their cells, which is what they are compared by.

Two cells that stand next to each other, with nothing but blank cells between them, are one relation: the text of both and the direction.
A table whose row was split in two, or that lost a column, has some relations too many and lacks others; one that lost a blank column
has the same. Source: Goebel, Hassan, Oro and Orsi, "A Methodology for Evaluating Algorithms for Table Understanding in PDF Documents".
"""
import collections
import dataclasses
import re


@dataclasses.dataclass(frozen=True)
class Cell:
    row: int
    column: int
    rows: int
    columns: int
    text: str


RIGHT, BELOW = "right", "below"


def key(text):
    """What counts of a text: neither blanks nor case, and no sign that fonts are free to encode as they like."""
    return re.sub(r"[^\w%.,()+-]", "", text).lower()


def places(cells):
    """The cell at each place of the grid."""
    return {(row, column): cell for cell in cells
            for row in range(cell.row, cell.row + cell.rows) for column in range(cell.column, cell.column + cell.columns)}


def next_filled(grid, place, step, end):
    """The first cell with text from `place` on that is another one, or nothing."""
    start = grid[place]
    row, column = place
    while row <= end[0] and column <= end[1]:
        cell = grid.get((row, column))
        if cell and cell is not start and key(cell.text):
            return cell
        row, column = row + step[0], column + step[1]
    return None


def relations(cells):
    """The relations of one table, as (text, text, direction) with how often they are there."""
    grid = places(cells)
    if not grid:
        return collections.Counter()
    end = (max(row for row, _ in grid), max(column for _, column in grid))
    found = set()
    for place, cell in grid.items():
        if not key(cell.text):
            continue
        for direction, step in ((RIGHT, (0, 1)), (BELOW, (1, 0))):
            other = next_filled(grid, place, step, end)
            if other:
                found.add((cell, other, direction))
    return collections.Counter((key(cell.text), key(other.text), direction) for cell, other, direction in found)


@dataclasses.dataclass
class Score:
    precision: float
    recall: float

    @property
    def f1(self):
        both = self.precision + self.recall
        return 2 * self.precision * self.recall / both if both else 0.0


def compare(wanted, found):
    """Score of the tables found in a document; both are relations."""
    same = (wanted & found).total()
    return Score(same / max(1, found.total()), same / max(1, wanted.total()))
