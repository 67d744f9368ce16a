#pragma once

#include <cstddef>

namespace orvane::layout {

/// Thresholds of the folder `frames`: text in boxes where it stood. A field says its unit, its meaning and what taught
/// its value.
struct FrameParameters {
    struct TextBoxes {
        // FrameCutter, assembly/FrameAssembler
        double widestBlank = 1.8;         ///< of the font size; text behind a wider gap has a place of its own
        double overlap = 0.3;             ///< of the font size; words that overlap by more stand by themselves
        double lowestPitch = 0.6;         ///< of the font size; lines nearer to each other stand side by side
        double highestPitch = 2.5;        ///< likewise; lines farther apart are of two paragraphs
        double pitchTolerance = 0.5;      ///< points; distances of lines that differ by more are no pitch
        double edgeTolerance = 1.0;       ///< points; edges of lines that differ by less are one
        double largestFirstLine = 4.0;    ///< of the font size; by how much a first line is indented, or hangs
        std::size_t fewestFlushLines = 3; ///< lines with two flush edges that are justified rather than alike by chance
        double protrusion = 0.4; ///< of the font size; by how much hyphens and full stops stand out over an edge
        double room = 0.6;       ///< of the text's width; other fonts may need so much more
        double leastRoom = 12.0; ///< points; likewise
        // truepage/ClippedText
        double sameSize = 0.1;   ///< points; type sizes of one entry
        double entryPitch = 1.5; ///< of the font size; farthest from the only line of a field that is seen to the next
        // FrameJoiner
        double sameBaseline = 0.3; ///< points; lines of one row
        double rowGap = 0.5;       ///< of the font size; between lines that a tabulator can part
        double rowSlack = 0.1;     ///< of the width before the gap; other fonts may need so much more of it
        // LineFitter
        double fitSlack = 0.006;     ///< of the line's width; one that fills its box by more may not fit into it
        double freeSlack = 0.025;    ///< likewise; one that nothing holds may be longer by so much
        double tightRoom = 1.0;      ///< points; besides, in a frame that is no wider than its lines
        double leastStretch = 0.005; ///< of the width; text is not stretched by less, for formats hold whole percents
        double narrowest = 0.6;      ///< of the natural width; text that needs less is no fit
        double widest = 1.3;         ///< likewise
        double usualBlank = 0.25;    ///< em; where nothing is known of the font's blank
        double leastBlank = 0.2;     ///< of a blank's width; words that stand closer would run into each other
        double greatestBlank = 6.0;  ///< likewise; no format stretches letters more
        double sameWordPlace = 0.3;  ///< points; words that stand that near to their places need no help
        double evenPlace = 0.8;      ///< points; likewise in justified text, whose blanks are even
        std::size_t longestSign = 2; ///< characters; so much of a family of unknown widths harms no line
    } textBoxes;
};

} // namespace orvane::layout
