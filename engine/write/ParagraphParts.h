#pragma once

#include "document/Document.h"
#include "write/BlockFlow.h"

#include <cstddef>
#include <optional>

namespace orvane::write {

/// How many inlines at the start lead to the page or column that the paragraph's text stands on. What is anchored in
/// the paragraph stands behind them, else it would stay on the page before.
std::size_t leadingBreaks(const document::Paragraph& paragraph);

/// A drop cap is a paragraph of its own to word processors, set before the one that it begins.
struct DropCapParts {
    std::optional<document::Paragraph> breaks; ///< that lead to its column or page, of next to no height
    document::Paragraph capital;               ///< has the drop cap
    document::Paragraph rest;
};

/// How many lines the formats let a drop cap stand over.
inline constexpr int kMostDropCapLines = 10;

/// Requires: the paragraph has a drop cap.
DropCapParts partDropCap(const document::Paragraph& paragraph);

/// A paragraph of next to no height, for BlockSink::thinParagraph().
document::Paragraph thinParagraph(const document::Style& defaultStyle, const ParagraphLoad& load);

/// How the first text among inlines looks; null when there is none.
const document::RunProperties* firstLook(const std::vector<document::Inline>& inlines);

} // namespace orvane::write
