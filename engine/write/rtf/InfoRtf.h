#pragma once

#include "document/Document.h"
#include "write/rtf/RtfStream.h"

namespace orvane::write::rtf {

/// Writes what the document says of itself. No date but the document's own is written.
/// Source: RTF 1.9.1, "Information Group".
void writeInfo(RtfStream& rtf, const document::Metadata& metadata);

} // namespace orvane::write::rtf
