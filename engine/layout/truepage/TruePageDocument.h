#pragma once

#include "layout/DocumentContext.h"
#include "layout/Layout.h"
#include "layout/LayoutParameters.h"

#include <vector>

namespace orvane::layout {

/// The document whose pages look like those of the PDF, one for one: text in frames where it stood, in reading order,
/// over the pictures, rules and grounds behind it. Tables are drawn as they look. It has no running heads, lists or
/// headings: their text stands on the pages.
/// Errors: Failure(Cancelled) when the observer says so.
document::Document truePageDocument(std::vector<PageText> pages, const DocumentFacts& facts,
                                    const LayoutRequest& request, const LayoutParameters& parameters,
                                    const JobObserver& observer, Diagnostics& diagnostics);

} // namespace orvane::layout
