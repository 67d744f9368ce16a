#pragma once

#include <optional>
#include <string_view>

namespace orvane::layout {

/// The cuts of a family.
struct FontFace {
    bool isBold = false;
    bool isItalic = false;

    auto operator<=>(const FontFace&) const = default;
};

/// True for the families that every word processor has, itself or as a twin of the same widths.
bool hasKnownWidths(std::string_view family);

/// Advance width of a character. Units: em. Unset for families without known widths, and for characters that are
/// neither Latin, Cyrillic nor usual punctuation. Letters with accents are as wide as those without.
std::optional<double> advanceOf(std::string_view family, FontFace face, char32_t character);

/// Natural width of a text. Units: em. Unset when a character's width is not known.
std::optional<double> naturalWidth(std::u32string_view text, std::string_view family, FontFace face);

} // namespace orvane::layout
