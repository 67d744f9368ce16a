#pragma once

#include "layout/DocumentContext.h"
#include "layout/Layout.h"
#include "layout/LayoutParameters.h"
#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// Makes the document of a draft whose paragraphs are known by their roles and whose sections are made.
document::Document assembleDocument(DocumentDraft draft, const DocumentContext& context, const DocumentFacts& facts,
                                    const LayoutRequest& request, const LayoutParameters& parameters,
                                    Diagnostics& diagnostics);

} // namespace orvane::layout
