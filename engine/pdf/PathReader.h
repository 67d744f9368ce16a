#pragma once

#include "pdf/PageContent.h"

#include <vector>

class GfxState;

namespace orvane::pdf {

enum class FillRule : std::uint8_t { NonZero, EvenOdd };

/// What stands for a shading or a tiling pattern.
struct PatternLook {
    Color meanColor;
    std::shared_ptr<const Gradient> gradient;
};

/// Turns painted paths into the page's paths.
class PathReader {
public:
    explicit PathReader(PageContent& page)
        : m_page(page) {}

    void fill(GfxState& state, FillRule rule, std::int32_t mark, std::uint32_t paintOrder);
    /// A stroke that follows a fill of the same path becomes part of it.
    void stroke(GfxState& state, std::int32_t mark, std::uint32_t paintOrder);

    /// The current path becomes (part of) the clip path; shadings and patterns are painted through it.
    void clip(const GfxState& state, FillRule rule);
    /// Likewise with what a stroke of the current path would cover.
    void clipToStroke(GfxState& state);
    /// Paints the innermost clip path, as shadings and patterns do.
    void fillClipWithPattern(GfxState& state, const PatternLook& look, std::int32_t mark, std::uint32_t paintOrder);
    /// Fills what the picture of a single dot covers.
    void fillUnitSquare(const GfxState& state, const FillStyle& style, std::int32_t mark, std::uint32_t paintOrder);

    /// Follows q and Q, which bound the clip path.
    void saveState() { m_clipLevels.push_back(m_clip); }
    void restoreState();

private:
    struct ClipPath {
        std::vector<PathSegment> segments;
        bool isEvenOdd = false;
        std::optional<StrokeStyle> stroke; ///< where the outline is meant, not what it encloses
        bool isOdd = false;                ///< it, or one around it, is no upright rectangle
        bool isCutOddly = false;           ///< one around it is none
    };
    Path makePath(const GfxState& state, std::vector<PathSegment> segments, std::int32_t mark,
                  std::uint32_t paintOrder) const;

    PageContent& m_page;
    ClipPath m_clip;
    std::vector<ClipPath> m_clipLevels;
};

} // namespace orvane::pdf
