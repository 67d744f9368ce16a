#pragma once

#include "document/Document.h"
#include "layout/structure/DocumentDraft.h"

#include <vector>

namespace orvane::layout {

/// The document's comments, one for each of DocumentDraft::comments, in the look of `style`.
std::vector<document::Comment> assembleComments(const DocumentDraft& draft, const document::Style& style);

} // namespace orvane::layout
