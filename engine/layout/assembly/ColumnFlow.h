#pragma once

#include "layout/assembly/AssembledBlock.h"

#include <vector>

namespace orvane::layout {

/// A column of text with something below all of its band.
struct ColumnFoot {
    AssembledBlock* last = nullptr;
    bool isEnd = true; ///< no text flows from it into another column
};

/// The columns, from left to right, where `body[next]` is the first block below columns of text; else nothing.
std::vector<ColumnFoot> columnsAbove(std::vector<AssembledBlock>& body, std::size_t next);

} // namespace orvane::layout
