#pragma once

#include "base/Diagnostic.h"
#include "base/Geometry.h"
#include "base/PictureData.h"
#include "pdf/PagePlayer.h"
#include "pdf/PdfDocument.h"

namespace orvane::pdf {

/// Paints part of a page on white. A region beyond the page is cut to it; the resolution is lowered where the picture
/// would be huge, and what takes too long is left out; the diagnostics tell of that. Errors: Failure(InvalidRequest)
/// when nothing of the page is in the region.
PictureDataPtr paintRegion(::PDFDoc& document, int page, const Rect& region, double dotsPerInch, PaintedText words,
                           ContentRepair repair, Diagnostics& diagnostics);

/// Paints part of one annotation, by its number among all of the page, as paintRegion() does, but on nothing.
PictureDataPtr paintAnnotation(::PDFDoc& document, int page, std::size_t annotation, const Rect& region,
                               double dotsPerInch, PaintedText words, Diagnostics& diagnostics);

} // namespace orvane::pdf
