#include "layout/assembly/ContinuousDocument.h"

#include <utility>

namespace orvane::layout {
namespace {

using namespace document;

std::vector<Inline> textOf(std::vector<Inline>&& inlines);

bool isPageOrColumnBreak(const Inline& item) {
    const auto* br = std::get_if<Break>(&item.value);
    return br && br->kind != BreakKind::Line;
}

/// Takes what an inline holds down to its text. Whether something of it stays.
bool keepText(Inline& item) {
    if (std::holds_alternative<Picture>(item.value) || isPageOrColumnBreak(item))
        return false;
    if (auto* formula = std::get_if<Formula>(&item.value))
        formula->picture.reset();
    if (auto* link = std::get_if<Link>(&item.value)) {
        link->inlines = textOf(std::move(link->inlines));
        return !link->inlines.empty();
    }
    if (auto* control = std::get_if<ContentControl>(&item.value))
        control->content = textOf(std::move(control->content));
    return true;
}

std::vector<Inline> textOf(std::vector<Inline>&& inlines) {
    std::vector<Inline> kept;
    for (Inline& item : inlines)
        if (keepText(item))
            kept.push_back(std::move(item));
    return kept;
}

/// An empty line of exact height under a figure is there for it alone.
bool isRoomForFigure(const Paragraph& paragraph) {
    return paragraph.inlines.empty() && paragraph.properties.lineSpacing.rule == LineSpacingRule::Exact;
}

/// Blocks of one story, made into a flow one after the other.
class Flow {
public:
    void add(std::vector<Block>&& blocks) {
        for (Block& block : blocks) {
            const bool stays = std::visit([this](auto& value) { return keepFlow(value); }, block.value);
            if (stays)
                m_blocks.push_back(std::move(block));
        }
    }

    std::vector<Block> take() { return std::move(m_blocks); }

private:
    /// Each takes a block down to what flows, and tells whether it stays.
    bool keepFlow(Paragraph& paragraph) {
        const bool hadContent = !paragraph.inlines.empty() || (m_hasDropped && isRoomForFigure(paragraph));
        m_hasDropped = false;
        paragraph.inlines = textOf(std::move(paragraph.inlines));
        paragraph.properties.pageBreakBefore = false;
        // A paragraph that was there for its picture or break goes with it; an empty line of the author's stays.
        return !hadContent || !paragraph.inlines.empty();
    }

    bool keepFlow(Table& table) {
        for (TableRow& row : table.rows)
            for (TableCell& cell : row.cells) {
                Flow inner;
                inner.add(std::move(cell.blocks));
                cell.blocks = inner.take();
                if (cell.blocks.empty())
                    cell.blocks.emplace_back();
            }
        return true;
    }

    bool keepFlow(Frame& frame) {
        const bool hasDropped = m_hasDropped;
        add(std::move(frame.blocks));
        m_hasDropped = hasDropped;
        return false;
    }
    bool keepFlow(TableOfContents&) { return true; }
    bool keepFlow(Figure&) {
        m_hasDropped = true;
        return false;
    }

    std::vector<Block> m_blocks;
    bool m_hasDropped = false; ///< a figure, and no paragraph stood below it yet
};

/// The page of the first section without what is furniture of pages.
Section flowSection(const std::vector<Section>& sections) {
    Section section;
    if (sections.empty())
        return section;
    const Section& first = sections.front();
    section.pageWidth = first.pageWidth;
    section.pageHeight = first.pageHeight;
    section.marginLeft = first.marginLeft;
    section.marginRight = first.marginRight;
    section.marginTop = first.marginTop;
    section.marginBottom = first.marginBottom;
    section.isRightToLeft = first.isRightToLeft;
    section.hasVerticalText = first.hasVerticalText;
    return section;
}

} // namespace

Document continuousDocument(Document flowing) {
    Section section = flowSection(flowing.sections);
    Flow flow;
    for (Section& source : flowing.sections)
        flow.add(std::move(source.blocks));
    section.blocks = flow.take();
    flowing.sections.clear();
    flowing.sections.push_back(std::move(section));
    flowing.pageColor.reset();
    flowing.hasMirroredMargins = false;
    for (Note& note : flowing.notes) {
        Flow text;
        text.add(std::move(note.blocks));
        note.blocks = text.take();
    }
    return flowing;
}

} // namespace orvane::layout
