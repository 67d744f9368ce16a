#pragma once

#include <string>

namespace orvane::write::rtf {

/// A character beyond ASCII: \uN, or two of them, each with what a reader shows that does not know \u: the character
/// itself where the code page 1252 has it, else its letter without accents, else a question mark. Fits \uc1.
/// Source: RTF 1.9.1, "Unicode RTF".
std::string unicodeCharacter(char32_t c);

} // namespace orvane::write::rtf
