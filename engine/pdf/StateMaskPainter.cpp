#include "pdf/StateMaskPainter.h"

#include "pdf/MaskOnlyDevice.h"
#include "pdf/PageSpace.h"

#include <algorithm>
#include <cmath>

#include <Annot.h>
#include <Page.h>
#include <splash/Splash.h>
#include <splash/SplashBitmap.h>

namespace orvane::pdf {
namespace {

constexpr double kMaxPixels = 16e6;
/// Edges come out softer than they are, and coarse pictures are smoothed; as far as so many pixels go, a finer painting
/// is made, of which each pixel of the picture takes its middle.
constexpr double kFinePixels = 2e6;
constexpr double kGreatestFineness = 16;

/// Takes down the masks that lie over one picture of a page.
class MaskTaker : public MaskOnlyDevice {
public:
    MaskTaker(const MaskedPainting& wanted, const PageSlice& slice, SplashColorPtr paper)
        : MaskOnlyDevice(paper)
        , m_wanted(wanted)
        , m_coverage{slice.x, slice.y, slice.width, slice.height, {}} {
        m_coverage.opacity.assign(static_cast<std::size_t>(slice.width) * static_cast<std::size_t>(slice.height), 255);
    }

    /// Whether the picture was met.
    bool hasFound() const { return m_hasFound; }
    StateMask::Coverage takeCoverage() { return std::move(m_coverage); }

    void endTransparencyGroup(GfxState* state) override {
        MaskOnlyDevice::endTransparencyGroup(state);
        m_isInEndedGroup = m_hasFound && groups().size() < m_depth;
        m_depth = std::min(m_depth, groups().size());
    }
    void paintTransparencyGroup(GfxState* state, const double* box) override {
        // The mask over a group lies over the picture in it.
        if (m_isInEndedGroup)
            takeMask();
        m_isInEndedGroup = false;
        MaskOnlyDevice::paintTransparencyGroup(state, box);
    }

private:
    bool isWanted(const GfxState&, const ::Object*) override {
        if (m_next++ == m_wanted.number) {
            m_hasFound = true;
            m_depth = groups().size();
            if (!m_wanted.hasOwnSoftMask)
                takeMask();
        }
        return false; // what it looks like does not matter
    }

    /// Lays the mask that holds now over those that were taken down before.
    void takeMask() {
        SplashBitmap* mask = getSplash()->getSoftMask();
        if (!mask)
            return;
        int left = 0;
        int top = 0;
        for (const Group& group : groups()) {
            left += group.x;
            top += group.y;
        }
        std::size_t at = 0;
        for (int y = 0; y < m_coverage.height; ++y)
            for (int x = 0; x < m_coverage.width; ++x, ++at)
                m_coverage.opacity[at] =
                    static_cast<std::uint8_t>((m_coverage.opacity[at] * levelAt(*mask, x - left, y - top) + 127) / 255);
    }
    static int levelAt(SplashBitmap& mask, int x, int y) {
        if (x < 0 || y < 0 || x >= mask.getWidth() || y >= mask.getHeight())
            return 0;
        return mask.getDataPtr()[static_cast<std::ptrdiff_t>(y) * mask.getRowSize() + x];
    }

    const MaskedPainting& m_wanted;
    StateMask::Coverage m_coverage;
    int m_next = 0; ///< painting
    bool m_hasFound = false;
    std::size_t m_depth = 0; ///< of the groups around the picture that are open still
    bool m_isInEndedGroup = false;
};

double scaleFor(const PaintedPicture& picture, const Rect& area) {
    const double width = std::hypot(picture.matrix.a, picture.matrix.b);
    const double height = std::hypot(picture.matrix.c, picture.matrix.d);
    if (!(width > 0) || !(height > 0))
        return 0;
    const double own = std::max(picture.width / width, picture.height / height);
    const double fineness = std::floor(std::sqrt(kFinePixels / area.area()) / own);
    return std::min(own * std::clamp(fineness, 1.0, kGreatestFineness), std::sqrt(kMaxPixels / area.area()));
}

} // namespace

std::optional<StateMask> paintStateMask(const MaskedPainting& painting, ::Page& page, ::PDFDoc& document,
                                        ContentRepair repair, TimeBudget& budget) {
    const PaintedPicture& picture = painting.picture;
    const Rect area = picture.matrix.applyToBox({0, 0, 1, 1}).intersected(pageBox(page));
    const double scale = area.isEmpty() ? 0 : scaleFor(picture, area);
    if (!(scale > 0))
        return StateMask({}, {}); // off the page nothing is seen
    const PageSlice slice = sliceOf(area, scale);
    SplashColor paper = {0, 0, 0};
    MaskTaker device(painting, slice, paper);
    device.startDoc(&document);
    playPage(page, document, device, budget, repair, slice, PlayedAnnotations::All);
    if (!device.hasFound() || budget.isSpent())
        return std::nullopt;
    Matrix matrix = picture.matrix;
    for (double* value : {&matrix.a, &matrix.b, &matrix.c, &matrix.d, &matrix.e, &matrix.f})
        *value *= scale;
    return StateMask(device.takeCoverage(), matrix);
}

} // namespace orvane::pdf
