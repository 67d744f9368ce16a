#pragma once

#include "layout/DocumentContext.h"
#include "layout/LayoutParameters.h"
#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// Makes one paragraph of the pieces that columns and page breaks have cut it into. Pictures that stand at the break
/// come behind it.
void joinParagraphs(DocumentDraft& draft, const DocumentContext& context, const LayoutParameters& parameters);

} // namespace orvane::layout
