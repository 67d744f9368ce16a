#pragma once

#include "layout/graphics/GraphicsParameters.h"
#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// Drawings that lines and boxes connect, and the box around all of it.
struct ConnectedDrawings {
    std::vector<std::size_t> drawings; ///< indices, ascending; at least two
    Rect box;
};

/// Finds the drawings whose lines lead from one to the other: the arrows and diamonds of a flow chart. What crosses
/// like the rules of a table connects nothing.
std::vector<ConnectedDrawings> findConnected(const std::vector<Figure>& drawings, const std::vector<Rule>& rules,
                                             const GraphicsParameters::Drawings& limits);

} // namespace orvane::layout
