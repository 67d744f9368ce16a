#pragma once

#include "base/Diagnostic.h"
#include "pdf/GlyphReader.h"
#include "pdf/MarkReader.h"
#include "pdf/PageContent.h"
#include "pdf/PathReader.h"
#include "pdf/PictureReader.h"

#include <OutputDev.h>

namespace orvane::pdf {

/// The output device that the PDF library paints a page on: it writes down what is painted instead of painting it.
class PageReader : public ::OutputDev {
public:
    PageReader(PageContent& page, XRef& xref, PictureCache& pictures, PictureStore* store, Diagnostics& diagnostics)
        : m_marks(page.marks)
        , m_glyphs(page, xref)
        , m_paths(page)
        , m_pictures(page, pictures, store, diagnostics) {}

    bool upsideDown() override { return true; }
    bool useDrawChar() override { return true; }
    bool interpretType3Chars() override { return false; }
    bool useTilingPatternFill() override { return true; }
    bool useShadedFills(int) override { return true; }

    void saveState(GfxState*) override { m_paths.saveState(); }
    void restoreState(GfxState*) override;
    void updateFont(GfxState*) override { m_glyphs.forgetFont(); }

    void drawChar(GfxState* state, double x, double y, double dx, double dy, double originX, double originY,
                  CharCode code, int byteCount, const Unicode* unicode, int unicodeLength) override;

    void stroke(GfxState* state) override;
    void fill(GfxState* state) override;
    void eoFill(GfxState* state) override;
    void clip(GfxState* state) override { m_paths.clip(*state, FillRule::NonZero); }
    void eoClip(GfxState* state) override { m_paths.clip(*state, FillRule::EvenOdd); }
    void clipToStrokePath(GfxState* state) override { m_paths.clip(*state, FillRule::NonZero); }

    bool tilingPatternFill(GfxState* state, Gfx* gfx, Catalog* catalog, GfxTilingPattern* pattern, const double* matrix,
                           int x0, int y0, int x1, int y1, double xStep, double yStep) override;
    bool functionShadedFill(GfxState* state, GfxFunctionShading* shading) override;
    bool axialShadedFill(GfxState* state, GfxAxialShading* shading, double from, double to) override;
    bool axialShadedSupportExtend(GfxState*, GfxAxialShading*) override { return true; }
    bool radialShadedFill(GfxState* state, GfxRadialShading* shading, double from, double to) override;
    bool radialShadedSupportExtend(GfxState*, GfxRadialShading*) override { return true; }
    bool gouraudTriangleShadedFill(GfxState* state, GfxGouraudTriangleShading* shading) override;
    bool patchMeshShadedFill(GfxState* state, GfxPatchMeshShading* shading) override;

    void drawImageMask(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height, bool isInverted,
                       bool interpolate, bool isInline) override;
    void drawImage(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                   GfxImageColorMap* colors, bool interpolate, const int* colorKey, bool isInline) override;
    void drawMaskedImage(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                         GfxImageColorMap* colors, bool interpolate, ::Stream* maskStream, int maskWidth,
                         int maskHeight, bool isMaskInverted, bool interpolateMask) override;
    void drawSoftMaskedImage(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                             GfxImageColorMap* colors, bool interpolate, ::Stream* maskStream, int maskWidth,
                             int maskHeight, GfxImageColorMap* maskColors, bool interpolateMask) override;

    void beginMarkedContent(const char* tag, ::Dict* properties) override { m_marks.begin(tag, properties); }
    void endMarkedContent(GfxState*) override { m_marks.end(); }

    // Text that is painted through a pattern is drawn as clip and pattern; the glyphs alone are wanted.
    void saveTextPos(GfxState*) override { ++m_patternTextDepth; }
    void restoreTextPos(GfxState*) override { --m_patternTextDepth; }

private:
    bool isIgnored() const { return m_patternTextDepth > 0; }
    void shade(GfxState& state, GfxShading& shading);

    MarkReader m_marks;
    GlyphReader m_glyphs;
    PathReader m_paths;
    PictureReader m_pictures;
    std::uint32_t m_paintOrder = 0;
    int m_patternTextDepth = 0;
};

} // namespace orvane::pdf
