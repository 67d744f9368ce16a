#include "layout/graphics/FigureFinder.h"

#include "layout/graphics/ChartLabels.h"
#include "layout/graphics/DrawingFinder.h"
#include "layout/graphics/DrawingLabels.h"
#include "layout/graphics/ShapeMaker.h"
#include "layout/support/BoxGroups.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

namespace orvane::layout {
namespace {

using pdf::Visibility;

/// The nearest alternate text of the marks around an item.
std::string alternateTextOf(const pdf::PageContent& page, std::int32_t mark) {
    for (std::size_t steps = 0; mark >= 0 && steps <= page.marks.size(); ++steps) {
        if (static_cast<std::size_t>(mark) >= page.marks.size())
            break;
        const pdf::Mark& at = page.marks[static_cast<std::size_t>(mark)];
        if (!at.alternateText.empty())
            return at.alternateText;
        mark = at.parent;
    }
    return {};
}

/// How much of the picture's own box the clip cuts away on each side.
document::Crop cropOf(const Rect& box, const Rect& seen) {
    return {(seen.left - box.left) / box.width(), (seen.top - box.top) / box.height(),
            (box.right - seen.right) / box.width(), (box.bottom - seen.bottom) / box.height()};
}

bool isUpright(const Matrix& matrix) {
    return matrix.b == 0 && matrix.c == 0 && matrix.a > 0 && matrix.d > 0;
}

Figure figureOf(const pdf::PageContent& page, const pdf::Picture& picture, const GraphicsParameters::Pictures& limits) {
    Figure figure;
    const Rect pageBox{0, 0, page.width, page.height};
    figure.box = picture.box.intersected(picture.clip).intersected(pageBox);
    figure.picture = picture.id;
    figure.matrix = picture.matrix;
    figure.opacity = picture.opacity;
    figure.paintOrder = picture.paintOrder;
    figure.alternateText = alternateTextOf(page, picture.mark);
    if (figure.box.isEmpty())
        return figure;
    const document::Crop crop = cropOf(picture.box, figure.box);
    const bool isCut = std::max({crop.left, crop.top, crop.right, crop.bottom}) > limits.leastCrop;
    if (isCut && isUpright(picture.matrix))
        figure.crop = crop;
    // A turned picture that is cut cannot be told by shares of its sides; nor can one that was not decoded be shown
    // otherwise.
    figure.needsPainting = (isCut && !isUpright(picture.matrix)) || picture.id.value == 0;
    return figure;
}

bool isWorthShowing(const Figure& figure, const pdf::Picture& picture, const GraphicsParameters::Pictures& limits) {
    return picture.visibility == Visibility::Visible && !figure.box.isEmpty() &&
           std::max(figure.box.width(), figure.box.height()) >= limits.smallest &&
           (picture.pixelWidth > 1 || picture.pixelHeight > 1);
}

/// Pictures that touch each other edge to edge, or lie in each other, as one figure that is painted as a whole.
std::vector<Figure> joinTiles(std::vector<Figure> figures, const GraphicsParameters::Pictures& limits) {
    BoxGroups groups(limits.tileGap);
    for (const Figure& figure : figures)
        groups.add(figure.box);
    std::vector<Figure> joined;
    for (const std::vector<std::size_t>& members : groups.groups()) {
        Figure figure = figures[members.front()];
        for (const std::size_t member : members) {
            figure.box = figure.box.united(figures[member].box);
            figure.paintOrder = std::min(figure.paintOrder, figures[member].paintOrder);
            if (figure.alternateText.empty())
                figure.alternateText = figures[member].alternateText;
        }
        if (members.size() > 1) {
            figure.picture = {};
            figure.needsPainting = true;
            figure.matrix = {figure.box.width(), 0, 0, figure.box.height(), figure.box.left, figure.box.top};
            figure.crop = {};
            figure.opacity = 1;
        }
        joined.push_back(std::move(figure));
    }
    return joined;
}

bool coversPage(const Rect& box, const pdf::PageContent& page, const GraphicsParameters::Pictures& limits) {
    return box.area() >= limits.backgroundShare * page.width * page.height;
}

std::vector<Figure> findPictures(const pdf::PageContent& page, const GraphicsParameters::Pictures& limits) {
    std::vector<Figure> backgrounds, pictures;
    for (const pdf::Picture& picture : page.pictures) {
        Figure figure = figureOf(page, picture, limits);
        if (!isWorthShowing(figure, picture, limits))
            continue;
        figure.isBackground = coversPage(figure.box, page, limits);
        (figure.isBackground ? backgrounds : pictures).push_back(std::move(figure));
    }
    pictures = joinTiles(std::move(pictures), limits);
    for (Figure& figure : pictures)
        figure.isBackground = coversPage(figure.box, page, limits);
    pictures.insert(pictures.end(), std::make_move_iterator(backgrounds.begin()),
                    std::make_move_iterator(backgrounds.end()));
    return pictures;
}

bool overlap(const Figure& a, const Figure& b, double share) {
    return !a.isBackground && !b.isBackground &&
           a.box.intersected(b.box).area() > share * std::min(a.box.area(), b.box.area());
}

void takeOver(Figure& host, const Figure& other) {
    host.box = host.box.united(other.box);
    host.paintOrder = std::min(host.paintOrder, other.paintOrder);
    host.paths.insert(host.paths.end(), other.paths.begin(), other.paths.end());
    host.holdsPicture |= other.holdsPicture || other.paths.empty();
    if (host.alternateText.empty())
        host.alternateText = other.alternateText;
}

/// Makes one figure of a drawing and the pictures under it or over it, which is painted as a whole.
void uniteWithDrawings(std::vector<Figure>& pictures, const std::vector<Figure>& drawings, double overlapShare) {
    for (const Figure& drawing : drawings) {
        Figure united = drawing;
        if (!drawing.isBackground) // of which there may be thousands
            std::erase_if(pictures, [&](const Figure& other) {
                if (!overlap(other, drawing, overlapShare))
                    return false;
                takeOver(united, other);
                return true;
            });
        pictures.push_back(std::move(united));
    }
}

/// A chart whose labels lead on to those of the chart beside it is one figure with that, which would be seen twice.
void uniteGrown(std::vector<Figure>& figures, const std::vector<std::size_t>& grown, double overlapShare) {
    std::vector<bool> isGone(figures.size(), false);
    for (const std::size_t host : grown)
        for (std::size_t i = 0; i < figures.size() && !isGone[host]; ++i)
            if (i != host && !isGone[i] && overlap(figures[i], figures[host], overlapShare)) {
                takeOver(figures[host], figures[i]);
                isGone[i] = true;
            }
    std::size_t index = 0;
    std::erase_if(figures, [&](const Figure&) { return isGone[index++]; });
}

} // namespace

void findFigures(const pdf::PageContent& page, const std::vector<bool>& isRuling, PageText& text,
                 const GraphicsParameters& parameters, Diagnostics& diagnostics) {
    text.figures = findPictures(page, parameters.pictures);
    for (Figure& figure : text.figures)
        figure.isBackground |= liesUnderText(figure.box, text.lines, parameters.drawings);
    uniteWithDrawings(text.figures, findDrawings(page, isRuling, text, parameters, diagnostics),
                      parameters.drawings.overlapShare);
    std::stable_sort(text.figures.begin(), text.figures.end(),
                     [](const Figure& a, const Figure& b) { return a.paintOrder < b.paintOrder; });
    uniteGrown(text.figures, takeScales(text, parameters.charts), parameters.drawings.overlapShare);
    labelDrawings(text, page);
    for (Figure& figure : text.figures) {
        std::optional<ShapedDrawing> shaped = shapesOf(figure, page, parameters);
        if (!shaped)
            continue;
        figure.drawing = std::move(shaped->drawing);
        figure.box = shaped->box;
        figure.needsPainting = false;
    }
}

} // namespace orvane::layout
