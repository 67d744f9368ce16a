#include "layout/page/GutterSides.h"

#include <cmath>

namespace orvane::layout {
namespace {

constexpr double kTouch = 0.01; ///< points; the gutter is as wide as the text beside it leaves it

} // namespace

GutterSides::GutterSides(const ColumnGutter& gutter, std::span<const Line> lines,
                         const PageParameters::Regions& parameters)
    : m_gutter(gutter)
    , m_parameters(parameters) {
    for (const Line& line : lines) {
        if (line.box.centerY() < gutter.top || line.box.centerY() > gutter.bottom)
            continue;
        for (const Word& word : line.words) {
            if (word.box.right <= gutter.left + kTouch)
                m_left = m_left.united(word.box);
            else if (word.box.left >= gutter.right - kTouch)
                m_right = m_right.united(word.box);
        }
    }
}

GutterSide GutterSides::sideOf(const Line& line) const {
    if (line.box.right <= m_gutter.left + kTouch)
        return GutterSide::Left;
    if (line.box.left >= m_gutter.right - kTouch)
        return GutterSide::Right;
    // A ragged column may have longer lines than those at which the gutter was found.
    const double reach = m_gutter.right - m_parameters.wideGutter * line.fontSize;
    const bool startsAtEdge = std::abs(line.box.left - m_left.left) <= m_parameters.sameMiddle * line.fontSize;
    return startsAtEdge && line.box.right <= reach ? GutterSide::Left : GutterSide::Across;
}

bool GutterSides::isFilledBy(const Line& line) const {
    const Rect& column = columnOf(line);
    return sideOf(line) != GutterSide::Across &&
           line.box.left <= column.left + m_parameters.paragraphIndent * line.fontSize &&
           line.box.right >= column.right - m_parameters.edgeReach * line.fontSize;
}

bool GutterSides::isFlush(const Line& line, double tolerance) const {
    const Rect& column = columnOf(line);
    return sideOf(line) != GutterSide::Across && line.box.left <= column.left + tolerance &&
           line.box.right >= column.right - tolerance;
}

} // namespace orvane::layout
