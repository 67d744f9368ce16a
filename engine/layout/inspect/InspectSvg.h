#pragma once

#include "layout/page/PageLayout.h"

#include <optional>
#include <string>
#include <string_view>

namespace orvane::layout {

/// What a picture of a page shows.
enum class InspectStage : std::uint8_t {
    Words,      ///< boxes of words, by the gap before them
    Lines,      ///< boxes and baselines
    Rules,      ///< rules and grounds, by whether a stage took them, and figures
    Figures,    ///< pictures, drawings with their labels, formulas
    Regions,    ///< bands and columns
    Paragraphs, ///< everything in reading order, numbered
    Tables,     ///< grids and cells
};

std::optional<InspectStage> inspectStageFromName(std::string_view name);

/// A picture of what the stage saw, as SVG in page space with the page's text beneath. `layout` is needed for Regions,
/// Paragraphs and Tables; without it they show the text only.
std::string drawStage(const PageText& page, const PageLayout* layout, InspectStage stage);

} // namespace orvane::layout
