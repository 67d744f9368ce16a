#pragma once

#include "layout/page/PageLayout.h"
#include "layout/page/PageParameters.h"

#include <optional>
#include <span>

namespace orvane::layout {

/// An upright strip without ink between two columns of text.
struct ColumnGutter {
    double left = 0;
    double right = 0;
    double top = 0;      ///< where text on both sides begins
    double bottom = 0;   ///< where text on one side ends
    int rows = 0;        ///< lines on the side that has fewer
    double fontSize = 0; ///< of most lines around it
};

/// The strip that parts the most lines, if there are columns at all. Lines may still lead across a gutter as long as no
/// word of theirs touches it. `walls` are things that stop a gutter: tables and pictures. Requires: `lines` upright,
/// from top to bottom.
std::optional<ColumnGutter> findColumnGutter(std::span<const Line> lines, std::span<const Rect> walls,
                                             const PageParameters::Regions& parameters);

} // namespace orvane::layout
