#pragma once

#include <cstddef>

namespace orvane::layout {

/// Thresholds of the folder `structure`: what paragraphs are to the whole document. A field says its unit, its meaning
/// and what taught its value.
struct StructureParameters {
    /// TextEdges, PageSetup, SectionMaker: paper, margins, columns, page breaks.
    struct PageSetup {
        double sameSize = 1.5;      ///< points; paper sizes that differ by less are one
        double sameEdge = 1.5;      ///< points; lines that start this near start at one edge
        double edgeShare = 0.03;    ///< of the lines that must start at an edge for it to be the margin
        double fullWidth = 0.5;     ///< of the widest line; narrower ones that go on tell nothing about the edge
        int flushLines = 5;         ///< so many justified lines show the end edge
        double dissent = 0.03;      ///< of the lines that may contradict two margins of one width
        double blank = 0.25;        ///< of the font size; the blank before a word that had no room
        double farInside = 24.0;    ///< points; text that starts so far within most tables does not show the margin
        double roomSlack = 0.5;     ///< points; a line may be this much longer than measured
        double breakSlack = 1.0;    ///< points; likewise for pages
        double tidyTolerance = 0.4; ///< points; a margin this near to a round number is meant to be it
        double usualMargin = 72.0;  ///< points; of pages that show none
        double leastMargin = 14.0;  ///< points; nearer to the edge printers do not reach
        double endRoom = 0.05;      ///< of the text's height; what may come out higher than it stood, tables above all
        double sameColumn = 12.0;   ///< points; columns of bands that differ by less are those of one section
        double smallestColumnGap = 6.0; ///< points; between columns
        double widestColumnGap = 54.0;  ///< likewise, where no line shows that it ends at a column's edge
        double besideShare = 0.25; ///< of a picture's height; with more in common two do not stand one below the other
        double lowStart = 12.0;    ///< points; so far below the top margin no program starts a full page
        double startRoom = 6.0;    ///< points; with so much room left on the page before, a page was started by hand
        double samePitch = 1.0;    ///< points; distances of lines that differ by no more are even
        double floatRoom =
            0.1; ///< of the text's height; with so much room above no program began a page, but its author did
    } pageSetup;

    /// HeadingFinder, HeadingStyles: headings where only their looks tell them.
    struct Headings {
        int maximumLines = 3;
        int maximumLength = 160;            ///< characters
        double lookShare = 0.85;            ///< of the characters that one look must have to be the paragraph's
        double largerSize = 1.12;           ///< of the body text's size; from there on letters are larger
        double letterShare = 0.12;          ///< of the document's letters; a look with more is not that of headings
        double crowdedShare = 0.34;         ///< of a look's paragraphs that may be followed by another of the same look
        double titleSize = 1.35;            ///< of the body text's size
        int titleParagraphs = 3;            ///< more in the largest letters are no title
        std::size_t longestTitleBlock = 20; ///< paragraphs; what is centred for longer is text, verse for instance
        int fewestNumerals = 3;             ///< sections that show what the numerals before them stand for
    } headings;

    /// HandBreaks: lines that were ended by hand, not by the end of a paragraph. Spaces are shares of the leading.
    struct HandBreaks {
        double closeSpace = 0.12;     ///< less is none
        double leastSpace = 0.35;     ///< of paragraphs that are set apart
        double greatestSpace = 1.5;   ///< more is not that of a style
        double wholeLine = 0.85;      ///< from there on it may be an empty line
        double sameSpace = 0.12;      ///< spaces that differ by less are one
        std::size_t fewestSpaced = 5; ///< pairs of paragraphs with space before it is believed
        double closeShare = 1.0;      ///< of these; so many more without space show that paragraphs may have none
        double usualShare = 0.6;      ///< of these; that must have the same space
        double sameEdge = 1.5;        ///< points; edges closer than this are one edge
        double sameSize = 0.5;        ///< points; of the fonts
    } handBreaks;

    /// ListLabel, ListGroups, ListFinder.
    struct Lists {
        double sameIndent = 3.0;       ///< points; labels or texts that start this near to each other are of one level
        std::size_t fewestBlanks = 20; ///< between words; fewer do not tell whether the file has them
        double paintedShare = 0.8;     ///< of them; with so many the file has all
    } lists;

    /// FloatOverlays: figures beside the text.
    struct Floats {
        double sharedHeight = 0.4;     ///< of the lower one of a line and a figure that stand side by side
        double sharedWidth = 2.0;      ///< points; text that reaches so far into a figure stands on it
        double leastRoomBeside = 57.0; ///< points; word processors set no text into less (two centimetres)
        std::size_t fewestOfSlide = 4; ///< figures of a page that has no more lines of text than them: a slide
    } floats;

    /// ContentsFinder: tables of contents.
    struct Contents {
        std::size_t fewestEntries = 3; ///< that follow each other
        double sureShare = 0.6;        ///< of the entries that must have a leader, or name what stands elsewhere
        double sameIndent = 3.0;       ///< points; entries that start this near to each other are of one level
        int deepestLevel = 9;          ///< that word processors know
    } contents;

    /// NoteAreas, NoteFinder: footnotes and endnotes.
    struct Notes {
        double shortestRule = 0.07;   ///< of the page's width; of the rule above the notes
        double longestRule = 0.45;    ///< likewise
        double largestGap = 30.0;     ///< points; between the rule and the first note
        double largestSize = 1.05;    ///< of the body text's size
        double edgeTolerance = 12.0;  ///< points; the rule starts this near to where the text starts
        double columnReach = 120.0;   ///< points; text this far above the rule tells the columns
        double narrowestColumn = 0.2; ///< of the page's width
        double footSize = 0.92;       ///< of the body text's size; notes with no rule above them are smaller
        double loneMarkSize = 0.7;    ///< likewise; a mark on a line by itself, beside a picture for instance
        double twinEnds = 1.0;        ///< points; between the ends of the rules of one table
        double largestIndent = 24.0;  ///< points; of the text of notes whose marks start where the rule does
        double footReach = 0.85;      ///< of the page's height; what ends below stands at the page's foot
    } notes;
};

} // namespace orvane::layout
