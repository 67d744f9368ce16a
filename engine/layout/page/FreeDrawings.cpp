#include "layout/page/FreeDrawings.h"

#include "layout/graphics/RuleShapes.h"
#include "layout/support/BoxGroups.h"
#include "layout/text/RuleBox.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <optional>
#include <utility>

namespace orvane::layout {
namespace {

/// A rule or a ground as it was painted.
struct Piece {
    Rect box;
    std::uint32_t paintOrder = 0;
    std::vector<document::Shape> shapes;
};

/// What is free, in the order of painting; no specks, such as the caps of a line that is something else.
std::vector<Piece> freePieces(const PageLayout& layout, double speck) {
    std::vector<Piece> pieces;
    for (const Ground& ground : layout.freeGrounds)
        if (!ground.isUsed)
            pieces.push_back({ground.box, ground.paintOrder, {shapeOf(ground)}});
    for (const Rule& rule : layout.freeRules)
        if (!rule.isUsed)
            pieces.push_back({boxOf(rule), rule.paintOrder, shapesOf(rule)});
    std::erase_if(pieces, [&](const Piece& piece) { return std::max(piece.box.width(), piece.box.height()) < speck; });
    std::stable_sort(pieces.begin(), pieces.end(),
                     [](const Piece& a, const Piece& b) { return a.paintOrder < b.paintOrder; });
    return pieces;
}

Figure figureOf(std::vector<Piece>& pieces, const std::vector<std::size_t>& members) {
    Figure figure;
    figure.paintOrder = pieces[members.front()].paintOrder;
    figure.isBackground = true;
    std::vector<document::Shape> shapes;
    for (const std::size_t member : members) {
        Piece& piece = pieces[member];
        figure.box = figure.box.united(piece.box);
        std::move(piece.shapes.begin(), piece.shapes.end(), std::back_inserter(shapes));
    }
    figure.drawing = drawingOf(std::move(shapes), figure.box);
    return figure;
}

double gapBetween(double from, double to, double otherFrom, double otherTo) {
    return std::max({0.0, otherFrom - to, from - otherTo});
}

/// The paragraph of the flow nearest to the box: what floats hangs on the paragraph behind it.
std::optional<std::size_t> nearestParagraph(const PageLayout& layout, const Rect& box) {
    std::optional<std::size_t> nearest;
    double distance = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < layout.blocks.size(); ++i) {
        const auto* paragraph = std::get_if<ParagraphDraft>(&layout.blocks[i].value);
        if (!paragraph || paragraph->isFloating)
            continue;
        const Rect& text = paragraph->box;
        const double here = gapBetween(text.top, text.bottom, box.top, box.bottom) +
                            gapBetween(text.left, text.right, box.left, box.right);
        if (here < distance) {
            distance = here;
            nearest = i;
        }
    }
    return nearest;
}

void insert(PageLayout& layout, Figure figure) {
    const std::size_t place = nearestParagraph(layout, figure.box).value_or(0);
    PageBlock block;
    if (place < layout.blocks.size()) {
        block.band = layout.blocks[place].band;
        block.column = layout.blocks[place].column;
    }
    block.value = FigureDraft{std::move(figure), false};
    layout.blocks.insert(layout.blocks.begin() + static_cast<std::ptrdiff_t>(place), std::move(block));
}

/// Pictures that a free ground was painted over, such as the shadow of a box, go behind the text with it.
void sinkCovered(PageLayout& layout, const std::vector<Piece>& pieces, double share) {
    for (PageBlock& block : layout.blocks) {
        auto* draft = std::get_if<FigureDraft>(&block.value);
        if (!draft || draft->figure.isBackground || draft->figure.picture.value == 0)
            continue;
        Figure& figure = draft->figure;
        const bool isCovered = std::any_of(pieces.begin(), pieces.end(), [&](const Piece& piece) {
            return piece.paintOrder > figure.paintOrder &&
                   piece.box.intersected(figure.box).area() >= share * figure.box.area();
        });
        if (isCovered) {
            figure.isBackground = true;
            draft->isInline = false;
        }
    }
}

} // namespace

std::size_t mostFreeShapes(std::size_t pages, const PageParameters::FreeDrawings& parameters) {
    return std::max(parameters.leastShapesOfPage, parameters.shapesOfDocument / std::max<std::size_t>(1, pages));
}

void drawFreeRules(PageLayout& layout, const PageParameters::FreeDrawings& parameters, std::size_t most,
                   Diagnostics& diagnostics) {
    std::vector<Piece> pieces = freePieces(layout, parameters.speck);
    layout.freeRules.clear();
    layout.freeGrounds.clear();
    if (pieces.size() > most) {
        diagnostics.add(DiagnosticKind::PictureSimplified, layout.number,
                        "its many lines and grounds beside the text are left out");
        return;
    }
    sinkCovered(layout, pieces, parameters.coveredShare);
    BoxGroups groups(parameters.gap);
    for (const Piece& piece : pieces)
        groups.add(piece.box);
    for (const std::vector<std::size_t>& members : groups.groups())
        insert(layout, figureOf(pieces, members));
}

} // namespace orvane::layout
