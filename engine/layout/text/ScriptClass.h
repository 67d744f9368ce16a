#pragma once

#include <string_view>

namespace orvane::layout {

/// Word processors keep a font for each of these kinds of script.
enum class ScriptClass : unsigned char { Simple, EastAsian, Complex };

/// The kind of one character; Simple for those of no script of their own (digits, punctuation).
ScriptClass scriptClassOf(char32_t character);

/// The kind of most characters that belong to a script.
ScriptClass scriptClassOf(std::string_view text);

} // namespace orvane::layout
