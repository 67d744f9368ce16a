#include "layout/graphics/ScanIllustrations.h"

#include "layout/support/BoxGroups.h"
#include "layout/support/CoverageGrid.h"

#include <algorithm>
#include <utility>

namespace orvane::layout {
namespace {

/// Ink that no word accounts for, in groups.
std::vector<Rect> unreadInk(const PageText& page, const std::vector<Rect>& ink,
                            const GraphicsParameters::Illustrations& limits) {
    CoverageGrid read(page.width, page.height, limits.inkSquare);
    for (const Line& line : page.lines)
        read.cover(line.box.inflated(limits.wordMargin * line.fontSize));
    std::vector<Rect> unread;
    BoxGroups groups(limits.inkGap);
    for (const Rect& square : ink)
        if (!read.isCovered({square.centerX(), square.centerY()})) {
            unread.push_back(square);
            groups.add(square);
        }
    std::vector<Rect> boxes;
    for (const std::vector<std::size_t>& group : groups.groups()) {
        Rect box;
        for (const std::size_t square : group)
            box = box.united(unread[square]);
        boxes.push_back(box.intersected({0, 0, page.width, page.height}));
    }
    return boxes;
}

/// Shadows of a scanner's lid run along the page's edges.
bool isAtOppositeEdges(const Rect& box, const PageText& page, double edge) {
    return (box.left <= edge && box.right >= page.width - edge) ||
           (box.top <= edge && box.bottom >= page.height - edge);
}

double wordArea(const Rect& box, const PageText& page) {
    double area = 0;
    for (const Line& line : page.lines)
        area += line.box.intersected(box).area();
    return area;
}

bool isIllustration(const Rect& box, const PageText& page, const GraphicsParameters::Illustrations& limits) {
    return std::min(box.width(), box.height()) >= limits.smallest &&
           box.area() <= limits.largest * page.width * page.height && !isAtOppositeEdges(box, page, limits.edge) &&
           wordArea(box, page) <= limits.wordShare * box.area();
}

} // namespace

void addIllustrations(PageText& page, const std::vector<Rect>& ink,
                      const GraphicsParameters::Illustrations& parameters) {
    for (const Rect& box : unreadInk(page, ink, parameters)) {
        if (!isIllustration(box, page, parameters))
            continue;
        Figure figure;
        figure.box = box;
        figure.needsPainting = true;
        page.figures.push_back(std::move(figure));
    }
}

} // namespace orvane::layout
