#pragma once

#include "layout/LayoutParameters.h"
#include "layout/structure/DocumentDraft.h"
#include "layout/structure/PageFill.h"
#include "layout/structure/PageTops.h"

#include <vector>

namespace orvane::layout {

/// Where the text of some pages stands; page space.
struct TextArea {
    Rect box;        ///< within margins as people set them
    ColumnSpan seen; ///< the edges as the text shows them, a hair off those of `box`; what indents are measured from
    PageTops tops;
};

/// The area within which the pages of a scheme set their text, above `bottomMargin` points. Where nothing shows an edge
/// exactly it is chosen so that lines break where they broke, as a round margin if one fits.
TextArea findTextArea(const DocumentDraft& draft, const std::vector<PageFill>& fills, const RunningScheme& scheme,
                      double bottomMargin, const LayoutParameters& parameters);

} // namespace orvane::layout
