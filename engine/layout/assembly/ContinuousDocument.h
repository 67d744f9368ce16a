#pragma once

#include "document/Document.h"

namespace orvane::layout {

/// The document as one flow of formatted text: its paragraphs, lists and tables in one section. Pictures, drawings,
/// columns, running heads and page breaks are left out; the text of frames stands where they were anchored.
document::Document continuousDocument(document::Document flowing);

} // namespace orvane::layout
