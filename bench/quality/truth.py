"""What a converter should give back for a Document of markup.py, as the values that wordread.py reads."""
from markup import Cell, Columns, Contents, Paragraph, Table
from wordread import Read, tidy


def truth_of(document):
    read = Read()
    _add(document.blocks, read)
    read.furniture = [text for text in (document.footer, document.header) if text]
    return read


def _add(blocks, read):
    for block in blocks:
        if isinstance(block, Paragraph):
            _add_paragraph(block, read)
        elif isinstance(block, Table):
            _add_table(block, read)
        elif isinstance(block, Columns):
            read.columns = max(read.columns, block.count)
            _add(block.blocks, read)
        elif isinstance(block, Contents):
            read.contents += len(block.pages)


def _add_paragraph(paragraph, read):
    text = tidy("".join((" " if run.break_before else "") + run.text for run in paragraph.runs))
    if paragraph.heading:
        read.headings.append((paragraph.heading, text))
    if paragraph.level >= 0:
        read.items.append((paragraph.level, paragraph.ordered, text))
    before = ""
    for run in paragraph.runs:
        before += run.text
        if run.note:
            read.notes.append((tidy(before)[-12:], run.note))
        if run.link:
            read.links.append((run.text, "#" if run.link.startswith("#") else run.link))
        if not paragraph.heading:
            read.strong += [("b", word) for word in run.text.split() if run.bold] + [("i", word) for word in run.text.split() if run.italic]
    read.paragraphs.append((text, False))


def _add_table(table, read):
    number = 1 + max((cell[0] for cell in read.cells), default=-1)
    for row_number, row in enumerate(table.rows):
        column = 0
        for place in row:
            cell = place if isinstance(place, Cell) else Cell(place or "")
            read.cells.append((number, row_number, column, cell.text))
            column += cell.columns
            if cell.text:
                read.paragraphs.append((cell.text, True))
                if row_number < table.head:
                    read.strong += [("b", word) for word in cell.text.split()]
