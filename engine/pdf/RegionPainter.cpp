#include "pdf/RegionPainter.h"

#include "base/Failure.h"
#include "base/PngEncoder.h"
#include "pdf/PageSpace.h"
#include "pdf/TransparentPicture.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include <Annot.h>
#include <PDFDoc.h>
#include <Page.h>
#include <SplashOutputDev.h>
#include <splash/Splash.h>
#include <splash/SplashBitmap.h>

namespace orvane::pdf {
namespace {

constexpr double kPointsPerInch = 72.0;
constexpr double kMaxPixels = 64e6;
constexpr double kThinnestLine =
    0.35; ///< points; screens draw no line thinner, and a picture is shown smaller than it is
constexpr std::chrono::seconds kTimeBudget{30};

/// Pixels a point for this resolution, or for what the largest picture allows.
double scaleOf(const Rect& region, double dotsPerInch) {
    return std::min(dotsPerInch / kPointsPerInch, std::sqrt(kMaxPixels / region.area()));
}

/// Paints with or without the words.
class RegionDevice : public SplashOutputDev {
public:
    /// Units: `thinnestLine` in pixels.
    RegionDevice(SplashColorPtr paper, PaintedText words, double thinnestLine)
        : SplashOutputDev(splashModeRGB8, 1, false, paper)
        , m_words(words)
        , m_thinnestLine(thinnestLine) {}

    void startPage(int number, GfxState* state, XRef* objects) override {
        SplashOutputDev::startPage(number, state, objects);
        getSplash()->setMinLineWidth(m_thinnestLine);
    }

    void drawChar(GfxState* state, double x, double y, double dx, double dy, double originX, double originY,
                  CharCode code, int byteCount, const Unicode* unicode, int unicodeLength) override {
        if (m_words == PaintedText::Shown)
            SplashOutputDev::drawChar(state, x, y, dx, dy, originX, originY, code, byteCount, unicode, unicodeLength);
    }
    bool beginType3Char(GfxState* state, double x, double y, double dx, double dy, CharCode code,
                        const Unicode* unicode, int unicodeLength) override {
        // A glyph that says something is a letter; what says nothing may be a drawing.
        if (m_words == PaintedText::LeftOut && unicodeLength > 0)
            return true;
        return SplashOutputDev::beginType3Char(state, x, y, dx, dy, code, unicode, unicodeLength);
    }

private:
    PaintedText m_words;
    double m_thinnestLine;
};

PictureData encode(const SplashBitmap& bitmap) {
    PngEncoder png(bitmap.getWidth(), bitmap.getHeight(), PngPixels::Rgb8);
    for (int y = 0; y < bitmap.getHeight(); ++y)
        png.writeRow(bitmap.getDataPtr() + static_cast<std::ptrdiff_t>(y) * bitmap.getRowSize());
    return png.finish();
}

/// What of a region can be painted, and how.
struct Painting {
    ::Page& page;
    Rect visible;
    PageSlice slice;
};

Painting paintingOf(::PDFDoc& document, int page, const Rect& region, double dotsPerInch) {
    ::Page* source = document.getPage(page);
    const Rect visible = source ? region.intersected(pageBox(*source)) : Rect{};
    if (visible.isEmpty() || !(dotsPerInch > 0))
        throw Failure(FailureCode::InvalidRequest, "nothing of the page is in the region to paint", {page, 0});
    return {*source, visible, sliceOf(visible, scaleOf(visible, dotsPerInch))};
}

void tellOfTime(TimeBudget& budget, int page, const Rect& region, Diagnostics& diagnostics) {
    if (budget.isSpent())
        diagnostics.add(DiagnosticKind::TimeBudgetExceeded, page,
                        "a part of the page takes too long to paint; the rest of it is left out", region);
}

void requireBitmap(SplashBitmap* bitmap) {
    if (!bitmap || !bitmap->getDataPtr())
        throw std::bad_alloc();
}

} // namespace

PictureDataPtr paintRegion(::PDFDoc& document, int page, const Rect& region, double dotsPerInch, PaintedText words,
                           ContentRepair repair, Diagnostics& diagnostics) {
    const Painting painting = paintingOf(document, page, region, dotsPerInch);
    SplashColor paper = {255, 255, 255};
    RegionDevice device(paper, words, kThinnestLine * painting.slice.scale);
    device.startDoc(&document);
    TimeBudget budget(kTimeBudget);
    playPage(painting.page, document, device, budget, repair, painting.slice);
    tellOfTime(budget, page, painting.visible, diagnostics);
    requireBitmap(device.getBitmap());
    return std::make_shared<const PictureData>(encode(*device.getBitmap()));
}

PictureDataPtr paintAnnotation(::PDFDoc& document, int page, std::size_t annotation, const Rect& region,
                               double dotsPerInch, PaintedText words, Diagnostics& diagnostics) {
    const Painting painting = paintingOf(document, page, region, dotsPerInch);
    TimeBudget budget(kTimeBudget);
    const auto paintOn = [&](unsigned char ground) {
        SplashColor paper = {ground, ground, ground};
        RegionDevice device(paper, words, kThinnestLine * painting.slice.scale);
        device.startDoc(&document);
        playAnnotation(painting.page, annotation, document, device, budget, painting.slice);
        std::unique_ptr<SplashBitmap> bitmap(device.takeBitmap());
        requireBitmap(bitmap.get());
        return bitmap;
    };
    const auto onBlack = paintOn(0);
    const auto onWhite = paintOn(255);
    tellOfTime(budget, page, painting.visible, diagnostics);
    return std::make_shared<const PictureData>(transparentPicture(*onBlack, *onWhite));
}

} // namespace orvane::pdf
