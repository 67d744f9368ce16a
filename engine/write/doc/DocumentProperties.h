#pragma once

#include "document/Document.h"

#include <string>

namespace orvane::write::doc {

enum class Pages { Alike, Facing };

/// What holds for the whole document: kinds of pages, notes, tabulators, rules of layout.
/// Source: [MS-DOC] 2.7.7 (Dop2002).
std::string documentProperties(const document::Document& document, Pages pages);

/// What the document says of itself, as a property set. No date but the document's own is written.
/// Source: [MS-OLEPS] 2.21 (PropertySetStream), 3.1 (summary information).
std::string summaryInformation(const document::Metadata& metadata);

} // namespace orvane::write::doc
