#pragma once

#include <string_view>

namespace orvane::write {

/// What kind of letters a font has, in the words of word processors.
enum class FontKind { Unknown, Roman, Swiss, Modern, Script };

/// The kind, judged by the font's name. Modern fonts are those of one width.
FontKind fontKindOf(std::string_view name);

/// Whether the font has signs of its own in place of letters, at the private codes from F020 to F0FF. Readers that are
/// not told so look for another font that has these codes, and show nothing.
bool isSymbolFont(std::string_view name);

} // namespace orvane::write
