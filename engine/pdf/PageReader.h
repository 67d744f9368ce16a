#pragma once

#include "base/Diagnostic.h"
#include "pdf/GlyphReader.h"
#include "pdf/MarkReader.h"
#include "pdf/PageContent.h"
#include "pdf/PagePlayer.h"
#include "pdf/PathReader.h"
#include "pdf/PictureReader.h"
#include "pdf/TextClip.h"
#include "pdf/TransparencyReader.h"

#include <map>

#include <OutputDev.h>

namespace orvane::pdf {

/// What a PageReader reads with and writes to.
struct PageReading {
    ::PDFDoc& document;
    PageContent& page;
    PictureCache& pictures;
    PictureStore* store = nullptr;
    Diagnostics& diagnostics;
    TimeBudget& budget;
    int patternDepth = 0; ///< cells of patterns may use patterns
};

/// The output device that the PDF library paints a page on: it writes down what is painted instead of painting it.
class PageReader : public ::OutputDev {
public:
    explicit PageReader(const PageReading& reading);

    const GlyphReader& glyphs() const { return m_glyphs; }
    const TransparencyReader& transparency() const { return m_transparency; }
    /// Of what is painted next.
    std::uint32_t paintOrder() const { return m_paintOrder; }

    bool upsideDown() override { return true; }
    bool useDrawChar() override { return true; }
    bool interpretType3Chars() override { return true; }
    bool useTilingPatternFill() override { return true; }
    bool useShadedFills(int) override { return true; }

    void saveState(GfxState*) override;
    void restoreState(GfxState*) override;
    void updateFont(GfxState*) override { m_glyphs.forgetFont(); }

    void beginString(GfxState* state, const GooString*) override;
    void drawChar(GfxState* state, double x, double y, double dx, double dy, double originX, double originY,
                  CharCode code, int byteCount, const Unicode* unicode, int unicodeLength) override;
    bool beginType3Char(GfxState* state, double x, double y, double dx, double dy, CharCode code,
                        const Unicode* unicode, int unicodeLength) override;

    void stroke(GfxState* state) override;
    void fill(GfxState* state) override { fill(*state, FillRule::NonZero); }
    void eoFill(GfxState* state) override { fill(*state, FillRule::EvenOdd); }
    void clip(GfxState* state) override { m_paths.clip(*state, FillRule::NonZero); }
    void eoClip(GfxState* state) override { m_paths.clip(*state, FillRule::EvenOdd); }
    void clipToStrokePath(GfxState* state) override { m_paths.clipToStroke(*state); }

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
    void setSoftMaskFromImageMask(GfxState* state, ::Object* reference, ::Stream* stream, int width, int height,
                                  bool isInverted, bool isInline, double* baseMatrix) override;
    void unsetSoftMaskFromImageMask(GfxState* state, double* baseMatrix) override;

    void beginMarkedContent(const char* tag, ::Dict* properties) override { m_marks.begin(tag, properties); }
    void endMarkedContent(GfxState*) override { m_marks.end(); }
    void markPoint(const char*) override {}
    void markPoint(const char* tag, ::Dict* properties) override { m_marks.markPoint(tag, properties); }
    void beginForm(Ref) override { m_marks.beginForm(); }
    void endForm(Ref) override { m_marks.endForm(); }

    void beginTransparencyGroup(GfxState* state, const double* box, GfxColorSpace* blendingSpace, bool isIsolated,
                                bool isKnockout, bool isForSoftMask) override;
    void endTransparencyGroup(GfxState*) override { m_transparency.endGroup(); }
    void paintTransparencyGroup(GfxState* state, const double* box) override;
    void setSoftMask(GfxState* state, const double* box, bool useAlpha, Function* transfer,
                     GfxColor* backdrop) override;
    void clearSoftMask(GfxState*) override { m_transparency.clearMask(); }

private:
    void fill(GfxState& state, FillRule rule);
    void shade(GfxState& state, const PatternLook& look);
    void fillDot(GfxState& state, Color color);
    void addPicture(GfxState& state, const PictureSource& source, const ::Object* reference);
    Color meanColorOf(GfxState& state, Gfx& gfx, GfxTilingPattern& pattern);

    PageReading m_reading;
    MarkReader m_marks;
    GlyphReader m_glyphs;
    PathReader m_paths;
    PictureReader m_pictures;
    TextClip m_textClip;
    TransparencyReader m_transparency;
    Matrix m_stringMatrix;                ///< user space to page space for the string that is shown
    std::map<int, Color> m_patternColors; ///< by the pattern's object number
    std::uint32_t m_paintOrder = 0;
};

} // namespace orvane::pdf
