#pragma once

#include "layout/LayoutParameters.h"
#include "layout/page/PageLayout.h"
#include "layout/paragraphs/LineMeasures.h"

namespace orvane::layout {

/// A paragraph in its column.
struct PlacedParagraph {
    const ParagraphDraft& paragraph;
    ColumnSpan column;
};

/// True when the last line of the column's last paragraph is so full that its text may go on elsewhere.
bool mayRunOn(const PlacedParagraph& last, const ParagraphContext& context, const LayoutParameters& parameters);

/// True when the first paragraph of the next column or page goes on with the last one of this: same look, no new first
/// line, and its first word had no room where the last line ended.
bool runsOn(const PlacedParagraph& last, const PlacedParagraph& next, const ParagraphContext& context,
            const LayoutParameters& parameters);

} // namespace orvane::layout
