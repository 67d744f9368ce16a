#include "layout/TableFinder.h"

#include "layout/CellBuilder.h"
#include "layout/RuledTableFinder.h"

#include <algorithm>

namespace orvane::layout {
namespace {

/// The tables of `found` that lie within a cell of `grid`, taken out of `found`.
std::vector<TableDraft> takeNested(std::vector<TableDraft>& found, const TableGrid& grid) {
    std::vector<TableDraft> nested;
    std::erase_if(found, [&](TableDraft& table) {
        const bool isWithin = std::any_of(grid.cells.begin(), grid.cells.end(),
                                          [&](const GridCell& cell) { return grid.boxOf(cell).contains(table.box); });
        if (isWithin)
            nested.push_back(std::move(table));
        return isWithin;
    });
    return nested;
}

} // namespace

std::vector<TableDraft> findTables(PageText& page, const LayoutParameters& parameters, Diagnostics&) {
    const LayoutParameters::Tables& limits = parameters.tables;
    const std::vector<BorderLine> lines = collectBorderLines(page.rules, limits);
    std::vector<TableDraft> tables;
    // The smallest first: a table within a cell is found before the one around it.
    for (const TableGrid& grid : findRuledGrids(page, lines, limits)) {
        const CellText text = assignWords(page.lines, grid, limits);
        std::vector<TableDraft> nested = takeNested(tables, grid);
        tables.push_back(buildTable(page, grid, text, lines, std::move(nested), limits));
        tables.back().isRuled = true;
    }
    std::sort(tables.begin(), tables.end(), [](const TableDraft& a, const TableDraft& b) {
        return a.box.top != b.box.top ? a.box.top < b.box.top : a.box.left < b.box.left;
    });
    return tables;
}

} // namespace orvane::layout
