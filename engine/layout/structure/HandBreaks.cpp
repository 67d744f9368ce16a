#include "layout/structure/HandBreaks.h"

#include "layout/paragraphs/ListMarker.h"
#include "layout/support/Tally.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>
#include <optional>
#include <utility>

namespace orvane::layout {
namespace {

const Look& firstLook(const DraftParagraph& paragraph) {
    return paragraph.firstLine().words.front().spans.front().look;
}

class HandBreakJoiner {
public:
    HandBreakJoiner(DocumentDraft& draft, const DocumentContext& context, const LayoutParameters& parameters)
        : m_draft(draft)
        , m_context(context)
        , m_limits(parameters.handBreaks)
        , m_markers(parameters.markers) {
        std::map<std::string, double> families;
        for (const DraftBlock& block : draft.blocks)
            if (const DraftParagraph* paragraph = block.paragraph())
                families[familyOf(*paragraph)] += block.box.height();
        const auto usual = std::max_element(families.begin(), families.end(),
                                            [](const auto& a, const auto& b) { return a.second < b.second; });
        m_bodyFamily = usual == families.end() ? std::string() : usual->first;
    }

    void run() {
        if (!isSpaced())
            return;
        std::vector<DraftBlock> joined;
        for (DraftBlock& block : m_draft.blocks) {
            const auto space = joined.empty() ? std::nullopt : spaceBetween(joined.back(), block);
            if (space && *space <= m_limits.closeSpace && *space >= -m_limits.closeSpace)
                appendByHand(joined.back(), block);
            else
                joined.push_back(std::move(block));
        }
        m_draft.blocks = std::move(joined);
    }

private:
    std::string familyOf(const DraftParagraph& paragraph) const {
        const auto& fonts = m_draft.pages[paragraph.pieces.front().page].fonts;
        const std::uint32_t font = firstLook(paragraph).font;
        return font < fonts.size() ? fonts[font].family : std::string();
    }

    /// Plain text of the document's own look.
    bool isPlain(const DraftParagraph& paragraph) const {
        return (paragraph.role == ParagraphRole::Body || paragraph.role == ParagraphRole::ListItem) &&
               paragraph.firstLine().angle == 0 && !paragraph.firstLine().isVertical &&
               std::abs(firstLook(paragraph).size - m_context.bodyFontSize) <= m_limits.sameSize &&
               familyOf(paragraph) == m_bodyFamily;
    }

    bool hasMarker(const DraftParagraph& paragraph) const {
        return findListMarker(paragraph.firstLine(), m_markers).has_value();
    }

    /// The text of both starts at one edge, below a label behind it.
    bool sharesEdges(const DraftParagraph& before, const DraftParagraph& after) const {
        const ParagraphDraft& a = before.pieces.back().text;
        const ParagraphDraft& b = after.pieces.front().text;
        const bool isFlush = std::abs(a.firstLine) <= m_limits.sameEdge;
        return std::abs(b.firstLine) <= m_limits.sameEdge &&
               std::abs(a.indentStart - b.indentStart) <= m_limits.sameEdge &&
               (hasMarker(before) ? a.lines.size() > 1 && !isFlush : isFlush);
    }

    /// What two paragraphs that one could take for one are apart beyond their leading, as a share of it; nullopt for
    /// others.
    std::optional<double> spaceBetween(const DraftBlock& before, const DraftBlock& after) const {
        const DraftParagraph* a = before.paragraph();
        const DraftParagraph* b = after.paragraph();
        if (!a || !b || after.startsPage || after.startsColumn || !isPlain(*a) || !isPlain(*b) || hasMarker(*b) ||
            !b->bookmarks.empty())
            return std::nullopt;
        const DraftPiece& last = a->pieces.back();
        const DraftPiece& next = b->pieces.front();
        const bool isBelow = last.page == next.page && last.band == next.band && last.columnIndex == next.columnIndex;
        const bool isAlike = last.text.alignment == next.text.alignment &&
                             firstLook(*a).isBold == firstLook(*b).isBold &&
                             a->firstLine().isRightToLeft == b->firstLine().isRightToLeft && sharesEdges(*a, *b);
        if (!isBelow || !isAlike || last.text.shading != next.text.shading || last.text.borders != next.text.borders)
            return std::nullopt;
        const double leading = last.text.lines.size() > 1   ? last.text.leading
                               : next.text.lines.size() > 1 ? next.text.leading
                                                            : m_context.bodyLeading;
        return (next.text.lines.front().baseline - last.text.lines.back().baseline) / leading - 1;
    }

    /// Whether nearly all paragraphs are set apart by one space, that of a style.
    bool isSpaced() const {
        std::vector<double> spaces;
        int close = 0;
        for (std::size_t i = 1; i < m_draft.blocks.size(); ++i)
            if (const auto space = spaceBetween(m_draft.blocks[i - 1], m_draft.blocks[i])) {
                close += *space <= m_limits.closeSpace;
                if (*space > m_limits.closeSpace && *space < m_limits.greatestSpace)
                    spaces.push_back(*space);
            }
        if (spaces.size() < m_limits.fewestSpaced ||
            static_cast<double>(close) > m_limits.closeShare * static_cast<double>(spaces.size()))
            return false;
        const DenseRange usual = densestRange(spaces, m_limits.sameSpace);
        return usual.mean >= m_limits.leastSpace && usual.mean < m_limits.wholeLine &&
               static_cast<double>(usual.count) >= m_limits.usualShare * static_cast<double>(spaces.size());
    }

    DocumentDraft& m_draft;
    const DocumentContext& m_context;
    const StructureParameters::HandBreaks& m_limits;
    const ParagraphParameters::Markers& m_markers;
    std::string m_bodyFamily;
};

} // namespace

void appendByHand(DraftBlock& block, DraftBlock& next) {
    ParagraphDraft& text = block.paragraph()->pieces.back().text;
    std::vector<DraftPiece>& pieces = next.paragraph()->pieces;
    ParagraphDraft& more = pieces.front().text;
    const std::size_t count = text.lines.size();
    text.hardBreaks.push_back(count - 1);
    for (const std::size_t line : more.hardBreaks)
        text.hardBreaks.push_back(count + line);
    text.lines.insert(text.lines.end(), std::make_move_iterator(more.lines.begin()),
                      std::make_move_iterator(more.lines.end()));
    text.box = text.box.united(more.box);
    text.endsParagraph = more.endsParagraph;
    block.box = block.box.united(next.box);
    block.paragraph()->pieces.insert(block.paragraph()->pieces.end(), std::make_move_iterator(pieces.begin() + 1),
                                     std::make_move_iterator(pieces.end()));
}

void joinLinesEndedByHand(DocumentDraft& draft, const DocumentContext& context, const LayoutParameters& parameters) {
    HandBreakJoiner(draft, context, parameters).run();
}

} // namespace orvane::layout
