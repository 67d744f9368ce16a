#pragma once

#include "pdf/PageContent.h"

#include <memory>
#include <unordered_map>
#include <vector>

class GfxFont;
class GfxState;
class XRef;

namespace orvane::pdf {

/// A character as the content stream shows it, in the words of the PDF library: user space, the displacement with the
/// text state's spacing.
struct ShownCharacter {
    double x = 0;
    double y = 0;
    double dx = 0;
    double dy = 0;
    std::uint32_t code = 0;
    int byteCount = 1;
    const unsigned* unicode = nullptr;
    int unicodeLength = 0;
    Matrix toPage; ///< from user space
};

/// Turns shown characters into the page's glyphs and fonts.
class GlyphReader {
public:
    GlyphReader(PageContent& page, XRef& xref)
        : m_page(page)
        , m_xref(xref) {}

    /// The text state's font or matrix may have changed.
    void forgetFont() { m_isFontKnown = false; }

    void read(const GfxState& state, const ShownCharacter& character, std::int32_t mark, std::uint32_t paintOrder);

    /// The library's fonts of the page's fonts, by the same index.
    const std::vector<std::shared_ptr<GfxFont>>& sources() const { return m_sources; }

private:
    struct FontKey {
        const GfxFont* font;
        bool isSlanted;
        bool operator==(const FontKey&) const = default;
    };
    struct FontKeyHash {
        std::size_t operator()(const FontKey& key) const {
            return std::hash<const void*>{}(key.font) * 2 + (key.isSlanted ? 1 : 0);
        }
    };
    std::uint32_t fontIndex(const std::shared_ptr<GfxFont>& font, bool isSlanted);
    /// How far above the baseline the glyph counts for what a clip path cuts off, in ems: with the letters before it on
    /// the same baseline, so that no full stop of a line that shows in part is cut off, and no accent of another shows.
    double reachInLine(const Glyph& glyph, double ascent) const;
    void noteSpaceWidth(const Glyph& glyph);

    PageContent& m_page;
    XRef& m_xref;
    std::unordered_map<FontKey, std::uint32_t, FontKeyHash> m_fontIndices;
    std::vector<std::shared_ptr<GfxFont>> m_sources; ///< held, so that the keys' addresses are not used again
    std::vector<double> m_ems;                       ///< of the page's fonts, see emOf()
    std::vector<bool> m_hasSpaceWidth;               ///< a font of the page, its blank's width seen
    bool m_isFontKnown = false;
    bool m_wasSlanted = false;
    std::uint32_t m_font = 0;
};

} // namespace orvane::pdf
