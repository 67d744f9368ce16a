#pragma once

#include <cstddef>

namespace orvane::layout {

/// Thresholds of the folder `truepage`: text where it stood. A field says its unit, its meaning and what taught its
/// value.
struct TruePageParameters {
    /// FrameCutter, FrameAssembler: text where it stood.
    struct TruePage {
        double widestBlank = 1.8;         ///< of the font size; text behind a wider gap has a place of its own
        double lowestPitch = 0.6;         ///< of the font size; lines nearer to each other stand side by side
        double highestPitch = 2.5;        ///< likewise; lines farther apart are of two paragraphs
        double pitchTolerance = 0.5;      ///< points; distances of lines that differ by more are no pitch
        double edgeTolerance = 1.0;       ///< points; edges of lines that differ by less are one
        double largestFirstLine = 4.0;    ///< of the font size; by how much a first line is indented, or hangs
        std::size_t fewestFlushLines = 3; ///< lines with two flush edges that are justified rather than alike by chance
        double protrusion = 0.4;        ///< of the font size; by how much hyphens and full stops stand out over an edge
        double roomForOtherFonts = 0.6; ///< of the text's width; where nothing is known of the widths of the font
        double room = 0.12;             ///< of the text's width; other fonts may need so much more
        double leastRoom = 6.0;         ///< points; likewise
        // LineFitter
        double fitSlack = 0.006;     ///< of the line's width; one that fills its box by more may not fit into it
        double leastStretch = 0.025; ///< of the width; text is not stretched by less
        double narrowest = 0.6;      ///< of the natural width; text that needs less is no fit
        double widest = 1.3;         ///< likewise
        double usualBlank = 0.25;    ///< em; where nothing is known of the font's blank
        std::size_t longestSign = 2; ///< characters; so much of a family of unknown widths harms no line
    } truePage;
};

} // namespace orvane::layout
