#pragma once

#include "layout/paragraphs/LineMeasures.h"

#include <span>
#include <vector>

namespace orvane::layout {

/// Why a line does not go on with the paragraph of the line before it.
enum class BreakReason : std::uint8_t {
    None,      ///< it does go on
    First,     ///< there is no line before it
    Position,  ///< it stands beside or above the line before, or is turned another way
    Formula,   ///< a formula stands on one of the two lines
    Marker,    ///< a list item starts
    Leading,   ///< there is space between the two
    Look,      ///< size or weight of whole lines changes
    Leader,    ///< rows of a table of contents, lines to write on
    Row,       ///< it has a tabulator to the same place as the line before: labels and values
    Indent,    ///< its edge is not that of the paragraph
    Fitted,    ///< its first word would have fitted behind the line before
    ShortLine, ///< the line before is not spread to the edge as those above it are
};

/// Tells for each line whether it starts a paragraph, and why.
/// Requires: `lines` from top to bottom, `measures` one for each.
std::vector<BreakReason> findBreaks(std::span<const Line> lines, std::span<const LineMeasure> measures,
                                    const ParagraphContext& context, const ParagraphParameters& parameters);

/// How two lines that follow each other are set against the column.
enum class PairAlignment : std::uint8_t { Start, Center, End };
PairAlignment alignmentOfPair(const LineMeasure& before, const LineMeasure& next, double fontSize,
                              const ParagraphParameters::Paragraphs& parameters);

} // namespace orvane::layout
