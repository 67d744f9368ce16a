#pragma once

namespace orvane::layout {

/// Thresholds of the folder `assembly`: what is written into the document. A field says its unit, its meaning and what
/// taught its value.
struct AssemblyParameters {
    /// TextAssembler: from spans to runs.
    struct Text {
        double naturalScale = 0.03; ///< of the natural width; glyphs stretched by less are taken as natural
    } text;

    /// HangulLines: a Korean word has three or four syllables; where words are cut at random every fourth line ends
    /// between two.
    struct HangulLines {
        int endsForOne = 5; ///< one in so many ends of lines with a blank shows that blanks are painted there
        int fewestEnds = 3; ///< with a blank; fewer may be chance
    } hangulLines;

    /// LineMetrics, ParagraphFormat, SpacingFinder: white space, as its author typed it.
    struct Spacing {
        double lowestMultiple = 0.7;  ///< line spacing below this is an exact height
        double leastChosen = 0.95;    ///< a multiple below this is none that people choose, but a height
        double overlap = 0.55;        ///< of single spacing; lines this close lie over each other: no height says so
        double highestMultiple = 3.5; ///< likewise above
        double nearGrid = 0.012;   ///< of single spacing; East Asian lines may stand on a grid this near to a multiple
        double roundedLine = 0.07; ///< points; by so much the rounded height of a line differs from its font's
        double coarsePlace = 0.1;  ///< points; steps in which some files tell where lines stand
        double smallestIndent = 1.0;    ///< points; less is noise
        double smallestEndIndent = 3.0; ///< points; likewise where lines that look justified end before their column
        double sameGap = 0.6;           ///< points; gaps between paragraphs that differ by less are one
        double smallestSpacer = 1.0;    ///< points; less space above a table needs no paragraph of its own
        double largestGap = 72.0;       ///< points; what is more is an empty part of the page, which no style has
        double sameGrid = 0.05; ///< points; East Asian lines whose distance a multiple misses by more stand on a grid
        double roundHeight = 0.12; ///< points; a height this near to a multiple of half a point was meant to be it
        double usualShare = 0.25;  ///< of the gaps behind a style's paragraphs that must agree to be the style's
    } spacing;

    /// TabStopFinder.
    struct Tabs {
        double edgeTolerance = 2.0;   ///< points; text that ends this near the column's edge was set against it
        double centerTolerance = 2.0; ///< points; likewise for its middle
        double sameStop = 2.0;        ///< points; stops nearer to each other are one
    } tabs;

    /// StyleMaker: what differs by less than this has the style's value.
    struct Styles {
        double longerShare = 0.25;   ///< of the paragraphs that must have several lines for these to tell the indents
        double sameIndent = 1.0;     ///< points
        double sameMultiple = 0.016; ///< of single spacing
        double sameHeight = 0.3;     ///< points; of lines of an exact height
        double leastHeight = 0.75;   ///< of the font size; lower lines cut off their letters
    } styles;

    /// TableAssembler.
    struct TableCells {
        double usualMargin = 5.4;   ///< points; between a cell's side and its text, unless less is seen
        double largestMargin = 6.0; ///< points; above and below the text; more comes from the row's height
        double slackBelow = 0.6;    ///< points; of the room below the text that is not written as a margin
        double slackBeside = 0.6;   ///< points; likewise of the room where its lines end
        double lineSlack = 0.25;    ///< points; so much higher than its cell the line of a font may come out
        double emptyLeading = 1.3;  ///< of the font size; the lines of an empty cell are no higher
        double leastDrop =
            0.8; ///< of the font size; a text that begins by more below others of its row is below a blank line
    } tableCells;

    /// LineSpare: lines that are all of their paragraphs.
    struct LineSpares {
        double share = 0.1; ///< of the line's width, by which a stand-in for its font may be wider ...
        double most = 12;   ///< ... in points
    } lineSpares;

    /// FigureAssembler.
    struct Figures {
        double alignmentTolerance =
            3.0;                     ///< points; a picture this near to the middle or edge of its column was set there
        double hangingReach = 24;    ///< points; what lies behind text hangs on a paragraph that is so near ...
        double largestHanging = 0.5; ///< ... unless it covers more of the page: then it belongs to that
    } figures;
};

} // namespace orvane::layout
