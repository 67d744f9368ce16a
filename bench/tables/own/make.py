#!/usr/bin/env python3
"""make.py FOLDER [--setting NAME] [--only PART]: prints the project's own documents with tables to FOLDER, with a truth beside each PDF.

LibreOffice prints them. ../measure.py then says how well their tables are found.
"""
import argparse
import pathlib
import subprocess
import sys

sys.dont_write_bytecode = True

import cells
import frames
import heads
import labels
import pages
import reports
from odf import Setting
from traps import TRAPS

SETTINGS = {"plain": Setting(), "small": Setting(font="Liberation Serif", larger=-0.5, padding=(0.1, 0.02)),
            "wide": Setting(font="DejaVu Sans", larger=-1, padding=(0.04, 0)), "airy": Setting(font="Carlito", padding=(0.05, 0.12))}
BATCH = 20  # documents that one LibreOffice prints


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("--setting", choices=SETTINGS, default="plain")
    parser.add_argument("--only", default="", help="a part of the documents' names")
    parser.add_argument("--program", default="soffice", help="LibreOffice")
    options = parser.parse_args()

    options.folder.mkdir(parents=True, exist_ok=True)
    sources = []
    for name, make in TRAPS.items():
        if options.only in name:
            document = make(SETTINGS[options.setting])
            sources.append(options.folder / f"{name}.fodt")
            sources[-1].write_text(document.xml(), encoding="utf-8")
            (options.folder / f"{name}-str.xml").write_text(document.truth(), encoding="utf-8")
    profile = f"-env:UserInstallation={(options.folder / 'profile').resolve().as_uri()}"
    for first in range(0, len(sources), BATCH):
        subprocess.run([options.program, profile, "--headless", "--convert-to", "pdf", "--outdir", str(options.folder),
                        *map(str, sources[first:first + BATCH])], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=True)
    missing = [source.stem for source in sources if not source.with_suffix(".pdf").exists()]
    if missing:
        sys.exit(f"not printed: {', '.join(missing)}")


if __name__ == "__main__":
    main()
