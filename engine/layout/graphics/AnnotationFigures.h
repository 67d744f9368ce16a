#pragma once

#include "layout/graphics/GraphicsParameters.h"
#include "layout/text/PageText.h"
#include "pdf/PageContent.h"

#include <vector>

namespace orvane::layout {

/// An annotation that lies over the page's text.
struct OverlaidAnnotation {
    pdf::Annotation annotation;
    pdf::PageContent content; ///< what it paints, and nothing else of the page
};

/// Takes the stamps, typed texts, ink and drawn shapes that lie over text off the page. Those beside the text stay:
/// they are what somebody filled in.
std::vector<OverlaidAnnotation> takeOverlaidAnnotations(pdf::PageContent& page,
                                                        const GraphicsParameters::Annotations& parameters);

/// The annotation as a figure in front of the text. `lines` is the text in it.
Figure figureOf(const OverlaidAnnotation& overlaid, std::vector<Line> lines, const GraphicsParameters& parameters);

} // namespace orvane::layout
