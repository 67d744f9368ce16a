#pragma once

#include "layout/structure/DocumentDraft.h"

namespace orvane::layout {

/// Makes links of the web and mail addresses that the text shows, in the flow, in notes and in running heads: of all of
/// them where the file has no links, as many printers leave them out; else of those without a link that look like one.
void linkPrintedAddresses(DocumentDraft& draft);

} // namespace orvane::layout
