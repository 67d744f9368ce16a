#pragma once

#include "document/Document.h"

#include <vector>

namespace orvane::write {

enum class VerticalMerge { None, Starts, Continues };

/// One cell of a row as the file has it: a cell that reaches into later rows stands in each of them.
struct PlacedCell {
    int column = 0;
    int span = 1;
    VerticalMerge merge = VerticalMerge::None;
    /// The cell it is; null for one that only fills a gap.
    const document::TableCell* cell = nullptr;
    /// Cells that found no column of their own: what is in them follows.
    std::vector<const document::TableCell*> appended{};
};

struct PlacedRow {
    int columnsBefore = 0; ///< grid columns that the row leaves free at its sides
    int columnsAfter = 0;
    std::vector<PlacedCell> cells; ///< at least one
};

/// Puts the cells of a table into its grid, row by row: fills gaps, repeats cells that come from above, and cuts spans
/// that run into others or over the edge.
class TableGrid {
public:
    explicit TableGrid(const document::Table& table);

    const std::vector<Twips>& columnWidths() const { return m_columnWidths; }
    Twips width(int column, int span) const;
    bool wasCut() const { return m_wasCut; }

    /// Requires: called once for each row, in order.
    PlacedRow place(const document::TableRow& row);

private:
    struct Cover {
        const document::TableCell* cell = nullptr;
        int span = 0;
        int rowsLeft = 0;
    };

    int columnCount() const { return static_cast<int>(m_columnWidths.size()); }
    int freeColumnsFrom(int column, int limit) const;
    PlacedCell placeCell(const document::TableCell& cell, int column);
    PlacedCell continueCell(int column);

    std::vector<Twips> m_columnWidths;
    std::vector<Cover> m_covers; ///< by column: what reaches into the next row
    bool m_wasCut = false;
};

/// The row with cells where it leaves columns free at its sides: readers of older formats differ in where a row starts
/// that begins further in than others.
PlacedRow withSideCells(PlacedRow row, const TableGrid& grid);

} // namespace orvane::write
