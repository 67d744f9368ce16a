#include "pdf/PictureCollector.h"

#include "pdf/PageSpace.h"
#include "pdf/PictureLimits.h"
#include "pdf/SampleColors.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include <fmt/format.h>

#include <Gfx.h>
#include <PDFDoc.h>

namespace orvane::pdf {
namespace {

/// Cells of patterns may use patterns, but a file that nests them deeper is up to something.
constexpr int kMaxPatternDepth = 4;
/// Inline pictures are meant to be small, and wait in memory until the page is read.
constexpr std::size_t kMaxInlineBytes = 256 * 1024 * 1024;

PictureCoding codingOf(const ::Stream& stream) {
    switch (stream.getKind()) {
    case strDCT:
        return PictureCoding::Jpeg;
    case strJPX:
        return PictureCoding::Jpeg2000;
    case strJBIG2:
        return PictureCoding::Jbig2;
    case strCCITTFax:
        return PictureCoding::Fax;
    default:
        return PictureCoding::Samples;
    }
}

/// The library's own copy reads beyond the tables of samples of 16 bits, which are as long as those of 8: such a map is
/// made anew.
std::unique_ptr<GfxImageColorMap> copyOf(GfxImageColorMap* colors) {
    if (!colors || colors->getBits() <= 8)
        return std::unique_ptr<GfxImageColorMap>(colors ? colors->copy() : nullptr);
    auto* limits = new ::Array(nullptr);
    for (int i = 0; i < colors->getNumPixelComps(); ++i) {
        limits->add(::Object(colors->getDecodeLow(i)));
        limits->add(::Object(colors->getDecodeHigh(i)));
    }
    ::Object decode(limits);
    auto copy = std::make_unique<GfxImageColorMap>(colors->getBits(), &decode, colors->getColorSpace()->copy());
    if (colors->getMatteColor())
        copy->setMatteColor(colors->getMatteColor());
    return copy;
}

Color fillColor(GfxState& state) {
    if (state.getFillColorSpace()->getMode() == csPattern)
        return kBlack;
    GfxRGB color;
    state.getFillRGB(&color);
    return toColor(color);
}

CollectedPicture stencil(GfxState& state, bool isInverted) {
    CollectedPicture picture;
    picture.isInverted = isInverted;
    picture.stencilColor = fillColor(state);
    return picture;
}

/// Where the picture stands: its rows run downwards from the top of the unit square of user space.
Matrix placeOf(const GfxState& state) {
    const Matrix m = currentMatrix(state);
    return {m.a, m.b, -m.c, -m.d, m.e + m.c, m.f + m.d};
}

/// Two inline pictures are the same when their samples and the colours of these are.
std::string inlineIdentity(const CollectedPicture& picture, int width, int height, int bits) {
    std::string colors;
    if (picture.colors && picture.colors->getNumPixelComps() == 1)
        for (const Color& color : colorTable(*picture.colors))
            colors += toHex(color);
    const std::hash<std::string> hash;
    return fmt::format("inline {}x{}x{} {} {:x} {:x}", width, height, bits, picture.inlineSamples.size(),
                       hash(picture.inlineSamples), hash(colors));
}

} // namespace

bool PictureCollector::tilingPatternFill(GfxState* state, Gfx* gfx, Catalog*, GfxTilingPattern* pattern,
                                         const double* matrix, int, int, int, int, double, double) {
    // However many cells are painted, the pictures in them are the same: one is looked through.
    const int object = pattern->getPatternRefNum();
    const bool isKnown = object > 0 && !m_patterns.insert(object).second;
    if (isKnown || m_patternDepth >= kMaxPatternDepth)
        return true;
    const double* box = pattern->getBBox();
    const PDFRectangle area(box[0], box[1], box[2], box[3]);
    ::Gfx cell(&m_document, this, pattern->getResDict(), &area, nullptr, &TimeBudget::isSpent, &m_budget, gfx);
    const Matrix page = currentMatrix(*state);
    const Matrix m{matrix[0], matrix[1], matrix[2], matrix[3], matrix[4], matrix[5]};
    const Point origin = page.apply({m.e, m.f});
    cell.getState()->setCTM(page.a * m.a + page.c * m.b, page.b * m.a + page.d * m.b, page.a * m.c + page.c * m.d,
                            page.b * m.c + page.d * m.d, origin.x, origin.y);
    cell.getState()->setFillColorSpace(new GfxDeviceGrayColorSpace());
    ++m_patternDepth;
    cell.display(pattern->getContentStream());
    --m_patternDepth;
    return true;
}

/// Takes the samples of an inline picture out of the page's content, where they are passed but once.
bool PictureCollector::readInline(const Painting& painting, CollectedPicture& picture) {
    if (!isSizeSane(painting.width, painting.height))
        return false;
    const int components = painting.colors ? painting.colors->getNumPixelComps() : 1;
    const int bits = painting.colors ? painting.colors->getBits() : 1;
    const std::int64_t rowBits = std::int64_t{painting.width} * components * bits;
    std::int64_t left = (rowBits + 7) / 8 * painting.height;
    if (static_cast<std::size_t>(left) > kMaxInlineBytes - m_inlineBytes)
        return false;
    std::string& samples = picture.inlineSamples;
    char buffer[4096];
    painting.stream.reset();
    while (left > 0) {
        const int wanted = static_cast<int>(std::min<std::int64_t>(left, sizeof buffer));
        const int got = painting.stream.doGetChars(wanted, reinterpret_cast<unsigned char*>(buffer));
        if (got <= 0)
            break;
        samples.append(buffer, static_cast<std::size_t>(got));
        left -= got;
    }
    painting.stream.close();
    m_inlineBytes += samples.size();
    return true;
}

void PictureCollector::add(const Painting& painting, CollectedPicture picture) {
    if (m_maskDepth == 0 && m_patternDepth == 0)
        picture.painting = m_nextPainting++;
    PaintedPicture painted;
    painted.width = painting.width;
    painted.height = painting.height;
    painted.matrix = placeOf(painting.state);
    painted.isStencil = !painting.colors;
    if (painting.colors) {
        painted.components = painting.colors->getNumPixelComps();
        painted.bits = painting.colors->getBits();
    }
    painted.hasTransparency = picture.maskKind != CollectedPicture::MaskKind::None || !picture.colorKey.empty() ||
                              picture.opacityChannel != OpacityChannel::None;
    picture.colors = copyOf(painting.colors);
    if (painting.reference && painting.reference->isRef()) {
        picture.reference = painting.reference->getRef();
        painted.objectNumber = picture.reference.num;
        painted.identity = fmt::format("{} {}", picture.reference.num, picture.reference.gen);
        painted.coding = codingOf(painting.stream);
    } else if (readInline(painting, picture)) {
        painted.identity = inlineIdentity(picture, painting.width, painting.height, painting.colors ? painted.bits : 0);
    } else {
        ++m_oversizedInlines;
        return;
    }
    if (m_maskDepth > 0)
        return;
    const bool isUnderMask = m_hasMask && !picture.hasOwnSoftMask();
    m_painted.push_back(std::move(painted));
    m_collected.push_back(std::move(picture));
    if (isUnderMask)
        coverFrom(m_painted.size() - 1);
}

void PictureCollector::coverFrom(std::size_t first) {
    // A pattern's pictures stand once for all its cells, which lie anywhere under a mask.
    if (m_maskDepth > 0 || m_patternDepth > 0)
        return;
    for (std::size_t i = first; i < m_painted.size(); ++i) {
        if (m_painted[i].isUnderMask)
            continue;
        m_painted[i].isUnderMask = true;
        m_painted[i].hasTransparency = true;
        m_painted[i].identity += " masked";
    }
}

void PictureCollector::drawImageMask(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                                     bool isInverted, bool, bool) {
    add({*state, reference, *stream, width, height, nullptr}, stencil(*state, isInverted));
}

void PictureCollector::setSoftMaskFromImageMask(GfxState* state, ::Object* reference, ::Stream* stream, int width,
                                                int height, bool isInverted, bool, double*) {
    add({*state, reference, *stream, width, height, nullptr}, stencil(*state, isInverted));
}

void PictureCollector::drawImage(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                                 GfxImageColorMap* colors, bool, const int* colorKey, bool) {
    CollectedPicture picture;
    if (colorKey)
        picture.colorKey.assign(colorKey, colorKey + 2 * colors->getNumPixelComps());
    picture.opacityChannel = opacityChannelOf(*stream, colors->getNumPixelComps());
    add({*state, reference, *stream, width, height, colors}, std::move(picture));
}

void PictureCollector::drawMaskedImage(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                                       GfxImageColorMap* colors, bool, ::Stream*, int maskWidth, int maskHeight,
                                       bool isMaskInverted, bool) {
    CollectedPicture picture;
    picture.maskKind = CollectedPicture::MaskKind::Stencil;
    picture.maskWidth = maskWidth;
    picture.maskHeight = maskHeight;
    picture.isMaskInverted = isMaskInverted;
    add({*state, reference, *stream, width, height, colors}, std::move(picture));
}

void PictureCollector::drawSoftMaskedImage(GfxState* state, ::Object* reference, ::Stream* stream, int width,
                                           int height, GfxImageColorMap* colors, bool, ::Stream*, int maskWidth,
                                           int maskHeight, GfxImageColorMap* maskColors, bool) {
    CollectedPicture picture;
    picture.maskKind = CollectedPicture::MaskKind::Soft;
    picture.maskWidth = maskWidth;
    picture.maskHeight = maskHeight;
    picture.maskColors = copyOf(maskColors);
    add({*state, reference, *stream, width, height, colors}, std::move(picture));
}

void PictureCollector::beginTransparencyGroup(GfxState*, const double*, GfxColorSpace*, bool, bool,
                                              bool isForSoftMask) {
    m_groups.push_back({isForSoftMask, m_painted.size()});
    m_maskDepth += isForSoftMask ? 1 : 0;
}

void PictureCollector::endTransparencyGroup(GfxState*) {
    if (m_groups.empty())
        return;
    m_endedGroup = m_groups.back();
    m_maskDepth -= m_endedGroup.isSoftMask ? 1 : 0;
    m_groups.pop_back();
}

void PictureCollector::paintTransparencyGroup(GfxState*, const double*) {
    if (m_hasMask)
        coverFrom(m_endedGroup.firstPainted);
}

void PictureCollector::restoreState(GfxState*) {
    if (m_maskLevels.empty())
        return;
    m_hasMask = m_maskLevels.back();
    m_maskLevels.pop_back();
}

} // namespace orvane::pdf
