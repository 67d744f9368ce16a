#pragma once

#include "layout/graphics/GraphicsParameters.h"
#include "layout/text/PageText.h"

#include <optional>
#include <vector>

namespace orvane::layout {

/// What stands around the charts of a page: the numbers beside and below their axes, what is measured, and the title.
class ChartLabels {
public:
    /// Parts the page's lines at wide gaps: the labels of neighbours stand in one line.
    ChartLabels(const PageText& text, const GraphicsParameters::Charts& limits);

    /// The box of a chart with its labels; nothing when there is no row or column of numbers along it.
    std::optional<Rect> boxOf(const Rect& plot) const;

private:
    std::vector<Line> m_pieces;
    const GraphicsParameters::Charts& m_limits;
};

/// Lets the drawings that are charts reach over the labels of their axes: the numbers beside and below, what is
/// measured, and the title in letters as small. A drawing without such numbers is none, and stays as it is.
/// Returns the indices of those that grew.
std::vector<std::size_t> takeScales(PageText& text, const GraphicsParameters::Charts& limits);

} // namespace orvane::layout
