#pragma once

#include "layout/tables/ColumnPieces.h"

#include <span>

namespace orvane::layout {

/// Whether at least three columns have no rows in common: time and again lines that follow each other in one of them
/// run past the space between two texts of its neighbour, and the other way round.
bool areListsSideBySide(std::span<const ColumnPieces> columns, const TableParameters::Tables& parameters);

/// Whether texts of one size that came on one row seldom stand level: they are of texts side by side, not of a table.
bool areOutOfStep(std::span<const PieceRow> rows, const TableParameters::Tables& parameters);

} // namespace orvane::layout
