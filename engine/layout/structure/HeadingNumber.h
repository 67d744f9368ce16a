#pragma once

#include "layout/structure/DocumentDraft.h"

#include <optional>
#include <vector>

namespace orvane::layout {

/// The number that a heading starts with: "2.1.3" of "2.1.3 Aims", 4 of "Chapter 4".
struct HeadingNumber {
    std::vector<int> parts; ///< one for each level
};

/// Reads the number of a line that may be a heading.
std::optional<HeadingNumber> readHeadingNumber(const Line& line);

} // namespace orvane::layout
