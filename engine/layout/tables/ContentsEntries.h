#pragma once

#include "layout/tables/AlignedAdmission.h"
#include "layout/tables/ColumnPieces.h"

#include <span>

namespace orvane::layout {

/// Whether the rows are those of a table of contents: leaders that lead to no amounts, or titles before numbers of
/// pages that count up.
bool areContents(const AlignedRows& aligned, std::span<const ColumnPieces> columns, AlignedEvidence evidence,
                 const std::vector<Line>& lines, const TableParameters::Tables& parameters);

} // namespace orvane::layout
