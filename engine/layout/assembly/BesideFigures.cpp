#include "layout/assembly/BesideFigures.h"

#include "layout/paragraphs/LineMeasures.h"
#include "layout/structure/BlockExtent.h"

#include <algorithm>
#include <map>
#include <optional>

namespace orvane::layout {
namespace {

/// A floating figure that word processors set text over, or under.
bool isPassedOver(const DraftBlock& block) {
    const auto* figure = std::get_if<FigureDraft>(&block.value);
    return figure && isFloating(block) && (figure->isOverlaid || figure->figure.isBackground);
}

/// Whether the column goes over the figure, and most of the text stands at one side of that, though either may reach a
/// little into the other.
bool standsBeside(const DraftPiece& piece, const Rect& figure) {
    const Rect& text = piece.text.box;
    const double middle = figure.centerX();
    const bool isBefore = text.centerX() < figure.left && text.right < middle;
    const bool isBehind = text.centerX() > figure.right && text.left > middle;
    return (isBefore || isBehind) && piece.column.left < middle && middle < piece.column.right &&
           2 * overlap(text.top, text.bottom, figure.top, figure.bottom) >= text.height();
}

/// The indent at the end of a paragraph whose lines were broken before the end of its column; nullopt for others.
/// Halfway between the end of the fullest line and where another word would have fitted, as a font may come out wider
/// or narrower.
std::optional<double> endIndentOf(const DraftPiece& piece, const AssemblyContext& context) {
    const std::vector<Line>& lines = piece.text.lines;
    if (lines.front().isVertical || lines.front().angle != 0)
        return std::nullopt;
    ParagraphContext around;
    around.fonts = context.draft.pages[piece.page].fonts;
    const std::vector<LineMeasure> measures = measureLines(lines, piece.column, around, context.parameters);
    double least = 0, most = measures.back().endGap;
    for (std::size_t i = 0; i + 1 < measures.size(); ++i) {
        const std::vector<std::size_t>& byHand = piece.text.hardBreaks;
        most = std::min(most, measures[i].endGap);
        if (std::find(byHand.begin(), byHand.end(), i) == byHand.end())
            least = std::max(least, measures[i].endGap - measures[i].blank - measures[i + 1].firstUnit);
    }
    if (least <= 0)
        return std::nullopt;
    return least < most ? (least + most) / 2 : most;
}

} // namespace

void endBesideFigures(std::vector<AssembledBlock>& blocks, const AssemblyContext& context) {
    std::multimap<std::size_t, Rect> figures; // by page
    for (const AssembledBlock& block : blocks)
        if (isPassedOver(*block.draft))
            figures.emplace(block.draft->page, block.draft->box);
    for (AssembledBlock& block : blocks) {
        const DraftParagraph* draft = block.draftParagraph();
        if (!draft || draft->pieces.size() > 1 || isFloating(*block.draft))
            continue;
        const DraftPiece& piece = draft->pieces.front();
        document::ParagraphProperties& format = block.paragraph()->properties;
        const auto [from, to] = figures.equal_range(piece.page);
        if (format.alignment != document::Alignment::Start || format.indentEnd != Twips(0) ||
            std::none_of(from, to, [&](const auto& figure) { return standsBeside(piece, figure.second); }))
            continue;
        if (const auto indent = endIndentOf(piece, context))
            format.indentEnd = twipsFromPoints(*indent);
    }
}

} // namespace orvane::layout
