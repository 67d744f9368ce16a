#pragma once

#include "pdf/PagePictures.h"
#include "pdf/PagePlayer.h"
#include "pdf/StateMask.h"

#include <optional>

namespace orvane::pdf {

struct MaskedPainting {
    const PaintedPicture& picture;
    int number = 0;              ///< among all pictures that the page paints, without those of masks and of patterns
    bool hasOwnSoftMask = false; ///< only masks over the groups that it is in count
};

/// Paints the soft masks that lie over one picture of a page, at the picture's own resolution where that is not out of
/// reason. Nothing comes back when the time is not enough.
std::optional<StateMask> paintStateMask(const MaskedPainting& painting, ::Page& page, ::PDFDoc& document,
                                        ContentRepair repair, TimeBudget& budget);

} // namespace orvane::pdf
