#include "pdf/MaskOnlyDevice.h"

#include "pdf/PageSpace.h"

#include <algorithm>
#include <cmath>

namespace orvane::pdf {

bool MaskOnlyDevice::isInMask() const {
    return std::any_of(m_groups.begin(), m_groups.end(), [](const Group& group) { return group.isSoftMask; });
}

void MaskOnlyDevice::drawChar(GfxState* state, double x, double y, double dx, double dy, double originX, double originY,
                              CharCode code, int byteCount, const Unicode* unicode, int unicodeLength) {
    if (isInMask())
        SplashOutputDev::drawChar(state, x, y, dx, dy, originX, originY, code, byteCount, unicode, unicodeLength);
}

// Of the functions below that return a bool, true tells the library that all is done.

bool MaskOnlyDevice::beginType3Char(GfxState* state, double x, double y, double dx, double dy, CharCode code,
                                    const Unicode* unicode, int unicodeLength) {
    return !isInMask() || SplashOutputDev::beginType3Char(state, x, y, dx, dy, code, unicode, unicodeLength);
}

void MaskOnlyDevice::stroke(GfxState* state) {
    if (isInMask())
        SplashOutputDev::stroke(state);
}

void MaskOnlyDevice::fill(GfxState* state) {
    if (isInMask())
        SplashOutputDev::fill(state);
}

void MaskOnlyDevice::eoFill(GfxState* state) {
    if (isInMask())
        SplashOutputDev::eoFill(state);
}

bool MaskOnlyDevice::tilingPatternFill(GfxState* state, Gfx* gfx, Catalog* catalog, GfxTilingPattern* pattern,
                                       const double* matrix, int x0, int y0, int x1, int y1, double xStep,
                                       double yStep) {
    return !isInMask() ||
           SplashOutputDev::tilingPatternFill(state, gfx, catalog, pattern, matrix, x0, y0, x1, y1, xStep, yStep);
}

bool MaskOnlyDevice::useShadedFills(int type) {
    return !isInMask() || SplashOutputDev::useShadedFills(type);
}

bool MaskOnlyDevice::functionShadedFill(GfxState* state, GfxFunctionShading* shading) {
    return !isInMask() || SplashOutputDev::functionShadedFill(state, shading);
}

bool MaskOnlyDevice::axialShadedFill(GfxState* state, GfxAxialShading* shading, double from, double to) {
    return !isInMask() || SplashOutputDev::axialShadedFill(state, shading, from, to);
}

bool MaskOnlyDevice::radialShadedFill(GfxState* state, GfxRadialShading* shading, double from, double to) {
    return !isInMask() || SplashOutputDev::radialShadedFill(state, shading, from, to);
}

bool MaskOnlyDevice::gouraudTriangleShadedFill(GfxState* state, GfxGouraudTriangleShading* shading) {
    return !isInMask() || SplashOutputDev::gouraudTriangleShadedFill(state, shading);
}

bool MaskOnlyDevice::patchMeshShadedFill(GfxState* state, GfxPatchMeshShading* shading) {
    return !isInMask() || SplashOutputDev::patchMeshShadedFill(state, shading);
}

// What is not painted goes to the plainest device, which passes over the data of inline pictures.

void MaskOnlyDevice::drawImageMask(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                                   bool isInverted, bool interpolate, bool isInline) {
    if (isInMask() || isWanted(*state, reference))
        SplashOutputDev::drawImageMask(state, reference, stream, width, height, isInverted, interpolate, isInline);
    else
        OutputDev::drawImageMask(state, reference, stream, width, height, isInverted, interpolate, isInline);
}

void MaskOnlyDevice::setSoftMaskFromImageMask(GfxState* state, ::Object* reference, ::Stream* stream, int width,
                                              int height, bool isInverted, bool isInline, double* baseMatrix) {
    m_isStencilMask = isInMask() || isWanted(*state, reference);
    if (m_isStencilMask)
        SplashOutputDev::setSoftMaskFromImageMask(state, reference, stream, width, height, isInverted, isInline,
                                                  baseMatrix);
    else
        OutputDev::drawImageMask(state, reference, stream, width, height, isInverted, false, isInline);
}

void MaskOnlyDevice::unsetSoftMaskFromImageMask(GfxState* state, double* baseMatrix) {
    if (m_isStencilMask)
        SplashOutputDev::unsetSoftMaskFromImageMask(state, baseMatrix);
    m_isStencilMask = false;
}

void MaskOnlyDevice::drawImage(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                               GfxImageColorMap* colors, bool interpolate, const int* colorKey, bool isInline) {
    if (isInMask() || isWanted(*state, reference))
        SplashOutputDev::drawImage(state, reference, stream, width, height, colors, interpolate, colorKey, isInline);
    else
        OutputDev::drawImage(state, reference, stream, width, height, colors, interpolate, colorKey, isInline);
}

void MaskOnlyDevice::drawMaskedImage(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                                     GfxImageColorMap* colors, bool interpolate, ::Stream* maskStream, int maskWidth,
                                     int maskHeight, bool isMaskInverted, bool interpolateMask) {
    if (isInMask() || isWanted(*state, reference))
        SplashOutputDev::drawMaskedImage(state, reference, stream, width, height, colors, interpolate, maskStream,
                                         maskWidth, maskHeight, isMaskInverted, interpolateMask);
}

void MaskOnlyDevice::drawSoftMaskedImage(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                                         GfxImageColorMap* colors, bool interpolate, ::Stream* maskStream,
                                         int maskWidth, int maskHeight, GfxImageColorMap* maskColors,
                                         bool interpolateMask) {
    if (isInMask() || isWanted(*state, reference))
        SplashOutputDev::drawSoftMaskedImage(state, reference, stream, width, height, colors, interpolate, maskStream,
                                             maskWidth, maskHeight, maskColors, interpolateMask);
}

void MaskOnlyDevice::beginTransparencyGroup(GfxState* state, const double* box, GfxColorSpace* blendingSpace,
                                            bool isIsolated, bool isKnockout, bool isForSoftMask) {
    const Matrix outer = currentMatrix(*state);
    // What opens the group belongs to it: its own content must not look painted before.
    m_groups.push_back({0, 0, isForSoftMask});
    SplashOutputDev::beginTransparencyGroup(state, box, blendingSpace, isIsolated, isKnockout, isForSoftMask);
    const Matrix inner = currentMatrix(*state);
    m_groups.back().x = static_cast<int>(std::lround(outer.e - inner.e));
    m_groups.back().y = static_cast<int>(std::lround(outer.f - inner.f));
}

void MaskOnlyDevice::endTransparencyGroup(GfxState* state) {
    if (!m_groups.empty())
        m_groups.pop_back();
    SplashOutputDev::endTransparencyGroup(state);
}

} // namespace orvane::pdf
