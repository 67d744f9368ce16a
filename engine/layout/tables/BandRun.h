#pragma once

#include "layout/tables/AlignedGrid.h"
#include "layout/tables/RuleBands.h"

namespace orvane::layout {

/// Bands [first, end) of a stack that are one table, with what their rows have in common.
struct BandRun {
    std::size_t first = 0;
    std::size_t end = 0;
    AlignedRows aligned;
};

/// Whether no row of the band has texts side by side.
bool isHeadingOnly(const RuleBand& band);

/// Takes bands from `first` on for as long as the columns of what was taken remain.
BandRun growRun(const std::vector<RuleBand>& bands, std::size_t first, const TableParameters::Tables& parameters);

/// Finds the columns and rows of a run, and takes texts alone in their rows off its open end, unless they go on from
/// the row above.
void alignRun(const std::vector<RuleBand>& bands, const std::vector<Line>& lines, const std::vector<BorderLine>& rules,
              const LayoutParameters& parameters, BandRun& run);

} // namespace orvane::layout
