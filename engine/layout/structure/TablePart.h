#pragma once

#include "layout/structure/DocumentDraft.h"

#include <string>
#include <vector>

/// What joining the parts of a table asks of one part.
namespace orvane::layout {

inline int rowCount(const DraftTable& table) {
    return static_cast<int>(table.table.rowEdges.size()) - 1;
}

/// The texts of the cell, without any blanks: hyphens and line ends aside, parts of one table repeat their head letter
/// by letter.
std::string plainTextOf(const DraftCell& cell);

/// How many of the first rows stand in both tables alike. Rows without text do not count at the end.
int countSharedRows(const DraftTable& table, const DraftTable& next, int most);

/// Whether the first row of `next` is one cell over all columns, and looks as such a row below the first of `table`
/// does: it heads the rows that follow, and no table.
bool startsWithSection(const DraftTable& table, const DraftTable& next);

/// Takes the first `count` rows out. Requires: no cell reaches beyond them.
void dropFirstRows(DraftTable& table, int count);

/// Gives the table these column edges; each of its own must be among them, within `tolerance` and moved by `shift`.
void setColumnEdges(DraftTable& table, const std::vector<double>& edges, double shift, double tolerance);

/// The cells that touch the table's last row, or its first, from left to right.
std::vector<DraftCell*> lastRowOf(DraftTable& table);
std::vector<DraftCell*> firstRowOf(DraftTable& table);

} // namespace orvane::layout
