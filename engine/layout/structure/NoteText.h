#pragma once

#include "layout/text/PageText.h"

#include <vector>

namespace orvane::layout {

/// An empty page of that size for the text of one note, which may come from several pages.
PageText pageForNote(const PageText& source);

/// Moves lines of a page to the note's page, with the fonts and links that they use. Lines of a further page are put
/// below what is there, `leading` points from baseline to baseline; those of another column are moved `across`, by so
/// many points to the right.
void addNoteLines(PageText& note, const PageText& source, std::vector<Line> lines, double leading, double across);

/// Makes the mark, raised or glued to the text, at the line's start a word of its own. Requires: the line starts with a
/// mark.
void partMark(Line& line);

/// Takes the mark with which the line starts off it, as a line of its own. A line that is nothing else has no words
/// then.
Line takeMark(Line& line);

/// True when `mark` is nothing but a raised mark that stands beside the first line of its note.
bool isMarkOf(const Line& mark, const Line& first);

/// Makes such a mark the first word of the line.
void prependMark(Line& line, const Line& mark);

} // namespace orvane::layout
