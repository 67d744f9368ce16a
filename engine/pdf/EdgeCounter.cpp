#include "pdf/EdgeCounter.h"

#include <algorithm>
#include <cmath>

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

void EdgeCounter::stroke(GfxState* state) {
    m_rows += kSidesOfLine * rowsOf(*state);
}

void EdgeCounter::fill(GfxState* state) {
    m_rows += rowsOf(*state);
}

void EdgeCounter::eoFill(GfxState* state) {
    m_rows += rowsOf(*state);
}

double EdgeCounter::rowsOf(const GfxState& state) const {
    double rows = 0;
    const GfxPath& path = *state.getPath();
    for (int i = 0; i < path.getNumSubpaths(); ++i)
        rows += rowsOf(*path.getSubpath(i), state);
    return rows;
}

double EdgeCounter::rowsOf(const GfxSubpath& part, const GfxState& state) const {
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

} // namespace orvane::pdf
