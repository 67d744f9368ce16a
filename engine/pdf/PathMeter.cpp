#include "pdf/PathMeter.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <GfxState.h>

namespace orvane::pdf {
namespace {

constexpr double kRowsOfCurve = 3; ///< a curve takes the time of so many lines along its control points
constexpr double kSidesOfLine = 2;

Point at(const GfxSubpath& part, int i, const GfxState& state) {
    Point point;
    state.transform(part.getX(i), part.getY(i), &point.x, &point.y);
    return point;
}

} // namespace

void PathMeter::stroke(GfxState* state) {
    m_rows += kSidesOfLine * rowsOf(*state);
}

void PathMeter::fill(GfxState* state) {
    m_rows += rowsOf(*state);
    m_area += areaOf(*state);
}

void PathMeter::eoFill(GfxState* state) {
    fill(state);
}

double PathMeter::rowsOf(const GfxState& state) const {
    double rows = 0;
    const GfxPath& path = *state.getPath();
    for (int i = 0; i < path.getNumSubpaths(); ++i)
        rows += rowsOf(*path.getSubpath(i), state);
    return rows;
}

double PathMeter::rowsOf(const GfxSubpath& part, const GfxState& state) const {
    const auto within = [&](double y) { return std::clamp(y, m_region.top, m_region.bottom); };
    double rows = 0;
    Point last = at(part, 0, state);
    for (int i = 1; i < part.getNumPoints(); ++i) {
        const Point next = at(part, i, state);
        if (std::max(last.x, next.x) > m_region.left && std::min(last.x, next.x) < m_region.right)
            rows += (part.getCurve(i) ? kRowsOfCurve : 1) * std::abs(within(next.y) - within(last.y));
        last = next;
    }
    return rows;
}

/// What the path's parts enclose, as far as the box around it is in the region. Parts within others count twice.
double PathMeter::areaOf(const GfxState& state) const {
    double area = 0;
    constexpr double kFar = std::numeric_limits<double>::infinity();
    Rect box{kFar, kFar, -kFar, -kFar};
    const GfxPath& path = *state.getPath();
    for (int i = 0; i < path.getNumSubpaths(); ++i) {
        const GfxSubpath& part = *path.getSubpath(i);
        double twice = 0;
        Point last = at(part, part.getNumPoints() - 1, state);
        for (int k = 0; k < part.getNumPoints(); ++k) {
            const Point next = at(part, k, state);
            twice += last.x * next.y - next.x * last.y;
            box = {std::min(box.left, next.x), std::min(box.top, next.y), std::max(box.right, next.x),
                   std::max(box.bottom, next.y)};
            last = next;
        }
        area += std::abs(twice) / 2;
    }
    const Rect seen = box.intersected(m_region);
    return seen.isEmpty() ? 0 : std::min(area, seen.area());
}

} // namespace orvane::pdf
