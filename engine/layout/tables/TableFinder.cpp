#include "layout/tables/TableFinder.h"

#include "layout/tables/BorderlessTableFinder.h"
#include "layout/tables/CellBuilder.h"
#include "layout/tables/HalfRuledTableFinder.h"
#include "layout/tables/RuledTableFinder.h"

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

std::vector<TableDraft> findTables(PageText& page, const DocumentContext& context, const LayoutParameters& parameters,
                                   Diagnostics&) {
    const TableParameters::Tables& limits = parameters.tables;
    const ParagraphContext around{context.bodyFontSize, context.bodyLeading, page.fonts};
    std::vector<TableDraft> tables;
    const auto take = [&](std::vector<TableGrid> grids, const std::vector<BorderLine>& lines, TableEdges edges) {
        // The smallest first: a table within a cell is found before the one around it.
        std::sort(grids.begin(), grids.end(),
                  [](const TableGrid& a, const TableGrid& b) { return a.box().area() < b.box().area(); });
        for (const TableGrid& grid : grids) {
            const CellText text = assignWords(page.lines, grid, limits);
            std::vector<TableDraft> nested = takeNested(tables, grid);
            tables.push_back(buildTable(page, grid, text, edges, lines, std::move(nested), around, parameters));
        }
    };
    const std::vector<BorderLine> lines = collectBorderLines(page.rules, limits);
    take(findRuledGrids(page, lines, limits), lines, TableEdges::Ruled);
    const std::vector<BorderLine> others = collectBorderLines(page.rules, limits);
    take(findHalfRuledGrids(page, others, parameters), others, TableEdges::HalfRuled);
    take(findBorderlessGrids(page, parameters), collectBorderLines(page.rules, limits), TableEdges::Aligned);
    std::sort(tables.begin(), tables.end(), [](const TableDraft& a, const TableDraft& b) {
        return a.box.top != b.box.top ? a.box.top < b.box.top : a.box.left < b.box.left;
    });
    return tables;
}

} // namespace orvane::layout
