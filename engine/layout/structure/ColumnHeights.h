#pragma once

#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// The text of a column, by where it ends.
struct ColumnEnd {
    std::size_t page = 0; ///< index into DocumentDraft::pages
    int band = 0;
    double bottom = 0;
};

/// True when text stands below the columns and the one that ends at `end` is not as high as the next, which begins with
/// block `next`: word processors would fill them to one height. Units: points; `room` is what heights may differ by.
bool areColumnsUneven(const DocumentDraft& draft, const ColumnEnd& end, std::size_t next, double room);

} // namespace orvane::layout
