#!/usr/bin/env python3
"""Lines that stand still are told from those that moved, alone or together, on their page or to another one."""
import sys

sys.dont_write_bytecode = True

from drift import report, runs_of
from placed import lines_of


def markup(pages):
    """Pages of lines (left, top, text) as pdftotext writes them, each letter five points wide."""
    text = []
    for page in pages:
        text.append('<page width="595" height="842">')
        for left, top, line in page:
            text.append("<line xMin=\"0\">")
            for word in line.split():
                right = left + 5 * len(word)
                text.append(f'<word xMin="{left}" yMin="{top}" xMax="{right}" yMax="{top + 12}">{word}</word>')
                left = right + 5
    return "\n".join(text)


def runs(source, result):
    return runs_of(lines_of(markup(source)), lines_of(markup(result)))


SOURCE = [[(72, 72, "the first line"), (72, 86, "a second one"), (72, 100, "some third &amp; last")], [(72, 72, "another page here")]]


def faults():
    still = runs(SOURCE, SOURCE)
    if [(run.page, run.lines) for run in still] != [(1, 3), (2, 1)] or report(still, False) != ("", 1.0):
        yield "lines that stand still are not seen as such"
    if "some third & last" not in report(runs(SOURCE, [[(72, 72, "some third &amp; last")]]), True)[0]:
        yield "signs are not decoded"

    lower = [[SOURCE[0][0], (72, 96, "a second one"), (72, 110, "some third &amp; last")], SOURCE[1]]
    moved = runs(SOURCE, lower)
    if [(run.lines, run.down) for run in moved] != [(1, 0), (2, 10), (1, 0)]:
        yield "lines that moved down together are not one run"
    if report(moved, False)[1] != 0.5:
        yield "the share of lines in place is wrong"

    pushed = runs(SOURCE, [SOURCE[0][:2], [(72, 72, "some third &amp; last")], SOURCE[1]])
    if [run.pages for run in pushed] != [0, 1, 1] or pushed[1].is_in_place():
        yield "a line on the page after is not seen"
    if "page +1" not in report(pushed, False)[0]:
        yield "a line on the page after is not told"

    if runs(SOURCE, [[(72, 72, "nothing alike")]]):
        yield "lines were matched that are not there"


if __name__ == "__main__":
    found = list(faults())
    print("\n".join(found) or "1 passed, 0 failed")
    sys.exit(1 if found else 0)
