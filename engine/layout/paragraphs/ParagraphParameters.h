#pragma once

#include <cstddef>

namespace orvane::layout {

/// Thresholds of the folder `paragraphs`: from lines to paragraphs. A field says its unit, its meaning and what taught
/// its value.
struct ParagraphParameters {
    /// BorderFinder: what is drawn around paragraphs.
    struct Borders {
        double edgeTolerance = 1.0; ///< of the font size; a rule that ends this near to a paragraph's edge ends there
        double overhang = 1.0;      ///< points by which letters may reach over what is drawn around them
        double greatestSpace = 31;  ///< points between text and border. Source: ISO/IEC 29500-1, 17.3.1.7
        double pageShare = 0.8;     ///< of the page; larger grounds are the page's
        double filledShare = 0.35;  ///< of a ground's height that its paragraphs take if it is their shading
    } paragraphBorders;

    /// LineMeasures, ParagraphBreaks, ParagraphShape: lines of one column become paragraphs.
    struct Paragraphs {
        double edgeTolerance = 0.25;  ///< of the font size; edges closer than this are one edge
        double hangingShare = 0.25;   ///< of the font size; so far signs may reach over the edge of justified text
        double flushTolerance = 0.08; ///< of the font size; a justified line ends this close to the column's edge
        double fitSlack = 0.05;       ///< of the font size; what a word must leave free to have "fitted"
        double endAligned = 0.25; ///< of a line's width; with less room before it the line is full, not set to the end
        double minimumCenterIndent =
            0.9; ///< of the font size; a line with less room beside it may be a full line by chance
        double leadingTolerance = 1.15;     ///< of the usual leading; lines farther apart have space between paragraphs
        double looseLeadingTolerance = 1.4; ///< likewise where the usual leading of this font size is only guessed
        double maximumLeading = 3.0;        ///< of the font size; lines farther apart are never of one paragraph
        int leadingSamples = 3;      ///< line pairs that show a leading wider than the document's before it is believed
        double leadingShare = 0.25;  ///< of the line pairs of one font size that must show a leading for it to count
        double equalLeading = 1.03;  ///< ratio of distances up to which they are one leading
        double sameRow = 0.3;        ///< of the font size; baselines closer than this stand on one row
        double sizeChange = 1.1;     ///< ratio of font sizes from which lines look different
        double maximumFirstLine = 8; ///< of the font size; a deeper step of the left edge is no first-line indent
        int flushLines = 2;     ///< lines that must end at the edge before a shorter one ends a justified paragraph
        int justifiedLines = 3; ///< lines flush with the edge that show a column to be justified, if they are ...
        double justifiedShare = 0.6; ///< ... this share of those that run on of themselves
        double stretchedGap = 1.06;  ///< of the natural blank; wider gaps between words tell a justified line
        double ownEdge =
            1.0; ///< of the font size; lines that all end this far before the column's edge may have their own
        double proseShare = 0.6; ///< of a block's lines that must be full, and of those whose sentence must go on, for
                                 ///< their longest to show its edge
        double typescriptShare = 0.9; ///< of a column's lines in letters of one width; fewer are programs within text
        double fullLine = 2.5;        ///< of the font size; a column's last line with less room behind it may run on

        /// RaggedLines: text whose lines leave room that their next word would have had.
        struct Ragged {
            std::size_t fewestLines = 8; ///< that run on, before anything is learnt from them
            std::size_t wordsOfProse = 4;
            double leastShare = 0.1; ///< of the lines that run on; with fewer that leave room it is chance
            double proseShare = 0.8; ///< of the lines that run on leave no more room than ragged text does
            double usualShare = 0.9; ///< of the lines that leave room leave no more than this
            double mostRoom = 0.2;   ///< of the line's width that ragged text leaves
        } ragged;
    } paragraphs;

    /// ListMarker: the labels of list items.
    struct Markers {
        double separation = 0.65; ///< of the font size; a wider gap behind the label is a tabulator's work, not a blank
    } markers;
};

} // namespace orvane::layout
