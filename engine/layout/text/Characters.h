#pragma once

#include <string>
#include <string_view>

/// What the layout stages ask about characters. Source: the Unicode Character Database, by ICU.
namespace orvane::layout {

/// Blanks of every width, no-break spaces among them; never a zero-width joiner.
bool isBlank(char32_t c);
/// True for a text of nothing but blanks, control characters and zero-width spaces; false for an empty text.
bool isBlank(std::u32string_view text);
/// A mark that stands on, under or in the character before it.
bool isCombiningMark(char32_t c);
/// Scripts written without blanks and with characters of one width: ideographs, kana, bopomofo, their punctuation.
bool isSetWithoutBlanks(char32_t c);
bool isHangul(char32_t c);
/// Joiners and the like, which have no shape of their own.
bool isShapeless(char32_t c);
bool isLetter(char32_t c);
bool isUpperCase(char32_t c);
bool isLowerCase(char32_t c);
bool isDigit(char32_t c);
/// How many letters and digits the text has.
std::size_t countLetters(std::u32string_view text);
char32_t toLowerCase(char32_t c);
/// A letter of a script that is written from right to left.
bool isRightToLeftLetter(char32_t c);
/// A letter of a script that is written from left to right.
bool isLeftToRightLetter(char32_t c);

/// The combining mark that looks like a spacing accent ("´" gives U+0301); 0 for other characters.
char32_t combiningAccent(char32_t c);
/// `base` with `mark` as one character where there is one, else as base and mark.
std::u32string compose(std::u32string_view base, char32_t mark);

/// The text with presentation forms and Latin ligatures in their base letters, surrogate pairs joined, control
/// characters and marks of direction left out.
std::u32string normalizeGlyphText(std::u32string_view text);

} // namespace orvane::layout
