#include "pdf/PageReader.h"

#include "pdf/PageSpace.h"

#include <GfxState.h>
#include <Object.h>

namespace orvane::pdf {
namespace {

int objectNumberOf(const ::Object* reference) {
    return reference && reference->isRef() ? reference->getRefNum() : 0;
}

PictureSource sourceOf(::Stream* stream, int width, int height, GfxImageColorMap* colors) {
    PictureSource source;
    source.stream = stream;
    source.width = width;
    source.height = height;
    source.colors = colors;
    return source;
}

} // namespace

void PageReader::restoreState(GfxState*) {
    m_paths.restoreState();
    m_glyphs.forgetFont();
}

void PageReader::drawChar(GfxState* state, double x, double y, double dx, double dy, double originX, double originY,
                          CharCode code, int byteCount, const Unicode* unicode, int unicodeLength) {
    m_glyphs.read(*state, {x, y, dx, dy, originX, originY, code, byteCount, unicode, unicodeLength}, m_marks.current(),
                  m_paintOrder++);
}

void PageReader::stroke(GfxState* state) {
    if (!isIgnored())
        m_paths.stroke(*state, m_marks.current(), m_paintOrder++);
}

void PageReader::fill(GfxState* state) {
    if (!isIgnored())
        m_paths.fill(*state, FillRule::NonZero, m_marks.current(), m_paintOrder++);
}

void PageReader::eoFill(GfxState* state) {
    if (!isIgnored())
        m_paths.fill(*state, FillRule::EvenOdd, m_marks.current(), m_paintOrder++);
}

bool PageReader::tilingPatternFill(GfxState* state, Gfx*, Catalog*, GfxTilingPattern*, const double*, int x0, int y0,
                                   int x1, int y1, double, double) {
    // A single cell is a way to paint a picture or a drawing inside an outline: it is read like any other content.
    const bool isSingleCell = x1 - x0 <= 1 && y1 - y0 <= 1;
    if (isSingleCell && !isIgnored())
        return false;
    if (!isIgnored())
        m_paths.fillClipWithPattern(*state, {128, 128, 128}, m_marks.current(), m_paintOrder++);
    return true;
}

void PageReader::shade(GfxState& state, GfxShading& shading) {
    if (!isIgnored())
        m_paths.fillClipWithPattern(state, meanColorOf(shading), m_marks.current(), m_paintOrder++);
}

bool PageReader::functionShadedFill(GfxState* state, GfxFunctionShading* shading) {
    shade(*state, *shading);
    return true;
}

bool PageReader::axialShadedFill(GfxState* state, GfxAxialShading* shading, double, double) {
    shade(*state, *shading);
    return true;
}

bool PageReader::radialShadedFill(GfxState* state, GfxRadialShading* shading, double, double) {
    shade(*state, *shading);
    return true;
}

bool PageReader::gouraudTriangleShadedFill(GfxState* state, GfxGouraudTriangleShading* shading) {
    shade(*state, *shading);
    return true;
}

bool PageReader::patchMeshShadedFill(GfxState* state, GfxPatchMeshShading* shading) {
    shade(*state, *shading);
    return true;
}

void PageReader::drawImageMask(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                               bool isInverted, bool, bool) {
    PictureSource source = sourceOf(stream, width, height, nullptr);
    source.isInverted = isInverted;
    GfxRGB color;
    state->getFillRGB(&color);
    source.stencilColor = toColor(color);
    m_pictures.read(*state, source, objectNumberOf(reference), m_marks.current(), m_paintOrder++);
}

void PageReader::drawImage(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                           GfxImageColorMap* colors, bool, const int* colorKey, bool) {
    PictureSource source = sourceOf(stream, width, height, colors);
    source.colorKey = colorKey;
    m_pictures.read(*state, source, objectNumberOf(reference), m_marks.current(), m_paintOrder++);
}

void PageReader::drawMaskedImage(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                                 GfxImageColorMap* colors, bool, ::Stream* maskStream, int maskWidth, int maskHeight,
                                 bool isMaskInverted, bool) {
    PictureSource source = sourceOf(stream, width, height, colors);
    source.mask = PictureMask{maskStream, maskWidth, maskHeight, nullptr, isMaskInverted};
    m_pictures.read(*state, source, objectNumberOf(reference), m_marks.current(), m_paintOrder++);
}

void PageReader::drawSoftMaskedImage(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                                     GfxImageColorMap* colors, bool, ::Stream* maskStream, int maskWidth,
                                     int maskHeight, GfxImageColorMap* maskColors, bool) {
    PictureSource source = sourceOf(stream, width, height, colors);
    source.mask = PictureMask{maskStream, maskWidth, maskHeight, maskColors, false};
    m_pictures.read(*state, source, objectNumberOf(reference), m_marks.current(), m_paintOrder++);
}

} // namespace orvane::pdf
