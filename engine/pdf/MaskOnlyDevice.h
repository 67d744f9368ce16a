#pragma once

#include <vector>

#include <GfxState.h>
#include <SplashOutputDev.h>

namespace orvane::pdf {

/// Paints what soft masks are made of, and of the rest of a page those pictures that are asked for.
class MaskOnlyDevice : public ::SplashOutputDev {
public:
    explicit MaskOnlyDevice(SplashColorPtr paper)
        : SplashOutputDev(splashModeRGB8, 1, false, paper) {}

    void drawChar(GfxState* state, double x, double y, double dx, double dy, double originX, double originY,
                  CharCode code, int byteCount, const Unicode* unicode, int unicodeLength) override;
    bool beginType3Char(GfxState* state, double x, double y, double dx, double dy, CharCode code,
                        const Unicode* unicode, int unicodeLength) override;
    void stroke(GfxState* state) override;
    void fill(GfxState* state) override;
    void eoFill(GfxState* state) override;
    bool tilingPatternFill(GfxState* state, Gfx* gfx, Catalog* catalog, GfxTilingPattern* pattern, const double* matrix,
                           int x0, int y0, int x1, int y1, double xStep, double yStep) override;
    bool useShadedFills(int type) override;
    bool functionShadedFill(GfxState* state, GfxFunctionShading* shading) override;
    bool axialShadedFill(GfxState* state, GfxAxialShading* shading, double from, double to) override;
    bool radialShadedFill(GfxState* state, GfxRadialShading* shading, double from, double to) override;
    bool gouraudTriangleShadedFill(GfxState* state, GfxGouraudTriangleShading* shading) override;
    bool patchMeshShadedFill(GfxState* state, GfxPatchMeshShading* shading) override;

    void drawImageMask(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height, bool isInverted,
                       bool interpolate, bool isInline) override;
    void setSoftMaskFromImageMask(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                                  bool isInverted, bool isInline, double* baseMatrix) override;
    void unsetSoftMaskFromImageMask(GfxState* state, double* baseMatrix) override;
    void drawImage(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                   GfxImageColorMap* colors, bool interpolate, const int* colorKey, bool isInline) override;
    void drawMaskedImage(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                         GfxImageColorMap* colors, bool interpolate, ::Stream* maskStream, int maskWidth,
                         int maskHeight, bool isMaskInverted, bool interpolateMask) override;
    void drawSoftMaskedImage(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                             GfxImageColorMap* colors, bool interpolate, ::Stream* maskStream, int maskWidth,
                             int maskHeight, GfxImageColorMap* maskColors, bool interpolateMask) override;

    void beginTransparencyGroup(GfxState* state, const double* box, GfxColorSpace* blendingSpace, bool isIsolated,
                                bool isKnockout, bool isForSoftMask) override;
    void endTransparencyGroup(GfxState* state) override;

protected:
    /// An open group.
    struct Group {
        int x; ///< of its bitmap in that around it, pixels
        int y;
        bool isSoftMask;
    };
    const std::vector<Group>& groups() const { return m_groups; }
    bool isInMask() const;

private:
    /// Whether a picture that is no part of a mask is painted. Called once for each, in paint order.
    virtual bool isWanted(const GfxState& state, const ::Object* reference) = 0;

    std::vector<Group> m_groups;
    bool m_isStencilMask = false; ///< the stencil that was met last is one that a pattern is painted through
};

} // namespace orvane::pdf
