#pragma once

#include "layout/LayoutParameters.h"
#include "layout/text/PageText.h"

#include <span>
#include <vector>

namespace orvane::layout {

/// The part of a page from one of the long upright rules between its columns to the next. Units: points.
struct ColumnStrip {
    double left = 0;
    double right = 0;
    double top = 0;
    double bottom = 0;

    bool holds(const Rect& box) const {
        return box.centerX() >= left && box.centerX() < right && box.centerY() >= top && box.centerY() <= bottom;
    }
};

/// The columns of a page between which rules stand that nothing crosses, from left to right; none where what stands at
/// both sides of a rule are rows of one table, or there is no such rule.
std::vector<ColumnStrip> findColumnStrips(const PageText& page, const LayoutParameters& parameters);

/// Whether what stands in the box reaches from one strip into the next.
bool leadsOver(std::span<const ColumnStrip> strips, const Rect& box);

/// Cuts the upright lines that lead from one strip into the next.
void cutAtStrips(std::vector<Line>& lines, std::span<const ColumnStrip> strips);

} // namespace orvane::layout
