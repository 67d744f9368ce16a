#pragma once

#include "layout/fonts/FontCatalog.h"
#include "layout/frames/FrameParameters.h"
#include "layout/text/PageText.h"

#include <optional>
#include <span>
#include <vector>

namespace orvane::layout {

/// A word on its line. Units: points, along the line in the direction of reading.
struct WordMeasure {
    double start = 0;        ///< on the page, from where the part of the line starts
    double width = 0;        ///< on the page
    double naturalWidth = 0; ///< as a word processor sets it
    int blanks = 0;          ///< before it
    double naturalBlank = 0; ///< width of one of them, likewise
};

/// The words of a part of a line.
struct PartMeasure {
    std::vector<WordMeasure> words;
    bool knowsBlanks = true; ///< the fonts' blanks are of known widths

    double width() const;        ///< of the words alone, on the page
    double naturalWords() const; ///< likewise, as a word processor sets them
    double naturalWidth() const; ///< blanks included
};

/// True for lines whose boxes are as long as they are: level ones, and those that run up or down the page.
bool isMeasurable(const Line& line);

/// How far the box reaches along the line.
double lengthAlong(const Rect& box, const Line& line);

/// True when the paragraph's letters are as wide in every word processor, in their families themselves or in the twins
/// it has instead, so that the lines are as wide as they were fitted to be.
bool areWidthsKnown(const ParagraphDraft& text, std::size_t page, const FontCatalog& fonts);

/// Reads how wide the words of one page would be.
class LineMeter {
public:
    LineMeter(std::size_t page, const FontCatalog& fonts, Tracking tracking,
              const FrameParameters::TextBoxes& parameters);

    /// nullopt for parts that cannot be measured: those that are mostly of a family whose widths nobody knows.
    /// Requires: isMeasurable(line).
    std::optional<PartMeasure> measure(const Line& line, std::span<const Word> words) const;

private:
    double naturalBlank(const Look& look) const;
    std::optional<double> naturalWidthOf(const Span& span, double length) const;
    double ownWidthOf(const Span& span, double length, std::size_t characters) const;

    std::size_t m_page;
    const FontCatalog& m_fonts;
    Tracking m_tracking;
    const FrameParameters::TextBoxes& m_parameters;
};

} // namespace orvane::layout
