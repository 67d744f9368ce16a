#pragma once

#include "layout/DocumentContext.h"
#include "layout/structure/StructureParameters.h"
#include "layout/text/PageText.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace orvane::layout {

/// A line with which a note may start.
struct NoteStart {
    std::size_t line = 0; ///< index into PageText::lines
    std::string mark;     ///< see bareMark
};

/// A part of a page that may hold notes: small text in one column, from a short rule down to the column's end.
struct NoteArea {
    std::optional<std::size_t> rule;   ///< index of the rule above it into PageText::rules
    double left = 0;                   ///< of the rule, or of the text
    double top = 0;                    ///< likewise
    std::vector<std::size_t> lines;    ///< indices into PageText::lines, top to bottom
    std::vector<NoteStart> starts;     ///< likewise; empty where the area goes on with a note of the page before
    std::vector<NoteStart> wordStarts; ///< lines that start with a letter or numeral which may be a word: "a", "i"
    bool isInColumn = false;           ///< at the foot of one of several columns
    bool hasRows = false;              ///< lines stand side by side
    double textSize = 0;               ///< points; of the first line that was more than a mark
};

/// The areas below short rules, column by column from the left, those of a column from the top.
std::vector<NoteArea> findNoteAreas(const PageText& page, const DocumentContext& context,
                                    const StructureParameters::Notes& parameters);

/// The small text at the foot of the page, below larger text, from the first line on that starts with a mark; nullopt
/// without one, or where lines stand side by side. No rule parts it from the text.
std::optional<NoteArea> notesAtFoot(const PageText& page, const DocumentContext& context,
                                    const StructureParameters::Notes& parameters);

/// The text at the foot of the page below a good line of space, if it starts with a raised mark; only such marks start
/// its notes. It may be as large as the text above.
std::optional<NoteArea> notesBelowGap(const PageText& page, const DocumentContext& context,
                                      const StructureParameters::Notes& parameters);

/// The whole page as one area, as endnotes stand that fill pages of their own; nullopt when it does not start with a
/// raised mark, or holds larger text.
std::optional<NoteArea> wholePageOfNotes(const PageText& page, const DocumentContext& context,
                                         const StructureParameters::Notes& parameters);

/// Leaves out what stands above that line, one of its own.
void startWith(NoteArea& area, std::size_t line, const PageText& page);

} // namespace orvane::layout
