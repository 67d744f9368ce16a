#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orvane::pdf {

/// What the whole words of a font's PostScript name tell about its style.
struct FontNameStyle {
    std::optional<int> weight; ///< 100 to 900, where a word speaks of it
    bool isItalic = false;
    bool isFixedPitch = false;
};

/// The name without a subset prefix ("ABCDEF+Arial" is "Arial").
std::string withoutSubsetPrefix(std::string_view name);

/// True of a name that a program made up for want of one: "F1", "Fk", "CIDFont+F3", "g_d0_f2".
bool isMadeUpFontName(std::string_view name);

/// Reads words as they stand in PostScript names: "TimesNewRomanPS-BoldItalicMT", "Arial,Bold", "MyriadPro-SemiboldIt",
/// and the TeX names "CMBX10", "CMTI8". Parts of words do not count: a "Boldini" is not bold.
FontNameStyle styleFromFontName(std::string_view name);

} // namespace orvane::pdf
