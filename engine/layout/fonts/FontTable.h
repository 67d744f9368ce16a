#pragma once

#include <span>
#include <string_view>

namespace orvane::layout {

/// What kind of letters a family has; decides what stands in for one that no word processor knows.
enum class FontClass : unsigned char { Serif, Sans, Fixed, Symbol };

/// A family that documents are written in. Metrics in em.
struct FontFamily {
    std::string_view name; ///< as a word processor lists it
    FontClass kind = FontClass::Sans;
    double ascent = 0;     ///< from a line's top to its baseline in single spacing, line gap included; 0: unknown
    double descent = 0;    ///< from the baseline to the line's bottom
    double boldAscent = 0; ///< of its bold faces, where it differs; 0: as the others
};

/// Another spelling of a family, or a family with the same metrics that stood in for it when the PDF was made.
struct FontAlias {
    std::string_view key;    ///< see fontKey()
    std::string_view family; ///< FontFamily::name
    double ascent = 0;       ///< of the stand-in where its line differs from the family's; 0: as the family
    double descent = 0;
};

std::span<const FontFamily> fontFamilies();
std::span<const FontAlias> fontAliases();

} // namespace orvane::layout
