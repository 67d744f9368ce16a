#pragma once

#include "document/Document.h"
#include "layout/LayoutParameters.h"
#include "layout/fonts/FontCatalog.h"
#include "layout/structure/DocumentDraft.h"

#include <optional>

namespace orvane::layout {

/// How far a line in single spacing, without its drop cap, reaches above and below its baseline. Units: points.
struct LineExtent {
    double ascent = 0;
    double descent = 0;
    bool isKnown = true; ///< false: a font of the line has metrics that are a guess

    double height() const { return ascent + descent; }
};

LineExtent extentOf(const Line& line, std::size_t page, const FontCatalog& fonts);

/// How far a word processor lets the line reach with that spacing. With a multiple above one the surplus is below the
/// text; an exact height, and a multiple below one, are parted four to one.
LineExtent spacedExtent(const LineExtent& natural, const document::LineSpacing& spacing);

/// The line spacing that its author set, read from the distances between the paragraph's lines; nullopt for a single
/// line.
std::optional<document::LineSpacing> lineSpacingOf(const DraftParagraph& paragraph, const FontCatalog& fonts,
                                                   const LayoutParameters& parameters);

} // namespace orvane::layout
