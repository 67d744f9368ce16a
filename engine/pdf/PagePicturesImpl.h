#pragma once

#include "pdf/PagePictures.h"
#include "pdf/PagePlayer.h"
#include "pdf/PictureCollector.h"

namespace orvane::pdf {

/// What a page's collector wrote down, with the document that the streams are fetched from.
struct PagePictures::Impl {
    ::PDFDoc& document;
    ::Page* page = nullptr; ///< null for a page that cannot be read and paints nothing
    ContentRepair repair = ContentRepair::None;
    std::vector<PaintedPicture> painted;
    std::vector<CollectedPicture> collected;
    std::chrono::milliseconds maskTime{0}; ///< that painting of masks has taken
};

} // namespace orvane::pdf
