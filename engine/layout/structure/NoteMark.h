#pragma once

#include "layout/text/PageText.h"

#include <string>

namespace orvane::layout {

/// True for "12", "iv", "b", "*", "†", "(1)": what people refer to notes by.
bool isNoteMark(const std::string& text);

/// True for marks made of signs that typesetting programs take from their mathematical fonts. Requires: a bare mark.
bool isBorrowedMark(const std::string& mark);

/// The mark without brackets and full stops around it, by which a note is compared with its reference.
std::string bareMark(const std::string& mark);

/// The mark in the signs that word processors count in.
std::string usualMark(const std::string& mark);

/// The mark that a note's first word starts with: raised characters, or a number or sign by itself; empty for none.
std::string markAtStart(const Word& word);

/// How many characters of the word's first span are a number with its bracket that East Asian text follows at once; 0
/// for none.
std::size_t gluedMarkLength(const Word& word);

/// True for a span that is raised and reads like a mark.
bool isRaisedMark(const Span& span);

/// True for a line that is nothing but a mark in one look.
bool isLoneMark(const Line& line);

} // namespace orvane::layout
