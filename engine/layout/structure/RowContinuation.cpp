#include "layout/structure/RowContinuation.h"

#include "base/Utf8.h"
#include "layout/structure/ParagraphContinuation.h"
#include "layout/structure/TablePart.h"
#include "layout/text/Characters.h"
#include "layout/text/LineText.h"

#include <algorithm>
#include <iterator>

namespace orvane::layout {
namespace {

DraftPiece* lastPieceOf(DraftCell& cell) {
    DraftParagraph* paragraph = cell.blocks.empty() ? nullptr : cell.blocks.back().paragraph();
    return paragraph ? &paragraph->pieces.back() : nullptr;
}

DraftPiece* firstPieceOf(DraftCell& cell) {
    DraftParagraph* paragraph = cell.blocks.empty() ? nullptr : cell.blocks.front().paragraph();
    return paragraph ? &paragraph->pieces.front() : nullptr;
}

/// The piece with its indents counted from the text's own edge, as the lines were broken.
struct InnerPiece {
    ParagraphDraft text;
    ColumnSpan column;

    explicit InnerPiece(const DraftPiece& piece)
        : text(piece.text)
        , column(piece.column) {
        const double space = std::max(0.0, text.box.left - column.left);
        const double room = std::max(0.0, column.right - text.box.right);
        const double margin = std::min(space, room);
        column = {column.left + margin, column.right - margin};
        text.indentStart = std::max(0.0, text.indentStart - margin);
    }
};

bool runsOn(DraftCell& above, DraftCell& below, const ParagraphContext& context, const LayoutParameters& parameters) {
    const DraftPiece* last = lastPieceOf(above);
    const DraftPiece* first = firstPieceOf(below);
    if (!last || !first)
        return false;
    const InnerPiece before(*last);
    const InnerPiece after(*first);
    return layout::runsOn({before.text, before.column}, {after.text, after.column}, context, parameters);
}

char32_t firstLetterOf(DraftCell& cell) {
    return firstCharacterOf(firstPieceOf(cell)->text.lines.front());
}

/// Whether the page break lies within a text: in a narrow cell every short text looks as if more could follow.
bool isCutText(DraftCell& above, DraftCell& below) {
    const std::vector<Line>& lines = lastPieceOf(above)->text.lines;
    if (lines.size() > 1)
        return true;
    const std::u32string last = utf32FromUtf8(textOf(lines.back().words.back()));
    if (!last.empty() && isWithoutBlanks(last.back()))
        return true;
    return lines.front().words.size() > 1 && isLowerCase(firstLetterOf(below));
}

/// Whether words with a capital letter below a single line of some words begin a line that was ended by hand.
bool beginsAnew(DraftCell& above, DraftCell& below) {
    const std::vector<Line>& lines = lastPieceOf(above)->text.lines;
    return lines.size() == 1 && lines.front().words.size() > 1 && isUpperCase(firstLetterOf(below));
}

bool haveSamePlaces(const std::vector<DraftCell*>& above, const std::vector<DraftCell*>& below) {
    return std::equal(above.begin(), above.end(), below.begin(), below.end(),
                      [](const DraftCell* a, const DraftCell* b) {
                          return a->cell.column == b->cell.column && a->cell.columnSpan == b->cell.columnSpan;
                      });
}

/// How many cells of a table's first column have text, and how many stand beside one row only.
struct RowLabels {
    std::size_t rows = 0;
    std::size_t labelled = 0;
    std::size_t ofOneRow = 0;

    double share() const { return rows > 0 ? static_cast<double>(labelled) / static_cast<double>(rows) : 0; }
};

/// The labels of the rows from `first` on.
RowLabels labelsOf(const DraftTable& table, int first) {
    RowLabels labels;
    for (const DraftCell& cell : table.cells) {
        if (cell.cell.column == 0 && cell.cell.row >= first) {
            ++labels.rows;
            labels.labelled += !cell.blocks.empty();
            labels.ofOneRow += cell.cell.rowSpan == 1;
        }
    }
    return labels;
}

/// Whether all rows but the first of `next` have labels of their own. Few may have theirs by chance.
bool areAllLabelled(const DraftTable& table, const DraftTable& next, std::size_t fewest) {
    const auto hasOwn = [](const RowLabels& labels) {
        return labels.labelled == labels.rows && labels.ofOneRow == labels.rows;
    };
    const RowLabels above = labelsOf(table, 0);
    const RowLabels below = labelsOf(next, 1);
    return above.rows + below.rows >= fewest && hasOwn(above) && hasOwn(below);
}

/// Sums have no label in many tables.
bool isNumber(const DraftCell& cell) {
    const std::u32string text = utf32FromUtf8(plainTextOf(cell));
    return std::any_of(text.begin(), text.end(), isDigit) && std::none_of(text.begin(), text.end(), isLetter);
}

/// Whether the first row of `next` has texts, but no label where every other row has one: it is no row of its own.
bool lacksItsLabel(const std::vector<DraftCell*>& above, const std::vector<DraftCell*>& below, const DraftTable& table,
                   const DraftTable& next, const TableParameters::Tables& parameters) {
    if (!below.front()->blocks.empty() || below.front()->cell.rowSpan > 1)
        return false;
    bool goesOn = false;
    for (std::size_t i = 1; i < below.size(); ++i) {
        if (isNumber(*below[i]))
            return false;
        goesOn = goesOn || (!above[i]->blocks.empty() && !below[i]->blocks.empty());
    }
    return goesOn && areAllLabelled(table, next, parameters.fewestLabelled);
}

} // namespace

bool goesOnWithRow(DraftTable& table, DraftTable& next, const ParagraphContext& context,
                   const LayoutParameters& parameters) {
    const std::vector<DraftCell*> above = lastRowOf(table);
    const std::vector<DraftCell*> below = firstRowOf(next);
    if (!haveSamePlaces(above, below))
        return false;
    if (lacksItsLabel(above, below, table, next, parameters.tables))
        return true;
    int forIt = 0;
    int againstIt = 0;
    for (std::size_t i = 0; i < above.size(); ++i) {
        if (below[i]->blocks.empty())
            continue;
        // Text that starts beside the rest of another starts with the row.
        if (above[i]->blocks.empty())
            return false;
        if (!runsOn(*above[i], *below[i], context, parameters))
            ++againstIt;
        else
            forIt += isCutText(*above[i], *below[i]);
    }
    // Where nearly every row has its label, a row without one is no row.
    const bool lacksLabel = below.front()->blocks.empty() && !above.front()->blocks.empty() &&
                            labelsOf(table, 0).share() > parameters.tables.labelledRowShare;
    return forIt > 0 && (againstIt == 0 || lacksLabel);
}

void joinRows(DraftTable& table, DraftTable& next, const ParagraphContext& context,
              const LayoutParameters& parameters) {
    const std::vector<DraftCell*> above = lastRowOf(table);
    const std::vector<DraftCell*> below = firstRowOf(next);
    for (std::size_t i = 0; i < above.size(); ++i) {
        std::vector<DraftBlock>& blocks = above[i]->blocks;
        std::vector<DraftBlock>& more = below[i]->blocks;
        auto first = more.begin();
        if (runsOn(*above[i], *below[i], context, parameters) && !beginsAnew(*above[i], *below[i])) {
            std::vector<DraftPiece>& pieces = blocks.back().paragraph()->pieces;
            std::vector<DraftPiece>& rest = first->paragraph()->pieces;
            pieces.back().text.endsParagraph = false;
            rest.front().text.startsParagraph = false;
            pieces.insert(pieces.end(), std::make_move_iterator(rest.begin()), std::make_move_iterator(rest.end()));
            ++first;
        }
        blocks.insert(blocks.end(), std::make_move_iterator(first), std::make_move_iterator(more.end()));
        above[i]->cell.borders.bottom = below[i]->cell.borders.bottom;
        above[i]->cell.rowSpan += below[i]->cell.rowSpan - 1;
    }
    table.cutRows.push_back(rowCount(table) - 1);
    table.table.rowEdges.back() += next.table.rowEdges[1] - next.table.rowEdges[0];
    dropFirstRows(next, 1);
}

void joinMergedCells(DraftTable& table, DraftTable& next) {
    const std::vector<DraftCell*> above = lastRowOf(table);
    std::erase_if(next.cells, [&](const DraftCell& below) {
        if (below.cell.row > 0 || below.cell.rowSpan < 2 || !below.blocks.empty())
            return false;
        const auto same = std::find_if(above.begin(), above.end(), [&](const DraftCell* cell) {
            return cell->cell.column == below.cell.column && cell->cell.columnSpan == below.cell.columnSpan;
        });
        if (same == above.end() || (*same)->cell.rowSpan < 2 || (*same)->blocks.empty())
            return false;
        (*same)->cell.rowSpan += below.cell.rowSpan;
        (*same)->cell.borders.bottom = below.cell.borders.bottom;
        return true;
    });
}

} // namespace orvane::layout
