#include "pdf/RegionPainter.h"

#include "base/Failure.h"
#include "pdf/BitmapEncoder.h"
#include "pdf/PageSpace.h"
#include "pdf/PathMeter.h"
#include "pdf/TransparentPicture.h"

#include <algorithm>
#include <cmath>
#include <functional>
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
constexpr double kCoarser = 0.95; ///< step by which the resolution is lowered
constexpr double kThinnestLine =
    0.35; ///< points; screens draw no line thinner, and a picture is shown smaller than it is
constexpr std::chrono::seconds kTimeBudget{30};
constexpr std::chrono::seconds kMeasureBudget{5};

// Rows of pixels that edges go through. A page that so many lines cross is covered several times over; a million takes
// a tenth of a second, one without smooth edges a quarter of that, hairlines far less.
constexpr double kSmoothRows = 6e6; ///< edges of more are not smooth
constexpr double kWideRows = 10e6;  ///< thin lines of more are hairlines
constexpr double kThinLine = 1;     ///< points
constexpr double kPixelsOfRow = 12; ///< of a filled area, that take the time of a row

/// Plays what is to be painted on a device, as far as the slice shows it.
using Play = std::function<void(::OutputDev&, TimeBudget&, const PageSlice&)>;

/// What takes time to paint.
struct Load {
    double rows = 0; ///< that edges go through, at one pixel a point
    double area = 0; ///< of what is filled, square points

    /// Rows whose painting takes as long, at so many pixels a point.
    double at(double scale) const { return rows * scale + area * scale * scale / kPixelsOfRow; }
};

/// Of what is in a region, page space.
Load loadOf(const Play& play, const Rect& region) {
    PathMeter meter(region);
    TimeBudget budget(kMeasureBudget);
    play(meter, budget, {});
    return {meter.rows(), meter.area()};
}

/// As fine as asked for, coarser where that takes too long for smooth edges, and no finer than the largest picture
/// allows. Pixels a point.
double scaleOf(const Rect& region, const Load& load, PaintResolution resolution) {
    double scale = resolution.usual / kPointsPerInch;
    while (load.at(scale) > kSmoothRows && scale > resolution.ofDense / kPointsPerInch)
        scale = std::max(kCoarser * scale, resolution.ofDense / kPointsPerInch);
    return std::min(scale, std::sqrt(kMaxPixels / region.area()));
}

/// What of a region can be painted, and how.
struct Painting {
    PageSlice slice;
    double edgeRows; ///< rows of pixels that edges go through
};

Painting paintingOf(const Play& play, const Rect& visible, PaintResolution resolution) {
    const Load load = loadOf(play, visible);
    const double scale = scaleOf(visible, load, resolution);
    return {sliceOf(visible, scale), load.rows * scale};
}

/// What of a region is on the page. Errors: see paintRegions().
Rect visibleOf(::Page* page, int number, const Rect& region, PaintResolution resolution) {
    const Rect visible = page ? region.intersected(pageBox(*page)) : Rect{};
    if (visible.isEmpty() || !(resolution.ofDense > 0))
        throw Failure(FailureCode::InvalidRequest, "nothing of the page is in the region to paint", {number, 0});
    return visible;
}

/// Paints with or without the words.
class RegionDevice : public SplashOutputDev {
public:
    RegionDevice(SplashColorPtr paper, PaintedText words, const Painting& painting)
        : SplashOutputDev(splashModeRGB8, 1, false, paper)
        , m_words(words)
        , m_scale(painting.slice.scale)
        , m_edgeRows(painting.edgeRows) {}

    void startPage(int number, GfxState* state, XRef* objects) override {
        SplashOutputDev::startPage(number, state, objects);
        setVectorAntialias(m_edgeRows <= kSmoothRows);
        getSplash()->setMinLineWidth(kThinnestLine * m_scale);
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

    void stroke(GfxState* state) override {
        if (m_edgeRows <= kWideRows || state->getTransformedLineWidth() > kThinLine * m_scale) {
            SplashOutputDev::stroke(state);
            return;
        }
        getSplash()->setMinLineWidth(0);
        getSplash()->setLineWidth(0);
        SplashOutputDev::stroke(state);
        updateLineWidth(state);
        getSplash()->setMinLineWidth(kThinnestLine * m_scale);
    }

private:
    PaintedText m_words;
    double m_scale;    ///< pixels a point
    double m_edgeRows; ///< rows of pixels that edges go through
};

/// The part of the bitmap, which shows `painted`, that `part` is.
BitmapPart partOf(const SplashBitmap& bitmap, const PageSlice& painted, const PageSlice& part) {
    const int left = std::max(0, part.x - painted.x), top = std::max(0, part.y - painted.y);
    return {left, top, std::min(part.width, bitmap.getWidth() - left), std::min(part.height, bitmap.getHeight() - top)};
}

void tellOfLosses(TimeBudget& budget, const Painting& painting, int page, const Rect& region,
                  Diagnostics& diagnostics) {
    if (budget.isSpent())
        diagnostics.add(DiagnosticKind::TimeBudgetExceeded, page,
                        "a part of the page takes too long to paint; the rest of it is left out", region);
    if (painting.edgeRows > kSmoothRows)
        diagnostics.add(DiagnosticKind::DrawingSimplified, page,
                        "a drawing has so many lines that they are painted coarsely", region);
}

void requireBitmap(SplashBitmap* bitmap) {
    if (!bitmap || !bitmap->getDataPtr())
        throw std::bad_alloc();
}

} // namespace

std::vector<PictureDataPtr> paintRegions(::PDFDoc& document, int page, const std::vector<Rect>& regions,
                                         PaintResolution resolution, PaintedText words, ContentRepair repair,
                                         Diagnostics& diagnostics) {
    Rect all;
    for (const Rect& region : regions)
        all = all.united(region);
    ::Page* const source = document.getPage(page);
    const Rect visible = visibleOf(source, page, all, resolution);
    const Play play = [&](::OutputDev& device, TimeBudget& budget, const PageSlice& slice) {
        playPage(*source, document, device, budget, repair, slice);
    };
    const Painting painting = paintingOf(play, visible, resolution);
    SplashColor paper = {255, 255, 255};
    RegionDevice device(paper, words, painting);
    device.startDoc(&document);
    TimeBudget budget(kTimeBudget);
    play(device, budget, painting.slice);
    tellOfLosses(budget, painting, page, visible, diagnostics);
    requireBitmap(device.getBitmap());
    const SplashBitmap& bitmap = *device.getBitmap();
    std::vector<PictureDataPtr> pictures;
    for (const Rect& region : regions) {
        const Rect seen = region.intersected(visible);
        const BitmapPart part = partOf(bitmap, painting.slice, sliceOf(seen, painting.slice.scale));
        pictures.push_back(seen.isEmpty() ? nullptr : std::make_shared<const PictureData>(encodeBitmap(bitmap, part)));
    }
    return pictures;
}

PictureDataPtr paintAnnotation(::PDFDoc& document, int page, std::size_t annotation, const Rect& region,
                               PaintResolution resolution, PaintedText words, Diagnostics& diagnostics) {
    ::Page* const source = document.getPage(page);
    const Rect visible = visibleOf(source, page, region, resolution);
    const Play play = [&](::OutputDev& device, TimeBudget& budget, const PageSlice& slice) {
        playAnnotation(*source, annotation, document, device, budget, slice);
    };
    const Painting painting = paintingOf(play, visible, resolution);
    TimeBudget budget(kTimeBudget);
    const auto paintOn = [&](unsigned char ground) {
        SplashColor paper = {ground, ground, ground};
        RegionDevice device(paper, words, painting);
        device.startDoc(&document);
        play(device, budget, painting.slice);
        std::unique_ptr<SplashBitmap> bitmap(device.takeBitmap());
        requireBitmap(bitmap.get());
        return bitmap;
    };
    const auto onBlack = paintOn(0);
    const auto onWhite = paintOn(255);
    tellOfLosses(budget, painting, page, visible, diagnostics);
    return std::make_shared<const PictureData>(transparentPicture(*onBlack, *onWhite));
}

} // namespace orvane::pdf
