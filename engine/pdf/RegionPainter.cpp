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

// Rows of pixels that edges go through. A page that so many lines cross is covered several times over; the first
// million takes a tenth of a second, one without smooth edges a quarter of that, hairlines far less.
constexpr double kSmoothRows = 5e6; ///< edges behind them are not smooth
constexpr double kWideRows = 10e6;  ///< thin lines behind them are hairlines
constexpr double kThinLine = 1;     ///< points
constexpr double kRowsOfCurve = 3;  ///< a curve takes the time of so many lines along its control points

/// Pixels a point for this resolution, or for what the largest picture allows.
double scaleOf(const Rect& region, double dotsPerInch) {
    return std::min(dotsPerInch / kPointsPerInch, std::sqrt(kMaxPixels / region.area()));
}

/// Adds up how many rows of pixels the edges of paths go through, about.
class EdgeCounter {
public:
    EdgeCounter(int width, int height)
        : m_width(width)
        , m_height(height) {}

    double rowsOf(const GfxState& state) const {
        double rows = 0;
        const GfxPath& path = *state.getPath();
        for (int i = 0; i < path.getNumSubpaths(); ++i)
            rows += rowsOf(*path.getSubpath(i), state);
        return rows;
    }

private:
    double rowsOf(const GfxSubpath& part, const GfxState& state) const {
        double rows = 0;
        Point last = at(part, 0, state);
        for (int i = 1; i < part.getNumPoints(); ++i) {
            const Point next = at(part, i, state);
            if (std::max(last.x, next.x) > 0 && std::min(last.x, next.x) < m_width)
                rows += (part.getCurve(i) ? kRowsOfCurve : 1) * std::abs(within(next.y) - within(last.y));
            last = next;
        }
        return rows;
    }

    static Point at(const GfxSubpath& part, int i, const GfxState& state) {
        Point point;
        state.transform(part.getX(i), part.getY(i), &point.x, &point.y);
        return point;
    }
    double within(double y) const { return std::clamp(y, 0.0, m_height); }

    double m_width;
    double m_height;
};

/// Paints with or without the words.
class RegionDevice : public SplashOutputDev {
public:
    RegionDevice(SplashColorPtr paper, PaintedText words, const PageSlice& slice)
        : SplashOutputDev(splashModeRGB8, 1, false, paper)
        , m_words(words)
        , m_scale(slice.scale)
        , m_edges(slice.width, slice.height) {}

    /// Whether there are so many lines that some were painted coarsely.
    bool isCoarse() const { return m_rows > kSmoothRows; }

    void startPage(int number, GfxState* state, XRef* objects) override {
        SplashOutputDev::startPage(number, state, objects);
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
        count(2 * m_edges.rowsOf(*state)); // both sides of the line
        if (m_rows <= kWideRows || state->getTransformedLineWidth() > kThinLine * m_scale) {
            SplashOutputDev::stroke(state);
            return;
        }
        getSplash()->setMinLineWidth(0);
        getSplash()->setLineWidth(0);
        SplashOutputDev::stroke(state);
        updateLineWidth(state);
        getSplash()->setMinLineWidth(kThinnestLine * m_scale);
    }
    void fill(GfxState* state) override {
        count(m_edges.rowsOf(*state));
        SplashOutputDev::fill(state);
    }
    void eoFill(GfxState* state) override {
        count(m_edges.rowsOf(*state));
        SplashOutputDev::eoFill(state);
    }

private:
    void count(double rows) {
        m_rows += rows;
        if (isCoarse())
            setVectorAntialias(false);
    }

    PaintedText m_words;
    double m_scale; ///< pixels a point
    EdgeCounter m_edges;
    double m_rows = 0; ///< that edges went through up to now
};

/// The part of the bitmap, which shows `painted`, that `part` is.
PictureData encode(const SplashBitmap& bitmap, const PageSlice& painted, const PageSlice& part) {
    const int left = std::max(0, part.x - painted.x), top = std::max(0, part.y - painted.y);
    const int width = std::min(part.width, bitmap.getWidth() - left);
    const int height = std::min(part.height, bitmap.getHeight() - top);
    PngEncoder png(width, height, PngPixels::Rgb8);
    for (int y = top; y < top + height; ++y)
        png.writeRow(bitmap.getDataPtr() + static_cast<std::ptrdiff_t>(y) * bitmap.getRowSize() + 3 * left);
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

std::vector<PictureDataPtr> paintRegions(::PDFDoc& document, int page, const std::vector<Rect>& regions,
                                         double dotsPerInch, PaintedText words, ContentRepair repair,
                                         Diagnostics& diagnostics) {
    Rect all;
    for (const Rect& region : regions)
        all = all.united(region);
    const Painting painting = paintingOf(document, page, all, dotsPerInch);
    SplashColor paper = {255, 255, 255};
    RegionDevice device(paper, words, painting.slice);
    device.startDoc(&document);
    TimeBudget budget(kTimeBudget);
    playPage(painting.page, document, device, budget, repair, painting.slice);
    tellOfTime(budget, page, painting.visible, diagnostics);
    if (device.isCoarse())
        diagnostics.add(DiagnosticKind::DrawingSimplified, page,
                        "a drawing has so many lines that they are painted coarsely", painting.visible);
    requireBitmap(device.getBitmap());
    std::vector<PictureDataPtr> pictures;
    for (const Rect& region : regions) {
        const Rect visible = region.intersected(painting.visible);
        pictures.push_back(visible.isEmpty()
                               ? nullptr
                               : std::make_shared<const PictureData>(encode(*device.getBitmap(), painting.slice,
                                                                            sliceOf(visible, painting.slice.scale))));
    }
    return pictures;
}

PictureDataPtr paintAnnotation(::PDFDoc& document, int page, std::size_t annotation, const Rect& region,
                               double dotsPerInch, PaintedText words, Diagnostics& diagnostics) {
    const Painting painting = paintingOf(document, page, region, dotsPerInch);
    TimeBudget budget(kTimeBudget);
    const auto paintOn = [&](unsigned char ground) {
        SplashColor paper = {ground, ground, ground};
        RegionDevice device(paper, words, painting.slice);
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
