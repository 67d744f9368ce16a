#pragma once

#include "pdf/PageContent.h"

#include <string>
#include <string_view>

namespace orvane::layout {

/// The family that a document should name for a font of the PDF, and how high its lines are.
struct MappedFont {
    std::string family;       ///< as a word processor lists it
    double ascent = 0.95;     ///< em, from the top of a line in single spacing to its baseline
    double descent = 0.25;    ///< em, from there to its bottom
    bool isSymbol = false;    ///< its characters are pictures, not letters
    bool isLineKnown = false; ///< ascent and descent are those of the family, not a guess

    double lineHeight() const { return ascent + descent; }
};

/// Finds the family: a known one behind subset marks, style words and makers' suffixes; for a name that says nothing
/// ("F1") the usual family of its kind; else the name itself, its words set apart.
MappedFont mapFont(const pdf::Font& font);

/// A font's name reduced to what tells families apart: "ABCDEF+TimesNewRomanPS-BoldMT" -> "timesnewroman".
std::string fontKey(std::string_view name);

} // namespace orvane::layout
