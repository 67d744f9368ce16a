#pragma once

#include "layout/page/PageLayout.h"
#include "layout/page/PageParameters.h"

#include <optional>
#include <span>

namespace orvane::layout {

/// A text of its own beside a table: an address beside the box with number and date, say.
struct TextBesideTable {
    Rect table;
    double top = 0; ///< of both
    double bottom = 0;
    bool isTextLeft = true;
};

/// The first table that has text on one side, and only there. Text that flows around the table is none. Requires:
/// `lines` upright, from top to bottom.
std::optional<TextBesideTable> findTextBesideTable(std::span<const Line> lines, std::span<const Rect> tables,
                                                   const PageParameters::Regions& parameters);

} // namespace orvane::layout
