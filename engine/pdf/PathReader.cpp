#include "pdf/PathReader.h"

#include "pdf/PageSpace.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include <GfxState.h>

namespace orvane::pdf {
namespace {

std::vector<PathSegment> segmentsOf(const GfxState& state) {
    const GfxPath& path = *state.getPath();
    std::vector<PathSegment> segments;
    for (int i = 0; i < path.getNumSubpaths(); ++i) {
        const GfxSubpath& subpath = *path.getSubpath(i);
        const auto pointAt = [&](int n) {
            Point p;
            state.transform(subpath.getX(n), subpath.getY(n), &p.x, &p.y);
            return p;
        };
        int count = subpath.getNumPoints();
        if (count < 1)
            continue;
        // The library ends a closed subpath with a line back to its start, which the Close segment says already.
        const bool returns = subpath.isClosed() && count > 2 && !subpath.getCurve(count - 2) &&
                             subpath.getX(count - 1) == subpath.getX(0) && subpath.getY(count - 1) == subpath.getY(0);
        if (returns)
            --count;
        segments.push_back({PathVerb::Move, {}, {}, pointAt(0)});
        for (int n = 1; n < count; ++n) {
            if (subpath.getCurve(n) && n + 2 < count) {
                segments.push_back({PathVerb::Curve, pointAt(n), pointAt(n + 1), pointAt(n + 2)});
                n += 2;
            } else {
                segments.push_back({PathVerb::Line, {}, {}, pointAt(n)});
            }
        }
        if (subpath.isClosed())
            segments.push_back({PathVerb::Close, {}, {}, {}});
    }
    return segments;
}

Rect boxOf(const std::vector<PathSegment>& segments) {
    Rect box;
    bool isFirst = true;
    const auto add = [&](Point p) {
        if (isFirst)
            box = {p.x, p.y, p.x, p.y};
        isFirst = false;
        box = {std::min(box.left, p.x), std::min(box.top, p.y), std::max(box.right, p.x), std::max(box.bottom, p.y)};
    };
    for (const PathSegment& segment : segments) {
        if (segment.verb == PathVerb::Close)
            continue;
        if (segment.verb == PathVerb::Curve) {
            add(segment.control1);
            add(segment.control2);
        }
        add(segment.to);
    }
    return box;
}

/// The subpaths that a pen of this width leaves on the page: an outline that lies off the page takes no part in what
/// is seen on it, whatever the fill rule. Printers' marks are often one path around the page.
std::vector<PathSegment> onPage(const std::vector<PathSegment>& segments, double penWidth, const PageContent& page) {
    constexpr double kHair = 0.01; // lines have no area
    const Rect sheet{0, 0, page.width, page.height};
    const double reach = std::max(penWidth / 2, kHair);
    std::vector<PathSegment> seen;
    for (auto begin = segments.begin(); begin != segments.end();) {
        const auto end = std::find_if(std::next(begin), segments.end(),
                                      [](const PathSegment& segment) { return segment.verb == PathVerb::Move; });
        if (boxOf({begin, end}).inflated(reach).intersects(sheet))
            seen.insert(seen.end(), begin, end);
        begin = end;
    }
    return seen;
}

bool isSameShape(const std::vector<PathSegment>& a, const std::vector<PathSegment>& b) {
    const auto isEqual = [](const PathSegment& s, const PathSegment& t) {
        return s.verb == t.verb && s.to == t.to && s.control1 == t.control1 && s.control2 == t.control2;
    };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), isEqual);
}

/// Level and plumb lines around one box, and nothing else.
bool isUprightRectangle(const std::vector<PathSegment>& segments) {
    constexpr double kLevel = 0.01;
    constexpr std::size_t kMostSegments = 6;
    if (segments.size() > kMostSegments)
        return false;
    for (std::size_t i = 1; i < segments.size(); ++i) {
        if (segments[i].verb == PathVerb::Close)
            continue;
        const Point from = segments[i - 1].to, to = segments[i].to;
        if (segments[i].verb != PathVerb::Line ||
            (std::abs(from.x - to.x) > kLevel && std::abs(from.y - to.y) > kLevel))
            return false;
    }
    return true;
}

std::vector<PathSegment> outlineOf(const Rect& box, const Matrix& matrix) {
    const auto at = [&](double x, double y) { return matrix.apply({x, y}); };
    return {{PathVerb::Move, {}, {}, at(box.left, box.top)},
            {PathVerb::Line, {}, {}, at(box.right, box.top)},
            {PathVerb::Line, {}, {}, at(box.right, box.bottom)},
            {PathVerb::Line, {}, {}, at(box.left, box.bottom)},
            {PathVerb::Close, {}, {}, {}}};
}

bool isFinite(const Rect& box) {
    return std::isfinite(box.left + box.top + box.right + box.bottom);
}

StrokeStyle strokeStyleOf(GfxState& state) {
    StrokeStyle style;
    GfxRGB color;
    state.getStrokeRGB(&color);
    style.color = toColor(color);
    style.width = state.getTransformedLineWidth();
    style.opacity = state.getStrokeOpacity();
    double start = 0;
    const double scale = state.getLineWidth() > 0 ? style.width / state.getLineWidth() : state.transformWidth(1);
    double sum = 0;
    for (const double length : state.getLineDash(&start)) {
        style.dash.push_back(length * scale);
        sum += length;
    }
    // A dash without gaps, or of no length, is a solid line.
    if (sum <= 0)
        style.dash.clear();
    return style;
}

} // namespace

Path PathReader::makePath(const GfxState& state, std::vector<PathSegment> segments, std::int32_t mark,
                          std::uint32_t paintOrder) const {
    Path path;
    std::vector<PathSegment> seen = onPage(segments, state.getTransformedLineWidth(), m_page);
    const bool isSeen = !seen.empty();
    path.segments = isSeen ? std::move(seen) : std::move(segments);
    path.box = boxOf(path.segments);
    path.clip = clipBox(state);
    path.mark = mark;
    path.paintOrder = paintOrder;
    path.visibility = isSeen ? visibilityOf(path.box, path.clip, m_page) : Visibility::OffPage;
    path.isSimplified = m_clip.isOdd || state.getBlendMode() != gfxBlendNormal;
    return path;
}

void PathReader::fill(GfxState& state, FillRule rule, std::int32_t mark, std::uint32_t paintOrder) {
    Path path = makePath(state, segmentsOf(state), mark, paintOrder);
    if (path.segments.empty() || !isFinite(path.box))
        return;
    GfxRGB color;
    state.getFillRGB(&color);
    path.fill = FillStyle{toColor(color), rule == FillRule::EvenOdd, false, state.getFillOpacity(), nullptr};
    m_page.paths.push_back(std::move(path));
}

void PathReader::stroke(GfxState& state, std::int32_t mark, std::uint32_t paintOrder) {
    Path path = makePath(state, segmentsOf(state), mark, paintOrder);
    if (!m_page.paths.empty()) {
        Path& last = m_page.paths.back();
        const bool isNext = last.paintOrder + 1 == paintOrder;
        if (isNext && last.fill && !last.stroke && last.mark == mark && isSameShape(last.segments, path.segments)) {
            last.stroke = strokeStyleOf(state);
            return;
        }
    }
    if (path.segments.empty() || !isFinite(path.box))
        return;
    path.stroke = strokeStyleOf(state);
    m_page.paths.push_back(std::move(path));
}

void PathReader::clip(const GfxState& state, FillRule rule) {
    std::vector<PathSegment> segments = segmentsOf(state);
    const bool isUpright = isUprightRectangle(segments);
    // A box around what is left already cuts nothing off it: that of a shading often lies around the shape.
    if (isUpright && !m_clip.segments.empty() && boxOf(segments).contains(boxOf(m_clip.segments)))
        return;
    const bool isCutOddly = m_clip.isOdd;
    m_clip = {std::move(segments), rule == FillRule::EvenOdd, std::nullopt, isCutOddly || !isUpright, isCutOddly};
}

void PathReader::clipToStroke(GfxState& state) {
    m_clip = {segmentsOf(state), false, strokeStyleOf(state), true, m_clip.isOdd};
}

void PathReader::restoreState() {
    if (m_clipLevels.empty())
        return;
    m_clip = std::move(m_clipLevels.back());
    m_clipLevels.pop_back();
}

void PathReader::fillClipWithPattern(GfxState& state, const PatternLook& look, std::int32_t mark,
                                     std::uint32_t paintOrder) {
    std::vector<PathSegment> segments = m_clip.segments;
    if (segments.empty())
        segments = outlineOf(clipBox(state), {});
    Path path = makePath(state, std::move(segments), mark, paintOrder);
    if (!isFinite(path.box))
        return;
    // The clip is the shape itself; only those around it cut it.
    path.isSimplified = m_clip.isCutOddly || state.getBlendMode() != gfxBlendNormal;
    if (m_clip.stroke) {
        path.stroke = m_clip.stroke;
        path.stroke->color = look.meanColor;
        path.isSimplified = true;
    } else {
        path.fill = FillStyle{look.meanColor, m_clip.isEvenOdd, true, state.getFillOpacity(), look.gradient};
    }
    m_page.paths.push_back(std::move(path));
}

void PathReader::fillUnitSquare(const GfxState& state, const FillStyle& style, std::int32_t mark,
                                std::uint32_t paintOrder) {
    Path path = makePath(state, outlineOf({0, 0, 1, 1}, currentMatrix(state)), mark, paintOrder);
    if (!isFinite(path.box))
        return;
    path.fill = style;
    m_page.paths.push_back(std::move(path));
}

} // namespace orvane::pdf
