#include "layout/tables/TableFinder.h"

#include "layout/page/ColumnStrips.h"
#include "layout/tables/BorderlessTableFinder.h"
#include "layout/tables/CellBuilder.h"
#include "layout/tables/FormGridFinder.h"
#include "layout/tables/GroundTableFinder.h"
#include "layout/tables/HalfRuledTableFinder.h"
#include "layout/tables/LabelledTableFinder.h"
#include "layout/tables/RuledTableFinder.h"
#include "layout/tables/SideTableFinder.h"
#include "layout/tables/SignatureTableFinder.h"
#include "layout/tables/TextColumns.h"

#include <algorithm>
#include <cmath>
#include <iterator>

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

/// The grids of one column, taken out of `grids`: their texts may show columns that no rule draws.
std::vector<TableGrid> takeSingleColumns(std::vector<TableGrid>& grids) {
    const auto first =
        std::stable_partition(grids.begin(), grids.end(), [](const TableGrid& grid) { return grid.columns() > 1; });
    std::vector<TableGrid> single(std::make_move_iterator(first), std::make_move_iterator(grids.end()));
    grids.erase(first, grids.end());
    return single;
}

/// Whether rules close the grid at both sides.
bool isInBox(const TableGrid& grid, const std::vector<BorderLine>& lines, const TableParameters::Tables& parameters) {
    const Rect box = grid.box();
    const auto isClosedAt = [&](double x) {
        return std::any_of(lines.begin(), lines.end(), [&](const BorderLine& line) {
            return line.direction == RuleDirection::Vertical && std::abs(line.position - x) <= parameters.endSnap &&
                   overlap(line.from, line.to, box.top, box.bottom) >= parameters.borderCover * box.height();
        });
    };
    return isClosedAt(box.left) && isClosedAt(box.right);
}

/// A box, or a stack of them, is a table by its texts' columns only if these are many enough: texts at both sides of a
/// box or two are none.
void chooseBetween(std::vector<TableGrid>& stacked, std::vector<TableGrid>& halfRuled,
                   const std::vector<BorderLine>& lines, const TableParameters::Tables& parameters) {
    std::erase_if(halfRuled, [&](const TableGrid& grid) {
        return grid.columns() <= 2 && grid.rows() <= 3 &&
               (overlapsAny(grid, stacked) || isInBox(grid, lines, parameters));
    });
    std::erase_if(stacked, [&](const TableGrid& grid) { return overlapsAny(grid, halfRuled); });
}

/// Drops the grids that lie over a table that was found before.
std::vector<TableGrid> besideTables(std::vector<TableGrid> grids, const std::vector<TableDraft>& tables) {
    std::erase_if(grids, [&](const TableGrid& grid) {
        return std::any_of(tables.begin(), tables.end(),
                           [&](const TableDraft& table) { return table.box.intersects(grid.box()); });
    });
    return grids;
}

std::vector<TableDraft> findTablesAmong(PageText& page, const DocumentContext& context,
                                        const LayoutParameters& parameters) {
    const TableParameters::Tables& limits = parameters.tables;
    std::vector<TableDraft> tables;
    const auto take = [&](std::vector<TableGrid> grids, const std::vector<BorderLine>& lines, TableEdges edges) {
        // The smallest first: a table within a cell is found before the one around it.
        std::sort(grids.begin(), grids.end(),
                  [](const TableGrid& a, const TableGrid& b) { return a.box().area() < b.box().area(); });
        for (const TableGrid& found : grids) {
            const TableGrid grid = partAtTexts(found, page.lines, limits);
            const CellText text = assignWords(page.lines, grid, limits);
            std::vector<TableDraft> nested = takeNested(tables, grid);
            tables.push_back(buildTable(page, grid, text, edges, lines, std::move(nested), context, parameters));
        }
    };
    const std::vector<BorderLine> drawn = collectBorderLines(page.rules, limits);
    take(findFormGrids(page, drawn, limits), drawn, TableEdges::Boxed);
    const std::vector<BorderLine> lines = collectBorderLines(page.rules, limits);
    std::vector<TableGrid> ruled = findRuledGrids(page, lines, limits);
    std::vector<TableGrid> stacked = takeSingleColumns(ruled);
    take(std::move(ruled), lines, TableEdges::Ruled);
    const std::vector<BorderLine> others = collectBorderLines(page.rules, limits);
    std::vector<TableGrid> halfRuled = findHalfRuledGrids(page, others, parameters);
    chooseBetween(stacked, halfRuled, others, limits);
    take(std::move(halfRuled), others, TableEdges::HalfRuled);
    take(std::move(stacked), others, TableEdges::Ruled);
    take(besideTables(findSideGrids(page, parameters), tables), collectBorderLines(page.rules, limits),
         TableEdges::Ruled);
    take(findSignatureGrids(page, parameters), collectBorderLines(page.rules, limits), TableEdges::Aligned);
    take(findBorderlessGrids(page, parameters), collectBorderLines(page.rules, limits), TableEdges::Aligned);
    const std::vector<BorderLine> left = collectBorderLines(page.rules, limits);
    take(besideTables(findGroundGrids(page, left, limits), tables), left, TableEdges::Ruled);
    take(findLabelledGrids(page, parameters), collectBorderLines(page.rules, limits), TableEdges::Aligned);
    return tables;
}

/// The tables of each strip by itself; none where fewer than two strips hold some.
std::vector<TableDraft> findTablesInStrips(PageText& page, const std::vector<ColumnStrip>& strips,
                                           const DocumentContext& context, const LayoutParameters& parameters) {
    cutAtStrips(page.lines, strips);
    std::vector<TableDraft> tables;
    std::vector<Line> others = std::move(page.lines);
    std::size_t stripsWithTables = 0;
    for (const ColumnStrip& strip : strips) {
        const auto first = std::stable_partition(others.begin(), others.end(),
                                                 [&](const Line& line) { return !strip.holds(line.box); });
        page.lines.assign(std::make_move_iterator(first), std::make_move_iterator(others.end()));
        others.erase(first, others.end());
        std::vector<TableDraft> found = findTablesAmong(page, context, parameters);
        stripsWithTables += !found.empty();
        std::move(found.begin(), found.end(), std::back_inserter(tables));
        std::move(page.lines.begin(), page.lines.end(), std::back_inserter(others));
    }
    page.lines = std::move(others);
    if (stripsWithTables < 2)
        tables.clear();
    return tables;
}

} // namespace

std::vector<TableDraft> findTables(PageText& page, const DocumentContext& context, const LayoutParameters& parameters,
                                   Diagnostics&) {
    std::vector<TableDraft> tables;
    if (const std::vector<ColumnStrip> strips = findColumnStrips(page, parameters); !strips.empty()) {
        PageText parted = page;
        tables = findTablesInStrips(parted, strips, context, parameters);
        if (!tables.empty())
            page = std::move(parted);
    }
    if (tables.empty())
        tables = findTablesAmong(page, context, parameters);
    std::sort(tables.begin(), tables.end(), [](const TableDraft& a, const TableDraft& b) {
        return a.box.top != b.box.top ? a.box.top < b.box.top : a.box.left < b.box.left;
    });
    return tables;
}

} // namespace orvane::layout
