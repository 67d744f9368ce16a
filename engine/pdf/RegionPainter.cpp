#include "pdf/RegionPainter.h"

#include "base/Failure.h"
#include "base/PngEncoder.h"
#include "pdf/PagePlayer.h"
#include "pdf/PageSpace.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include <Annot.h>
#include <PDFDoc.h>
#include <Page.h>
#include <SplashOutputDev.h>
#include <splash/SplashBitmap.h>

namespace orvane::pdf {
namespace {

constexpr double kPointsPerInch = 72.0;
constexpr double kMaxPixels = 64e6;
constexpr std::chrono::seconds kTimeBudget{30};

struct PixelSlice {
    double dpi = 0;
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

PixelSlice sliceOf(const Rect& region, double dotsPerInch) {
    PixelSlice slice;
    const double pixels = region.area() * dotsPerInch * dotsPerInch / (kPointsPerInch * kPointsPerInch);
    slice.dpi = pixels > kMaxPixels ? dotsPerInch * std::sqrt(kMaxPixels / pixels) : dotsPerInch;
    const double scale = slice.dpi / kPointsPerInch;
    slice.x = static_cast<int>(std::floor(region.left * scale));
    slice.y = static_cast<int>(std::floor(region.top * scale));
    slice.width = std::max(1, static_cast<int>(std::ceil(region.right * scale)) - slice.x);
    slice.height = std::max(1, static_cast<int>(std::ceil(region.bottom * scale)) - slice.y);
    return slice;
}

PictureData encode(const SplashBitmap& bitmap) {
    PngEncoder png(bitmap.getWidth(), bitmap.getHeight(), PngPixels::Rgb8);
    for (int y = 0; y < bitmap.getHeight(); ++y)
        png.writeRow(bitmap.getDataPtr() + static_cast<std::ptrdiff_t>(y) * bitmap.getRowSize());
    return png.finish();
}

} // namespace

PictureDataPtr paintRegion(::PDFDoc& document, int page, const Rect& region, double dotsPerInch) {
    ::Page* source = document.getPage(page);
    const Rect visible = source ? region.intersected(pageBox(*source)) : Rect{};
    if (visible.isEmpty() || !(dotsPerInch > 0))
        throw Failure(FailureCode::InvalidRequest, "nothing of the page is in the region to paint", {page, 0});

    const PixelSlice slice = sliceOf(visible, dotsPerInch);
    SplashColor paper = {255, 255, 255};
    SplashOutputDev device(splashModeRGB8, 1, false, paper);
    device.startDoc(&document);
    TimeBudget budget(kTimeBudget);
    const double dpi = slice.dpi * userUnitOf(*source);
    document.displayPageSlice(&device, page, dpi, dpi, 0, false, true, false, slice.x, slice.y, slice.width,
                              slice.height);
    const SplashBitmap* bitmap = device.getBitmap();
    if (!bitmap || !bitmap->getDataPtr())
        throw std::bad_alloc();
    return std::make_shared<const PictureData>(encode(*bitmap));
}

} // namespace orvane::pdf
