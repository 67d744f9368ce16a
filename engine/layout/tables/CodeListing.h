#pragma once

#include "layout/tables/AlignedGrid.h"
#include "layout/tables/ColumnPieces.h"
#include "layout/text/PageText.h"

#include <span>

namespace orvane::layout {

/// Whether the lines of the rows are counted as those of a program are: "1:", "2:", "3:", or with numbers before such
/// as hold a program's signs.
bool areLinesCounted(const AlignedRows& aligned, const std::vector<Line>& lines,
                     const TableParameters::Tables& parameters);

/// Whether the rows of two columns, beside which others hold little, begin in a typewriter's font, those of more hold a
/// program's signs or comments besides, begin with its marks or end in commas, or numbers in another font count the
/// lines of a column in such a font.
bool areTyped(const PageText& page, const AlignedRows& aligned, std::span<const ColumnPieces> columns,
              const TableParameters::Tables& parameters);

} // namespace orvane::layout
