#pragma once

#include "layout/page/PageLayout.h"
#include "layout/paragraphs/ListMarker.h"
#include "layout/paragraphs/ParagraphParameters.h"

#include <optional>
#include <span>
#include <vector>

namespace orvane::layout {

/// What lies around the lines of a column.
struct ParagraphContext {
    double bodyFontSize = 11;
    double bodyLeading = 13.4;
    std::span<const pdf::Font> fonts = {}; ///< of the page
    std::span<const Rect> obstacles = {};  ///< what floats in the column: lines beside it are shorter
};

/// How one line stands in its column. Start and end follow the line's direction. Units: points.
struct LineMeasure {
    double startGap = 0; ///< from the column's start edge to the text
    double endGap = 0;   ///< from the text to the column's end edge
    double endInset = 0; ///< of an edge of its own from the column's; endGap is measured from it
    double endPlay = 0;  ///< how much farther out such an edge may lie: up to the column's, or to where a line would
                         ///< have had room for another word
    double width = 0;
    double blank = 0;     ///< a natural blank behind its last word
    double firstUnit = 0; ///< width of its first word, up to the first place where it may be broken
    double meanGap = 0;   ///< mean width of the blanks between its words; 0 without any
    double textStart = 0; ///< start gap of the text behind the marker; startGap without one
    std::optional<ListMarker> marker;
    bool startsBold = false; ///< its first word is bold
    bool endsBold = false;   ///< its last word is bold
    double smallestSize = 0; ///< font sizes on the line
    double largestSize = 0;
    bool isBold = false;            ///< every word is
    bool hasLeader = false;         ///< dots between words, as in a table of contents
    std::optional<double> tabStart; ///< start gap of the text behind its last tabulator
    bool endsWithHyphen = false;
    bool endsWithoutBlanks = false; ///< its last character needs no blank behind it
    bool startsWithoutBlanks = false;
    bool startsLowerCase = false;
    bool endsInHan = false; ///< its last character is a letter of such a script, no punctuation
    bool startsInHan = false;
    bool endsCaseless = false; ///< its last character is a letter of a script without capitals
    bool startsCaseless = false;
    bool endsSentence = false; ///< with a full stop or the like, be it within quotes or brackets
    bool isFiller = false;     ///< nothing but strokes or dots: a line to write on
    bool endsInField = false;  ///< strokes to write on end it
    std::optional<document::DropCapKind> dropCap;
    int field = -1;        ///< the first one on it to be filled in, see Look::field
    double fieldStart = 0; ///< start gap of that field
};

/// Measures lines against their column.
std::vector<LineMeasure> measureLines(std::span<const Line> lines, ColumnSpan column, const ParagraphContext& context,
                                      const ParagraphParameters& parameters);

/// True when the first word of `next` would have had room in `free` points behind the last word of `before`.
bool wouldHaveFitted(const LineMeasure& before, const LineMeasure& next, double free, double slack);

/// True when the sentence of `before` goes on in `next`: in lower case, or within a script without capitals.
bool sentenceGoesOn(const LineMeasure& before, const LineMeasure& next);

} // namespace orvane::layout
