#include "layout/page/FreeDrawings.h"

#include "layout/graphics/AlikeShapes.h"
#include "layout/graphics/RuleShapes.h"
#include "layout/page/FloatPlace.h"
#include "layout/support/BoxGroups.h"
#include "layout/text/RuleBox.h"

#include <algorithm>
#include <iterator>
#include <numeric>
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

/// Those that lie close to each other as one figure.
std::vector<Figure> figuresOf(std::vector<Piece> pieces, double gap) {
    BoxGroups groups(gap);
    for (const Piece& piece : pieces)
        groups.add(piece.box);
    std::vector<Figure> figures;
    for (const std::vector<std::size_t>& members : groups.groups())
        figures.push_back(figureOf(pieces, members));
    return figures;
}

Figure wholeOf(std::vector<Piece> pieces) {
    std::vector<std::size_t> all(pieces.size());
    std::iota(all.begin(), all.end(), std::size_t{0});
    return figureOf(pieces, all);
}

std::size_t joinShapes(Figure& figure, const GraphicsParameters::Shapes& parameters) {
    figure.drawing->shapes = joinAlike(std::move(figure.drawing->shapes), parameters);
    return figure.drawing->shapes.size();
}

/// Too many pieces in figures of no more than `most` shapes: what looks alike is one shape, all of it one drawing if
/// need be, and at last one picture.
std::vector<Figure> fewerFigures(const std::vector<Piece>& pieces, std::size_t most,
                                 const LayoutParameters& parameters) {
    Figure whole = wholeOf(pieces);
    if (pieces.size() <= parameters.freeDrawings.mostJoined) {
        std::vector<Figure> figures = figuresOf(pieces, parameters.freeDrawings.gap);
        std::size_t shapes = 0;
        for (Figure& figure : figures)
            shapes += joinShapes(figure, parameters.shapes);
        if (shapes <= most)
            return figures;
        Figure joined = whole;
        if (joinShapes(joined, parameters.shapes) <= most)
            return {std::move(joined)};
    }
    whole.drawing->isPictureAtBest = true;
    return {std::move(whole)};
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

std::size_t countFreeShapes(const PageLayout& layout, const PageParameters::FreeDrawings& parameters) {
    return freePieces(layout, parameters.speck).size();
}

std::size_t mostFreeShapes(std::vector<std::size_t> ofPages, const PageParameters::FreeDrawings& parameters) {
    std::sort(ofPages.begin(), ofPages.end());
    std::size_t left = parameters.shapesOfDocument;
    for (std::size_t i = 0; i < ofPages.size(); ++i) {
        const std::size_t share = left / (ofPages.size() - i);
        if (ofPages[i] > share)
            return std::max(parameters.leastShapesOfPage, share);
        left -= ofPages[i];
    }
    return parameters.shapesOfDocument;
}

void drawFreeRules(PageLayout& layout, std::size_t most, const LayoutParameters& parameters) {
    const PageParameters::FreeDrawings& limits = parameters.freeDrawings;
    std::vector<Piece> pieces = freePieces(layout, limits.speck);
    layout.freeRules.clear();
    layout.freeGrounds.clear();
    if (pieces.empty())
        return;
    sinkCovered(layout, pieces, limits.coveredShare);
    for (Figure& figure :
         pieces.size() <= most ? figuresOf(std::move(pieces), limits.gap) : fewerFigures(pieces, most, parameters))
        hangOnNearestParagraph(layout, std::move(figure), limits);
}

} // namespace orvane::layout
