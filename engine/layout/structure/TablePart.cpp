#include "layout/structure/TablePart.h"

#include "layout/structure/DraftWalk.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

/// The cells that start in a row.
std::vector<const DraftCell*> cellsOfRow(const DraftTable& table, int row) {
    std::vector<const DraftCell*> cells;
    for (const DraftCell& cell : table.cells)
        if (cell.cell.row == row)
            cells.push_back(&cell);
    return cells;
}

bool areAlike(const std::vector<const DraftCell*>& a, const std::vector<const DraftCell*>& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const DraftCell* x, const DraftCell* y) {
        return x->cell.rowSpan == y->cell.rowSpan && plainTextOf(*x) == plainTextOf(*y);
    });
}

bool hasText(const std::vector<const DraftCell*>& cells) {
    return std::any_of(cells.begin(), cells.end(), [](const DraftCell* cell) { return !plainTextOf(*cell).empty(); });
}

/// Rows after which no cell goes on.
bool endsWholly(const DraftTable& table, int rows) {
    return std::none_of(table.cells.begin(), table.cells.end(), [rows](const DraftCell& cell) {
        return cell.cell.row < rows && cell.cell.row + cell.cell.rowSpan > rows;
    });
}

/// The only cell of a row, if it reaches over all columns.
const DraftCell* sectionIn(const DraftTable& table, int row) {
    const std::vector<const DraftCell*> cells = cellsOfRow(table, row);
    const int columns = static_cast<int>(table.table.columnEdges.size()) - 1;
    const bool isOne = cells.size() == 1 && cells.front()->cell.columnSpan == columns && columns > 1;
    return isOne && cells.front()->cell.rowSpan == 1 ? cells.front() : nullptr;
}

template<typename Predicate>
std::vector<DraftCell*> selectCells(DraftTable& table, const Predicate& predicate) {
    std::vector<DraftCell*> cells;
    for (DraftCell& cell : table.cells)
        if (predicate(cell.cell))
            cells.push_back(&cell);
    std::sort(cells.begin(), cells.end(),
              [](const DraftCell* a, const DraftCell* b) { return a->cell.column < b->cell.column; });
    return cells;
}

} // namespace

std::string plainTextOf(const DraftCell& cell) {
    std::string text;
    forEachParagraph(cell.blocks, [&](const DraftParagraph& paragraph) {
        for (const DraftPiece& piece : paragraph.pieces)
            for (const Line& line : piece.text.lines)
                for (const Word& word : line.words)
                    for (const Span& span : word.spans)
                        text += span.text;
    });
    return text;
}

int countSharedRows(const DraftTable& table, const DraftTable& next, int most) {
    int shared = 0;
    for (int row = 0; row < std::min({rowCount(table), rowCount(next), most}); ++row) {
        const std::vector<const DraftCell*> cells = cellsOfRow(table, row);
        if (!areAlike(cells, cellsOfRow(next, row)))
            break;
        if (hasText(cells) && endsWholly(table, row + 1) && endsWholly(next, row + 1))
            shared = row + 1;
    }
    return shared;
}

bool startsWithSection(const DraftTable& table, const DraftTable& next) {
    const DraftCell* first = sectionIn(next, 0);
    if (!first || next.table.headerRows > 1)
        return false;
    for (int row = 1; row < rowCount(table); ++row) {
        const DraftCell* section = sectionIn(table, row);
        if (section && section->cell.shading == first->cell.shading && hasText({section}) == hasText({first}))
            return true;
    }
    return false;
}

void dropFirstRows(DraftTable& table, int count) {
    std::erase_if(table.cells, [count](const DraftCell& cell) { return cell.cell.row < count; });
    for (DraftCell& cell : table.cells)
        cell.cell.row -= count;
    table.table.rowEdges.erase(table.table.rowEdges.begin(), table.table.rowEdges.begin() + count);
}

void setColumnEdges(DraftTable& table, const std::vector<double>& edges, double shift, double tolerance) {
    std::vector<int> newIndex;
    for (const double edge : table.table.columnEdges) {
        const auto same = std::find_if(edges.begin(), edges.end(),
                                       [&](double other) { return std::abs(other - edge - shift) <= tolerance; });
        newIndex.push_back(static_cast<int>(same - edges.begin()));
    }
    for (DraftCell& cell : table.cells) {
        const int end = newIndex[static_cast<std::size_t>(cell.cell.column + cell.cell.columnSpan)];
        cell.cell.column = newIndex[static_cast<std::size_t>(cell.cell.column)];
        cell.cell.columnSpan = end - cell.cell.column;
    }
    table.table.columnEdges = edges;
}

std::vector<DraftCell*> lastRowOf(DraftTable& table) {
    const int end = rowCount(table);
    return selectCells(table, [end](const CellDraft& cell) { return cell.row + cell.rowSpan == end; });
}

std::vector<DraftCell*> firstRowOf(DraftTable& table) {
    return selectCells(table, [](const CellDraft& cell) { return cell.row == 0; });
}

} // namespace orvane::layout
