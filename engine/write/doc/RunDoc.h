#pragma once

#include "document/Document.h"
#include "write/doc/DocFonts.h"
#include "write/doc/PropertyList.h"

namespace orvane::write::doc {

/// How characters look that no style and no run says anything of.
const document::RunProperties& plainRun();

/// Adds what differs from `base`.
/// Source: [MS-DOC] 2.6.1.
void addRunProperties(PropertyList& list, DocFonts& fonts, const document::RunProperties& properties,
                      const document::RunProperties& base);

} // namespace orvane::write::doc
