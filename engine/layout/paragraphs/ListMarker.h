#pragma once

#include "layout/paragraphs/ParagraphParameters.h"
#include "layout/text/PageText.h"

#include <optional>
#include <string>

namespace orvane::layout {

enum class MarkerKind : std::uint8_t {
    Bullet,      ///< a sign that is nothing but a bullet
    Dash,        ///< a hyphen, dash, asterisk or "o" that may be one
    Decimal,     ///< "1.", "(2)", "3)"
    Compound,    ///< "1.2", "3.4.1."
    LowerLetter, ///< "a)"
    UpperLetter, ///< "A."
    LowerRoman,  ///< "iv."; of one letter, "i." and "v." too
    UpperRoman,  ///< "IV."
    Box,         ///< one to tick: no bullet of a list, but an item begins with it
    EastAsian,   ///< circled numbers, numerals of Han with a comma behind them
};

/// The label that starts an item of a list.
struct ListMarker {
    MarkerKind kind = MarkerKind::Bullet;
    std::string text;
    int ordinal = 0;             ///< of a Compound its last number; 0 for signs
    bool hasPunctuation = false; ///< "1." or "(1)", not "1"
    bool isSeparated = false;    ///< what follows stands apart by more than a blank
    bool isWholeWord = true;     ///< false: the text follows without a gap
};

/// The marker that the line starts with, if its first word can be one. Whether it is one, its neighbours tell.
std::optional<ListMarker> findListMarker(const Line& line, const ParagraphParameters::Markers& parameters);

/// True when `next` is what a list that has come to `before` goes on with.
bool isSuccessor(const ListMarker& before, const ListMarker& next);

} // namespace orvane::layout
