#include "layout/PathPieces.h"

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

/// The upright rectangle that four lines go around, each turning a corner.
std::optional<Rect> rectangleOf(const Subpath& subpath, double straightness) {
    if (subpath.hasCurves || subpath.lines.size() != 4)
        return std::nullopt;
    const bool startsLevel = isLevel(subpath.lines[0], straightness) && !isPlumb(subpath.lines[0], straightness);
    for (std::size_t i = 0; i < 4; ++i) {
        const bool mustBeLevel = startsLevel == (i % 2 == 0);
        if (mustBeLevel ? !isLevel(subpath.lines[i], straightness) : !isPlumb(subpath.lines[i], straightness))
            return std::nullopt;
    }
    return subpath.box;
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
        m_curvePoints.insert(m_curvePoints.end(), {m_current, segment.control1, segment.control2, segment.to});
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
        m_curvePoints.clear();
    }

private:
    void keep() {
        std::vector<PathLine> extent = m_subpath.lines;
        for (const Point p : m_curvePoints)
            extent.push_back({p, p});
        m_subpath.box = boxOf(extent);
        m_subpath.rectangle = rectangleOf(m_subpath, m_straightness);
        m_subpaths.push_back(std::move(m_subpath));
    }

    bool m_isFilled;
    double m_straightness;
    std::vector<Subpath>& m_subpaths;
    Subpath m_subpath;
    std::vector<Point> m_curvePoints;
    Point m_start;
    Point m_current;
};

} // namespace

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
