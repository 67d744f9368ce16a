#pragma once

#include "base/Diagnostic.h"
#include "base/Geometry.h"
#include "pdf/PagePlayer.h"

#include <vector>

class PDFDoc;

namespace orvane::pdf {

/// The squares of a page that are darker than its paper, from top to bottom: where a scan has ink, without what it is.
/// Units: points; a square is `side` wide. Errors: Failure(InvalidRequest) for a page that is not there.
std::vector<Rect> findInk(::PDFDoc& document, int page, double side, ContentRepair repair, Diagnostics& diagnostics);

} // namespace orvane::pdf
