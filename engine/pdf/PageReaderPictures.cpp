#include "pdf/PageReader.h"

#include "pdf/PageSpace.h"

#include <GfxState.h>
#include <Object.h>

namespace orvane::pdf {
namespace {

PictureSource sourceOf(::Stream* stream, int width, int height, GfxImageColorMap* colors) {
    PictureSource source;
    source.stream = stream;
    source.width = width;
    source.height = height;
    source.colors = colors;
    return source;
}

PictureSource stencilOf(const GfxState& state, ::Stream* stream, int width, int height, bool isInverted) {
    PictureSource source = sourceOf(stream, width, height, nullptr);
    source.isInverted = isInverted;
    GfxRGB color;
    state.getFillRGB(&color);
    source.stencilColor = toColor(color);
    return source;
}

/// Whether a mask of one dot paints it. Source: ISO 32000-1, 8.9.6.2.
bool paintsDot(::Stream& stream, bool isInverted) {
    stream.reset();
    const int byte = stream.getChar();
    stream.close();
    constexpr int kFirstBit = 0x80;
    return byte != EOF && ((byte & kFirstBit) != 0) == isInverted;
}

} // namespace

/// Some programs paint their rules as masks of a single dot.
void PageReader::fillDot(GfxState& state, Color color) {
    if (m_textClip.isActive()) {
        m_textClip.paint(color);
        return;
    }
    m_paths.fillUnitSquare(state, {color, false, false, state.getFillOpacity(), nullptr}, m_marks.current(),
                           m_paintOrder++);
    m_transparency.coverLastPath();
}

void PageReader::addPicture(GfxState& state, const PictureSource& source, const ::Object* reference) {
    if (m_textClip.isActive()) {
        m_textClip.paint();
        return;
    }
    const int object = reference && reference->isRef() ? reference->getRefNum() : 0;
    // The pictures of masks and patterns' cells are weighed only, not shown.
    PictureStore* store = m_transparency.isInMask() ? nullptr : m_reading.store;
    m_pictures.read(state, source, object, store, m_marks.current(), m_paintOrder++);
    m_transparency.coverLastPicture();
}

void PageReader::drawImageMask(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                               bool isInverted, bool, bool) {
    const PictureSource source = stencilOf(*state, stream, width, height, isInverted);
    if (width != 1 || height != 1)
        addPicture(*state, source, reference);
    else if (paintsDot(*stream, isInverted))
        fillDot(*state, source.stencilColor);
}

void PageReader::drawImage(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                           GfxImageColorMap* colors, bool, const int* colorKey, bool) {
    PictureSource source = sourceOf(stream, width, height, colors);
    source.colorKey = colorKey;
    source.opacityChannel = opacityChannelOf(*stream, colors->getNumPixelComps());
    addPicture(*state, source, reference);
}

void PageReader::drawMaskedImage(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                                 GfxImageColorMap* colors, bool, ::Stream* maskStream, int maskWidth, int maskHeight,
                                 bool isMaskInverted, bool) {
    PictureSource source = sourceOf(stream, width, height, colors);
    source.mask = PictureMask{maskStream, maskWidth, maskHeight, nullptr, isMaskInverted};
    addPicture(*state, source, reference);
}

void PageReader::drawSoftMaskedImage(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                                     GfxImageColorMap* colors, bool, ::Stream* maskStream, int maskWidth,
                                     int maskHeight, GfxImageColorMap* maskColors, bool) {
    PictureSource source = sourceOf(stream, width, height, colors);
    source.mask = PictureMask{maskStream, maskWidth, maskHeight, maskColors, false};
    addPicture(*state, source, reference);
}

// A stencil that is painted with a pattern comes as a mask; it is shown as a stencil in the colour that stands for the
// pattern.
void PageReader::setSoftMaskFromImageMask(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                                          bool isInverted, bool, double*) {
    addPicture(*state, stencilOf(*state, stream, width, height, isInverted), reference);
}

void PageReader::unsetSoftMaskFromImageMask(GfxState*, double*) {}

} // namespace orvane::pdf
