#pragma once

#include "layout/tables/AlignedGrid.h"
#include "layout/tables/TableParameters.h"
#include "layout/tables/TableVerdict.h"
#include "layout/text/PageText.h"

namespace orvane::layout {

/// What speaks for a table beside its words' columns.
enum class AlignedEvidence {
    Rules,     ///< rules above, below and between its rows
    Frame,     ///< rules above and below, none between its rows
    Alignment, ///< nothing
};

/// Judges rows of words that stand in columns.
TableVerdict judgeAlignedTable(const PageText& page, const AlignedRows& aligned, AlignedEvidence evidence,
                               const TableParameters::Tables& parameters);

} // namespace orvane::layout
