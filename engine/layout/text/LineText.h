#pragma once

#include "layout/text/PageText.h"

#include <string>
#include <string_view>

namespace orvane::layout {

/// The word's characters, UTF-8.
std::string textOf(const Word& word);

/// The line's words with the gaps between them: nothing, a blank, or a tabulator.
std::string textOf(const Line& line);

/// The line's first character; U+0000 without any.
char32_t firstCharacterOf(const Line& line);

/// The letters of the word in lower case, UTF-8, without what surrounds them; empty when something other than hyphens
/// stands between letters.
std::string plainWord(const Word& word);

/// Makes box, font size, direction and whatever else follows from the words anew; baseline, angle and order of painting
/// stay. Requires: at least one word.
void measureAnew(Line& line);

/// How many spans at the start of the line's first word are its drop cap; 0 without one.
std::size_t dropCapSpans(const Line& line);

/// Where the line starts behind its drop cap; without one where it starts. For lines read from the left.
double startBehindDropCap(const Line& line);

/// True for scripts that are written without blanks and may break after nearly every character: Han and kana with their
/// punctuation. Hangul has blanks between words, and lines that end at them.
bool isWithoutBlanks(char32_t character);

/// True when the line's last character is of such a script.
bool endsWithoutBlanks(const Line& line);

/// True when the line ends with an East Asian full stop or comma, which word processors let stand beyond the end of a
/// full line.
bool endsInHangingStop(const Line& line);

/// True between a letter or digit of such a script and one of another.
bool meetOtherScript(char32_t left, char32_t right);

/// True for the last word of a sentence: a full stop or the like ends it, be it within quotes or brackets.
bool endsSentence(std::u32string_view word);

/// A gap as wide as a tabulator makes it that was not typed with blanks.
bool isTabulator(const Word& word);

/// True when a tabulator stands between two words of the line: it places them from the line's start edge on.
bool hasTabulator(const Line& line);

} // namespace orvane::layout
