#!/usr/bin/env python3
"""test_check_help.py HELP_FOLDER PROGRAM_FOLDER: the check of the help sees the faults it is there for."""
import pathlib
import shutil
import sys
import tempfile

import check_help


def spoiled(source, program, spoil):
    with tempfile.TemporaryDirectory() as folder:
        copy = pathlib.Path(folder) / "help"
        shutil.copytree(source, copy)
        spoil(copy)
        return list(check_help.faults(copy, program))


def replace(name, old, new):
    def spoil(folder):
        text = (folder / name).read_text(encoding="utf-8")
        assert old in text, f"{name} has no {old!r} to spoil"
        (folder / name).write_text(text.replace(old, new), encoding="utf-8")
    return spoil


def main():
    source, program = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    assert not list(check_help.faults(source, program)), "the pages as they ship have no fault"
    for why, spoil in (("a link to nowhere", replace("index.html", "wizards.html", "wizard.html")),
                       ("a page outside the help file", replace("Tavrelion.hhp", "batch.html\n", "")),
                       ("a page outside the contents", replace("Tavrelion.hhc", "batch.html", "index.html")),
                       ("an element left open", replace("batch.html", "</p>", "")),
                       ("a picture without a description", replace("page-ranges.html", 'alt="Pages 1, 2 and 5 are chosen" ', ""))):
        assert spoiled(source, program, spoil), f"not seen: {why}"
    return 0


if __name__ == "__main__":
    sys.exit(main())
