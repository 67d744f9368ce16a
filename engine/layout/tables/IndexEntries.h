#pragma once

#include "layout/tables/ColumnPieces.h"

#include <span>

namespace orvane::layout {

/// Whether the texts are the entries of an index set in columns: each column follows the alphabet, and the next goes on
/// where it ends. Numbers of pages stand behind most of them or in columns of their own; letters may stand over them.
bool areIndexEntries(std::span<const ColumnPieces> columns, const std::vector<Line>& lines,
                     const TableParameters::Tables& parameters);

} // namespace orvane::layout
