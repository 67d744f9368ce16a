#pragma once

#include "layout/fonts/FontTable.h"
#include "pdf/PageContent.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace orvane::layout {

/// The family that a document should name for a font of the PDF, and how high its lines are.
struct MappedFont {
    std::string family;    ///< as a word processor lists it
    double ascent = 0.95;  ///< em, from the top of a line in single spacing to its baseline
    double descent = 0.25; ///< em, from there to its bottom
    FontClass kind = FontClass::Sans;
    bool isSymbol = false;      ///< its characters are pictures, not letters
    bool isFamilyKnown = false; ///< the font is of a family that word processors have
    bool isStandIn = false;     ///< the family is another one than the font's
    int widthPercent = 100;     ///< to stretch the family's letters to, so that they take the room of the font's
    bool isLineKnown = false;   ///< ascent and descent are those of the family, not a guess
    /// em, by character; of a font that the document brings along, so that letters are as wide as in the PDF. Null for
    /// others.
    std::shared_ptr<const std::map<char32_t, double>> carriedAdvances{};
    double boldAscent = 0; ///< em; of bold letters, where it differs; 0: as `ascent`

    bool isCarried() const { return carriedAdvances != nullptr; }
    double lineHeight() const { return ascent + descent; }
};

/// Finds the family: a known one behind subset marks, style words and makers' suffixes; for a name that says nothing
/// ("F1") the usual family of its kind; else the name itself, its words set apart.
MappedFont mapFont(const pdf::Font& font);

/// A family of the table, chosen for a font of another one.
MappedFont standIn(std::string_view family);

/// A font's name reduced to what tells families apart: "ABCDEF+TimesNewRomanPS-BoldMT" -> "timesnewroman".
std::string fontKey(std::string_view name);

} // namespace orvane::layout
