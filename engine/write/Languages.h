#pragma once

#include <string_view>

namespace orvane::write {

/// Word processors keep three looks of a text: for simple scripts, for those of East Asia, and for complex ones.
enum class ScriptClass { Simple, EastAsian, Complex };

/// Which look a language belongs to. `language` is a BCP 47 tag.
ScriptClass scriptClassOf(std::string_view language);

/// The language's number in binary formats and RTF: of the region when it has one of its own, else of the language
/// where it is at home; 0 for one without a number.
/// Source: [MS-LCID] 2.2.
int languageNumber(std::string_view language);

} // namespace orvane::write
