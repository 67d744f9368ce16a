#pragma once

#include <cstddef>

namespace orvane::layout {

/// Thresholds of the folder `running`: what repeats at the edges of pages. A field says its unit, its meaning and what
/// taught its value.
struct RunningParameters {
    /// RunningHeads: what repeats at the head and foot of pages.
    struct RunningHeads {
        double reach = 0.34;       ///< of the page's height; nothing farther from the edge is a running head
        double firstReach = 0.2;   ///< of the page's height; within which the outermost row stands
        int maximumRows = 12;      ///< from one edge
        double sameRow = 0.3;      ///< of the font size; baselines this near are one row
        double samePosition = 2.0; ///< points; rows of two pages this near stand in one place
        double sameSize = 0.6;     ///< points; of their fonts
        double chainGap = 30.0;    ///< points; rows of one head are not farther apart
        double bodyGap = 0.35;     ///< of the font size; between a head and the text, where few pages repeat it
        int surePages = 3;         ///< a head that so many pages repeat may touch the text
        double headingSize = 1.3;  ///< of the document's usual size; larger rows that count are headings
        double sameSide = 12.0;    ///< points; distances to both sides of the page that differ by less: a centred row
        double sidePart = 5.0;     ///< points; a rule this far within a row crosses it
        // FirstPageEdges
        double ownFootGap = 1.5; ///< of the font size; between a foot that only the first page has and all text
        double ownHeadGap =
            1.0; ///< of the font size; likewise between a head that only the first page has and the text
        double onlyNumberReach = 0.1;     ///< of the page's height; within which the only page's "1 of 1" stands
        std::size_t longestFirstFoot = 3; ///< rows
        int longestLetterhead = 40;       ///< rows; a letterhead in a table has more of them than heads that repeat
        double deepestFirstFoot = 120;    ///< points; the text of full pages ends no farther from the edge
        double fullFirstPage = 0.12;      ///< of the page's height; blank above the foot of a first page that is full
        double fullPage = 2;              ///< of the font size; full pages end within this of each other
        std::ptrdiff_t fewestAlike = 2;   ///< pages that show where the text begins or ends
        std::size_t longestOnlyRow = 24;  ///< bytes of a row that says nothing but "page 1 of 1"
        // OnlyPageEdges
        double onlyFootReach = 0.13;       ///< of the page's height; no row of the only page's foot begins farther in
        double onlyFootGap = 2.0;          ///< of the font size; between it and all text
        std::size_t longestOnlyFoot = 5;   ///< rows
        std::size_t longestNumberLink = 4; ///< bytes between a page's number and that of all pages: "of", "von"
        // HeadPlaces, RunningHeads
        double textShare =
            0.25; ///< of the pages with a head; where as many others start their text in its place, it is text
        double bodilessShare = 0.5; ///< of the pages; where more would be left empty, what repeats is the text
        // RepeatedRules
        double ruleShare = 0.4; ///< of the pages; so many have the border of a header or footer, some only on odd ones
        std::size_t mostEdgeRules = 6; ///< of one page beyond its text; more are a drawing
        // PageFrame
        double frameShare = 0.6;  ///< of the page's width and height that a frame around its text has at least
        double frameCorner = 3.0; ///< points; the sides of a frame end this near to each other
    } runningHeads;
};

} // namespace orvane::layout
