#include "layout/graphics/PathPieces.h"

#include <algorithm>
#include <cmath>

namespace orvane::layout {
namespace {

bool isLevel(const PathLine& line, double straightness) {
    return std::abs(line.from.y - line.to.y) <= straightness;
}

bool isPlumb(const PathLine& line, double straightness) {
    return std::abs(line.from.x - line.to.x) <= straightness;
}

Rect boxOf(const std::vector<PathLine>& lines) {
    Rect box{lines.front().from.x, lines.front().from.y, lines.front().from.x, lines.front().from.y};
    for (const PathLine& line : lines)
        for (const Point p : {line.from, line.to})
            box = {std::min(box.left, p.x), std::min(box.top, p.y), std::max(box.right, p.x),
                   std::max(box.bottom, p.y)};
    return box;
}

/// Level and plumb lines in turn, beginning with a level one or not.
bool turnsCorners(const std::vector<PathLine>& lines, bool beginsLevel, double straightness) {
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const bool mustBeLevel = beginsLevel == (i % 2 == 0);
        if (mustBeLevel ? !isLevel(lines[i], straightness) : !isPlumb(lines[i], straightness))
            return false;
    }
    return true;
}

/// The upright rectangle that four lines go around.
std::optional<Rect> rectangleOf(const Subpath& subpath, double straightness) {
    // The short sides of a thin one count as level and plumb at once, so both beginnings are tried.
    const bool isRectangle = subpath.lines.size() == 4 && (turnsCorners(subpath.lines, true, straightness) ||
                                                           turnsCorners(subpath.lines, false, straightness));
    return isRectangle ? std::optional(subpath.box) : std::nullopt;
}

/// The upright rectangle whose corners the curves round; at least half of its outline is straight.
std::optional<Rect> roundedRectangleOf(const Subpath& subpath, const std::vector<Rect>& curves, double straightness) {
    const Rect& box = subpath.box;
    double straight = 0;
    for (const PathLine& line : subpath.lines) {
        if (!isLevel(line, straightness) && !isPlumb(line, straightness))
            return std::nullopt;
        straight += std::abs(line.from.x - line.to.x) + std::abs(line.from.y - line.to.y);
    }
    const bool areAllCorners = std::all_of(curves.begin(), curves.end(), [&](const Rect& curve) {
        const bool isAtSide = curve.left <= box.left + straightness || curve.right >= box.right - straightness;
        const bool isAtEnd = curve.top <= box.top + straightness || curve.bottom >= box.bottom - straightness;
        return isAtSide && isAtEnd;
    });
    const bool isClosed = subpath.isClosed || subpath.lines.size() >= 4;
    if (!areAllCorners || !isClosed || straight < box.width() + box.height())
        return std::nullopt;
    return box;
}

/// Collects the segments of one subpath.
class SubpathCollector {
public:
    SubpathCollector(bool isFilled, double straightness, std::vector<Subpath>& subpaths)
        : m_isFilled(isFilled)
        , m_straightness(straightness)
        , m_subpaths(subpaths) {}

    void moveTo(Point p) {
        finish();
        m_start = m_current = p;
    }
    void lineTo(Point p) {
        if (p != m_current)
            m_subpath.lines.push_back({m_current, p});
        m_current = p;
    }
    void curveTo(const pdf::PathSegment& segment) {
        m_subpath.hasCurves = true;
        const std::vector<PathLine> polygon{{m_current, segment.control1}, {segment.control2, segment.to}};
        m_curves.push_back(boxOf(polygon));
        m_current = segment.to;
    }
    void close() {
        m_subpath.isClosed = true;
        lineTo(m_start);
    }
    void finish() {
        if (m_isFilled && !m_subpath.isClosed)
            lineTo(m_start); // filling closes
        if (!m_subpath.lines.empty() || m_subpath.hasCurves)
            keep();
        m_subpath = {};
        m_curves.clear();
    }

private:
    void keep() {
        std::vector<PathLine> extent = m_subpath.lines;
        for (const Rect& curve : m_curves)
            extent.push_back({{curve.left, curve.top}, {curve.right, curve.bottom}});
        m_subpath.box = boxOf(extent);
        m_subpath.rectangle = m_curves.empty() ? rectangleOf(m_subpath, m_straightness)
                                               : roundedRectangleOf(m_subpath, m_curves, m_straightness);
        m_subpaths.push_back(std::move(m_subpath));
    }

    bool m_isFilled;
    double m_straightness;
    std::vector<Subpath>& m_subpaths;
    Subpath m_subpath;
    std::vector<Rect> m_curves; ///< boxes of their control points
    Point m_start;
    Point m_current;
};

} // namespace

double areaWithin(const std::vector<PathLine>& lines) {
    double twice = 0;
    for (const PathLine& line : lines)
        twice += line.from.x * line.to.y - line.to.x * line.from.y;
    return std::abs(twice) / 2;
}

std::vector<Subpath> takeApart(const pdf::Path& path, double straightness) {
    std::vector<Subpath> subpaths;
    SubpathCollector collector(path.fill.has_value(), straightness, subpaths);
    for (const pdf::PathSegment& segment : path.segments) {
        switch (segment.verb) {
        case pdf::PathVerb::Move:
            collector.moveTo(segment.to);
            break;
        case pdf::PathVerb::Line:
            collector.lineTo(segment.to);
            break;
        case pdf::PathVerb::Curve:
            collector.curveTo(segment);
            break;
        case pdf::PathVerb::Close:
            collector.close();
            break;
        }
    }
    collector.finish();
    return subpaths;
}

} // namespace orvane::layout
