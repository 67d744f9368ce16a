#include "pdf/MaskedPictures.h"

#include "base/PngEncoder.h"
#include "pdf/PageSpace.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include <fmt/format.h>

#include <Annot.h>
#include <GfxState.h>
#include <Page.h>
#include <SplashOutputDev.h>
#include <splash/SplashBitmap.h>

namespace orvane::pdf {
namespace {

constexpr double kLeastDpi = 96;
constexpr double kGreatestDpi = 300;
constexpr double kMaxPixels = 16e6;
constexpr std::chrono::seconds kTimeBudget{5}; ///< for all masked pictures of a page

/// Paints one picture of a page, and what soft masks are made of, and nothing else.
class OnePictureDevice : public ::SplashOutputDev {
public:
    /// `scale` is pixels a point.
    OnePictureDevice(SplashColorPtr paper, const Picture& wanted, double scale)
        : SplashOutputDev(splashModeRGB8, 1, false, paper)
        , m_wanted(wanted)
        , m_scale(scale) {}

    void drawChar(GfxState* state, double x, double y, double dx, double dy, double originX, double originY,
                  CharCode code, int byteCount, const Unicode* unicode, int unicodeLength) override {
        if (isInMask())
            SplashOutputDev::drawChar(state, x, y, dx, dy, originX, originY, code, byteCount, unicode, unicodeLength);
    }
    bool beginType3Char(GfxState* state, double x, double y, double dx, double dy, CharCode code,
                        const Unicode* unicode, int unicodeLength) override {
        return !isInMask() || SplashOutputDev::beginType3Char(state, x, y, dx, dy, code, unicode, unicodeLength);
    }
    void stroke(GfxState* state) override {
        if (isInMask())
            SplashOutputDev::stroke(state);
    }
    void fill(GfxState* state) override {
        if (isInMask())
            SplashOutputDev::fill(state);
    }
    void eoFill(GfxState* state) override {
        if (isInMask())
            SplashOutputDev::eoFill(state);
    }
    bool tilingPatternFill(GfxState* state, Gfx* gfx, Catalog* catalog, GfxTilingPattern* pattern, const double* matrix,
                           int x0, int y0, int x1, int y1, double xStep, double yStep) override {
        if (isInMask())
            return SplashOutputDev::tilingPatternFill(state, gfx, catalog, pattern, matrix, x0, y0, x1, y1, xStep,
                                                      yStep);
        return x1 - x0 > 1 || y1 - y0 > 1; // a single cell may hold the picture
    }
    bool useShadedFills(int type) override { return !isInMask() || SplashOutputDev::useShadedFills(type); }
    bool functionShadedFill(GfxState* state, GfxFunctionShading* shading) override {
        return !isInMask() || SplashOutputDev::functionShadedFill(state, shading);
    }
    bool axialShadedFill(GfxState* state, GfxAxialShading* shading, double from, double to) override {
        return !isInMask() || SplashOutputDev::axialShadedFill(state, shading, from, to);
    }
    bool radialShadedFill(GfxState* state, GfxRadialShading* shading, double from, double to) override {
        return !isInMask() || SplashOutputDev::radialShadedFill(state, shading, from, to);
    }
    bool gouraudTriangleShadedFill(GfxState* state, GfxGouraudTriangleShading* shading) override {
        return !isInMask() || SplashOutputDev::gouraudTriangleShadedFill(state, shading);
    }
    bool patchMeshShadedFill(GfxState* state, GfxPatchMeshShading* shading) override {
        return !isInMask() || SplashOutputDev::patchMeshShadedFill(state, shading);
    }

    void drawImageMask(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height, bool isInverted,
                       bool interpolate, bool isInline) override {
        if (isPainted(*state, reference))
            SplashOutputDev::drawImageMask(state, reference, stream, width, height, isInverted, interpolate, isInline);
        else
            OutputDev::drawImageMask(state, reference, stream, width, height, isInverted, interpolate, isInline);
    }
    void drawImage(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                   GfxImageColorMap* colors, bool interpolate, const int* colorKey, bool isInline) override {
        if (isPainted(*state, reference))
            SplashOutputDev::drawImage(state, reference, stream, width, height, colors, interpolate, colorKey,
                                       isInline);
        else
            OutputDev::drawImage(state, reference, stream, width, height, colors, interpolate, colorKey, isInline);
    }
    void drawMaskedImage(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                         GfxImageColorMap* colors, bool interpolate, ::Stream* maskStream, int maskWidth,
                         int maskHeight, bool isMaskInverted, bool interpolateMask) override {
        if (isPainted(*state, reference))
            SplashOutputDev::drawMaskedImage(state, reference, stream, width, height, colors, interpolate, maskStream,
                                             maskWidth, maskHeight, isMaskInverted, interpolateMask);
    }
    void drawSoftMaskedImage(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                             GfxImageColorMap* colors, bool interpolate, ::Stream* maskStream, int maskWidth,
                             int maskHeight, GfxImageColorMap* maskColors, bool interpolateMask) override {
        if (isPainted(*state, reference))
            SplashOutputDev::drawSoftMaskedImage(state, reference, stream, width, height, colors, interpolate,
                                                 maskStream, maskWidth, maskHeight, maskColors, interpolateMask);
    }

    void beginTransparencyGroup(GfxState* state, const double* box, GfxColorSpace* blendingSpace, bool isIsolated,
                                bool isKnockout, bool isForSoftMask) override {
        m_groups.push_back(isForSoftMask);
        SplashOutputDev::beginTransparencyGroup(state, box, blendingSpace, isIsolated, isKnockout, isForSoftMask);
    }
    void endTransparencyGroup(GfxState* state) override {
        if (!m_groups.empty())
            m_groups.pop_back();
        SplashOutputDev::endTransparencyGroup(state);
    }

private:
    bool isInMask() const { return std::find(m_groups.begin(), m_groups.end(), true) != m_groups.end(); }

    bool isPainted(const GfxState& state, const ::Object* reference) const {
        return isInMask() || (objectNumberOf(reference) == m_wanted.objectNumber && isAsLargeAsWanted(state));
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
    std::vector<bool> m_groups; ///< open ones; true for soft masks
};

/// What a slice of the page shows of one picture on a ground of one grey, as rows of red, green, blue.
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
    const std::uint8_t* row(int y) const {
        return m_bitmap->getDataPtr() + static_cast<std::ptrdiff_t>(y) * m_bitmap->getRowSize();
    }

private:
    std::unique_ptr<SplashBitmap> m_bitmap;
};

/// Colour and opacity of a pixel from how it looks on black and on white: what shines through is the difference.
void separate(const std::uint8_t* onBlack, const std::uint8_t* onWhite, std::uint8_t* rgba) {
    int shining = 0;
    for (int c = 0; c < 3; ++c)
        shining = std::max(shining, onWhite[c] - onBlack[c]);
    const int opacity = 255 - shining;
    for (int c = 0; c < 3; ++c)
        rgba[c] =
            opacity == 0 ? 255 : static_cast<std::uint8_t>(std::min(255, (onBlack[c] * 255 + opacity / 2) / opacity));
    rgba[3] = static_cast<std::uint8_t>(opacity);
}

PictureData encode(const Painting& onBlack, const Painting& onWhite, const PageSlice& slice) {
    PngEncoder png(slice.width, slice.height, PngPixels::RgbAlpha8);
    std::vector<std::uint8_t> row(pngRowBytes(PngPixels::RgbAlpha8, slice.width));
    for (int y = 0; y < slice.height; ++y) {
        for (int x = 0; x < slice.width; ++x)
            separate(onBlack.row(y) + x * 3, onWhite.row(y) + x * 3, &row[static_cast<std::size_t>(x) * 4]);
        png.writeRow(row.data());
    }
    return png.finish();
}

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
    picture.id = store.add(encode(onBlack, onWhite, slice));
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
