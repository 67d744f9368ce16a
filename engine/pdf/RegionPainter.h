#pragma once

#include "base/Diagnostic.h"
#include "base/Geometry.h"
#include "base/PictureData.h"
#include "pdf/PagePlayer.h"
#include "pdf/PdfDocument.h"

#include <vector>

namespace orvane::pdf {

/// Paints parts of a page on white, all in one go through its content. A region beyond the page is cut to it; null
/// where nothing of the page is in it. The resolution is lowered where the box around them would be huge. Where lines
/// are too many for smooth edges they are painted coarsely, and what takes too long is left out; the diagnostics tell
/// of both. Errors: Failure(InvalidRequest) when nothing of the page is in any.
std::vector<PictureDataPtr> paintRegions(::PDFDoc& document, int page, const std::vector<Rect>& regions,
                                         PaintResolution resolution, PaintedText words, ContentRepair repair,
                                         Diagnostics& diagnostics);

/// Paints part of one annotation, by its number among all of the page, as paintRegions() does, but on nothing.
PictureDataPtr paintAnnotation(::PDFDoc& document, int page, std::size_t annotation, const Rect& region,
                               PaintResolution resolution, PaintedText words, Diagnostics& diagnostics);

} // namespace orvane::pdf
