#!/usr/bin/env python3
"""make.py: writes report.pdf, printed by LibreOffice from a document made here (packages libreoffice-writer, fonts-crosextra-carlito).

The report has one of everything a converter meets in office documents: title, headings, justified text, emphasis, lists, a table
with a spanning head, a picture with its caption, a footnote, links, a running head and page numbers.
"""
import base64
import pathlib
import struct
import subprocess
import tempfile
import zlib

HERE = pathlib.Path(__file__).resolve().parent


def png(width, height, pixel):
    """A PNG file whose pixel (x, y) is pixel(x, y) = (red, green, blue)."""
    rows = b"".join(b"\0" + b"".join(bytes(pixel(x, y)) for x in range(width)) for y in range(height))
    chunk = lambda kind, data: struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))
    header = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b"")


def hills(x, y):
    """A sky above two rows of hills."""
    import math
    near = 110 + 18 * math.sin(x / 31)
    far = 80 + 14 * math.sin(x / 47 + 2)
    if y > near:
        return (70, 120, 70)
    if y > far:
        return (120, 160, 130)
    return (150 + y // 2, 190 + y // 4, 235)


STYLES = """
 <style:style style:name="Standard" style:family="paragraph"><style:paragraph-properties fo:margin-bottom="0.25cm" fo:text-align="justify" fo:line-height="115%" fo:orphans="2" fo:widows="2"/><style:text-properties style:font-name="Carlito" fo:font-size="11pt" fo:language="en" fo:country="GB" fo:hyphenate="false"/></style:style>
 <style:style style:name="Title" style:family="paragraph" style:parent-style-name="Standard"><style:paragraph-properties fo:text-align="center" fo:margin-bottom="0.6cm"/><style:text-properties fo:font-size="24pt" fo:font-weight="bold" fo:color="#1f4e79"/></style:style>
 <style:style style:name="Heading_20_1" style:display-name="Heading 1" style:family="paragraph" style:parent-style-name="Standard" style:default-outline-level="1"><style:paragraph-properties fo:margin-top="0.6cm" fo:margin-bottom="0.3cm" fo:keep-with-next="always" fo:text-align="start"/><style:text-properties fo:font-size="16pt" fo:font-weight="bold" fo:color="#1f4e79"/></style:style>
 <style:style style:name="Heading_20_2" style:display-name="Heading 2" style:family="paragraph" style:parent-style-name="Standard" style:default-outline-level="2"><style:paragraph-properties fo:margin-top="0.4cm" fo:margin-bottom="0.2cm" fo:keep-with-next="always" fo:text-align="start"/><style:text-properties fo:font-size="13pt" fo:font-weight="bold"/></style:style>
 <style:style style:name="Caption" style:family="paragraph" style:parent-style-name="Standard"><style:paragraph-properties fo:text-align="center"/><style:text-properties fo:font-size="9pt" fo:font-style="italic"/></style:style>
 <style:style style:name="Picture" style:family="paragraph" style:parent-style-name="Standard"><style:paragraph-properties fo:text-align="center" fo:keep-with-next="always"/></style:style>
 <style:style style:name="Cell" style:family="paragraph" style:parent-style-name="Standard"><style:paragraph-properties fo:margin-bottom="0cm" fo:text-align="start"/></style:style>
 <style:style style:name="Number" style:family="paragraph" style:parent-style-name="Cell"><style:paragraph-properties fo:text-align="end"/></style:style>
 <style:style style:name="Running" style:family="paragraph" style:parent-style-name="Cell"><style:text-properties fo:font-size="9pt" fo:color="#595959"/></style:style>
 <style:style style:name="RunningCentre" style:family="paragraph" style:parent-style-name="Running"><style:paragraph-properties fo:text-align="center"/></style:style>
"""
AUTOMATIC = """
 <style:page-layout style:name="A4"><style:page-layout-properties fo:page-width="21cm" fo:page-height="29.7cm" fo:margin="2.2cm"/><style:header-style><style:header-footer-properties fo:min-height="0.8cm" fo:margin-bottom="0.3cm"/></style:header-style><style:footer-style><style:header-footer-properties fo:min-height="0.8cm" fo:margin-top="0.3cm"/></style:footer-style></style:page-layout>
 <style:style style:name="B" style:family="text"><style:text-properties fo:font-weight="bold"/></style:style>
 <style:style style:name="I" style:family="text"><style:text-properties fo:font-style="italic"/></style:style>
 <style:style style:name="U" style:family="text"><style:text-properties style:text-underline-style="solid" style:text-underline-width="auto"/></style:style>
 <style:style style:name="Head" style:family="table-cell"><style:table-cell-properties fo:border="0.5pt solid #1f4e79" fo:background-color="#dce6f1" fo:padding="0.12cm"/></style:style>
 <style:style style:name="Body" style:family="table-cell"><style:table-cell-properties fo:border="0.5pt solid #1f4e79" fo:padding="0.12cm"/></style:style>
 <text:list-style style:name="Dots"><text:list-level-style-bullet text:level="1" text:bullet-char="&#x2022;"><style:list-level-properties text:list-level-position-and-space-mode="label-alignment"><style:list-level-label-alignment text:label-followed-by="listtab" fo:text-indent="-0.6cm" fo:margin-left="1.2cm"/></style:list-level-properties></text:list-level-style-bullet></text:list-style>
 <text:list-style style:name="Numbers"><text:list-level-style-number text:level="1" style:num-format="1" style:num-suffix="."><style:list-level-properties text:list-level-position-and-space-mode="label-alignment"><style:list-level-label-alignment text:label-followed-by="listtab" fo:text-indent="-0.6cm" fo:margin-left="1.2cm"/></style:list-level-properties></text:list-level-style-number></text:list-style>
"""
MASTER = """
 <style:master-page style:name="Standard" style:page-layout-name="A4"><style:header><text:p text:style-name="Running">Green Roofs of the Harbour Quarter</text:p></style:header><style:footer><text:p text:style-name="RunningCentre">Page <text:page-number/> of <text:page-count/></text:p></style:footer></style:master-page>
"""


def p(text, style="Standard"):
    return f'<text:p text:style-name="{style}">{text}</text:p>'


def h(level, text):
    return f'<text:h text:style-name="Heading_20_{level}" text:outline-level="{level}">{text}</text:h>'


def items(style, *texts):
    return f'<text:list text:style-name="{style}">' + "".join(f"<text:list-item>{p(t)}</text:list-item>" for t in texts) + "</text:list>"


def cell(text, kind="Body", style="Cell", columns=1, rows=1):
    span = (f' table:number-columns-spanned="{columns}"' if columns > 1 else "") + (f' table:number-rows-spanned="{rows}"' if rows > 1 else "")
    return f'<table:table-cell table:style-name="{kind}"{span}>{p(text, style)}</table:table-cell>'


COVERED = "<table:covered-table-cell/>"


def harvest_table():
    bold = lambda t: f'<text:span text:style-name="B">{t}</text:span>'
    rows = [cell(bold("House"), "Head", rows=2) + cell(bold("Water kept (litres a square metre)"), "Head", columns=3) + COVERED * 2,
            COVERED + "".join(cell(bold(t), "Head", "Number") for t in ("Spring", "Summer", "Autumn"))]
    for name, *figures in (("Customs House", "18.2", "24.9", "21.0"), ("Rope Works", "12.7", "19.3", "16.4"),
                           ("Lock Keeper’s Lodge", "9.8", "14.1", "12.2"), ("Grain Store", "21.5", "28.6", "25.3")):
        rows.append(cell(name) + "".join(cell(f, style="Number") for f in figures))
    return ('<table:table table:name="Water"><table:table-column table:number-columns-repeated="4"/>'
            + "".join(f"<table:table-row>{r}</table:table-row>" for r in rows) + "</table:table>")


def picture():
    data = base64.b64encode(png(320, 150, hills)).decode()
    return ('<text:p text:style-name="Picture"><draw:frame text:anchor-type="as-char" svg:width="12cm" svg:height="5.6cm">'
            f'<draw:image><office:binary-data>{data}</office:binary-data></draw:image></draw:frame></text:p>')


def body():
    i = lambda t: f'<text:span text:style-name="I">{t}</text:span>'
    b = lambda t: f'<text:span text:style-name="B">{t}</text:span>'
    u = lambda t: f'<text:span text:style-name="U">{t}</text:span>'
    note = ('<text:note text:id="n1" text:note-class="footnote"><text:note-citation>1</text:note-citation><text:note-body>'
            + p("Measured at the eaves with a tipping gauge, emptied every Monday.") + "</text:note-body></text:note>")
    link = '<text:a xlink:type="simple" xlink:href="https://harbour.example/roofs">the quarter’s own pages</text:a>'
    return "".join((
        p("Green Roofs of the Harbour Quarter", "Title"),
        p("This report looks back on the first three years of planted roofs in the old harbour. It tells what was built, what the roofs "
          f"keep of the rain, and what their keepers would do {i('differently')} if they began again. The figures come from the houses "
          f"themselves; {b('nothing has been rounded')} in favour of the scheme, and whoever wants to check them finds the readings "
          f"on {link}."),
        h(1, "What was built"),
        p("Four houses took part. Each of them had a flat roof that was due for repair, which made the planted roof little dearer than "
          "the gravel it replaced. The layers are the same everywhere: a root-proof sheet, a mat that stores water, eight centimetres of "
          "light soil and a mixture of stonecrop, thyme and grasses that stands dry weeks without being watered."),
        h(2, "Choice of plants"),
        p("The gardeners had a long list of wishes and a short list of conditions. The plants had to"),
        items("Dots", "live in eight centimetres of soil and in the wind that comes off the water;",
              "flower one after the other, so that the bees of the quarter find something from April to October;",
              "need no more than two visits a year, since the way up leads through other people’s attics."),
        p("Stonecrop met all three conditions and now covers more than half of the ground."),
        h(2, "Order of the work"),
        items("Numbers", "The old gravel was taken down and used again on the towpath.",
              "The roofers laid and tested the sheet, which stood under water for two days.",
              "Soil and plants were blown up by hose in a single morning for each house."),
        h(1, "What the roofs keep"),
        p(f"A roof keeps water in two ways: the mat holds it, and the plants give it back to the air. The table shows how much of a "
          f"week’s rain did {u('not')} reach the drain{note}, as the mean of three years."),
        harvest_table(), p(""),
        p("The Grain Store leads in every season because its roof lies lowest and in the lee of the others. The lodge, which is small and "
          "steep, comes last; its keeper has since put a second mat under the northern half and expects to draw level with the Rope "
          "Works next year."),
        picture(),
        p("Picture 1: The hills behind the harbour, seen from the roof of the Customs House", "Caption"),
        h(1, "What we would do differently"),
        p("Three things stand on every list. The first is access: a fixed ladder costs less than three years of borrowed ones. The second "
          "is the edge. Where the gravel strip was left out for the sake of the look, the grasses reached the gutter within a summer and "
          "had to be cut back by hand. The third is patience. In the first year the roofs looked bare from the windows above, and more "
          "than one neighbour asked whether the money had been well spent. In the second year nobody asked any more."),
        p("The quarter has decided to go on. Two more houses will follow in spring, and the school has asked whether its gymnasium, the "
          "largest flat roof for miles, might carry soil as well. The builders think it can. If they are right, the next report will "
          "have a longer table."),
    ))


def main():
    namespaces = " ".join(f'xmlns:{k}="{v}"' for k, v in {
        "office": "urn:oasis:names:tc:opendocument:xmlns:office:1.0", "style": "urn:oasis:names:tc:opendocument:xmlns:style:1.0",
        "text": "urn:oasis:names:tc:opendocument:xmlns:text:1.0", "table": "urn:oasis:names:tc:opendocument:xmlns:table:1.0",
        "draw": "urn:oasis:names:tc:opendocument:xmlns:drawing:1.0", "fo": "urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0",
        "svg": "urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0", "xlink": "http://www.w3.org/1999/xlink",
        "dc": "http://purl.org/dc/elements/1.1/"}.items())
    document = (
        f'<?xml version="1.0" encoding="UTF-8"?>\n<office:document {namespaces} office:version="1.3" '
        'office:mimetype="application/vnd.oasis.opendocument.text">\n<office:meta><dc:title>Green Roofs of the Harbour Quarter</dc:title>'
        '</office:meta>\n<office:font-face-decls><style:font-face style:name="Carlito" svg:font-family="Carlito"/></office:font-face-decls>'
        f"\n<office:styles>{STYLES}</office:styles>\n<office:automatic-styles>{AUTOMATIC}</office:automatic-styles>\n"
        f"<office:master-styles>{MASTER}</office:master-styles>\n<office:body><office:text>{body()}</office:text></office:body>\n"
        "</office:document>\n")
    with tempfile.TemporaryDirectory() as folder:
        source = pathlib.Path(folder) / "report.fodt"
        source.write_text(document, encoding="utf-8")
        subprocess.run(["soffice", "--headless", "--convert-to", "pdf", "--outdir", HERE, source], check=True)


if __name__ == "__main__":
    main()
