#pragma once

#include "pdf/PageContent.h"

#include <cstdint>
#include <map>
#include <memory>
#include <utility>
#include <vector>

class GfxFont;
class XRef;

namespace orvane::pdf {

/// Tells where the glyphs of fonts for formulas put their ink. Their brackets and sums hang below the baseline and grow
/// over several lines, of which the font's ascent and descent say nothing. What was measured is kept for the next page.
class GlyphInk {
public:
    explicit GlyphInk(XRef& xref)
        : m_xref(xref) {}

    /// `sources` are the library's fonts of page.fonts.
    void apply(PageContent& page, const std::vector<std::shared_ptr<GfxFont>>& sources);

private:
    /// By code; from the origin, y upwards. Units: em.
    using Boxes = std::map<std::uint32_t, Rect>;

    const Boxes& boxesOf(GfxFont& source, int objectNumber);
    Boxes measure(GfxFont& source) const;

    XRef& m_xref;
    std::map<int, Boxes> m_seen; ///< by object number; fonts without one are measured page by page
};

} // namespace orvane::pdf
