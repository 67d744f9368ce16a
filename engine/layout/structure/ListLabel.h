#pragma once

#include "document/Document.h"
#include "layout/LayoutParameters.h"
#include "layout/paragraphs/ListMarker.h"
#include "layout/structure/DocumentDraft.h"
#include "layout/structure/TypedBlanks.h"

#include <optional>
#include <string>
#include <vector>

namespace orvane::layout {

/// The label of a paragraph that may be a list's item, as numbering would write it.
struct ListLabel {
    document::NumberFormat format = document::NumberFormat::Bullet;
    std::vector<int> numbers; ///< "2.1" gives two; empty for bullets
    std::string before;       ///< what stands before the (last) number: "(", "Step "
    std::string after;        ///< and behind it: ".", ")", ".0"
    std::string bullet;       ///< of a bullet
    bool isStrong = false;    ///< nothing but a list has such a label
    bool isTyped = false;     ///< a painted blank is all that parts it from the text
    bool isSet = false;       ///< a program put it there: there is no blank where one would have been painted
    bool hangs = false;       ///< the lines after the first stand further in
    double labelStart = 0;    ///< from the column's start edge, points
    double textStart = 0;     ///< of what follows it
    bool isSeparated = false; ///< by more than a blank

    /// "1", which a list writes as seldom as a table writes it often.
    bool isBare() const { return numbers.size() == 1 && before.empty() && after.empty(); }
    int number() const { return numbers.empty() ? 0 : numbers.back(); }
};

/// The readings of a paragraph's label, the likelier first: "i)" may be a letter or a numeral. Empty when there is
/// none.
std::vector<ListLabel> readListLabel(const DraftParagraph& paragraph, TypedBlanks blanks,
                                     const LayoutParameters& parameters);

/// True when both are labels of one kind of list: bullets of one sign, or numbers written alike.
bool isSameKind(const ListLabel& a, const ListLabel& b);

} // namespace orvane::layout
