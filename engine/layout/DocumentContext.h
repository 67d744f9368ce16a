#pragma once

#include "base/Geometry.h"
#include "layout/paragraphs/CompoundWords.h"
#include "layout/structure/PageMaking.h"
#include "layout/text/WordDivision.h"

#include <string>
#include <unordered_set>

namespace orvane::layout {

/// What the pages of a document have in common; the stages that work on one page compare against it. Units: points.
struct DocumentContext {
    int pageCount = 0;
    double bodyFontSize = 11;   ///< the size in which most characters are set
    double bodyLeading = 13.4;  ///< the most frequent distance from baseline to baseline at that size
    Rect textArea;              ///< within which most pages set their text, running heads aside; page space
    bool isRightToLeft = false; ///< most words are
    WordDivision division = WordDivision::Sometimes;
    bool doublesBlanks = false; ///< two blanks are typed between sentences
    bool partsScripts = false;  ///< blanks are typed between East Asian and other letters
    std::string language;       ///< BCP 47, as the words tell it; empty where they do not
    std::unordered_set<std::string>
        vocabulary;                         ///< words that stand whole within a line, lower case; to judge hyphens by
    CompoundWords compounds;                ///< among them
    PageMaking making = PageMaking::Author; ///< as the file and the division of its words tell
};

} // namespace orvane::layout
