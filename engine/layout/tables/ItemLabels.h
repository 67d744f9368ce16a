#pragma once

#include <optional>
#include <string_view>

namespace orvane::layout {

/// Whether the text is the label of an item in a list, or a place to tick: "1.", "a)", "(iv)", "2.1.3.", "[7]",
/// "[Knu84]", a bullet.
bool isItemLabel(std::string_view text);

/// Whether the text counts the items of a list, and is no number in brackets: "b.", "12)".
bool countsItem(std::string_view text);

/// Whether the text is a small letter in brackets, as the items of laws are counted: "(b)".
bool isLetterInBrackets(std::string_view text);

/// Whether the text holds signs that programs are full of: braces, backslashes, a semicolon at its end.
bool hasSignsOfCode(std::string_view text);

/// Whether the text is a sign that joins what stands on both sides of it: ":", "=", "::=", an arrow.
bool isJoiningSign(std::string_view text);

/// Whether the text is nothing but a mark or a few, such as programs print before their lines: ">", "+", "##".
bool isMark(std::string_view text);

/// Whether the text holds a part of a bracket that is higher than a line.
bool holdsPartOfBracket(std::string_view text);

/// The number of a line in a listing, "12:"; nothing for other texts.
std::optional<long> lineNumberOf(std::string_view text);

} // namespace orvane::layout
