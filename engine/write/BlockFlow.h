#pragma once

#include "document/Document.h"

#include <functional>
#include <vector>

namespace orvane::write {

/// What the blocks of a story begin and end with.
struct BlockFlow {
    std::function<void()> writeLead{};               ///< runs at the start of the first paragraph
    const document::Section* endedSection = nullptr; ///< that ends with the last paragraph
};

/// What a paragraph carries for others.
struct ParagraphLoad {
    std::vector<const document::Block*> floats{};    ///< anchored in it
    const document::Section* endedSection = nullptr; ///< that it is the last of
    std::function<void()> writeLead{};               ///< runs before its own: a note's mark
    std::function<void()> writeTail{};               ///< runs after its own: the end of a field
};

/// Takes the blocks of a story in an order that word processors can hold.
class BlockSink {
public:
    virtual ~BlockSink() = default;

    virtual void paragraph(const document::Paragraph& paragraph, const ParagraphLoad& load) = 0;
    /// A paragraph of next to no height that holds what needs one where the document has none: floating objects before
    /// a table, a section's end, the end of a cell, the gap between two tables.
    virtual void thinParagraph(const ParagraphLoad& load) = 0;
    virtual void table(const document::Table& table) = 0;
    /// A table of contents is a field that starts in its first entry and ends in its last.
    virtual void contentsStart(const document::TableOfContents& contents) = 0;
    virtual void contentsEnd() = 0;
};

/// Gives blocks to the sink and sees to what word processors ask of their order: floating objects are anchored in the
/// paragraph that follows them, two tables do not touch, and the last is a paragraph.
void flowBlocks(const std::vector<document::Block>& blocks, const BlockFlow& flow, BlockSink& sink);

} // namespace orvane::write
