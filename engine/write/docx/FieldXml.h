#pragma once

#include "base/XmlWriter.h"
#include "document/Document.h"
#include "write/Fields.h"

#include <string>

namespace orvane::write::docx {

/// Writes what stands before a field's result: its start, its instruction, the separator. `look` is how a word
/// processor sets the result when it renews it.
/// Source: ECMA-376 part 1, 17.16.2, 17.16.18.
void writeFieldStart(XmlWriter& xml, const std::string& instruction, const document::RunProperties& look,
                     const document::RunProperties& base);

void writeFieldEnd(XmlWriter& xml, const document::RunProperties& look, const document::RunProperties& base);

} // namespace orvane::write::docx
