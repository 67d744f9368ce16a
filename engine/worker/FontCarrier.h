#pragma once

#include "layout/Layout.h"
#include "pdf/PdfDocument.h"
#include "protocol/Job.h"

#include <vector>

namespace orvane::worker {

/// The fonts of the file that the job's document brings along: those that its layout wants, its format can hold and
/// their makers let go.
std::vector<layout::CarriedFont> carriedFonts(const protocol::Job& job, const pdf::PdfDocument& source,
                                              const std::vector<layout::PageText>& pages,
                                              const layout::LayoutParameters& parameters);

} // namespace orvane::worker
