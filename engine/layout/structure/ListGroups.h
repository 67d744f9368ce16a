#pragma once

#include "layout/LayoutParameters.h"
#include "layout/structure/ListLabel.h"

#include <cstddef>
#include <vector>

namespace orvane::layout {

/// A paragraph that may be an item.
struct ListItem {
    DraftParagraph* paragraph = nullptr;
    ListLabel label;
    int level = 0;
    std::size_t run = 0;   ///< items of one run count on; a run that is too short is no list
    bool isNested = false; ///< its number repeats that of the level above: "2.1" below "2"
};

/// Items that one numbering may write.
struct ListGroup {
    std::vector<ListItem> items;
};

/// Parts labelled paragraphs, in reading order, into groups.
class ListGrouper {
public:
    ListGrouper(TypedBlanks blanks, const LayoutParameters& parameters)
        : m_blanks(blanks)
        , m_parameters(parameters) {}

    /// A paragraph of the flow.
    void add(DraftParagraph& paragraph);
    /// What comes next stands in another cell of the table's column: numbers may go on there, bullets and levels not.
    void startCell();

    std::vector<ListGroup> takeGroups() { return std::move(m_groups); }

private:
    struct OpenLevel {
        ListLabel label; ///< of its last item
        std::size_t run = 0;
        bool isNested = false;
    };
    struct OpenGroup {
        std::size_t group = 0;
        std::vector<OpenLevel> levels;
        std::vector<ListLabel> kinds; ///< of every level that was ever open
        bool isOfCellAbove = false;   ///< no item of this cell has gone on with it
    };

    bool goOn(DraftParagraph& paragraph, const ListLabel& label);
    bool nest(DraftParagraph& paragraph, const ListLabel& label);
    void start(DraftParagraph& paragraph, const ListLabel& label);
    void put(OpenGroup& open, DraftParagraph& paragraph, const ListLabel& label);
    bool isAtSameEdge(const ListLabel& a, const ListLabel& b) const;

    TypedBlanks m_blanks;
    const LayoutParameters& m_parameters;
    std::vector<ListGroup> m_groups;
    std::vector<OpenGroup> m_open; ///< the latest last
    std::size_t m_runs = 0;
};

} // namespace orvane::layout
