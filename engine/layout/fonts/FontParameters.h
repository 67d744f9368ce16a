#pragma once

#include <cstddef>

namespace orvane::layout {

/// Thresholds of the folder `fonts`: families of the document for fonts of the PDF. A field says its unit, its meaning
/// and what taught its value.
struct FontParameters {
    /// FontFitter: families that stand in for fonts that word processors do not have.
    struct FontFit {
        double leastCoverage = 0.8; ///< of a font's characters; a family that knows the widths of fewer is not its kin
        std::size_t leastCharacters = 12; ///< fewer say nothing about widths
        std::size_t mostSamples = 2000;   ///< pieces of text of one face; more make the result no better
        double leastStretch = 0.02;       ///< of the natural width; less is kerning
        double greatestStretch =
            0.3;                  ///< of the natural width; letters drawn out by more are no longer those of the family
        double stretchCost = 0.3; ///< of the error in widths that a stretch of the same share counts as
        double faceDifference = 0.03; ///< of the natural width; faces of a family this close are stretched alike
    } fontFit;

    /// SqueezedLines: justified lines that are fuller than word processors fill them.
    struct Squeeze {
        std::size_t fewestLines = 10; ///< of a family; fewer say nothing
        std::size_t fewestWords = 4;  ///< of a line
        double leastSqueeze = 0.003;  ///< of the width; a line that is natural by more was squeezed
        double squeezedShare = 0.08;  ///< of the lines; with so many of them squeezed it is how the text was set
        double fittingShare = 0.95;   ///< of the lines that are to fit
        double mostMisfit = 0.04;     ///< of the width; a line farther off is not what it seems
    } squeeze;

    /// FallbackFonts: fonts that helped out for letters the chosen font does not have.
    struct Fallbacks {
        std::size_t fewestSigns = 3; ///< bytes of digits and punctuation it takes to see the chosen font
        double sureShare = 0.9;      ///< of what stands in a font that must be letters, and of the signs in one font
    } fallbacks;

    /// CarriedFonts: fonts that travel with the document.
    struct Carried {
        double leastCoverage = 0.98; ///< of the text's characters; what is missing is shown in another face
    } carried;
};

} // namespace orvane::layout
