#pragma once

#include "base/Geometry.h"
#include "base/PictureData.h"
#include "pdf/PagePlayer.h"
#include "pdf/PdfDocument.h"

namespace orvane::pdf {

/// Paints part of a page on white. A region beyond the page is cut to it; the resolution is lowered where the picture
/// would be huge. Errors: Failure(InvalidRequest) when nothing of the page is in the region.
PictureDataPtr paintRegion(::PDFDoc& document, int page, const Rect& region, double dotsPerInch, PaintedText words,
                           ContentRepair repair);

} // namespace orvane::pdf
