#pragma once

#include "base/Diagnostic.h"
#include "base/PictureStore.h"
#include "layout/graphics/GraphicsParameters.h"
#include "layout/text/PageText.h"
#include "pdf/PdfDocument.h"

namespace orvane::worker {

/// Adds the illustrations of a scanned page whose text was recognised to its figures; of other pages none.
void findIllustrations(const pdf::PdfDocument& document, layout::PageText& page,
                       const layout::GraphicsParameters& parameters, Diagnostics& diagnostics);

/// Paints those figures and formulas of the page that layout cannot take apart, and gives them their pictures. One that
/// cannot be painted stays without, with a diagnostic.
void paintFigures(const pdf::PdfDocument& document, layout::PageText& page, PictureStore& pictures,
                  Diagnostics& diagnostics);

} // namespace orvane::worker
