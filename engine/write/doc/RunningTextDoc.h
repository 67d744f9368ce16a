#pragma once

#include "document/Document.h"
#include "write/doc/DocState.h"

namespace orvane::write::doc {

/// The headers and footers of a file, one text after the other, and where each begins.
struct RunningTexts {
    StoryText text;
    std::string table;
    bool hasEvenPages = false;
};

/// A section that has the same as the one before takes it over, as word processors do.
/// Source: [MS-DOC] 2.3.3 (header document), 2.8.26 (Plcfhdd).
RunningTexts writeRunningTexts(DocState& state);

} // namespace orvane::write::doc
