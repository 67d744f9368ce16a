#pragma once

#include "layout/tables/AlignedGrid.h"
#include "layout/text/PageText.h"

namespace orvane::layout {

/// Whether the rows are a few lines of running text whose blanks happen to lie below each other: above and below them
/// it goes on in lines of the same pitch between the same edges, or above them in several and below them is nothing.
/// Below, a paragraph may end or begin.
bool runsThrough(const PageText& page, const AlignedRows& aligned, const TableParameters::Tables& parameters);

} // namespace orvane::layout
