#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace orvane::pdf {

/// Fonts of pictures and signs whose codes mean other things than the letters they stand on.
enum class SymbolFont : std::uint8_t { Symbol, ZapfDingbats, Wingdings, Wingdings2, Wingdings3, Webdings };

/// Which of them a font is by its name; nothing for fonts of letters.
std::optional<SymbolFont> symbolFontOf(std::string_view name);

/// What the sign at `code` is in Unicode, or the nearest thing that fonts of letters have; 0 when there is none.
char32_t symbolCharacter(SymbolFont font, std::uint8_t code);

/// What OpenSymbol shows at a code that is its own, in the private use area: the signs of formulas; 0 where it is not
/// known.
char32_t openSymbolCharacter(char32_t code);

} // namespace orvane::pdf
