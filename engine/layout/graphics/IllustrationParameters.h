#pragma once

namespace orvane::layout {

/// Thresholds of ScanIllustrations: what a scan shows besides its words. A field says its unit and its meaning.
struct IllustrationParameters {
    double inkSquare = 4.0;   ///< points; ink is looked for so coarsely
    double inkGap = 8.0;      ///< points; parts of one illustration lie this close
    double wordMargin = 0.35; ///< of the font size; ink this near to words that were read is theirs
    double smallest = 40.0;   ///< points, each side; less is a blot, a rule or a letter that was not read
    double largest = 0.8;     ///< of the page's area; more is the paper's own shade
    double wordShare = 0.05;  ///< of its area; with more it is ruled or shaded text
    double edge = 8.0;        ///< points; what comes so near to opposite edges of the page is the scanner's shadow
};

} // namespace orvane::layout
