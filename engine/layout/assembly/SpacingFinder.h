#pragma once

#include "layout/assembly/StyleMaker.h"

#include <vector>

namespace orvane::layout {

/// Reads the space between blocks from the pages. What repeats between paragraphs of two styles becomes the styles'
/// space before and after; what differs from that is set on the paragraph. Between two paragraphs the greater of both
/// holds. Requires: line spacing is set, and every paragraph has one of `styles`.
void findSpacing(std::vector<BlockFlow>& flows, std::vector<document::Style>& styles, const AssemblyContext& context);

} // namespace orvane::layout
