"""Reads a .docx back as the few things that the bench measures. Source: ECMA-376 Part 1, 17."""
import re
import zipfile
from dataclasses import dataclass, field
from xml.etree import ElementTree

W = "{http://schemas.openxmlformats.org/wordprocessingml/2006/main}"
R = "{http://schemas.openxmlformats.org/officeDocument/2006/relationships}"
NOTES = {W + "footnoteReference": "word/footnotes.xml", W + "endnoteReference": "word/endnotes.xml"}


@dataclass
class Read:
    """What a document holds, in the order of its body. Texts have their blanks made one."""
    paragraphs: list = field(default_factory=list)  # (text, inside a table)
    headings: list = field(default_factory=list)    # (level, text)
    items: list = field(default_factory=list)       # (level, ordered, text)
    cells: list = field(default_factory=list)       # (table, row, column, text)
    links: list = field(default_factory=list)       # (text, address or "#")
    notes: list = field(default_factory=list)       # (text before the mark, text of the note)
    strong: list = field(default_factory=list)      # words set bold or italic: (b or i, word)
    furniture: list = field(default_factory=list)   # texts of heads and feet, fields as %p and %n
    columns: int = 1                                # the most that a section has
    contents: int = 0                               # entries of tables of contents


def tidy(text):
    return " ".join(text.split())


class WordReader:
    def __init__(self, path):
        self.zip = zipfile.ZipFile(path)
        self.read = Read()
        self.targets = {entry.get("Id"): entry.get("Target") for entry in self.xml("word/_rels/document.xml.rels", [])}
        self.styles = {style.get(W + "styleId"): style for style in self.xml("word/styles.xml", [])}
        self.formats = self.number_formats()
        self.tables = 0

    def xml(self, name, missing=None):
        try:
            return ElementTree.fromstring(self.zip.read(name))
        except KeyError:
            return missing

    def run(self):
        body = self.xml("word/document.xml").find(W + "body")
        self.blocks(body, in_table=False)
        for columns in body.iter(W + "cols"):
            self.read.columns = max(self.read.columns, int(columns.get(W + "num", "1")))
        for name in sorted(self.zip.namelist()):
            if re.fullmatch(r"word/(header|footer)\d*\.xml", name):
                text = "".join(furniture_text(self.xml(name)))
                if tidy(text):
                    self.read.furniture.append(tidy(text))
        return self.read

    def number_formats(self):
        """(number, level) -> format."""
        numbering = self.xml("word/numbering.xml", [])
        abstract = {}
        for definition in numbering:
            if definition.tag == W + "abstractNum":
                for level in definition.findall(W + "lvl"):
                    abstract[definition.get(W + "abstractNumId"), level.get(W + "ilvl")] = level.find(W + "numFmt").get(W + "val")
        formats = {}
        for number in numbering:
            if number.tag == W + "num":
                base = number.find(W + "abstractNumId").get(W + "val")
                formats.update({(number.get(W + "numId"), level): kind for (name, level), kind in abstract.items() if name == base})
        return formats

    def blocks(self, parent, in_table):
        for block in parent:
            if block.tag == W + "p":
                self.paragraph(block, in_table)
            elif block.tag == W + "tbl":
                self.table(block)
            elif block.tag == W + "sdt":
                self.blocks(block.find(W + "sdtContent"), in_table)

    def table(self, table):
        number = self.tables
        self.tables += 1
        for row_number, row in enumerate(table.iter(W + "tr")):
            column = 0
            for cell in row.findall(W + "tc"):
                self.read.cells.append((number, row_number, column, tidy(" ".join(text_of(p) for p in cell.iter(W + "p")))))
                span = cell.find(f"{W}tcPr/{W}gridSpan")
                column += int(span.get(W + "val")) if span is not None else 1
                self.blocks(cell, in_table=True)

    def paragraph(self, paragraph, in_table):
        text = tidy(text_of(paragraph))
        self.inlines(paragraph)
        if not text:
            return
        if any("TOC" in (i.text or "") for i in paragraph.iter(W + "instrText")) or self.style_name(paragraph).startswith("toc"):
            self.read.contents += 1
        level = self.outline_level(paragraph)
        if level:
            self.read.headings.append((level, text))
        number = self.property(paragraph, "numPr")
        if number is not None and not level:
            depth = number.find(W + "ilvl").get(W + "val") if number.find(W + "ilvl") is not None else "0"
            kind = self.formats.get((number.find(W + "numId").get(W + "val"), depth), "none")
            if kind != "none":
                self.read.items.append((int(depth), kind != "bullet", text))
        self.read.paragraphs.append((text, in_table))

    def style_of(self, paragraph):
        style = paragraph.find(f"{W}pPr/{W}pStyle")
        return self.styles.get(style.get(W + "val")) if style is not None else None

    def style_name(self, paragraph):
        style = self.style_of(paragraph)
        return style.find(W + "name").get(W + "val").lower() if style is not None else ""

    def property(self, paragraph, name):
        own = paragraph.find(f"{W}pPr/{W}{name}")
        style = self.style_of(paragraph)
        return own if own is not None or style is None else style.find(f"{W}pPr/{W}{name}")

    def outline_level(self, paragraph):
        heading = re.fullmatch(r"heading (\d)", self.style_name(paragraph))
        return int(heading[1]) if heading else 0

    def inlines(self, paragraph):
        before = ""
        for element in paragraph.iter():
            if element.tag == W + "hyperlink":
                target = self.targets.get(element.get(R + "id"), "#" if element.get(W + "anchor") else "")
                self.read.links.append((tidy(text_of(element)), target))
            elif element.tag == W + "r":
                text = text_of(element)
                for mark, name in (("b", W + "b"), ("i", W + "i")):
                    setting = element.find(f"{W}rPr/{name}")
                    if setting is not None and setting.get(W + "val") not in ("0", "false"):
                        self.read.strong += [(mark, word) for word in text.split()]
                before += text
            elif element.tag in NOTES:
                self.note(before, NOTES[element.tag], element.get(W + "id"))

    def note(self, before, part, name):
        for note in self.xml(part, []):
            if note.get(W + "id") == name:
                self.read.notes.append((tidy(before)[-12:], tidy(text_of(note))))


def text_of(element):
    """The element's text; what ends a line or a cell's tabulator counts as a blank."""
    text = ""
    for node in element.iter():
        if node.tag == W + "t":
            text += node.text or ""
        elif node.tag in (W + "tab", W + "br", W + "cr") and W + "pPr" not in (node.tag,):
            text += " "
    return text


def furniture_text(part):
    """The text of a head or foot, page numbers as %p and %n: those of fields of both kinds, without what they showed last."""
    hidden = 0
    for node in part.iter():
        if node.tag == W + "fldSimple":
            yield field_mark(node.get(W + "instr"))
            hidden = len(list(node.iter(W + "t")))
        elif node.tag == W + "instrText":
            yield field_mark(node.text or "")
        elif node.tag == W + "fldChar" and node.get(W + "fldCharType") == "separate":
            hidden = 1
        elif node.tag == W + "t":
            if hidden:
                hidden -= 1
            else:
                yield node.text or ""
        elif node.tag in (W + "p", W + "tab"):
            yield " "


def field_mark(instruction):
    words = instruction.split()
    return {"PAGE": "%p", "NUMPAGES": "%n"}.get(words[0] if words else "", "")
