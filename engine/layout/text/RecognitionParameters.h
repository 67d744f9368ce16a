#pragma once

#include <cstddef>

namespace orvane::layout {

/// Thresholds of RecognisedWidths: the words of a scan. A field says its unit and its meaning.
struct RecognitionParameters {
    double gap = 0.15;            ///< of the font size; wider gaps part words where no blank is painted
    std::size_t shortestWord = 3; ///< characters of a word whose room tells how wide it was
    std::size_t fewestWords = 20; ///< of a page; of fewer there is no middle to trust
    double leastStretch = 1.3;    ///< of the set width; less is what justified lines have
    double leastBlank = 0.8;      ///< of the blank; what is left between stretched words
};

} // namespace orvane::layout
