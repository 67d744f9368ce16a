#pragma once

#include <cstddef>

namespace orvane::layout {

/// Thresholds of the folder `page`: columns and reading order. A field says its unit, its meaning and what taught its
/// value.
struct PageParameters {
    /// FreeDrawings: rules and grounds that no other stage took.
    struct FreeDrawings {
        double gap = 3;            ///< points; those that lie this close are one drawing
        double speck = 1;          ///< points; what is smaller both ways is not seen
        double coveredShare = 0.6; ///< of a picture that a ground painted over it covers for it to lie behind the text
        double cellReach = 0.5;    ///< points; by which what is drawn in a table's cell may stick out of it
        std::size_t shapesOfDocument = 1500; ///< rules and grounds; word processors lay out thousands for minutes
        std::size_t leastShapesOfPage = 4;   ///< however many pages there are
        std::size_t mostJoined = 20000; ///< rules and grounds of a page; among more nobody looks for those of one look
    } freeDrawings;

    /// ColumnSeparators: rules between columns.
    struct Separators {
        double thickest = 3;       ///< points; broader ones are bars
        double slack = 1;          ///< points; how far into a column's room it may stand
        double lowestBand = 24;    ///< points; beside less it may be anything
        double leastShare = 0.8;   ///< of the band's height that it reaches over
        double insideShare = 0.75; ///< of its length within the columns; one that reaches farther is drawn as it is
        // ColumnStrips: rules that part whatever stands at their sides.
        double pageShare = 0.5;      ///< of the page's height that it has at least
        double touch = 1.5;          ///< points; what ends this near to it touches it
        std::size_t fewestLines = 6; ///< of text at each side
        double sameBaseline = 0.5;   ///< points; lines whose baselines are this near stand side by side
        double sharedLines = 0.7;    ///< of the fewer ones that may stand beside a line of the other side
    } separators;

    /// ColumnGutter, RegionFinder: where columns are.
    struct Regions {
        double narrowGutter = 0.7;    ///< of the font size; narrower gaps never part columns
        double wideGutter = 1.5;      ///< of the font size; from here on few rows are enough to believe in it
        int minimumRows = 3;          ///< rows on each side of a wide gutter
        int minimumRowsNarrow = 6;    ///< rows on each side of a narrow one: blanks of justified lines meet by chance
        double minimumColumn = 8;     ///< of the font size; narrower columns are labels, not prose
        double minimumFill = 0.55;    ///< share of the column that its rows cover; less is labels and values, not prose
        double columnStep = 1.0;      ///< of the font size; a line farther from its column's rows is not of the column
        double paragraphStep = 2.5;   ///< of the font size; the same for lines that fill the column
        double paragraphIndent = 2.5; ///< of the font size; the first line of a paragraph may begin so far in
        double sliceBlank = 1.0;      ///< of the font size; where less is blank across the page, columns run on
        double handEndedBlank =
            0.75; ///< of a column's width; with as much blank up to the other margin nobody wraps lines there
        std::size_t minimumEdgeLines = 10; ///< with fewer lines in a column each may be as wide as it
        double edgeShare =
            0.04; ///< of a column's lines, besides the outermost, that must end near an edge for it to be one ...
        std::size_t edgeLines = 3;       ///< ... but never more than so many
        double edgeReach = 1.0;          ///< of the font size; lines that end this near to each other end at one edge
        double sameMiddle = 0.25;        ///< of the font size; centred lines stand about one middle as exactly as this
        int rowsOfHead = 2;              ///< a name and where he or she works; one line is a heading of the column
        std::size_t fewestBeside = 2;    ///< lines beside a table that are a text of its own
        int maximumDepth = 8;            ///< how often parts are parted again
        std::size_t maximumStrips = 200; ///< empty strips followed at once
        double widestMargin = 0.45;      ///< of the other column's width; names in the margin take up no more
        double nameStep = 1.4;           ///< of the font size; names that stand closer are lines of a text
        double nameShare = 0.6;          ///< of the margin's lines that must be such names
        double sameRow = 0.5;            ///< of the font size; texts whose middles are nearer stand on one row
        double clearGutter = 3.0;        ///< of the font size; between texts that do not fill their columns
        double titleIndent = 4.0;        ///< of the font size; a title in the middle of the page begins farther in
        double textStep = 2.0;           ///< of the font size; lines that stand farther apart are not of one text
        double shortestText = 2.0;       ///< of the font size; what is narrower is a sign, not a line of text
        double levelStep = 0.12;         ///< of the font size; baselines that differ by no more are level
        double levelShare = 1.0 / 3;     ///< of the lines of columns that may be level with one of the other column
    } regions;

    /// ReadingOrder: where tables and figures come among the lines.
    struct ReadingOrder {
        double besideShare =
            0.3; ///< of the lower of the two; a line that shares more height with a figure stands beside it
        double acrossShare = 0.25; ///< of a column; what covers as much of two leads across them
        double bandSlack = 0.5; ///< of the body's font size; what reaches no farther into the lines stands above them
    } readingOrder;

    /// PageLayouter: lines that do not run across the page.
    struct TurnedText {
        std::size_t fewestOfPage =
            4;                     ///< so many lines, and more than there are level ones, are a page laid on its side
        double turnedShare = 0.85; ///< of a page's letters; with so many turned one way the page is turned back
        std::size_t fewestLetters = 60; ///< of such a page
        double edgeShare = 0.35;        ///< of all letters; the level ones of its head and foot are no more
    } turnedText;

    /// FacingPages: margins of books, wider on the inner side or on the outer one.
    struct FacingPages {
        std::size_t fewestPages = 3; ///< of each side that show their edges
        std::size_t fewestLines = 8; ///< of such a page
        double leastShift = 4;       ///< points; margins that differ by less are alike
        double sameEdge = 1.5;       ///< points; lines that start or end this near to each other do so at one edge
        double edgeShare = 0.15;     ///< of a page's lines that must start or end at one for it to be the margin
        double agreeing = 0.8;       ///< of the pages of a side that must have its edges
    } facingPages;

    /// MarginNumbers: numbers in the margin beside the lines of a draft.
    struct LineNumbering {
        std::size_t fewestOfPage = 5;  ///< numbers of a page ...
        std::size_t fewestOfSteps = 3; ///< ... that count by more than one, from page to page
        double rowsOfStep = 0.5;       ///< of the lines between two such numbers that have some text
        double sameBaseline = 0.3;     ///< of the font size
        double sameEdge = 1.5;         ///< points; at which the numbers start or end
        double leastGap = 0.5;         ///< of the font size; between number and text
        double pageShare = 0.6;        ///< of the pages with text that must have such numbers
        double steadyShare = 0.9;      ///< of a page's numbers that must count on from the one before
        double proseShare = 0.15;      ///< of the lines beside them that must go on in lower case: they are no list
        double fullWidth = 0.5;        ///< of the page's width; shorter lines do not show that they go on
    } lineNumbering;
};

} // namespace orvane::layout
