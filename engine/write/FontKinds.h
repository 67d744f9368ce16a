#pragma once

#include <string_view>

namespace orvane::write {

/// What kind of letters a font has, in the words of word processors.
enum class FontKind { Unknown, Roman, Swiss, Modern, Script };

/// The kind, judged by the font's name. Modern fonts are those of one width.
FontKind fontKindOf(std::string_view name);

} // namespace orvane::write
