#include "layout/tables/TableHead.h"

#include <algorithm>

namespace orvane::layout {
namespace {

/// What a row's text and ground look like. Bold texts tell of a head only where the column below is not bold: labels
/// are bold all the way down.
struct RowLook {
    int filledCells = 0;
    int boldCells = 0;
    int shadedCells = 0;
    int cells = 0;
    bool hasPlainBelow = false; ///< the column of some bold text is not bold all the way down

    bool isBold() const { return filledCells > 0 && boldCells == filledCells && hasPlainBelow; }
    bool isShaded() const { return cells > 0 && shadedCells == cells; }
};

bool isBold(const CellDraft& cell, bool& hasText) {
    bool bold = true;
    hasText = false;
    for (const PageBlock& block : cell.blocks) {
        const auto* paragraph = std::get_if<ParagraphDraft>(&block.value);
        if (!paragraph)
            continue;
        for (const Line& line : paragraph->lines) {
            for (const Word& word : line.words) {
                hasText = true;
                bold = bold && word.spans.front().look.isBold;
            }
        }
    }
    return bold && hasText;
}

/// What stands in one column, from the bottom up to where the reader has come.
struct ColumnLook {
    int filledCells = 0;
    int boldCells = 0;

    bool isBoldAllTheWay() const { return filledCells > 0 && boldCells == filledCells; }
};

std::vector<RowLook> looksOf(const TableDraft& table) {
    std::vector<RowLook> looks(table.rowEdges.size() - 1);
    std::vector<ColumnLook> below(table.columnEdges.size() - 1);
    // The cells stand by rows.
    for (auto cell = table.cells.rbegin(); cell != table.cells.rend(); ++cell) {
        RowLook& look = looks[static_cast<std::size_t>(cell->row)];
        bool hasText = false;
        const bool isBoldCell = isBold(*cell, hasText);
        look.boldCells += isBoldCell;
        look.filledCells += hasText;
        look.shadedCells += cell->shading.has_value();
        ++look.cells;
        for (int i = cell->column; i < cell->column + cell->columnSpan; ++i) {
            ColumnLook& column = below[static_cast<std::size_t>(i)];
            look.hasPlainBelow = look.hasPlainBelow || (isBoldCell && !column.isBoldAllTheWay());
            column.filledCells += hasText;
            column.boldCells += isBoldCell;
        }
    }
    return looks;
}

/// The head cannot end within a cell.
int extendToWholeCells(const TableDraft& table, int rows) {
    int extended = rows;
    for (const CellDraft& cell : table.cells)
        if (cell.row < rows)
            extended = std::max(extended, cell.row + cell.rowSpan);
    return extended;
}

template<typename Predicate>
int countLeading(const std::vector<RowLook>& looks, const Predicate& isHead) {
    return static_cast<int>(std::find_if_not(looks.begin(), looks.end(), isHead) - looks.begin());
}

/// The leading rows that have the mark, if they stand out: few, and few of the others have it too.
template<typename Predicate>
int leadingThatStandOut(const std::vector<RowLook>& looks, const Predicate& hasMark,
                        const TableParameters::Tables& parameters) {
    const int leading = countLeading(looks, hasMark);
    const auto all = static_cast<int>(std::count_if(looks.begin(), looks.end(), hasMark));
    const int others = static_cast<int>(looks.size()) - leading;
    if (leading > parameters.maximumHeaderRows || others == 0)
        return 0;
    return all - leading <= parameters.headerLikeShare * others ? leading : 0;
}

} // namespace

int countHeaderRows(const TableDraft& table, const TableParameters::Tables& parameters) {
    if (table.rowEdges.size() < 3)
        return 0;
    const std::vector<RowLook> looks = looksOf(table);
    const int bold = leadingThatStandOut(
        looks, [](const RowLook& look) { return look.isBold(); }, parameters);
    const int shaded = leadingThatStandOut(
        looks, [](const RowLook& look) { return look.isShaded(); }, parameters);
    const int rows = extendToWholeCells(table, std::max(bold, shaded));
    // All rows being head leaves nothing to be headed.
    return rows < static_cast<int>(looks.size()) ? rows : 0;
}

} // namespace orvane::layout
