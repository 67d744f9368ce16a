#include "layout/tables/RuledAdmission.h"

#include <algorithm>

namespace orvane::layout {
namespace {

bool hasStraddlingWords(const CellText& text, const TableParameters::Tables& parameters) {
    const double allowed = parameters.straddlingShare * static_cast<double>(text.wordCount);
    return static_cast<double>(text.straddlingCount) > allowed;
}

/// Whether some row or column is filled well enough to be the head of a table.
bool hasFilledRowOrColumn(const TableGrid& grid, const CellText& text, const TableParameters::Tables& parameters) {
    struct Count {
        int cells = 0;
        int filled = 0;
    };
    std::vector<Count> rows(static_cast<std::size_t>(grid.rows()));
    std::vector<Count> columns(static_cast<std::size_t>(grid.columns()));
    for (std::size_t i = 0; i < grid.cells.size(); ++i) {
        const GridCell& cell = grid.cells[i];
        for (Count* count :
             {&rows[static_cast<std::size_t>(cell.row)], &columns[static_cast<std::size_t>(cell.column)]}) {
            ++count->cells;
            count->filled += !text.wordsOfCell[i].empty();
        }
    }
    const auto isFilled = [&](const Count& count) {
        return count.filled > 0 && count.filled >= parameters.filledShare * count.cells;
    };
    return std::any_of(rows.begin(), rows.end(), isFilled) || std::any_of(columns.begin(), columns.end(), isFilled);
}

/// Whether the rows that hold text are lower than it.
bool isTooFlat(const std::vector<Line>& lines, const TableGrid& grid, const CellText& text,
               const TableParameters::Tables& parameters) {
    int flat = 0;
    int filled = 0;
    for (std::size_t i = 0; i < grid.cells.size(); ++i) {
        if (text.wordsOfCell[i].empty())
            continue;
        const Line& line = lines[text.wordsOfCell[i].front().line];
        ++filled;
        flat += grid.boxOf(grid.cells[i]).height() < parameters.minimumRowHeight * line.fontSize;
    }
    return flat > parameters.flatShare * filled;
}

} // namespace

bool isDrawnOver(const PageText& page, const TableGrid& grid, const TableParameters::Tables& parameters) {
    const Rect box = grid.box();
    return std::any_of(page.figures.begin(), page.figures.end(), [&](const Figure& figure) {
        if (figure.isBackground || figure.paths.empty() || !figure.box.intersects(box))
            return false;
        const Rect shared = figure.box.intersected(box);
        return std::none_of(grid.cells.begin(), grid.cells.end(), [&](const GridCell& cell) {
            return grid.boxOf(cell).intersected(shared).area() > parameters.figureShare * shared.area();
        });
    });
}

namespace {

/// A frame around the page has a cell or two for its head beside the one that holds the text; more are the fields of a
/// form or of minutes.
bool isPageFrame(const PageText& page, const TableGrid& grid, const CellText& text,
                 const TableParameters::Tables& parameters) {
    const auto filled = std::count_if(text.wordsOfCell.begin(), text.wordsOfCell.end(),
                                      [](const std::vector<WordPlace>& words) { return !words.empty(); });
    if (filled > parameters.mostFrameCells)
        return false;
    for (std::size_t i = 0; i < grid.cells.size(); ++i) {
        const bool isLarge = grid.boxOf(grid.cells[i]).area() > parameters.frameCellShare * page.width * page.height;
        const auto words = static_cast<double>(text.wordsOfCell[i].size());
        if (isLarge && words > parameters.frameWordShare * static_cast<double>(text.wordCount))
            return true;
    }
    return false;
}

} // namespace

TableVerdict judgeRuledTable(const PageText& page, const TableGrid& grid, const CellText& text,
                             const GridEvidence& evidence, const TableParameters::Tables& parameters) {
    const auto cellCount = static_cast<double>(grid.cells.size());
    if (grid.cells.size() < 2)
        return TableVerdict::SinglePlace;
    if (!tilesGrid(grid) || evidence.forcedCells > parameters.forcedShare * cellCount)
        return TableVerdict::BrokenGrid;
    // A grid that is drawn to the last side may be one to fill in.
    const bool isToFillIn = evidence.isClosed && grid.rows() > 1 && grid.columns() > 1;
    if (text.wordCount == 0 || !(isToFillIn || hasFilledRowOrColumn(grid, text, parameters)))
        return TableVerdict::Empty;
    if (hasStraddlingWords(text, parameters))
        return TableVerdict::StraddlingWords;
    if (isTooFlat(page.lines, grid, text, parameters))
        return TableVerdict::TooFlat;
    if (isDrawnOver(page, grid, parameters))
        return TableVerdict::Drawing;
    if (isPageFrame(page, grid, text, parameters))
        return TableVerdict::PageFrame;
    return TableVerdict::Table;
}

} // namespace orvane::layout
