#!/usr/bin/env python3
"""drift.py PROGRAM FILE.pdf... [--keep DIR] [--all]: where the lines of FILE stand once PROGRAM (orvane) has converted it.

The Word file is printed by LibreOffice, and each line of the source is looked up in the print. For every page of the source come
the lines that moved alike:

  page 3
     y   85  18 lines  down  +0.0 right  +0.0   Appropriate Notice Period
     y  677   1 line   down +14.1 right -308.2  disability.

which tells that up to 677 points all stands in its place, and that there a word went to the next line. "page +1" is a line that stands
on the page after. Without --all pages on which nothing moved are left out. --keep leaves the Word files and prints in DIR.
"""
import argparse
import pathlib
import subprocess
import sys
import tempfile

from placed import matched, read

SAME = 0.6  # points; lines whose offsets differ by less moved alike
IN_PLACE = 1.0  # points; a line that moved by less stands in its place


class Run:
    """Lines of one page that follow each other and moved alike."""

    def __init__(self, source, result, text):
        self.page = source.page
        self.top = source.top
        self.pages = result.page - source.page
        self.down = result.top - source.top
        self.right = result.left - source.left
        self.text = text
        self.lines = 1

    def takes(self, other):
        return (self.page, self.pages) == (other.page, other.pages) and abs(self.down - other.down) < SAME and \
            abs(self.right - other.right) < 2 * SAME

    def is_in_place(self):
        return self.pages == 0 and abs(self.down) < IN_PLACE and abs(self.right) < IN_PLACE

    def __str__(self):
        page = f"  page {self.pages:+d}" if self.pages else ""
        return (f"   y {self.top:4.0f} {self.lines:3d} {'line ' if self.lines == 1 else 'lines'}  down {self.down:+6.1f} "
                f"right {self.right:+6.1f}{page}   {self.text[:40]}")


def runs_of(source, result):
    runs = []
    for line, pairs in zip(source, matched(source, result)):
        if not pairs:
            continue
        run = Run(*pairs[0], " ".join(word.text for word in line))
        if runs and runs[-1].takes(run):
            runs[-1].lines += 1
        else:
            runs.append(run)
    return runs


def report(runs, shows_all):
    """The text for the runs of one document, and the share of its lines that stand in their places."""
    text = []
    for page in sorted({run.page for run in runs}):
        of_page = [run for run in runs if run.page == page]
        if shows_all or not all(run.is_in_place() for run in of_page):
            text.append(f"  page {page}")
            text += [str(run) for run in of_page]
    lines = sum(run.lines for run in runs)
    share = sum(run.lines for run in runs if run.is_in_place()) / lines if lines else 1.0
    return "\n".join(text), share


def printed(program, pdf, folder):
    """The print of what the program makes of the file."""
    word_file = folder / (pdf.stem + ".docx")
    subprocess.run([program, "convert", str(pdf), str(word_file)], check=True, stdout=subprocess.DEVNULL)
    subprocess.run(["soffice", f"-env:UserInstallation={(folder / 'profile').as_uri()}", "--headless", "--convert-to", "pdf",
                    "--outdir", str(folder), str(word_file)], check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return folder / (pdf.stem + ".pdf")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program")
    parser.add_argument("files", nargs="+", type=pathlib.Path)
    parser.add_argument("--keep", type=pathlib.Path)
    parser.add_argument("--all", action="store_true")
    arguments = parser.parse_args()
    with tempfile.TemporaryDirectory() as scratch:
        folder = (arguments.keep or pathlib.Path(scratch)).resolve()
        folder.mkdir(parents=True, exist_ok=True)
        for pdf in arguments.files:
            text, share = report(runs_of(read(pdf), read(printed(arguments.program, pdf, folder))), arguments.all)
            print(f"{pdf.name}: {share:.0%} of the lines in their places")
            if text:
                print(text)


if __name__ == "__main__":
    sys.exit(main())
