#pragma once

#include "base/Diagnostic.h"
#include "document/Document.h"

#include <string>

namespace orvane::write::doc {

/// The properties of a section.
/// Source: [MS-DOC] 2.6.4.
std::string sectionProperties(const document::Section& section, const document::Document& document,
                              Diagnostics& diagnostics);

} // namespace orvane::write::doc
