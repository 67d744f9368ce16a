#pragma once

#include "pdf/BlindDevice.h"
#include "pdf/OpacityChannel.h"
#include "pdf/PagePictures.h"
#include "pdf/PagePlayer.h"

#include <set>
#include <string>
#include <vector>

#include <GfxState.h>
#include <Object.h>

namespace orvane::pdf {

/// What reading a picture later takes; the library's own objects live no longer than the painting.
struct CollectedPicture {
    Ref reference = Ref::INVALID();
    std::string inlineSamples; ///< decoded, for a picture that is no object
    bool isInverted = false;
    Color stencilColor;
    std::unique_ptr<GfxImageColorMap> colors;
    std::vector<int> colorKey;
    enum class MaskKind : std::uint8_t { None, Stencil, Soft };
    MaskKind maskKind = MaskKind::None;
    int maskWidth = 0;
    int maskHeight = 0;
    bool isMaskInverted = false;
    std::unique_ptr<GfxImageColorMap> maskColors;
    OpacityChannel opacityChannel = OpacityChannel::None;
    int painting = 0; ///< counts all that the page paints, without what masks and patterns are made of

    /// A picture's own soft mask overrides that of the graphics state. Source: ISO 32000-1, 11.6.5.3.
    bool hasOwnSoftMask() const { return maskKind == MaskKind::Soft || opacityChannel != OpacityChannel::None; }
};

/// The output device that writes down which pictures a page paints. Text, paths and shadings are passed over.
class PictureCollector : public BlindDevice {
public:
    PictureCollector(::PDFDoc& document, TimeBudget& budget)
        : m_document(document)
        , m_budget(budget) {}

    /// In paint order; to each painting belongs the collected picture of the same index.
    std::vector<PaintedPicture> takePainted() { return std::move(m_painted); }
    std::vector<CollectedPicture> takeCollected() { return std::move(m_collected); }
    /// Inline pictures that were left out since they are beyond limits.
    int oversizedInlines() const { return m_oversizedInlines; }

    bool useDrawChar() override { return true; }
    bool tilingPatternFill(GfxState* state, Gfx* gfx, Catalog* catalog, GfxTilingPattern* pattern, const double* matrix,
                           int x0, int y0, int x1, int y1, double xStep, double yStep) override;

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
    void unsetSoftMaskFromImageMask(GfxState*, double*) override {}

    void saveState(GfxState*) override { m_maskLevels.push_back(m_hasMask); }
    void restoreState(GfxState*) override;
    void setSoftMask(GfxState*, const double*, bool, Function*, GfxColor*) override { m_hasMask = true; }
    void clearSoftMask(GfxState*) override { m_hasMask = false; }
    void beginTransparencyGroup(GfxState*, const double*, GfxColorSpace*, bool, bool, bool isForSoftMask) override;
    void endTransparencyGroup(GfxState*) override;
    void paintTransparencyGroup(GfxState*, const double*) override;

private:
    /// A painting as the library tells of it.
    struct Painting {
        GfxState& state;
        const ::Object* reference;
        ::Stream& stream;
        int width;
        int height;
        GfxImageColorMap* colors;
    };
    void add(const Painting& painting, CollectedPicture picture);
    bool readInline(const Painting& painting, CollectedPicture& picture);
    /// Notes that a soft mask lies over the pictures from `first` on.
    void coverFrom(std::size_t first);

    /// A transparency group.
    struct Group {
        bool isSoftMask = false;
        std::size_t firstPainted = 0;
    };

    ::PDFDoc& m_document;
    TimeBudget& m_budget;
    std::vector<PaintedPicture> m_painted;
    std::vector<CollectedPicture> m_collected;
    std::vector<Group> m_groups; ///< open ones
    Group m_endedGroup;          ///< the last
    int m_maskDepth = 0;
    bool m_hasMask = false; ///< a soft mask holds for what is painted
    std::vector<bool> m_maskLevels;
    int m_nextPainting = 0;
    int m_patternDepth = 0;
    std::set<int> m_patterns; ///< object numbers of those that were looked through
    std::size_t m_inlineBytes = 0;
    int m_oversizedInlines = 0;
};

} // namespace orvane::pdf
