#!/usr/bin/env python3
"""promises.py PROGRAM [FOLDER]: does PROGRAM (orvane) keep what it promises of the layouts without pages, and of its options?

Converts every PDF of FOLDER and of the folders in it (those of bench/quality without one) and names each document that breaks a promise:
  continuous  no pictures, frames, running heads or feet, columns; in all three formats
  plain text  that too, and one look: no table, list, heading, bold or italic letter, colour or second size
  words       both layouts hold the words that the flowing one has in its text, in its tables and lists too
  --no-images no picture in any layout
  --keep-spacing  distances between letters stand in no document without it; with it, in some document of the folder
  --pages     one page of several gives less text than the whole
PDFs that cannot be converted (passwords, damage) are counted, not judged.
"""
import collections
import json
import pathlib
import re
import subprocess
import sys
import tempfile
import zipfile

HERE = pathlib.Path(__file__).parent
PICTURE = re.compile(r"<w:drawing|<w:pict|<v:shape")
FRAME = re.compile(r"<w:framePr|<wps:txbx|<v:textbox")
FURNITURE = re.compile(r"<w:headerReference|<w:footerReference")
COLUMNS = re.compile(r'<w:cols [^>]*w:num="([2-9]|\d\d)')
LOOKS = re.compile(r"<w:(tbl|numPr|b|i|u|color|highlight|outlineLvl|jc|w|vertAlign)[ />]")
SPACED = re.compile(r'<w:rPr>(?:(?!</w:rPr>).)*<w:spacing w:val="-?[1-9]', re.S)
TEXT = re.compile(r"<w:t(?: [^>]*)?>([^<]*)</w:t>|<w:(tab|br|cr)/>|</w:(p)>")
WORD = re.compile(r"[^\W\d_]{2,}")  # the mark of a note may stand at a word
RTF_OBJECT = re.compile(r"\\(pict|shp|do|header|headerl|headerr|headerf|footer|footerl|footerr|footerf|absw|posx|posy)\b")
DOC_OBJECT = re.compile(r"^(running texts|text boxes|anchors|shapes|pictures)$", re.M)
LEAST_WORDS = 0.98
FEW_WORDS = 20


def part(path, name):
    with zipfile.ZipFile(path) as package:
        return package.read(name).decode() if name in package.namelist() else ""


def words_of(path):
    text = "".join(found[0] or " " for found in TEXT.findall(part(path, "word/document.xml")))
    text += "".join(found[0] or " " for found in TEXT.findall(part(path, "word/footnotes.xml") + part(path, "word/endnotes.xml")))
    return collections.Counter(WORD.findall(text))


class Converter:
    def __init__(self, program, folder):
        self.program, self.folder = program, folder

    def to(self, source, layout, form="docx", *options):
        """The document, or nothing where there was none to be made."""
        target = self.folder / f"{source.stem}-{layout}{''.join(options)}.{form}"
        if not target.exists():
            done = subprocess.run([self.program, "convert", "--layout", layout, *options, str(source), str(target)],
                                  stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=120)
            if done.returncode:
                return None
        return target

    def page_count(self, source):
        done = subprocess.run([self.program, "info", "--json", str(source)], check=True, capture_output=True, timeout=120)
        return json.loads(done.stdout)["pageCount"]

    def dump(self, path):
        return subprocess.run([self.program, "dump", str(path)], check=True, capture_output=True, timeout=120).stdout.decode()


def broken_layout(converter, source, layout):
    """What a document in a layout without pages has that it should not have."""
    body = part(converter.to(source, layout), "word/document.xml")
    for name, pattern in (("pictures", PICTURE), ("frames", FRAME), ("furniture", FURNITURE), ("columns", COLUMNS)):
        if pattern.search(body):
            yield name
    if layout == "plain-text":
        looks = sorted({found for found in LOOKS.findall(body)})
        if looks:
            yield "looks " + " ".join(looks)
        if len(set(re.findall(r'<w:pStyle w:val="([^"]*)"', body))) > 1:
            yield "several styles"
    found = RTF_OBJECT.search(converter.to(source, layout, "rtf").read_text("ascii"))
    if found:
        yield f"RTF has {found[0]}"
    found = DOC_OBJECT.search(converter.dump(converter.to(source, layout, "doc")))
    if found:
        yield f"DOC has {found[0]}"


def lost_words(converter, source, layout):
    wanted, found = words_of(converter.to(source, "flowing")), words_of(converter.to(source, layout))
    if wanted.total() >= FEW_WORDS and (wanted & found).total() < LEAST_WORDS * wanted.total():
        yield f"has {(wanted & found).total()} of {wanted.total()} words"


def broken_options(converter, source):
    for layout in ("flowing", "true-page"):
        with zipfile.ZipFile(converter.to(source, layout, "docx", "--no-images")) as package:
            if any(name.startswith("word/media/") for name in package.namelist()):
                yield f"--no-images: {layout} has pictures"
        if SPACED.search(part(converter.to(source, layout), "word/document.xml")):
            yield f"{layout} sets letters apart without --keep-spacing"
    if converter.page_count(source) > 1:
        one, whole = (words_of(converter.to(source, "flowing", "docx", *pages)).total() for pages in (["--pages=1"], []))
        if one >= whole > FEW_WORDS:
            yield f"--pages=1: {one} words, {whole} without"


def keeps_spacing(converter, source):
    return any(SPACED.search(part(converter.to(source, layout, "docx", "--keep-spacing"), "word/document.xml"))
               for layout in ("flowing", "true-page"))


def broken(converter, source):
    for layout in ("continuous", "plain-text"):
        yield from (f"{layout}: {what}" for what in broken_layout(converter, source, layout))
        yield from (f"{layout}: {what}" for what in lost_words(converter, source, layout))
    yield from broken_options(converter, source)


def main():
    program = sys.argv[1]
    sources = sorted(pathlib.Path(sys.argv[2] if len(sys.argv) > 2 else HERE.parent / "quality" / "pdf").rglob("*.pdf"))
    kept, unread, faults, is_spacing_kept = 0, 0, [], False
    for source in sources:
        with tempfile.TemporaryDirectory() as folder:
            converter = Converter(program, pathlib.Path(folder))
            if converter.to(source, "flowing") is None:
                unread += 1
                continue
            here = [f"{source.name}: {what}" for what in broken(converter, source)]
            is_spacing_kept = is_spacing_kept or keeps_spacing(converter, source)
        kept += not here
        faults += here
        print("".join(f"{fault}\n" for fault in here), end="", flush=True)
    if not is_spacing_kept:
        faults.append("--keep-spacing")
        print("--keep-spacing changes no document")
    print(f"{kept} of {len(sources) - unread} documents keep all promises, {unread} could not be converted")
    return 1 if faults or not kept else 0


if __name__ == "__main__":
    sys.exit(main())
