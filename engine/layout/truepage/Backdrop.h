#pragma once

#include "document/Document.h"
#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// What lies behind a page's text: its pictures, and drawings of the rules and grounds between them, in paint order.
/// Rules and grounds that are part of the text's look (underlines, highlights) are not among them.
std::vector<document::Figure> backdropOf(const PageText& page);

} // namespace orvane::layout
