#pragma once

#include "layout/text/TextParameters.h"
#include "pdf/PageContent.h"

#include <vector>

namespace orvane::layout {

/// The squares drawn beside text to be ticked, as check boxes without a name; on where a cross or a tick is drawn or
/// written in them. Squares in a row for letters and digits are none, nor are those of tables, charts and legends.
std::vector<pdf::FormField> findDrawnBoxes(const pdf::PageContent& page, const TextParameters::DrawnBoxes& parameters);

} // namespace orvane::layout
