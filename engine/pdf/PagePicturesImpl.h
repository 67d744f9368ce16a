#pragma once

#include "pdf/PagePictures.h"
#include "pdf/PictureCollector.h"

namespace orvane::pdf {

/// What a page's collector wrote down, with the document that the streams are fetched from.
struct PagePictures::Impl {
    explicit Impl(::PDFDoc& source, std::vector<PaintedPicture> paintings = {},
                  std::vector<CollectedPicture> pictures = {})
        : document(source)
        , painted(std::move(paintings))
        , collected(std::move(pictures)) {}

    ::PDFDoc& document;
    std::vector<PaintedPicture> painted;
    std::vector<CollectedPicture> collected;
};

} // namespace orvane::pdf
