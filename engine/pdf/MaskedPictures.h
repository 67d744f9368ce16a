#pragma once

#include "base/Diagnostic.h"
#include "base/PictureStore.h"
#include "pdf/PageContent.h"
#include "pdf/PagePlayer.h"

#include <vector>

namespace orvane::pdf {

/// Pictures that a soft mask of the graphics state lies over cannot be taken out by themselves: each is painted alone,
/// with its masks, groups and clip, on a transparent ground, and that painting takes its place. `masked` are indices
/// into page.pictures. What the time does not allow stays without its mask and is told.
void paintMaskedPictures(PageContent& page, const std::vector<std::size_t>& masked, ::Page& source, ::PDFDoc& document,
                         ContentRepair repair, PictureStore& store, Diagnostics& diagnostics);

} // namespace orvane::pdf
