"""Writes documents with tables as flat OpenDocument text, and beside them what the tables are.

A table is told by lines of text: cells parted by `|`, `<` for a place that the cell at its left covers, `^` for one that the cell above
covers, `//` for a new line in a cell, a tab before what stands at the cell's right side, `^{1}` for a raised mark; blanks before a text
indent it.
Source: OpenDocument 1.2 Part 1.
"""
import dataclasses
import html
import re

NAMESPACES = " ".join(f'xmlns:{prefix}="urn:oasis:names:tc:opendocument:xmlns:{name}:1.0"' for prefix, name in (
    ("office", "office"), ("style", "style"), ("text", "text"), ("table", "table"), ("fo", "xsl-fo-compatible"), ("svg", "svg-compatible")))
ALIGNMENTS = {"l": "start", "r": "end", "c": "center"}
ABOVE, BELOW = "above", "below"


@dataclasses.dataclass(frozen=True)
class Setting:
    """How the documents are set, so that each table is met in several forms."""
    font: str = ""           # instead of each document's own
    larger: float = 0        # points added to each size
    padding: tuple = ()      # cm; beside and above the texts of cells, instead of each table's own


@dataclasses.dataclass(frozen=True)
class Tab:
    position: float          # cm
    kind: str = "right"      # left, right, center or char, which is the place of the point
    leader: bool = False


@dataclasses.dataclass
class Look:
    """How one table looks."""
    align: str = ""                  # one letter a column; the first to the left, the others to the right if empty
    head: int = 1                    # rows
    head_align: str = ""             # one letter a column; as the columns and spans in the middle if empty
    size: float = 0                  # points; the document's if 0
    rules: tuple = ()                # (row, ABOVE or BELOW); rows from the end are negative
    grid: bool = False               # every border is drawn
    between: bool = False            # rules between all rows
    span_rules: tuple = ()           # rows whose cells over several columns have a rule below
    cell_rules: tuple = ()           # (row, column) of cells that have a rule below
    columns_ruled: tuple = ()        # columns that have a rule before them
    fill: dict = dataclasses.field(default_factory=dict)  # colours of rows
    fill_columns: dict = dataclasses.field(default_factory=dict)  # colours of columns, where their rows have none
    bold: tuple = ()
    italic: tuple = ()
    upright: str = ""                # top, middle or bottom; heads at the bottom if empty
    padding: float = 0.05            # cm beside the texts
    padding_above: float = -1        # cm; as beside them if negative
    leaders: bool = False            # dots after the texts of the first column
    rule_width: float = 0.5          # points
    indent: float = 0                # cm before the table
    place: str = "left"
    indent_step: float = 0.15        # cm for each blank before a text
    turned_head: bool = False        # texts of the first row read upwards


class Document:
    def __init__(self, setting, font="Liberation Serif", size=10, columns=1, landscape=False, language="en"):
        self.font = setting.font or font
        self.size = size + setting.larger
        self.setting = setting
        self.columns = columns
        self.language = language
        self.width, self.height = (29.7, 21.0) if landscape else (21.0, 29.7)
        self.styles, self.body, self.tables = [], [], []
        self.raised = self.style("text", '<style:text-properties style:text-position="super 60%"/>')

    def style(self, family, properties):
        name = f"{family[:3]}{len(self.styles)}"
        self.styles.append(f'<style:style style:name="{name}" style:family="{family}">{properties}</style:style>')
        return name

    def inline(self, text):
        text = html.escape(text)
        text = re.sub(r"\^\{(.*?)\}", lambda found: f'<text:span text:style-name="{self.raised}">{found[1]}</text:span>', text)
        return text.replace("\n", "<text:line-break/>").replace("\t", "<text:tab/>")

    def paragraph(self, text, bold=False, italic=False, size=0, align="start", after=0.2, before=0, indent=0, tabs=(), new_page=False):
        stops = "".join(f'<style:tab-stop style:position="{tab.position}cm" style:type="{tab.kind}"'
                        + (' style:leader-style="dotted" style:leader-text="."' if tab.leader else "")
                        + (' style:char="."' if tab.kind == "char" else "") + "/>" for tab in tabs)
        page = ' fo:break-before="page"' if new_page else ""
        style = self.style("paragraph", f'<style:paragraph-properties fo:text-align="{align}" fo:margin-bottom="{after}cm" '
                           f'fo:margin-top="{before}cm" fo:margin-left="{indent}cm"{page}><style:tab-stops>{stops}</style:tab-stops>'
                           f'</style:paragraph-properties><style:text-properties fo:font-size="{size or self.size}pt" '
                           f'fo:font-weight="{"bold" if bold else "normal"}" fo:font-style="{"italic" if italic else "normal"}"/>')
        return f'<text:p text:style-name="{style}">{self.inline(text)}</text:p>'

    def add(self, text, **look):
        self.body.append(self.paragraph(text, **look))

    def tabbed(self, tabs, rows, bold=(), **look):
        """A table of paragraphs whose cells stand at tab stops."""
        grid = [[text.strip() for text in row.split("|")] for row in rows]
        for number, texts in enumerate(grid):
            self.add("\t".join(texts), tabs=tabs, after=0, bold=number in bold, **look)
        self.tables.append([(row, column, 1, 1, text) for row, texts in enumerate(grid) for column, text in enumerate(texts)])

    def in_columns(self, count, *parts):
        """Each part, a function that adds to the document, in a column of its own."""
        outer, self.body = self.body, []
        for part in parts:
            part()
        inner, self.body = "".join(self.body), outer
        style = self.style("section", f'<style:section-properties><style:columns fo:column-count="{count}" fo:column-gap="0.8cm"/>'
                           "</style:section-properties>")
        self.body.append(f'<text:section text:style-name="{style}" text:name="{style}">{inner}</text:section>')

    def table(self, widths, rows, look=Look()):
        grid = [row.split("|") for row in rows]
        for texts in grid:
            if len(texts) != len(widths):
                raise ValueError(f"{len(widths)} columns wanted: {texts}")
        self.body.append(TableWriter(self, widths, grid, look).write())

    def xml(self):
        columns = f'<style:columns fo:column-count="{self.columns}" fo:column-gap="0.8cm"/>' if self.columns > 1 else ""
        return (f'<?xml version="1.0" encoding="UTF-8"?><office:document {NAMESPACES} office:version="1.2" '
                'office:mimetype="application/vnd.oasis.opendocument.text"><office:font-face-decls>'
                f'<style:font-face style:name="{self.font}" svg:font-family="&apos;{self.font}&apos;"/></office:font-face-decls>'
                '<office:styles><style:default-style style:family="paragraph"><style:text-properties '
                f'style:font-name="{self.font}" fo:font-size="{self.size}pt" fo:language="{self.language}"/></style:default-style>'
                '</office:styles><office:automatic-styles><style:page-layout style:name="page"><style:page-layout-properties '
                f'fo:page-width="{self.width}cm" fo:page-height="{self.height}cm" fo:margin="2cm">{columns}'
                f'</style:page-layout-properties></style:page-layout>{"".join(self.styles)}</office:automatic-styles>'
                '<office:master-styles><style:master-page style:name="Standard" style:page-layout-name="page"/></office:master-styles>'
                f'<office:body><office:text>{"".join(self.body)}</office:text></office:body></office:document>')

    def truth(self):
        """What the tables are, in the form of the ICDAR 2013 competition."""
        tables = []
        for number, cells in enumerate(self.tables):
            inner = "".join(f'<cell start-row="{row}" start-col="{column}" end-row="{row + rows - 1}" end-col="{column + columns - 1}">'
                            f"<content>{html.escape(text)}</content></cell>" for row, column, rows, columns, text in cells)
            tables.append(f'<table id="{number}"><region id="1" page="1">{inner}</region></table>')
        return f"<document>{''.join(tables)}</document>"


class TableWriter:
    def __init__(self, document, widths, grid, look):
        self.document, self.widths, self.grid, self.look = document, widths, grid, look
        self.rows, self.columns = len(grid), len(widths)
        self.rules = {(row % self.rows, side) for row, side in look.rules}
        if look.between:
            self.rules |= {(row, BELOW) for row in range(self.rows)} | {(0, ABOVE)}
        beside = look.padding
        above = look.padding if look.padding_above < 0 else look.padding_above
        self.padding = document.setting.padding or (beside, above)

    def write(self):
        look, document = self.look, self.document
        style = document.style("table", f'<style:table-properties style:width="{sum(self.widths)}cm" table:align="{look.place}" '
                               f'fo:margin-left="{look.indent}cm" fo:margin-top="0.1cm" fo:margin-bottom="0.3cm"/>')
        out = [f'<table:table table:style-name="{style}">']
        for width in self.widths:
            column = document.style("table-column", f'<style:table-column-properties style:column-width="{width}cm"/>')
            out.append(f'<table:table-column table:style-name="{column}"/>')
        cells, lines = [], []
        for row, texts in enumerate(self.grid):
            line = "".join(self.cell(row, column, text, cells) for column, text in enumerate(texts))
            least = ' style:min-row-height="2cm"' if look.turned_head and row == 0 else ""
            style = document.style("table-row", f'<style:table-row-properties fo:keep-together="always"{least}/>')
            lines.append(f'<table:table-row table:style-name="{style}">{line}</table:table-row>')
        document.tables.append(cells)
        head = "".join(lines[:look.head])
        if head:
            out.append(f"<table:table-header-rows>{head}</table:table-header-rows>")
        return "".join(out + lines[look.head:]) + "</table:table>"

    def spans(self, row, column):
        columns = rows = 1
        while column + columns < self.columns and self.grid[row][column + columns].strip() == "<":
            columns += 1
        while row + rows < self.rows and self.grid[row + rows][column].strip() == "^":
            rows += 1
        return rows, columns

    def cell(self, row, column, raw, cells):
        if raw.strip() in ("<", "^"):
            return "<table:covered-table-cell/>"
        rows, columns = self.spans(row, column)
        text = raw.strip().replace("//", "\n")
        style = self.document.style("table-cell", self.cell_properties(row, column, rows, columns, bool(text)))
        plain = re.sub(r"\^\{(.*?)\}", r"\1", re.sub(r"\s", " ", text))
        cells.append((row, column, rows, columns, plain))
        return (f'<table:table-cell table:style-name="{style}" table:number-columns-spanned="{columns}" '
                f'table:number-rows-spanned="{rows}">{self.text(row, column, columns, raw, text)}</table:table-cell>')

    def cell_properties(self, row, column, rows, columns, has_text):
        look = self.look
        drawn = {"top": look.grid or (row, ABOVE) in self.rules,
                 "bottom": look.grid or (row + rows - 1, BELOW) in self.rules
                 or (has_text and columns > 1 and {row, row - self.rows} & set(look.span_rules)) or (row, column) in look.cell_rules,
                 "left": look.grid or column in look.columns_ruled,
                 "right": look.grid or column + columns in look.columns_ruled}
        borders = "".join(f' fo:border-{side}="{look.rule_width}pt solid #000000"' for side, is_drawn in drawn.items() if is_drawn)
        fill = look.fill.get(row, look.fill_columns.get(column, ""))
        ground = f' fo:background-color="{fill}"' if fill else ""
        upright = look.upright or ("bottom" if row < look.head else "top")
        turned = ' style:writing-mode="bt-lr"' if look.turned_head and row == 0 and column > 0 else ""
        beside, above = self.padding
        return (f'<style:table-cell-properties fo:padding-left="{beside}cm" fo:padding-right="{beside}cm" fo:padding-top="{above}cm" '
                f'fo:padding-bottom="{above}cm"{borders or chr(32) + "fo:border=" + chr(34) + "none" + chr(34)}{ground} '
                f'style:vertical-align="{upright}"{turned}/>')

    def text(self, row, column, columns, raw, text):
        look = self.look
        tabs, end = (), self.widths[column] - 2 * self.padding[0]
        if "\t" in text:
            tabs = [Tab(end)]
        elif look.leaders and column == 0 and row >= look.head and text and any(self.grid[row][1:]):
            tabs, text = [Tab(end, leader=True)], text + "\t"
        step = look.indent_step * (len(raw) - len(raw.lstrip(" ")))
        return self.document.paragraph(text, bold=bool({row, row - self.rows} & set(look.bold)),
                                       italic=bool({row, row - self.rows} & set(look.italic)),
                                       size=(look.size + self.document.setting.larger) if look.size else 0,
                                       align="start" if "\t" in text else self.alignment(row, column, columns),
                                       after=0, indent=step, tabs=tabs)

    def alignment(self, row, column, columns):
        look = self.look
        of_column = (look.align or "l" + "r" * (self.columns - 1))[column]
        if row < look.head:
            letter = look.head_align[column] if look.head_align else "l" if column == 0 else "c" if columns > 1 else of_column
        else:
            letter = of_column if columns == 1 else "l" if column == 0 else "c"
        return ALIGNMENTS[letter]
