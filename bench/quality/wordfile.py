"""Writes a Document of markup.py as the .docx that is printed. Source: ECMA-376 Part 1."""
import zipfile
from xml.sax.saxutils import escape, quoteattr

from markup import Cell, Columns, Contents, PageBreak, Paragraph, Run, Table

W = "http://schemas.openxmlformats.org/wordprocessingml/2006/main"
R = "http://schemas.openxmlformats.org/officeDocument/2006/relationships"
OFFICE = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/"
TYPE = "application/vnd.openxmlformats-officedocument.wordprocessingml."
ROOT = f'xmlns:w="{W}" xmlns:r="{R}"'
DECLARATION = '<?xml version="1.0" encoding="UTF-8" standalone="yes"?>\n'
TWIPS_PER_MM = 1440 / 25.4
PAGE = (11906, 16838)  # A4
MARGIN = 1304
LEVELS = 3


class WordFile:
    def __init__(self, document):
        self.document = document
        self.links = []
        self.notes = []
        self.lists = {}
        self.bookmarks = 0

    def write(self, path):
        has_columns = any(isinstance(block, Columns) for block in self.document.blocks)
        body = self.blocks(self.document.blocks) + self.section("continuous" if has_columns else "")
        parts = {
            "word/document.xml": f"<w:document {ROOT}><w:body>{body}</w:body></w:document>",
            "word/styles.xml": self.styles(),
            "word/numbering.xml": self.numbering(),
            "word/footnotes.xml": self.footnotes(),
            "word/header1.xml": f"<w:hdr {ROOT}>{self.furniture(self.document.header)}</w:hdr>",
            "word/footer1.xml": f"<w:ftr {ROOT}>{self.furniture(self.document.footer)}</w:ftr>",
            "word/_rels/document.xml.rels": self.relations(),
            "_rels/.rels": relationships([("r1", OFFICE + "officeDocument", "word/document.xml", "")]),
            "[Content_Types].xml": content_types(),
        }
        with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as out:
            for name, text in parts.items():
                out.writestr(zipfile.ZipInfo(name), DECLARATION + text)

    # Blocks

    def blocks(self, blocks):
        before_columns = [isinstance(block, Columns) for block in blocks[1:]] + [False]
        return "".join(self.paragraph(block, self.section("continuous")) if ends else self.block(block)
                       for block, ends in zip(blocks, before_columns))

    def blocks_ending_section(self, blocks, section):
        return "".join(self.block(block) for block in blocks[:-1]) + self.paragraph(blocks[-1], section)

    def block(self, block):
        if isinstance(block, Paragraph):
            return self.paragraph(block)
        if isinstance(block, Table):
            return self.table(block)
        if isinstance(block, Columns):
            # A section of its own between two others, each of which ends with its last paragraph.
            return self.blocks_ending_section(block.blocks, self.section("continuous", block.count))
        if isinstance(block, Contents):
            return self.contents(block)
        if isinstance(block, PageBreak):
            return '<w:p><w:r><w:br w:type="page"/></w:r></w:p>'
        raise TypeError(block)

    def paragraph(self, paragraph, section=""):
        properties = ""
        if paragraph.heading:
            properties += f'<w:pStyle w:val="Heading{paragraph.heading}"/>'
        if paragraph.level >= 0:
            number = self.lists.setdefault((paragraph.list_id, paragraph.ordered), len(self.lists) + 1)
            properties += f'<w:numPr><w:ilvl w:val="{paragraph.level}"/><w:numId w:val="{number}"/></w:numPr>'
        if self.document.rtl:
            properties += "<w:bidi/>"
        if paragraph.align:
            properties += f'<w:jc w:val="{paragraph.align}"/>'
        content = "".join(self.run(run) for run in paragraph.runs)
        if paragraph.name:
            self.bookmarks += 1
            content = (f'<w:bookmarkStart w:id="{self.bookmarks}" w:name={quoteattr(paragraph.name)}/>{content}'
                       f'<w:bookmarkEnd w:id="{self.bookmarks}"/>')
        return f"<w:p><w:pPr>{properties}{section}</w:pPr>{content}</w:p>"

    def run(self, run):
        if run.note:
            self.notes.append(run.note)
            return f'<w:r><w:rPr><w:vertAlign w:val="superscript"/></w:rPr><w:footnoteReference w:id="{len(self.notes)}"/></w:r>'
        properties = '<w:rStyle w:val="Hyperlink"/>' if run.link else ""
        properties += ("<w:b/><w:bCs/>" if run.bold else "") + ("<w:i/><w:iCs/>" if run.italic else "")
        if self.document.rtl:
            properties += "<w:rtl/>"
        text = f"<w:r><w:rPr>{properties}</w:rPr>{'<w:br/>' if run.break_before else ''}{text_of(run.text)}</w:r>"
        if not run.link:
            return text
        if run.link.startswith("#"):
            return f'<w:hyperlink w:anchor={quoteattr(run.link[1:])}>{text}</w:hyperlink>'
        self.links.append(run.link)
        return f'<w:hyperlink r:id="link{len(self.links)}">{text}</w:hyperlink>'

    def table(self, table):
        edges = {"all": ("top", "left", "bottom", "right", "insideH", "insideV"), "lines": ("top", "bottom", "insideH"), "none": ()}
        borders = "".join(f'<w:{edge} w:val="single" w:sz="6" w:color="404040"/>' for edge in edges[table.ruled])
        grid = "".join(f'<w:gridCol w:w="{round(width * TWIPS_PER_MM)}"/>' for width in table.widths)
        rows = "".join(self.row(table, number, row) for number, row in enumerate(table.rows))
        visual = "<w:bidiVisual/>" if self.document.rtl else ""
        return (f'<w:tbl><w:tblPr>{visual}<w:tblW w:w="0" w:type="auto"/><w:tblBorders>{borders}</w:tblBorders>'
                f'<w:tblLayout w:type="fixed"/></w:tblPr><w:tblGrid>{grid}</w:tblGrid>{rows}</w:tbl><w:p/>')

    def row(self, table, number, row):
        cells, column = "", 0
        for place in row:
            cell = place if isinstance(place, Cell) else Cell(place or "")
            width = sum(table.widths[column:column + cell.columns])
            properties = f'<w:tcW w:w="{round(width * TWIPS_PER_MM)}" w:type="dxa"/>'
            if cell.columns > 1:
                properties += f'<w:gridSpan w:val="{cell.columns}"/>'
            if place is None:
                properties += "<w:vMerge/>"
            elif cell.rows > 1:
                properties += '<w:vMerge w:val="restart"/>'
            text = Paragraph([Run(cell.text, bold=number < table.head)], align=cell.align)
            cells += f"<w:tc><w:tcPr>{properties}</w:tcPr>{self.paragraph(text)}</w:tc>"
            column += cell.columns
        head = "<w:trPr><w:tblHeader/></w:trPr>" if number < table.head else ""
        return f"<w:tr>{head}{cells}</w:tr>"

    def contents(self, contents):
        headings = [block for block in self.document.blocks if isinstance(block, Paragraph) and block.heading]
        lines = ""
        for heading, page in zip(headings, contents.pages, strict=True):
            indent = (heading.heading - 1) * 240
            lines += (f'<w:p><w:pPr><w:tabs><w:tab w:val="right" w:leader="dot" w:pos="9000"/></w:tabs><w:ind w:left="{indent}"/></w:pPr>'
                      f'<w:hyperlink w:anchor={quoteattr(heading.name)}><w:r>{text_of(heading.runs[0].text)}</w:r><w:r><w:tab/></w:r>'
                      f'<w:r>{text_of(str(page))}</w:r></w:hyperlink></w:p>')
        return lines

    def section(self, kind="", columns=1):
        width, height = reversed(PAGE) if self.document.landscape else PAGE
        orient = ' w:orient="landscape"' if self.document.landscape else ""
        furniture = ""
        if self.document.header:
            furniture += '<w:headerReference w:type="default" r:id="header"/>'
        if self.document.footer:
            furniture += '<w:footerReference w:type="default" r:id="footer"/>'
        return (f"<w:sectPr>{furniture}" + (f'<w:type w:val="{kind}"/>' if kind else "") +
                f'<w:pgSz w:w="{width}" w:h="{height}"{orient}/><w:pgMar w:top="{MARGIN}" w:right="{MARGIN}" w:bottom="{MARGIN}" '
                f'w:left="{MARGIN}" w:header="600" w:footer="600" w:gutter="0"/><w:cols w:num="{columns}" w:space="500"/></w:sectPr>')

    # Parts beside the text

    def furniture(self, text):
        runs = ""
        for piece in text.replace("%p", "\0PAGE\0").replace("%n", "\0NUMPAGES\0").split("\0"):
            if piece in ("PAGE", "NUMPAGES"):
                runs += f'<w:fldSimple w:instr="{piece}"><w:r><w:t>1</w:t></w:r></w:fldSimple>'
            elif piece:
                runs += f"<w:r>{text_of(piece)}</w:r>"
        bidi = "<w:bidi/>" if self.document.rtl else ""
        return f'<w:p><w:pPr>{bidi}<w:jc w:val="center"/></w:pPr>{runs}</w:p>'

    def footnotes(self):
        # The rule above the notes is a note of its own, which word processors always write.
        notes = '<w:footnote w:type="separator" w:id="-1"><w:p><w:r><w:separator/></w:r></w:p></w:footnote>'
        for number, text in enumerate(self.notes, 1):
            notes += (f'<w:footnote w:id="{number}"><w:p><w:r><w:rPr><w:vertAlign w:val="superscript"/></w:rPr><w:footnoteRef/></w:r>'
                      f'<w:r><w:rPr><w:sz w:val="18"/></w:rPr>{text_of(" " + text)}</w:r></w:p></w:footnote>')
        return f"<w:footnotes {ROOT}>{notes}</w:footnotes>"

    def numbering(self):
        abstract, concrete = "", ""
        for (_, ordered), number in self.lists.items():
            levels = ""
            for level in range(LEVELS):
                kind = ("decimal", "lowerLetter", "lowerRoman")[level] if ordered else "bullet"
                text = f"%{level + 1}." if ordered else "\u2022\u2013\u25aa"[level]
                left = 400 * (level + 1)
                levels += (f'<w:lvl w:ilvl="{level}"><w:start w:val="1"/><w:numFmt w:val="{kind}"/><w:lvlText w:val="{text}"/>'
                           f'<w:pPr><w:ind w:left="{left}" w:hanging="400"/></w:pPr></w:lvl>')
            abstract += f'<w:abstractNum w:abstractNumId="{number}"><w:multiLevelType w:val="hybridMultilevel"/>{levels}</w:abstractNum>'
            concrete += f'<w:num w:numId="{number}"><w:abstractNumId w:val="{number}"/></w:num>'
        return f"<w:numbering {ROOT}>{abstract}{concrete}</w:numbering>"

    def styles(self):
        document = self.document
        half_points = round(2 * document.size)
        fonts = " ".join(f'w:{kind}="{document.font}"' for kind in ("ascii", "hAnsi", "eastAsia", "cs"))
        language = f'<w:lang w:val="{document.language}" w:eastAsia="{document.language}" w:bidi="{document.language}"/>'
        headings = "".join(
            f'<w:style w:type="paragraph" w:styleId="Heading{level}"><w:name w:val="heading {level}"/><w:basedOn w:val="Normal"/>'
            f'<w:pPr><w:keepNext/><w:spacing w:before="{320 - 60 * level}" w:after="100"/><w:outlineLvl w:val="{level - 1}"/></w:pPr>'
            f'<w:rPr><w:b/><w:bCs/><w:sz w:val="{half_points + 14 - 4 * level}"/><w:szCs w:val="{half_points + 14 - 4 * level}"/></w:rPr></w:style>'
            for level in range(1, LEVELS + 1))
        return (f'<w:styles {ROOT}><w:docDefaults><w:rPrDefault><w:rPr><w:rFonts {fonts}/><w:sz w:val="{half_points}"/>'
                f'<w:szCs w:val="{half_points}"/>{language}</w:rPr></w:rPrDefault></w:docDefaults>'
                f'<w:style w:type="paragraph" w:default="1" w:styleId="Normal"><w:name w:val="Normal"/>'
                f'<w:pPr><w:spacing w:after="120" w:line="264" w:lineRule="auto"/></w:pPr></w:style>{headings}'
                '<w:style w:type="character" w:styleId="Hyperlink"><w:name w:val="Hyperlink"/>'
                '<w:rPr><w:color w:val="1155CC"/><w:u w:val="single"/></w:rPr></w:style></w:styles>')

    def relations(self):
        entries = [(part, OFFICE + kind, target, "") for part, kind, target in (
            ("styles", "styles", "styles.xml"), ("numbering", "numbering", "numbering.xml"), ("notes", "footnotes", "footnotes.xml"),
            ("header", "header", "header1.xml"), ("footer", "footer", "footer1.xml"))]
        entries += [(f"link{number}", OFFICE + "hyperlink", address, "External") for number, address in enumerate(self.links, 1)]
        return relationships(entries)


def text_of(text):
    return f'<w:t xml:space="preserve">{escape(text)}</w:t>'


def relationships(entries):
    body = "".join(f'<Relationship Id="{name}" Type="{kind}" Target={quoteattr(target)}' + (f' TargetMode="{mode}"' if mode else "") + "/>"
                   for name, kind, target, mode in entries)
    return f'<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">{body}</Relationships>'


def content_types():
    parts = {"document": "document.main", "styles": "styles", "numbering": "numbering", "footnotes": "footnotes", "header1": "header",
             "footer1": "footer"}
    overrides = "".join(f'<Override PartName="/word/{part}.xml" ContentType="{TYPE}{kind}+xml"/>' for part, kind in parts.items())
    return ('<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types">'
            '<Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/>'
            f'<Default Extension="xml" ContentType="application/xml"/>{overrides}</Types>')
