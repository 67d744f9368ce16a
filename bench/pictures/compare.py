#!/usr/bin/python3
"""compare.py PROGRAM FOLDER [--only PART] [--list FILE] [--write TABLE.md]: the pictures that PROGRAM (orvane) takes out of the PDFs of
FOLDER, pixel for pixel against those of poppler's pdfimages.

Pictures are matched by object number, inline ones by page. Every difference is a line of the list with its reason; the table counts
the reasons by the folders that the PDFs stand in. Exits with 1 when there is a difference that no reason explains.
"""
import argparse
import collections
import functools
import pathlib
import sys
import tempfile

import differences
import folder as pdfs
import own
import peer
import pixels
from objects import Objects


class Document:
    """One PDF, taken apart by both programs."""

    def __init__(self, program, pdf, password, scratch):
        self.program, self.pdf, self.password, self.scratch = program, pdf, password, scratch
        (scratch / "peer").mkdir()
        self.theirs = peer.run(pdf, scratch / "peer", password)
        self.ours = own.run(program, pdf, scratch / "own", "png", password)
        self.objects = functools.cache(lambda: Objects(pdf, password))
        self.used = set()
        self.load = functools.lru_cache(8)(pixels.load)

    @functools.cached_property
    def ours_in_srgb(self):
        """Files by their names' stems, in a format that knows no profiles."""
        own.run(self.program, self.pdf, self.scratch / "srgb", "bmp", self.password)
        return {file.stem: file for file in (self.scratch / "srgb").iterdir()}

    def candidates(self, listed):
        """Our pictures, with the part in question, that may be the listed one."""
        for picture in self.ours["pictures"]:
            for part in picture["parts"]:
                if part["object"] == listed.object and (listed.object or listed.page in picture["pages"]):
                    yield picture, part

    def part(self, file, picture, part, listed):
        whole = self.load(file)
        return whole.part(part["x"], part["y"], listed.width, listed.height) if len(picture["parts"]) > 1 else whole

    def reason(self, listed):
        """Why the best of the candidates is not the listed picture, and whether it is joined of several."""
        found = []
        for picture, part in self.candidates(listed):
            in_srgb = lambda: self.part(self.ours_in_srgb[pathlib.Path(picture["file"]).stem], picture, part, listed)
            mask = self.load(listed.mask.file) if listed.mask else None
            ours = self.part(self.scratch / "own" / picture["file"], picture, part, listed)
            reason = differences.reason(listed, self.load(listed.file), mask, ours, in_srgb, self.objects)
            found.append((list(differences.REASONS).index(reason), reason, len(picture["parts"]) > 1, picture["file"]))
        if not found:
            return differences.reason_of_missing(listed, self.ours["notes"], self.objects), False
        _, reason, is_joined, file = min(found)
        self.used.add(file)
        return reason, is_joined

    def results(self):
        """(reason, whether joined, what) of each picture, once however often it is painted."""
        seen = set()
        for listed in self.theirs:
            if listed.object and (listed.object, listed.kind) in seen:
                continue
            seen.add((listed.object, listed.kind))
            what = f"page {listed.page}, " + (f"object {listed.object}" if listed.object else "inline") + f", {listed.color}, {listed.coding}"
            yield *self.reason(listed), what
        for picture in self.ours["pictures"]:
            if picture["file"] not in self.used:
                yield differences.reason_of_surplus(picture, self.objects), False, f"page {picture['pages'][0]}, {picture['file']}"


def compare(program, folder, only, listing):
    """Counts of reasons, by kind of PDF."""
    counts = collections.defaultdict(collections.Counter)
    for pdf, name, password in pdfs.documents(folder, only):
        with tempfile.TemporaryDirectory() as scratch:
            document = Document(program, pdf, password, pathlib.Path(scratch))
            kind = counts[name.split("/")[0] if "/" in name else "."]
            if document.theirs is None or document.ours["result"] != "done":
                reason = differences.reason_of_closed(document.theirs is not None, document.ours["result"])
                print(f"{name}: {reason}", file=listing)
                kind[reason] += 1
                continue
            kind["files"] += 1
            for reason, is_joined, what in document.results():
                kind["pictures"] += 1
                kind["joined"] += is_joined
                kind[reason] += 1
                if reason != differences.SAME or is_joined:
                    print(f"{name}: {what}: {reason}{', joined with others' if is_joined else ''}", file=listing, flush=True)
    return counts


def table(counts):
    total = sum(counts.values(), collections.Counter())
    reasons = [reason for reason in differences.REASONS if total[reason] or reason == differences.UNEXPLAINED]
    columns = ["files", *[reason for reason in differences.CLOSED if total[reason]], "pictures", *reasons, "joined"]
    lines = ["| kind | " + " | ".join(columns) + " |", "|---" * (len(columns) + 1) + "|"]
    for kind, count in [*sorted(counts.items()), ("all", total)]:
        if count["files"] or kind == "all":
            lines.append(f"| {kind} | " + " | ".join(str(count[column] or "") for column in columns) + " |")
    lines += ["", "| reason | |", "|---|---|"] + [f"| {reason} | {text} |" for reason, text in (differences.CLOSED | differences.REASONS).items() if total[reason]]
    lines.append("| joined | strips or tiles that are one picture in ours, of which the part in question is compared |")
    return "\n".join(lines) + "\n", total


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program", type=pathlib.Path)
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("--only", default="", help="compare the PDFs whose names hold this")
    parser.add_argument("--list", type=argparse.FileType("w", encoding="utf-8"), default=sys.stdout)
    parser.add_argument("--write", type=pathlib.Path)
    arguments = parser.parse_args()
    text, total = table(compare(arguments.program, arguments.folder, arguments.only, arguments.list))
    if arguments.write:
        arguments.write.write_text(text, encoding="utf-8")
    else:
        print(text)
    return 1 if total[differences.UNEXPLAINED] else 0


if __name__ == "__main__":
    sys.exit(main())
