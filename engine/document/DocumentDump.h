#pragma once

#include "document/Document.h"

#include <string>

namespace orvane::document {

/// The document as text for people and tests, one block a line. A paragraph shows its style, then in braces what
/// differs from that style, then its inlines; a run likewise shows what differs from the style:
///     p Heading1 {before=12pt} "Aims" tab "of "{i} link(http://example.org)["it"]
std::string dump(const Document& document);

std::string dump(const Paragraph& paragraph, const Document& document);

} // namespace orvane::document
