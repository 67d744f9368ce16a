#include "pdf/MaskedPictures.h"

#include "pdf/MaskOnlyDevice.h"
#include "pdf/PageSpace.h"
#include "pdf/TransparentPicture.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include <fmt/format.h>

#include <Annot.h>
#include <Page.h>
#include <splash/SplashBitmap.h>

namespace orvane::pdf {
namespace {

constexpr double kLeastDpi = 96;
constexpr double kGreatestDpi = 300;
constexpr double kMaxPixels = 16e6;
constexpr std::chrono::seconds kTimeBudget{5}; ///< for all masked pictures of a page

/// Paints one picture of a page, and what soft masks are made of, and nothing else.
class OnePictureDevice : public MaskOnlyDevice {
public:
    /// `scale` is pixels a point.
    OnePictureDevice(SplashColorPtr paper, const Picture& wanted, double scale)
        : MaskOnlyDevice(paper)
        , m_wanted(wanted)
        , m_scale(scale) {}

    bool tilingPatternFill(GfxState* state, Gfx* gfx, Catalog* catalog, GfxTilingPattern* pattern, const double* matrix,
                           int x0, int y0, int x1, int y1, double xStep, double yStep) override {
        const bool isSingleCell = x1 - x0 <= 1 && y1 - y0 <= 1; // may hold the picture
        return (isInMask() || !isSingleCell) &&
               MaskOnlyDevice::tilingPatternFill(state, gfx, catalog, pattern, matrix, x0, y0, x1, y1, xStep, yStep);
    }

private:
    bool isWanted(const GfxState& state, const ::Object* reference) override {
        return objectNumberOf(reference) == m_wanted.objectNumber && isAsLargeAsWanted(state);
    }
    static int objectNumberOf(const ::Object* reference) {
        return reference && reference->isRef() ? reference->getRefNum() : 0;
    }
    bool isAsLargeAsWanted(const GfxState& state) const {
        constexpr double kTolerance = 0.1; // points
        const Matrix m = currentMatrix(state);
        // Groups shift the matrix, and what lies elsewhere is not painted: the size is enough.
        const Matrix& w = m_wanted.matrix;
        return std::abs(m.a / m_scale - w.a) < kTolerance && std::abs(m.b / m_scale - w.b) < kTolerance &&
               std::abs(-m.c / m_scale - w.c) < kTolerance && std::abs(-m.d / m_scale - w.d) < kTolerance;
    }

    const Picture& m_wanted;
    double m_scale;
};

/// What a slice of the page shows of one picture on a ground of one grey.
class Painting {
public:
    /// False when the time was not enough.
    bool paint(std::uint8_t ground, const Picture& picture, ::Page& source, ::PDFDoc& document, ContentRepair repair,
               const PageSlice& slice, TimeBudget& budget) {
        SplashColor paper = {ground, ground, ground};
        OnePictureDevice device(paper, picture, slice.scale);
        device.startDoc(&document);
        playPage(source, document, device, budget, repair, slice);
        m_bitmap.reset(device.takeBitmap());
        return !budget.isSpent() && m_bitmap && m_bitmap->getDataPtr() && m_bitmap->getWidth() == slice.width &&
               m_bitmap->getHeight() == slice.height;
    }
    SplashBitmap& bitmap() const { return *m_bitmap; }

private:
    std::unique_ptr<SplashBitmap> m_bitmap;
};

/// Paints the picture's visible part alone and puts it in the picture's place. False when it could not be painted.
bool paintAlone(Picture& picture, const PageContent& page, ::Page& source, ::PDFDoc& document, ContentRepair repair,
                PictureStore& store, TimeBudget& budget) {
    const Rect area = picture.box.intersected(picture.clip).intersected({0, 0, page.width, page.height});
    const double length = std::hypot(picture.matrix.a, picture.matrix.b);
    if (area.isEmpty() || length <= 0)
        return false;
    const double scale = std::min(std::clamp(picture.pixelWidth / length, kLeastDpi / 72, kGreatestDpi / 72),
                                  std::sqrt(kMaxPixels / area.area()));
    const PageSlice slice = sliceOf(area, scale);
    Painting onBlack;
    Painting onWhite;
    if (!onBlack.paint(0, picture, source, document, repair, slice, budget) ||
        !onWhite.paint(255, picture, source, document, repair, slice, budget))
        return false;
    picture.id = store.add(transparentPicture(onBlack.bitmap(), onWhite.bitmap()));
    picture.pixelWidth = slice.width;
    picture.pixelHeight = slice.height;
    picture.matrix = {slice.width / scale, 0, 0, slice.height / scale, slice.x / scale, slice.y / scale};
    picture.box = picture.matrix.applyToBox({0, 0, 1, 1});
    picture.opacity = 1;
    picture.isStencil = false;
    return true;
}

} // namespace

void paintMaskedPictures(PageContent& page, const std::vector<std::size_t>& masked, ::Page& source, ::PDFDoc& document,
                         ContentRepair repair, PictureStore& store, Diagnostics& diagnostics) {
    TimeBudget budget(kTimeBudget);
    int left = 0;
    for (const std::size_t index : masked) {
        Picture& picture = page.pictures[index];
        if (picture.visibility == Visibility::Visible &&
            !paintAlone(picture, page, source, document, repair, store, budget))
            ++left;
    }
    if (left > 0)
        diagnostics.add(DiagnosticKind::PictureSimplified, page.number,
                        fmt::format("{} pictures are shown without the soft mask that lies over them", left));
}

} // namespace orvane::pdf
