#pragma once

#include "base/XmlWriter.h"
#include "document/Document.h"
#include "write/docx/Package.h"

#include <string>
#include <string_view>

namespace orvane::write::docx {

/// Adds the faces of `family` that the document brings along to the package, and to the family's element of the font
/// table. Source: ECMA-376 part 1, 17.8.1 and 17.8.3.3 to 6.
void embedFonts(const document::Document& document, std::string_view family, XmlWriter& xml,
                Relationships& relationships, Package& package);

/// A number that stands for the font, as "{7A0C...}": the same for the same bytes.
std::string fontKey(std::string_view program);

/// The bytes of the file that holds the font: with the first of them changed by the key, lest others take it for a font
/// that was given to them.
std::string obfuscated(std::string program, std::string_view key);

} // namespace orvane::write::docx
