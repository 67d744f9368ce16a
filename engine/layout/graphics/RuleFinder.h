#pragma once

#include "base/Diagnostic.h"
#include "layout/graphics/GraphicsParameters.h"
#include "layout/text/PageText.h"

namespace orvane::layout {

/// The rules and grounds of a page.
struct RuledPage {
    std::vector<Rule> rules;     ///< horizontal ones first, each direction by position
    std::vector<Ground> grounds; ///< in paint order
    std::vector<bool> isTaken;   ///< parallel to PageContent::paths: the path is nothing but rules and grounds
};

/// Reads rules and grounds from the page's paths: straight strokes, thin filled rectangles, the four sides of stroked
/// rectangles. Pieces that continue each other become one rule; rows of short pieces a dashed or dotted one; close
/// pairs a double one.
RuledPage findRules(const pdf::PageContent& page, const GraphicsParameters& parameters, Diagnostics& diagnostics);

} // namespace orvane::layout
