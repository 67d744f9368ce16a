#pragma once

#include "document/Document.h"
#include "write/BlockFlow.h"

#include <cstddef>

namespace orvane::write {

/// How many inlines at the start lead to the page or column that the paragraph's text stands on. What is anchored in
/// the paragraph stands behind them, else it would stay on the page before.
std::size_t leadingBreaks(const document::Paragraph& paragraph);

/// A paragraph of next to no height, for BlockSink::thinParagraph().
document::Paragraph thinParagraph(const document::Style& defaultStyle, const ParagraphLoad& load);

/// How the first text among inlines looks; null when there is none.
const document::RunProperties* firstLook(const std::vector<document::Inline>& inlines);

} // namespace orvane::write
