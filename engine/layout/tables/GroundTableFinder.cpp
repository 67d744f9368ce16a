#include "layout/tables/GroundTableFinder.h"

#include "layout/tables/CellText.h"
#include "layout/tables/GroundLines.h"
#include "layout/tables/RuledTableFinder.h"

#include <algorithm>
#include <iterator>
#include <tuple>

namespace orvane::layout {
namespace {

/// The lines that rules draw, and those that grounds show.
std::vector<BorderLine> withLinesOfGrounds(const PageText& page, std::vector<BorderLine> lines,
                                           const TableParameters::Tables& parameters) {
    std::vector<BorderLine> shown = linesOfGrounds(page, lines, parameters);
    lines.insert(lines.end(), std::make_move_iterator(shown.begin()), std::make_move_iterator(shown.end()));
    std::sort(lines.begin(), lines.end(), [](const BorderLine& a, const BorderLine& b) {
        return std::tie(a.direction, a.position, a.from) < std::tie(b.direction, b.position, b.from);
    });
    return lines;
}

/// Whether enough rows have texts side by side: bars of a chart meet, too.
bool hasTextsSideBySide(const TableGrid& grid, const std::vector<Line>& lines,
                        const TableParameters::Tables& parameters) {
    const CellText text = assignWords(lines, grid, parameters);
    std::vector<int> filled(static_cast<std::size_t>(grid.rows()), 0);
    for (std::size_t i = 0; i < grid.cells.size(); ++i)
        filled[static_cast<std::size_t>(grid.cells[i].row)] += !text.wordsOfCell[i].empty();
    return std::count_if(filled.begin(), filled.end(), [](int cells) { return cells > 1; }) >=
           parameters.fewestPartedRows;
}

} // namespace

std::vector<TableGrid> findGroundGrids(const PageText& page, const std::vector<BorderLine>& lines,
                                       const TableParameters::Tables& parameters) {
    std::vector<TableGrid> grids = findRuledGrids(page, withLinesOfGrounds(page, lines, parameters), parameters);
    std::erase_if(grids, [&](const TableGrid& grid) { return !hasTextsSideBySide(grid, page.lines, parameters); });
    return grids;
}

} // namespace orvane::layout
