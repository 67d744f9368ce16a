#pragma once

#include "layout/page/ColumnGutter.h"
#include "layout/page/PageParameters.h"

#include <cstdint>
#include <span>

namespace orvane::layout {

enum class GutterSide : std::uint8_t { Left, Right, Across };

/// What the text on both sides of a gutter covers, to tell how a line stands to its column.
class GutterSides {
public:
    /// Measures by those of the lines that stand at the gutter's height; both must outlive this.
    GutterSides(const ColumnGutter& gutter, std::span<const Line> lines, const PageParameters::Regions& parameters);

    GutterSide sideOf(const Line& line) const;
    /// The line reaches from edge to edge, but for the indent of a paragraph.
    bool isFilledBy(const Line& line) const;
    /// The line ends at both edges of its column, within `tolerance` points.
    bool isFlush(const Line& line, double tolerance) const;

private:
    const Rect& columnOf(const Line& line) const { return sideOf(line) == GutterSide::Left ? m_left : m_right; }

    const ColumnGutter& m_gutter;
    const PageParameters::Regions& m_parameters;
    Rect m_left, m_right;
};

} // namespace orvane::layout
