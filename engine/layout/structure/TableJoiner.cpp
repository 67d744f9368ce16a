#include "layout/structure/TableJoiner.h"

#include "layout/structure/RowContinuation.h"
#include "layout/structure/TablePart.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>

namespace orvane::layout {
namespace {

/// The columns of two parts seen as those of one table.
struct SharedColumns {
    std::vector<double> edges; ///< as the first part has them
    double shift = 0;          ///< what the second part must be moved by: facing pages have different margins
};

bool isAmong(double edge, const std::vector<double>& edges, double tolerance) {
    return std::any_of(edges.begin(), edges.end(), [&](double other) { return std::abs(edge - other) <= tolerance; });
}

/// A part whose rows have merged cells only may show fewer columns than the other one.
std::optional<SharedColumns> shareColumns(const DraftTable& table, const DraftTable& next, double tolerance) {
    const std::vector<double>& edges = table.table.columnEdges;
    SharedColumns shared{edges, edges.front() - next.table.columnEdges.front()};
    std::vector<double> moved;
    for (const double edge : next.table.columnEdges)
        moved.push_back(edge + shared.shift);
    if (std::abs(moved.back() - edges.back()) > tolerance)
        return std::nullopt;
    const auto isWithin = [&](const std::vector<double>& some, const std::vector<double>& others) {
        return std::all_of(some.begin(), some.end(), [&](double edge) { return isAmong(edge, others, tolerance); });
    };
    if (isWithin(moved, edges))
        return shared;
    if (!isWithin(edges, moved))
        return std::nullopt;
    shared.edges = moved;
    return shared;
}

class TableJoiner {
public:
    TableJoiner(DocumentDraft& draft, const DocumentContext& context, const LayoutParameters& parameters)
        : m_draft(draft)
        , m_context(context)
        , m_parameters(parameters) {}

    void join() {
        std::vector<DraftBlock> joined;
        std::size_t lastPage = 0; // on which the last block of `joined` ends, when that is a table
        for (DraftBlock& block : m_draft.blocks) {
            auto* next = std::get_if<DraftTable>(&block.value);
            auto* table = joined.empty() ? nullptr : std::get_if<DraftTable>(&joined.back().value);
            const int rows = table ? rowCount(*table) : 0;
            const bool goesOn = next && table && block.page == lastPage + 1 && append(*table, *next, lastPage);
            if (goesOn)
                table->furtherParts.push_back({block.page, block.box, rows});
            lastPage = block.page;
            if (!goesOn)
                joined.push_back(std::move(block));
        }
        m_draft.blocks = std::move(joined);
    }

private:
    /// Appends `next` to `table` if it goes on with it.
    bool append(DraftTable& table, DraftTable& next, std::size_t page) {
        const TableParameters::Tables& limits = m_parameters.tables;
        const auto columns = shareColumns(table, next, limits.joinedEdge);
        if (!columns || table.table.isRuled != next.table.isRuled)
            return false;
        const int head = countSharedRows(table, next, limits.maximumHeaderRows);
        // A head of its own heads a table of its own; and nothing but a head is a form that each page has.
        if ((head == 0 && hasOwnHead(table, next, page)) || head == rowCount(next))
            return false;
        dropFirstRows(next, head);
        // Rows that look like a head but do not stand on the next page again are none that repeats.
        table.table.headerRows = table.furtherParts.empty() ? head : std::max(table.table.headerRows, head);
        setColumnEdges(table, columns->edges, 0, limits.joinedEdge);
        setColumnEdges(next, columns->edges, columns->shift, limits.joinedEdge);
        const ParagraphContext around = contextOf(page);
        if (goesOnWithRow(table, next, around, m_parameters))
            joinRows(table, next, around, m_parameters);
        else
            joinMergedCells(table, next);
        appendRows(table, next);
        return true;
    }

    ParagraphContext contextOf(std::size_t page) const {
        return {m_context.bodyFontSize, m_context.bodyLeading, m_draft.pages[page].fonts, {}};
    }

    /// Whether the first rows of `next` head it: neither the rest of a row that the page break cut nor the heading of
    /// some rows of the table looks like that for more than the one row.
    bool hasOwnHead(DraftTable& table, DraftTable& next, std::size_t page) const {
        if (next.table.headerRows == 0 || startsWithSection(table, next))
            return false;
        const bool haveSameColumns = table.table.columnEdges.size() == next.table.columnEdges.size();
        return !haveSameColumns || !goesOnWithRow(table, next, contextOf(page), m_parameters);
    }

    static void appendRows(DraftTable& table, DraftTable& next) {
        const int before = rowCount(table);
        for (DraftCell& cell : next.cells) {
            cell.cell.row += before;
            table.cells.push_back(std::move(cell));
        }
        std::vector<double>& edges = table.table.rowEdges;
        for (std::size_t i = 1; i < next.table.rowEdges.size(); ++i)
            edges.push_back(edges.back() + next.table.rowEdges[i] - next.table.rowEdges[i - 1]);
    }

    DocumentDraft& m_draft;
    const DocumentContext& m_context;
    const LayoutParameters& m_parameters;
};

} // namespace

void joinTables(DocumentDraft& draft, const DocumentContext& context, const LayoutParameters& parameters) {
    TableJoiner(draft, context, parameters).join();
}

} // namespace orvane::layout
