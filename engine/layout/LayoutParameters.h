#pragma once

#include <cstddef>

/// Every threshold of the layout stages. A field says its unit, its meaning and what taught its value.
namespace orvane::layout {

struct LayoutParameters {
    struct Words {
    } words;

    /// TextAssembler: from spans to runs.
    struct Text {
        double naturalScale = 0.02;      ///< of the natural width; glyphs stretched by less are taken as natural
    } text;

    /// TabStopFinder.
    struct Tabs {
        double edgeTolerance = 2.0;      ///< points; text that ends this near the column's edge was set against it
        double centerTolerance = 2.0;    ///< points; likewise for its middle
        double sameStop = 2.0;           ///< points; stops nearer to each other are one
    } tabs;

    /// LineMetrics, ParagraphFormat, SpacingFinder: white space, as its author typed it.
    struct Spacing {
        double lowestMultiple = 0.7;     ///< line spacing below this is an exact height
        double highestMultiple = 3.5;    ///< likewise above
        double multipleTolerance = 0.012;///< a multiple this near to a usual one (1.0, 1.15, 1.5 ...) is that one
        double smallestIndent = 1.0;     ///< points; less is noise
        double smallestGap = 0.5;        ///< points; likewise between paragraphs
        double largestGap = 200.0;       ///< points; what is more is an empty part of the page, not space after a paragraph
    } spacing;

    /// FigureAssembler.
    struct Figures {
        double alignmentTolerance = 3.0; ///< points; a picture this near to the middle or edge of its column was set there
    } figures;

    /// TableAssembler.
    struct TableCells {
        double usualMargin = 5.4;        ///< points; between a cell's edge and its text, unless less is seen
    } tableCells;

    /// DocumentAnalyser: what most of the document looks like.
    struct Analysis {
        double sizeStep = 0.5;           ///< points; font sizes are counted in classes of this width
        double leadingStep = 0.25;       ///< points; distances between baselines are counted in classes of this width
        double maximumLeading = 3.0;     ///< of the font size; lines farther apart say nothing about leading
        double minimumLeading = 0.5;     ///< of the font size; lines closer together are one line, or scripts on it
        double defaultLeading = 1.2;     ///< of the font size; where no two lines stand one below the other
        double edgeShare = 0.1;          ///< the text area's edge is where this share of the pages (or lines) has passed it
        int minimumWordLength = 3;       ///< bytes of UTF-8; shorter words say nothing about hyphens
    } analysis;

    /// TableFinder and its stages: what is drawn as a grid, and what words set as one.
    struct Tables {
        // The drawn grid. Producers paint borders cell by cell, so ends and positions differ by about a border's width.
        double joinGap = 3.0;           ///< points; rules that end this near to each other or to a crossing meet
        double lineSnap = 3.0;          ///< points; parallel rules this near have no room for text between them: one line
        double minimumLineLength = 4.0; ///< points; shorter ones are dots, ticks, corners
        double minimumCellSide = 5.0;   ///< points; lines that overshoot the outermost crossing line by less end there
        double missingShare = 0.1;      ///< of a cell's side that may be undrawn for the side to count as drawn
        double doubledShare = 0.8;      ///< of its length that a line must have a second rule beside it to be a double line
        double borderCover = 0.6;       ///< of a cell's side that rules must cover to be its border
        int maximumPlaces = 20000;      ///< rows times columns; beyond it stand maps and charts

        // Words and cells.
        double straddle = 0.5;          ///< of the font size; how far a word may reach beyond its cell sideways
        double straddleHeight = 0.35;   ///< of the text's height; how far it may reach beyond its cell up or down
        double straddleShare = 0.3;     ///< of a word outside the grid that must lie within for it to be straddling
        double straddlingShare = 0.03;  ///< of a table's words that may straddle

        // What is no table.
        double forcedShare = 0.15;      ///< of the cells that may come out of shapes that are no rectangles
        double filledShare = 0.5;       ///< of the cells of some row or column that must hold text
        double minimumRowHeight = 0.8;  ///< of the font size; a lower row has no room for its text
        double flatShare = 0.3;         ///< of the filled cells that may be lower than their text
        double figureShare = 0.9;       ///< of a drawing's part within the table that must lie in one cell
        double frameCellShare = 0.4;    ///< of the page; a cell larger than this ...
        double frameWordShare = 0.7;    ///< ... that holds this much of the table's words makes it a frame around the page

        // The look of cells.
        double shadingCover = 0.6;      ///< of a cell that a ground must cover to be its shading
        double edgeTolerance = 0.15;    ///< of the font size; text edges that differ by less are aligned
        double uprightRoom = 0.8;       ///< of the font size; with less room above and below, upright alignment shows nothing
        double uprightTolerance = 0.35; ///< of the font size; room above and below that differs by less is equal
        double baselineSnap = 0.2;      ///< of the font size; baselines in a cell this near are one line
        double tabGap = 0.8;            ///< of the font size; a wider gap between words of one line is a tab
        double paragraphPitch = 1.6;    ///< of the font size; lines of a cell farther apart are two paragraphs
        double blankWidth = 0.25;       ///< of the font size; the blank before a word that did not fit
        int maximumHeaderRows = 4;      ///< more rows that look alike are no head
        double headerLikeShare = 0.25;  ///< of the other rows that may look like the head
    } tables;

    /// ListMarker: the labels of list items.
    struct Markers {
        double separation = 0.65; ///< of the font size; a wider gap behind the label is a tabulator's work, not a blank
    } markers;

    /// LineMeasures, ParagraphBreaks, ParagraphShape: lines of one column become paragraphs.
    struct Paragraphs {
        double edgeTolerance = 0.25;  ///< of the font size; edges closer than this are one edge
        double flushTolerance = 0.08; ///< of the font size; a justified line ends this close to the column's edge
        double fitSlack = 0.05;       ///< of the font size; what a word must leave free to have "fitted"
        double minimumCenterIndent =
            0.9; ///< of the font size; a line with less room beside it may be a full line by chance
        double leadingTolerance = 1.15;     ///< of the usual leading; lines farther apart have space between paragraphs
        double looseLeadingTolerance = 1.4; ///< likewise where the usual leading of this font size is only guessed
        double maximumLeading = 3.0; ///< of the font size; lines farther apart are never of one paragraph
        int leadingSamples = 3;      ///< line pairs that show a leading wider than the document's before it is believed
        double sameRow = 0.3;               ///< of the font size; baselines closer than this stand on one row
        double sizeChange = 1.1;            ///< ratio of font sizes from which lines look different
        double maximumFirstLine = 8; ///< of the font size; a deeper step of the left edge is no first-line indent
        int flushLines = 2;         ///< lines that must end at the edge before a shorter one ends a justified paragraph
        double stretchedGap = 1.06; ///< of the natural blank; wider gaps between words tell a justified line
        double fullLine = 2.5;      ///< of the font size; a column's last line with less room behind it may run on
    } paragraphs;

    /// ColumnGutter, RegionFinder: where columns are.
    struct Regions {
        double narrowGutter = 0.7; ///< of the font size; narrower gaps never part columns
        double wideGutter = 1.5;   ///< of the font size; from here on few rows are enough to believe in it
        int minimumRows = 3;       ///< rows on each side of a wide gutter
        int minimumRowsNarrow = 6; ///< rows on each side of a narrow one: blanks of justified lines meet by chance
        double minimumColumn = 8;        ///< of the font size; narrower columns are labels, not prose
        double minimumFill = 0.55;       ///< share of the column that its rows cover; less is labels and values, not prose
        double columnStep = 1.0;   ///< of the font size; a line farther from its column's rows is not of the column
        int maximumDepth = 8;      ///< how often parts are parted again
        std::size_t maximumStrips = 200; ///< empty strips followed at once
    } regions;

    /// ReadingOrder: where tables and figures come among the lines.
    struct ReadingOrder {
        double besideShare =
            0.3; ///< of the lower of the two; a line that shares more height with a figure stands beside it
    } readingOrder;
};

} // namespace orvane::layout
