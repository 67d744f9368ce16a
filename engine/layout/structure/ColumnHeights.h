#pragma once

#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// The text of a column, by where it ends.
struct ColumnEnd {
    std::size_t page = 0; ///< index into DocumentDraft::pages
    int band = 0;
    double bottom = 0;
};

/// True when text stands below the columns of which one ends at `end`: word processors would fill them to one height.
bool hasTextBelow(const DocumentDraft& draft, const ColumnEnd& end);

/// By how much the column that ends at `end` is higher or lower than the next, which begins with block `next`, in
/// points.
double unevenness(const DocumentDraft& draft, const ColumnEnd& end, std::size_t next);

} // namespace orvane::layout
